// Where the program keeps its files: beside its executable, or, where that folder cannot be written, in the user's
// own configuration folder, begun as a copy of what the program's folder holds.
//
//     const CarpetaDatos datos = elegirCarpetaDatos(carpetaPrograma(), carpetaDelUsuario());
#pragma once

#include <filesystem>
#include <functional>
#include <string>

struct CarpetaDatos {
    std::filesystem::path ruta;
    std::string aviso; // what the user must know about it (Spanish, UTF-8); empty: nothing
};

// Whether this user may write in a folder, or a file.
using PuedeEscribir = std::function<bool(const std::filesystem::path&)>;
bool puedeEscribir(const std::filesystem::path& ruta);

// "esclavo-modbus" in $XDG_CONFIG_HOME, else in ".config" of the user's home. Not made yet; empty for a user without a
// home.
std::filesystem::path carpetaDelUsuario();

// The folder for the settings, the script and the logs. A configuration file that can be written keeps them beside it,
// whatever its folder allows. The user's folder is made and filled at its first use.
CarpetaDatos elegirCarpetaDatos(const std::filesystem::path& programa, const std::filesystem::path& usuario,
                                const PuedeEscribir& puede = puedeEscribir);
