#include "registers/Etiquetas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(EtiquetasTest, aLineGivesARegisterItsName) {
    Etiquetas etiquetas;
    EXPECT_THAT(etiquetas.leer("1;120;Nivel del tanque;%;sonda norte\n"), IsEmpty());
    const Etiqueta* nivel = etiquetas.de(1, 120);
    ASSERT_NE(nivel, nullptr);
    EXPECT_EQ(nivel->nombre, "Nivel del tanque");
    EXPECT_EQ(nivel->unidad, "%");
    EXPECT_EQ(nivel->nota, "sonda norte");
    EXPECT_EQ(etiquetas.de(1, 121), nullptr);
    EXPECT_EQ(etiquetas.de(2, 120), nullptr);
}

TEST(EtiquetasTest, unitAndNoteMayBeLeftOut) {
    Etiquetas etiquetas;
    EXPECT_THAT(etiquetas.leer("1;5;Bomba"), IsEmpty());
    EXPECT_EQ(etiquetas.de(1, 5)->unidad, "");
}

TEST(EtiquetasTest, headingCommentsAndEmptyLinesArePassedOver) {
    Etiquetas etiquetas;
    EXPECT_THAT(etiquetas.leer("esclavo;direccion;nombre\r\n\r\n# planta 2\r\n3;0;Marcha\r\n"), IsEmpty());
    EXPECT_EQ(etiquetas.de(3, 0)->nombre, "Marcha");
}

TEST(EtiquetasTest, commasAndTabsSeparateToo) {
    Etiquetas etiquetas;
    EXPECT_THAT(etiquetas.leer("1,5,\"Nivel, alto\",m"), IsEmpty());
    EXPECT_EQ(etiquetas.de(1, 5)->nombre, "Nivel, alto");
    EXPECT_THAT(etiquetas.leer("1\t6\tNivel \"\"bajo\"\""), IsEmpty());
    EXPECT_EQ(etiquetas.todas().size(), 1U) << "reading again replaces everything";
}

TEST(EtiquetasTest, aDoubledQuoteInsideQuotesIsOne) {
    Etiquetas etiquetas;
    EXPECT_THAT(etiquetas.leer("1;5;\"Nivel \"\"bajo\"\"\""), IsEmpty());
    EXPECT_EQ(etiquetas.de(1, 5)->nombre, "Nivel \"bajo\"");
}

TEST(EtiquetasTest, aBadLineIsToldWithItsNumberAndTheRestIsUsed) {
    Etiquetas etiquetas;
    EXPECT_THAT(
        etiquetas.leer("1;5;Bomba\nx;6;Mal\n1;-7;Mal\n1;8;\n1;9\n1;10;\"abierta\n1;5;Otra\n40000;1;Mal\n2;0;Bien\n"),
        ElementsAre("etiquetas.csv, línea 2: el esclavo no es un número de 0 a 32767",
                    "etiquetas.csv, línea 3: la dirección no es un número desde 0",
                    "etiquetas.csv, línea 4: falta el nombre", "etiquetas.csv, línea 5: falta el nombre",
                    "etiquetas.csv, línea 6: las comillas no se cierran",
                    "etiquetas.csv, línea 7: ese registro ya tiene nombre",
                    "etiquetas.csv, línea 8: el esclavo no es un número de 0 a 32767"));
    EXPECT_EQ(etiquetas.de(1, 5)->nombre, "Bomba");
    EXPECT_EQ(etiquetas.de(2, 0)->nombre, "Bien");
}

TEST(EtiquetasTest, linesEndInAnyOfTheThreeWays) {
    Etiquetas etiquetas;
    EXPECT_THAT(etiquetas.leer("1;1;Uno\r2;2;Dos;m\r\n\rx;3;Mal\n4;4;Cuatro\r"),
                ElementsAre("etiquetas.csv, línea 4: el esclavo no es un número de 0 a 32767"));
    EXPECT_EQ(etiquetas.de(1, 1)->nombre, "Uno");
    EXPECT_EQ(etiquetas.de(2, 2)->unidad, "m");
    EXPECT_EQ(etiquetas.de(4, 4)->nombre, "Cuatro");
}

TEST(EtiquetasTest, anOverlongLineIsToldAlsoAsTheFirst) {
    Etiquetas etiquetas;
    const std::string muchas(2000, 'a');
    EXPECT_THAT(etiquetas.leer(muchas + "a\n1;2;" + muchas + "\n1;3;" + std::string(1996, 'b') + "\n"),
                ElementsAre("etiquetas.csv, línea 1: la línea es demasiado larga",
                            "etiquetas.csv, línea 2: la línea es demasiado larga"));
    EXPECT_EQ(etiquetas.de(1, 3)->nombre.size(), 1996U);
}

TEST(EtiquetasTest, aNegativeSlaveInTheFirstLineIsNoHeading) {
    Etiquetas etiquetas;
    EXPECT_EQ(etiquetas.leer("-1;5;Bomba\n").size(), 1U);
}

} // namespace
