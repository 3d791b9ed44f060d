// The table of the settings: its readers and the manual's page tell the same.
#include "ajustes/Claves.h"

#include "AjustesFalsos.h"
#include "CarpetaTemporal.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace {

using Filas = std::vector<std::string>;

const std::filesystem::path fuentes = ESCLAVO_FUENTES;

// A row of the manual's table.
std::string filaDe(const Clave& clave) {
    std::ostringstream fila;
    fila << "| `" << clave.nombre << "` | ";
    if (clave.porDefecto.empty())
        fila << "vacía";
    else
        fila << '`' << clave.porDefecto << '`';
    fila << " | " << clave.significado << " | " << clave.cuandoVale << " |";
    return fila.str();
}

// The rows of four cells under the headings of a section of the file.
Filas filasDelManual() {
    Filas filas;
    std::istringstream pagina(contenidoDe(fuentes / "docs/manual/configuracion.md"));
    bool enSeccion = false;
    for (std::string linea; std::getline(pagina, linea);) {
        if (linea.starts_with("## "))
            enSeccion = linea.starts_with("## Sección `[");
        if (enSeccion && linea.starts_with("| `"))
            filas.push_back(linea);
    }
    return filas;
}

} // namespace

TEST(KeysOfTheSettings, manualPageTellsEachOfThemAndNoOther) {
    Filas filas;
    for (const Clave* clave : claves::todas)
        filas.push_back(filaDe(*clave));
    EXPECT_EQ(filasDelManual(), filas);
}

TEST(KeysOfTheSettings, everyoneIsReadWhereTheTableSays) {
    for (const Clave* clave : claves::todas) {
        const std::string codigo = contenidoDe(fuentes / "src" / (std::string(clave->lector) + ".cpp"));
        EXPECT_NE(codigo.find("claves::"), std::string::npos) << clave->nombre << " in " << clave->lector;
    }
}

TEST(KeysOfTheSettings, nobodyElseNamesThem) {
    for (const auto& entrada : std::filesystem::recursive_directory_iterator(fuentes / "src")) {
        const auto& ruta = entrada.path();
        if (ruta.extension() != ".cpp")
            continue;
        const std::string codigo = contenidoDe(ruta);
        for (const Clave* clave : claves::todas)
            EXPECT_EQ(codigo.find('"' + std::string(clave->nombre) + '"'), std::string::npos)
                << clave->nombre << " in " << ruta;
    }
}

TEST(Settings, numberIsReadWithTheDecimalSignAndNothingElseIsOne) {
    AjustesFalsos ajustes;
    EXPECT_EQ(ajustes.leerNumero(claves::periodo), 500.0);
    ajustes.valores["Ejecucion_Codigo_Milisegundos"] = "12,5";
    EXPECT_EQ(ajustes.leerNumero(claves::periodo), 12.5);
    ajustes.valores["Ejecucion_Codigo_Milisegundos"] = "doce";
    EXPECT_EQ(ajustes.leerNumero(claves::periodo), std::nullopt);
}

TEST(Settings, numberIsWrittenAsItIsRead) {
    AjustesFalsos ajustes;
    ajustes.escribirNumero(claves::puerto, 502.5);
    EXPECT_EQ(ajustes.valores["PUERTO_VALOR"], "502,5");
}
