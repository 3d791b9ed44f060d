#include "registers/DestinoRegistro.h"

#include "registers/TablaCsv.h"

#include <gtest/gtest.h>

namespace {

struct DestinoRegistroTest : testing::Test {
    DestinoRegistroTest() { etiquetas.leer("1;5;Nivel\n2;7;Nivel alto\n3;0;MÁXIMO\n"); }
    std::string destino(const char* texto) {
        const auto d = leerDestino(QString::fromUtf8(texto), 4, etiquetas);
        return d ? std::to_string(d->esclavo) + ":" + std::to_string(d->direccion) : "";
    }
    Etiquetas etiquetas;
};

TEST_F(DestinoRegistroTest, anAddressIsOfTheSlaveInFront) {
    EXPECT_EQ(destino("120"), "4:120");
    EXPECT_EQ(destino("  0 "), "4:0");
}

TEST_F(DestinoRegistroTest, slaveAndAddressAreSeparatedByAColon) {
    EXPECT_EQ(destino("3:120"), "3:120");
    EXPECT_EQ(destino(" 3 : 120 "), "3:120");
}

TEST_F(DestinoRegistroTest, aNameCountsWithoutCaseWholeFirstThenByItsBeginning) {
    EXPECT_EQ(destino("nivel"), "1:5");
    EXPECT_EQ(destino("NIVEL A"), "2:7");
    EXPECT_EQ(destino("máximo"), "3:0");
}

TEST_F(DestinoRegistroTest, ofSeveralNamesThatBeginSoTheFirstCounts) {
    EXPECT_EQ(destino("niv"), "1:5");
}

TEST_F(DestinoRegistroTest, anythingElseIsNoDestination) {
    for (const char* texto : {"", "   ", "-1", "3:", ":5", "3:-1", "1.5", "bomba", "99999999999999"})
        EXPECT_EQ(destino(texto), "") << texto;
}

TEST(TablaCsvTest, aLineARegisterWithItsName) {
    Esclavos esclavos;
    esclavos.crearEsclavo(1, 0, 2);
    esclavos.escribir(1, 1, 12.5);
    Etiquetas etiquetas;
    etiquetas.leer("1;1;\"El \"\"nivel\"\"\";%\n1;2;=1+1\n");
    EXPECT_EQ(tablaComoCsv(esclavos, 1, etiquetas, ','), "direccion;valor;nombre;unidad;nota\r\n"
                                                         "0;0;;;\r\n"
                                                         "1;12,5;\"El \"\"nivel\"\"\";\"%\";\"\"\r\n"
                                                         "2;0;\"'=1+1\";\"\";\"\"\r\n");
    EXPECT_EQ(tablaComoCsv(esclavos, 2, etiquetas, ','), "");
}

} // namespace
