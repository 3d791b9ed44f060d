#include "platform/profile/ArchivoBytes.h"

#include "platform/posix/Descriptor.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::error_code ultimoError() {
    return {errno, std::generic_category()};
}

Descriptor abrir(const std::filesystem::path& ruta, int modo, mode_t permisos = 0) {
    return Descriptor(::open(ruta.c_str(), modo | O_CLOEXEC, permisos));
}

std::error_code comprobarRegular(const struct stat& datos) {
    if (S_ISDIR(datos.st_mode))
        return std::make_error_code(std::errc::is_a_directory);
    return S_ISREG(datos.st_mode) ? std::error_code{} : std::make_error_code(std::errc::not_supported);
}

std::error_code leerHastaElFinal(int descriptor, std::string& bytes) {
    constexpr std::size_t bloque = 65536;
    for (;;) {
        const std::size_t leidos = bytes.size();
        if (leidos > maximoBytesArchivo)
            return std::make_error_code(std::errc::file_too_large);
        bytes.resize(leidos + bloque);
        const ssize_t nuevos = ::read(descriptor, bytes.data() + leidos, bloque);
        bytes.resize(leidos + static_cast<std::size_t>(nuevos > 0 ? nuevos : 0));
        if (nuevos == 0)
            return {};
        if (nuevos < 0 && errno != EINTR)
            return ultimoError();
    }
}

std::error_code escribirTodo(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t escritos = ::write(descriptor, bytes.data(), bytes.size());
        if (escritos < 0 && errno != EINTR)
            return ultimoError();
        bytes.remove_prefix(static_cast<std::size_t>(escritos > 0 ? escritos : 0));
    }
    return {};
}

// Writes the temporary file down to the disk, with the permissions of the file that it is going to replace.
std::error_code llenarTemporal(const std::filesystem::path& temporal, std::string_view bytes,
                               const std::optional<struct stat>& anterior) {
    const Descriptor archivo = abrir(temporal, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, 0666);
    if (!archivo)
        return ultimoError();
    if (const std::error_code error = escribirTodo(archivo.number(), bytes))
        return error;
    if (anterior) {
        // Only root may give a file away; for anybody else the file is his own already.
        [[maybe_unused]] const int dado = ::fchown(archivo.number(), anterior->st_uid, anterior->st_gid);
        if (::fchmod(archivo.number(), anterior->st_mode & 07777) != 0)
            return ultimoError();
    }
    return ::fsync(archivo.number()) == 0 ? std::error_code{} : ultimoError();
}

// Makes the new name itself survive a power cut. The bytes are safe already, so a folder that cannot be opened for
// reading is no failure.
void asentarCarpeta(const std::filesystem::path& carpeta) {
    const Descriptor descriptor = abrir(carpeta.empty() ? "." : carpeta, O_RDONLY | O_DIRECTORY);
    if (descriptor)
        ::fsync(descriptor.number());
}

// The number in "name.number.tmp", or 0 when `nombre` is not a temporary file for `archivo`.
pid_t duenoDeTemporal(std::string_view nombre, std::string_view archivo) {
    constexpr std::string_view fin = ".tmp";
    if (!nombre.starts_with(archivo) || !nombre.ends_with(fin) || nombre.size() < archivo.size() + fin.size() + 2 ||
        nombre[archivo.size()] != '.')
        return 0;
    const std::string_view numero = nombre.substr(archivo.size() + 1, nombre.size() - archivo.size() - fin.size() - 1);
    pid_t dueno = 0;
    const char* const final = numero.data() + numero.size();
    const bool entero = std::from_chars(numero.data(), final, dueno).ptr == final;
    return entero && dueno > 0 ? dueno : 0;
}

// Removes the temporary files of processes that were killed before theirs took the name.
void quitarRestos(const std::filesystem::path& destino) {
    std::error_code error;
    const std::string archivo = destino.filename();
    const std::filesystem::path carpeta = destino.has_parent_path() ? destino.parent_path() : ".";
    std::filesystem::directory_iterator entrada(carpeta, error);
    for (; !error && entrada != std::filesystem::directory_iterator(); entrada.increment(error))
        if (const pid_t dueno = duenoDeTemporal(entrada->path().filename().native(), archivo);
            dueno > 0 && ::kill(dueno, 0) != 0 && errno == ESRCH)
            ::unlink(entrada->path().c_str());
}

bool prohibido(const std::error_code& error) {
    return error == std::errc::permission_denied || error == std::errc::read_only_file_system ||
           error == std::errc::operation_not_permitted;
}

