// The script file as the editor knows it: what it loaded or saved last, so that nothing that somebody else wrote there
// meanwhile is replaced unseen.
//
//     ArchivoCodigo archivo(codigo);
//     std::string texto = archivo.cargar();
//     if (!archivo.cambiadoEnDisco() || preguntar())
//         archivo.guardar(texto);
#pragma once

#include "script/Modulo_Codigo.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

class ArchivoCodigo {
public:
    // Borrowed.
    explicit ArchivoCodigo(const Modulo_Codigo& codigo) : codigo_(codigo) {}

    // The text of the file that a pass would run, empty without one. Throws ErrorArchivo; ruta() names the file then
    // too.
    std::string cargar();

    // Whether a save would replace a file whose bytes are not those loaded or saved last. False when there is none, or
    // when it cannot be read: the save itself will tell.
    bool cambiadoEnDisco() const;

    // Writes the text and one more line end to the file of the project or the program. Throws ErrorArchivo.
    void guardar(std::string_view texto);

    // Where the text came from or was saved last, or was to be.
    const std::filesystem::path& ruta() const { return ruta_; }

private:
    const Modulo_Codigo& codigo_;
    std::filesystem::path ruta_;
    std::optional<std::string> conocido_; // the bytes of the file; nothing: never read or written
};
