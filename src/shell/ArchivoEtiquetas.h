// The file etiquetas.csv: read again whenever it has changed on disk.
#pragma once

#include "registers/Etiquetas.h"

#include <filesystem>
#include <string>

class ArchivoEtiquetas {
public:
    // `etiquetas` is borrowed and outlives this. Nothing is read yet.
    ArchivoEtiquetas(const std::filesystem::path& carpeta, Etiquetas& etiquetas)
        : ruta_(carpeta / "etiquetas.csv"), etiquetas_(etiquetas) {}

    // Reads the file if it is new or has changed, in any encoding that a script may have; without one there are no
    // names. Answers what is wrong with it, in Spanish, empty for nothing.
    const std::string& comprobar();

private:
    std::filesystem::path ruta_;
    Etiquetas& etiquetas_;
    std::filesystem::file_time_type fecha_{};
    std::uintmax_t tamano_ = 0;
    bool leido_ = false;
    std::string falta_;
};
