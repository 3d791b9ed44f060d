// Where the script file is: beside the default project when there is one, else in the program's folder.
//
// Chosen anew at every use, since other programs may write the project path at any time.
#pragma once

#include <filesystem>

class Ajustes;

class Modulo_Codigo {
public:
    // `ajustes` is borrowed.
    Modulo_Codigo(Ajustes& ajustes, std::filesystem::path carpetaPrograma);

    // The file that a pass runs and the editor loads: the project's script if project and script exist, else
    // "codigoTrelvano.txt" in the program's folder (which need not exist).
    std::filesystem::path rutaParaLeer() const;

    // The file that the editor writes: the project's script, whether or not it exists yet, if the project exists.
    std::filesystem::path rutaParaGuardar() const;

private:
    std::filesystem::path rutaProyecto() const; // empty without one
    std::filesystem::path rutaDelPrograma() const;

    Ajustes& ajustes_;
    std::filesystem::path carpetaPrograma_;
};

// The project path with every ".zqp", in any case, replaced by ".KOVAScrip".
std::filesystem::path rutaScriptDeProyecto(const std::filesystem::path& proyecto);
