#include "platform/profile/Archivos.h"

#include "platform/profile/ArchivoBytes.h"
#include "platform/profile/LineaTexto.h"
#include "platform/text/Encoding.h"

namespace {

const char* mensajeDeError(int numero) {
    switch (numero) {
    case 7:
        return "Memoria insuficiente";
    case 53:
        return "No se encontró el archivo";
    case 61:
        return "Disco lleno";
    case 70:
        return "Permiso denegado";
    case 75:
        return "Error de acceso a la ruta o al archivo";
    case 76:
        return "No se encontró la ruta de acceso";
    default:
        return "Error de E/S de dispositivo";
    }
}

int numeroDeError(const std::error_code& error) {
    if (error == std::errc::no_such_file_or_directory)
        return 53;
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
        error == std::errc::read_only_file_system)
        return 70;
    if (error == std::errc::is_a_directory || error == std::errc::not_a_directory ||
        error == std::errc::not_supported || error == std::errc::filename_too_long)
        return 75;
    if (error == std::errc::no_space_on_device)
        return 61;
    return error == std::errc::file_too_large ? 7 : 57;
}

std::string bytesDe(const std::filesystem::path& ruta) {
    std::string bytes;
    if (const std::error_code error = leerBytes(ruta, bytes))
        throw ErrorArchivo(numeroDeError(error));
    return bytes;
}

// The text as the file is to hold it, in the encoding that the bytes on disk have now.
std::string codificadoComo(std::string_view enDisco, const std::string& texto) {
    return text::encoded(texto, text::encodingOf(enDisco)).value_or(texto);
}

} // namespace

ErrorArchivo::ErrorArchivo(int numero) : std::runtime_error(mensajeDeError(numero)), numero_(numero) {}

std::string textoDeError(const std::error_code& error) {
    return mensajeDeError(numeroDeError(error));
}

bool existeArchivo(const std::filesystem::path& ruta) noexcept {
    std::error_code error;
    return ruta.native().find('\0') == std::string::npos && std::filesystem::exists(ruta, error);
}

std::string leerArchivoTexto(const std::filesystem::path& ruta) {
    const std::string leido = text::decoded(bytesDe(ruta));
    std::string_view resto = leido;
    std::string texto;
    texto.reserve(resto.size() + 2);
    while (!resto.empty()) {
        const std::string_view linea = tomarLinea(resto).contenido;
        if (linea.empty() && texto.empty())
            continue; // empty lines at the head are dropped on purpose
        texto += linea;
        texto += "\r\n";
    }
    return texto;
}

void escribirArchivoTexto(const std::filesystem::path& ruta, std::string_view texto) {
    const std::string enDisco = existeArchivo(ruta) ? bytesDe(ruta) : std::string();
    if (const std::error_code error = reemplazarBytes(ruta, codificadoComo(enDisco, std::string(texto) + "\r\n"))) {
        const int numero = numeroDeError(error);
        throw ErrorArchivo(numero == 53 ? 76 : numero); // what is missing when writing is the folder
    }
}
