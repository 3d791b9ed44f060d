// The page of a slave as plain state: check boxes, rows of the grid, the mark that a view paints after.
#include "registers/Pagina.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

class Contador final : public ObservadorPagina {
public:
    void paginaCambiada(Pagina& pagina) override {
        ++llamadas;
        ultima = &pagina;
    }
    void filasAgregadas(Pagina& pagina) override { filas.push_back(pagina.filas()); }

    int llamadas = 0;
    Pagina* ultima = nullptr;
    std::vector<int> filas; // at each call
};

TEST(Page, startsWithSevenRowsAndEveryBoxChecked) {
    const Pagina pagina(3);
    EXPECT_EQ(pagina.numero(), 3);
    EXPECT_EQ(pagina.filas(), 7);
    EXPECT_TRUE(pagina.recibir && pagina.responder && pagina.recibirEscrituras && pagina.responderEscrituras);
}

TEST(Page, registerWithinTheRowsAppendsNone) {
    Pagina pagina(0);
    pagina.mostrar(59);
    EXPECT_EQ(pagina.filas(), 7);
}

TEST(Page, register75AppendsTwoRows) {
    Pagina pagina(0);
    pagina.mostrar(75);
    EXPECT_EQ(pagina.filas(), 9);
}

TEST(Page, firstRegisterOfARowAppendsIt) {
    Pagina pagina(0);
    pagina.mostrar(60);
    EXPECT_EQ(pagina.filas(), 8);
    pagina.mostrar(69);
    EXPECT_EQ(pagina.filas(), 8);
}

TEST(Page, rowsAreNeverTakenAway) {
    Pagina pagina(0);
    pagina.mostrar(499);
    pagina.mostrar(0);
    EXPECT_EQ(pagina.filas(), 51);
}

TEST(Page, observerHearsOfTheFirstChangeOnlyUntilTheMarkIsCleared) {
    Pagina pagina(0);
    Contador contador;
    pagina.observar(&contador);
    pagina.mostrar(1);
    pagina.mostrar(2);
    EXPECT_EQ(contador.llamadas, 1);
    EXPECT_EQ(contador.ultima, &pagina);
    EXPECT_TRUE(pagina.marcada());
    pagina.desmarcar();
    EXPECT_FALSE(pagina.marcada());
    pagina.mostrar(3);
    EXPECT_EQ(contador.llamadas, 2);
}

TEST(Page, detachedObserverHearsNothing) {
    Pagina pagina(0);
    Contador contador;
    pagina.observar(&contador);
    pagina.observar(nullptr);
    pagina.mostrar(1);
    EXPECT_EQ(contador.llamadas, 0);
    EXPECT_TRUE(pagina.marcada());
}

TEST(Page, observerHearsOfNewRowsAtOnce) {
    Pagina pagina(0);
    Contador contador;
    pagina.observar(&contador);
    pagina.mostrar(59);
    pagina.mostrar(60);
    pagina.mostrar(61);
    pagina.mostrar(499);
    EXPECT_EQ(contador.filas, (std::vector{8, 51}));
    EXPECT_EQ(contador.llamadas, 1);
}

TEST(Page, aCellThatShowsAnotherValueDoesSoUntilItIsWritten) {
    Pagina pagina(0);
    pagina.mostrarEnOtraCelda(10, 5, 0, 7);
    EXPECT_EQ(pagina.ajena(0), 7);
    EXPECT_EQ(pagina.ajena(10), 5);
    pagina.mostrarEnOtraCelda(10, 7, 0, 8);
    EXPECT_EQ(pagina.ajena(0), 8);
    EXPECT_EQ(pagina.ajena(10), 5);
    pagina.mostrarEnSuCelda(10);
    EXPECT_EQ(pagina.ajena(10), std::nullopt);
    EXPECT_EQ(pagina.ajena(0), 8);
    pagina.mostrarEnSuCelda(0);
    EXPECT_EQ(pagina.ajena(0), std::nullopt);
}

} // namespace
