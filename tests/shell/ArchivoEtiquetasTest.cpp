#include "shell/ArchivoEtiquetas.h"

#include "CarpetaTemporal.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;

struct ArchivoEtiquetasTest : testing::Test {
    void escribir(const std::string& texto) {
        std::ofstream(carpeta.ruta() / "etiquetas.csv", std::ios::binary) << texto;
    }
    CarpetaTemporal carpeta;
    Etiquetas etiquetas;
    ArchivoEtiquetas archivo{carpeta.ruta(), etiquetas};
};

TEST_F(ArchivoEtiquetasTest, withoutAFileThereAreNoNames) {
    EXPECT_EQ(archivo.comprobar(), "");
    EXPECT_TRUE(etiquetas.todas().empty());
}

TEST_F(ArchivoEtiquetasTest, utf8WithAMarkAndWindows1252AreRead) {
    escribir("\xEF\xBB\xBF"
             "1;5;Presi\xC3\xB3n\n");
    EXPECT_EQ(archivo.comprobar(), "");
    EXPECT_EQ(etiquetas.de(1, 5)->nombre, "Presión");
    escribir("1;5;Presi\xF3n alta\n");
    EXPECT_EQ(archivo.comprobar(), "");
    EXPECT_EQ(etiquetas.de(1, 5)->nombre, "Presión alta");
}

TEST_F(ArchivoEtiquetasTest, aRemovedFileTakesItsNamesAway) {
    escribir("1;5;Bomba\n");
    archivo.comprobar();
    std::filesystem::remove(carpeta.ruta() / "etiquetas.csv");
    EXPECT_EQ(archivo.comprobar(), "");
    EXPECT_EQ(etiquetas.de(1, 5), nullptr);
}

TEST_F(ArchivoEtiquetasTest, badLinesAreToldAndCounted) {
    escribir("1;5;Bomba\na;1;x\nb;1;x\nc;1;x\nd;1;x\n");
    EXPECT_THAT(archivo.comprobar(), HasSubstr("línea 2: el esclavo no es un número"));
    EXPECT_THAT(archivo.comprobar(), HasSubstr("; y 1 más"));
    EXPECT_NE(etiquetas.de(1, 5), nullptr);
}

TEST_F(ArchivoEtiquetasTest, whatIsNoFileIsTold) {
    std::filesystem::create_directory(carpeta.ruta() / "etiquetas.csv");
    EXPECT_THAT(archivo.comprobar(), HasSubstr("No se pudo leer "));
}

} // namespace
