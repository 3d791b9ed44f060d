// Where the script file is: beside the default project when there is one, else in the program's folder.
//
// Chosen anew at every use, since other programs may write the project path at any time.
#pragma once

#include <filesystem>

class AjustesCodigo {
public:
    // Full path of the default project file; empty without one.
    virtual std::filesystem::path rutaProyecto() const = 0;

protected:
    ~AjustesCodigo() = default;
};

class Modulo_Codigo {
public:
    // `ajustes` is borrowed.
    Modulo_Codigo(const AjustesCodigo& ajustes, std::filesystem::path carpetaPrograma);

    // The file that a pass runs and the editor loads: the project's script if project and script exist, else
    // "codigoTrelvano.txt" in the program's folder (which need not exist).
    std::filesystem::path rutaParaLeer() const;

    // The file that the editor writes: the project's script, whether or not it exists yet, if the project exists.
    std::filesystem::path rutaParaGuardar() const;

private:
    std::filesystem::path rutaDelPrograma() const;

    const AjustesCodigo& ajustes_;
    std::filesystem::path carpetaPrograma_;
};

// The project path with every ".zqp", in any case, replaced by ".KOVAScrip".
std::filesystem::path rutaScriptDeProyecto(const std::filesystem::path& proyecto);