// Takes the space first, so that a full disk leaves the old text as it is.
std::error_code escribirEnElSitio(const std::filesystem::path& archivo, std::string_view bytes) {
    const Descriptor descriptor = abrir(archivo, O_WRONLY | O_NONBLOCK);
    if (!descriptor)
        return ultimoError();
    const auto largo = static_cast<off_t>(bytes.size());
    if (const int fallo = bytes.empty() ? 0 : ::posix_fallocate(descriptor.number(), 0, largo); fallo != 0)
        return {fallo, std::generic_category()};
    if (const std::error_code error = escribirTodo(descriptor.number(), bytes))
        return error;
    if (::ftruncate(descriptor.number(), largo) != 0)
        return ultimoError();
    return ::fsync(descriptor.number()) == 0 ? std::error_code{} : ultimoError();
}

std::error_code comprobarReemplazable(const std::filesystem::path& ruta, std::optional<struct stat>& anterior) {
    struct stat datos {};
    if (::stat(ruta.c_str(), &datos) != 0)
        return errno == ENOENT ? std::error_code{} : ultimoError();
    if (const std::error_code error = comprobarRegular(datos))
        return error;
    // Whoever may write anything (root) respects the mark of a read-only file too: the user set it.
    if ((datos.st_mode & 0222) == 0)
        return std::make_error_code(std::errc::permission_denied);
    if (::access(ruta.c_str(), W_OK) != 0)
        return ultimoError();
    anterior = datos;
    return {};
}

// Whether the file still holds what was read; a file that cannot be read holds nothing.
bool sigueComo(const std::filesystem::path& archivo, const std::optional<std::string_view>& leidos) {
    std::string ahora;
    if (leidos)
        leerBytes(archivo, ahora);
    return !leidos || ahora == *leidos;
}

std::error_code ponerEnSuSitio(const std::filesystem::path& temporal, const std::filesystem::path& destino) {
    if (::rename(temporal.c_str(), destino.c_str()) != 0)
        return ultimoError();
    asentarCarpeta(destino.parent_path());
    return {};
}

std::error_code reemplazar(const std::filesystem::path& archivo, std::string_view bytes,
                           const std::optional<std::string_view>& leidos) {
    std::error_code sinEnlace;
    std::filesystem::path destino = std::filesystem::canonical(archivo, sinEnlace);
    if (sinEnlace)
        destino = archivo;
    std::optional<struct stat> anterior;
    if (const std::error_code error = comprobarReemplazable(destino, anterior))
        return error;
    std::filesystem::path temporal = destino;
    temporal += ".";
    temporal += std::to_string(::getpid());
    temporal += ".tmp";
    ::unlink(temporal.c_str()); // left by a process of the same number that was killed at this very point
    std::error_code error = llenarTemporal(temporal, bytes, anterior);
    const bool enElSitio = anterior && prohibido(error); // the folder takes no new file
    if ((!error || enElSitio) && !sigueComo(destino, leidos))
        error = std::make_error_code(std::errc::resource_unavailable_try_again);
    else if (enElSitio)
        return escribirEnElSitio(destino, bytes);
    else if (!error)
        error = ponerEnSuSitio(temporal, destino);
    if (error)
        ::unlink(temporal.c_str());
    quitarRestos(destino);
    return error;
}

} // namespace

std::error_code leerBytes(const std::filesystem::path& archivo, std::string& bytes) {
    bytes.clear();
    const Descriptor descriptor =
        abrir(archivo, O_RDONLY | O_NONBLOCK); // a pipe without a writer must not stop the program
    if (!descriptor)
        return ultimoError();
    struct stat datos {};
    if (::fstat(descriptor.number(), &datos) != 0)
        return ultimoError();
    std::error_code error = comprobarRegular(datos);
    if (!error && datos.st_size > static_cast<off_t>(maximoBytesArchivo))
        error = std::make_error_code(std::errc::file_too_large);
    if (!error)
        error = leerHastaElFinal(descriptor.number(), bytes);
    if (error)
        bytes.clear();
    return error;
}

std::error_code reemplazarBytes(const std::filesystem::path& archivo, std::string_view bytes) {
    return reemplazar(archivo, bytes, std::nullopt);
}

std::error_code reemplazarBytesLeidos(const std::filesystem::path& archivo, std::string_view leidos,
                                      std::string_view bytes) {
    return reemplazar(archivo, bytes, leidos);
}

std::error_code anexarBytes(const std::filesystem::path& archivo, std::string_view bytes) {
    const Descriptor descriptor = abrir(archivo, O_WRONLY | O_APPEND | O_CREAT | O_NONBLOCK, 0666);
    if (!descriptor)
        return ultimoError();
    struct stat datos {};
    if (::fstat(descriptor.number(), &datos) != 0)
        return ultimoError();
    if (const std::error_code error = comprobarRegular(datos))
        return error;
    return escribirTodo(descriptor.number(), bytes);
}
