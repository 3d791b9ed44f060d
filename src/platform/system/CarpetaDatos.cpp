#include "platform/system/CarpetaDatos.h"

#include <array>
#include <cstdlib>
#include <pwd.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr const char* archivoDeAjustes = "Sis_Config.ini";

std::filesystem::path hogar() {
    if (const char* const home = std::getenv("HOME"); home != nullptr && *home != '\0')
        return home;
    const passwd* const usuario = ::getpwuid(::getuid());
    return usuario != nullptr ? usuario->pw_dir : "";
}

// What a user may have put beside the program: settings, script, logs, and the links com1, com2 ... to serial ports.
bool seCopia(const std::string& nombre) {
    constexpr std::array nombres{archivoDeAjustes, "codigoTrelvano.txt", "LOGS_Trelvano"};
    for (const char* const otro : nombres)
        if (nombre == otro)
            return true;
    return nombre.size() > 3 && nombre.starts_with("com") &&
           nombre.find_first_not_of("0123456789", 3) == std::string::npos;
}

// Returns the name of the first one that could not be copied, or nothing.
std::string copiar(const std::filesystem::path& desde, const std::filesystem::path& hasta) {
    using std::filesystem::copy_options;
    std::string fallado;
    std::error_code error;
    std::filesystem::directory_iterator entrada(desde, error);
    for (; !error && entrada != std::filesystem::directory_iterator(); entrada.increment(error)) {
        const std::string nombre = entrada->path().filename();
        std::error_code deCopia;
        if (seCopia(nombre))
            std::filesystem::copy(entrada->path(), hasta / nombre,
                                  copy_options::recursive | copy_options::copy_symlinks | copy_options::skip_existing,
                                  deCopia);
        // The copy is the user's own, whatever the original allowed.
        if (seCopia(nombre) && !deCopia && !entrada->is_symlink(deCopia))
            std::filesystem::permissions(hasta / nombre, std::filesystem::perms::owner_write,
                                         std::filesystem::perm_options::add, deCopia);
        if (deCopia && fallado.empty())
            fallado = nombre;
    }
    return fallado;
}

} // namespace

bool puedeEscribir(const std::filesystem::path& ruta) {
    return ::access(ruta.c_str(), W_OK) == 0;
}

std::filesystem::path carpetaDelUsuario() {
    const char* const configuracion = std::getenv("XDG_CONFIG_HOME");
    // The rule for these variables: a path that is not absolute counts as none.
    if (configuracion != nullptr && *configuracion == '/')
        return std::filesystem::path(configuracion) / "esclavo-modbus";
    const std::filesystem::path casa = hogar();
    return casa.is_absolute() ? casa / ".config" / "esclavo-modbus" : std::filesystem::path();
}

CarpetaDatos elegirCarpetaDatos(const std::filesystem::path& programa, const std::filesystem::path& usuario,
                                const PuedeEscribir& puede) {
    if (puede(programa) || puede(programa / archivoDeAjustes))
        return {programa, ""};
    const std::string no = "No se puede escribir en " + programa.string();
    std::error_code error;
    if (!usuario.empty())
        std::filesystem::create_directories(usuario, error);
    if (usuario.empty() || error || !puede(usuario))
        return {programa, no + (usuario.empty() ? "" : " ni en " + usuario.string()) + ": los ajustes no se guardan."};
    std::string aviso = no + ": los ajustes, el script y los registros están en " + usuario.string() + ".";
    if (!std::filesystem::exists(usuario / archivoDeAjustes, error))
        if (const std::string fallado = copiar(programa, usuario); !fallado.empty())
            aviso += " No se pudo copiar " + fallado + ".";
    return {usuario, aviso};
}
