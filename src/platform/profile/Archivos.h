// Text files such as the user's scripts: existence, reading, writing.
//
// On disk a file is what its byte-order mark says (UTF-8, UTF-16 in either order), without one UTF-8 when its bytes are
// valid UTF-8, else Windows-1252; in the program texts are UTF-8 with CR LF line ends. A file is saved in the encoding
// that it has on disk, a new one in UTF-8. Reading and then writing adds one empty line at the end each time: both
// operations close their last line.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

// A file operation that failed, with the run-time error number that scripts and users of the Basic family know:
// 7 file too large, 53 file not found, 57 device error, 61 disk full, 70 permission denied, 75 not a file, 76 folder
// not found. what() is the message in Spanish.
class ErrorArchivo : public std::runtime_error {
public:
    explicit ErrorArchivo(int numero);
    int numero() const { return numero_; }

private:
    int numero_;
};

// The message of that number for a file operation that failed with this error.
std::string textoDeError(const std::error_code& error);

// Whether the attributes of the path can be read: true for files and folders, false on any error and for an empty
// path.
bool existeArchivo(const std::filesystem::path& ruta) noexcept;

// The file's lines, each followed by CR LF; the empty lines at the head are dropped, later ones are kept.
// Throws ErrorArchivo.
std::string leerArchivoTexto(const std::filesystem::path& ruta);

// Creates or replaces the file with the text (UTF-8) followed by CR LF, whole or not at all. A Windows-1252 file
// becomes UTF-8 when the text has a character that the former lacks. Throws ErrorArchivo.
void escribirArchivoTexto(const std::filesystem::path& ruta, std::string_view texto);
