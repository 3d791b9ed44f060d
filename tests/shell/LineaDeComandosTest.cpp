#include "shell/LineaDeComandos.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

LineaDeComandos leer(const std::vector<const char*>& palabras) {
    return leerLineaDeComandos(palabras);
}

TEST(LineaDeComandos, withoutWordsItStarts) {
    EXPECT_EQ(leer({}).pedido, Pedido::arrancar);
    EXPECT_EQ(leer({}).texto, "");
}

TEST(LineaDeComandos, wordsThatAreNoOptionsAreAccepted) {
    const LineaDeComandos linea = leer({"view", "otra cosa", "-", "--"});
    EXPECT_EQ(linea.pedido, Pedido::arrancar);
    EXPECT_EQ(linea.texto, "view otra cosa - --");
}

TEST(LineaDeComandos, helpAndVersionAreAskedForByTheirOptions) {
    EXPECT_EQ(leer({"--help"}).pedido, Pedido::ayuda);
    EXPECT_EQ(leer({"view", "-h"}).pedido, Pedido::ayuda);
    EXPECT_EQ(leer({"--version"}).pedido, Pedido::version);
}

TEST(LineaDeComandos, anyOtherOptionIsUnknown) {
    for (const char* opcion : {"--veiw", "-x", "--Help", "--version=2", "-platformx"}) {
        EXPECT_EQ(leer({"view", opcion}).pedido, Pedido::opcionDesconocida) << opcion;
        EXPECT_EQ(leer({opcion}).opcion, opcion);
    }
}

TEST(LineaDeComandos, anOptionThatHoldsViewShowsTheWindow) {
    EXPECT_EQ(leer({"--preVIEWer=1"}).pedido, Pedido::arrancar);
    EXPECT_EQ(leer({"--preVIEWer=1"}).texto, "--preVIEWer=1");
}

TEST(LineaDeComandos, optionsOfTheWindowSystemPassWithTheirValues) {
    const LineaDeComandos linea = leer({"-platform", "xcb", "--style=fusion", "-qwindowtitle", "--view", "-reverse"});
    EXPECT_EQ(linea.pedido, Pedido::arrancar);
    EXPECT_EQ(linea.plataforma, "xcb");
    EXPECT_EQ(linea.texto, "-platform xcb --style=fusion -qwindowtitle --view -reverse");
    EXPECT_EQ(leer({"-title", "--help"}).pedido, Pedido::arrancar);
    EXPECT_EQ(leer({"-platform"}).pedido, Pedido::arrancar);
}

} // namespace
