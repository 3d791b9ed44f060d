#include "registers/Cambios.h"

#include "RelojDePrueba.h"
#include "registers/Esclavos.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

struct CambiosTest : testing::Test {
    CambiosTest() {
        esclavos.crearEsclavo(1, 0, 99);
        esclavos.observarCambios(&cambios);
    }
    RelojDePrueba reloj;
    Cambios cambios{reloj};
    Esclavos esclavos;
};

TEST_F(CambiosTest, aRegisterNobodyWroteHasNoWrite) {
    EXPECT_FALSE(cambios.ultima(1, 5));
    esclavos.escribir(1, 5, 7);
    EXPECT_FALSE(cambios.ultima(1, 6));
    EXPECT_FALSE(cambios.ultima(2, 5));
    EXPECT_FALSE(cambios.ultima(-1, 5));
}

TEST_F(CambiosTest, eachWriterIsRemembered) {
    esclavos.darValorEsclavoLogico(1, 5, 7, Autor::maestro);
    EXPECT_EQ(cambios.ultima(1, 5)->autor, Autor::maestro);
    esclavos.escribir(1, 5, 8);
    EXPECT_EQ(cambios.ultima(1, 5)->autor, Autor::script);
    esclavos.escribir_C2(1, 5, -1, Autor::mano);
    EXPECT_EQ(cambios.ultima(1, 5)->autor, Autor::mano);
    esclavos.escribir_bit(1, 5, 0, 0);
    EXPECT_EQ(cambios.ultima(1, 5)->autor, Autor::script);
}

TEST_F(CambiosTest, theSameValueIsAWriteAndNoChange) {
    esclavos.escribir(1, 5, 7);
    reloj.pasar(1s);
    esclavos.escribir(1, 5, 7);
    reloj.pasar(1500ms);
    EXPECT_EQ(cambios.hora() - cambios.ultima(1, 5)->escrito, 1500);
    EXPECT_EQ(cambios.desdeElCambio(1, 5), 2500);
}

TEST_F(CambiosTest, aRegisterThatKeptItsValueHasNoChange) {
    esclavos.escribir(1, 5, 0);
    EXPECT_TRUE(cambios.ultima(1, 5));
    EXPECT_FALSE(cambios.desdeElCambio(1, 5));
}

TEST_F(CambiosTest, aDroppedWriteIsNone) {
    esclavos.escribir(1, 5, 65536);
    EXPECT_FALSE(cambios.ultima(1, 5));
}

TEST_F(CambiosTest, aLaterRegisterOfTheSamePlaceTakesIt) {
    esclavos.ampliarTablaMW(1, Cambios::lugares, 10);
    esclavos.escribir(1, 3, 7);
    esclavos.escribir(1, 3.0 + Cambios::lugares, 8);
    EXPECT_FALSE(cambios.ultima(1, 3));
    EXPECT_EQ(cambios.ultima(1, 3 + static_cast<int>(Cambios::lugares))->escrito, cambios.hora());
}

TEST_F(CambiosTest, theFirstRegistersOfAllSlavesAreRememberedBesideEachOther) {
    for (int esclavo = 0; esclavo < 256; ++esclavo)
        for (int direccion = 0; direccion < 40; ++direccion)
            cambios.registroEscrito(esclavo, direccion, 0, 1, Autor::maestro);
    for (int esclavo = 0; esclavo < 256; ++esclavo)
        for (int direccion = 0; direccion < 40; ++direccion)
            ASSERT_TRUE(cambios.ultima(esclavo, direccion)) << esclavo << ":" << direccion;
}

TEST_F(CambiosTest, observersHearOfWritesUntilTheyAreDetached) {
    struct : ObservadorCambios {
        void registroEscrito(int esclavo, int direccion, double antes, double ahora, Autor) override {
            texto += std::to_string(esclavo) + ":" + std::to_string(direccion) + " " +
                     std::to_string(static_cast<int>(antes)) + ">" + std::to_string(static_cast<int>(ahora)) + ";";
        }
        std::string texto;
    } oyente;
    cambios.agregar(&oyente);
    esclavos.escribir(1, 5, 7);
    esclavos.escribir(1, 5, 9);
    cambios.quitar(&oyente);
    esclavos.escribir(1, 5, 11);
    EXPECT_EQ(oyente.texto, "1:5 0>7;1:5 7>9;");
}

} // namespace
