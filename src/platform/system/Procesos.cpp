#include "platform/system/Procesos.h"

#include <algorithm>
#include <fstream>
#include <string_view>
#include <system_error>

namespace {

bool esNumero(const std::string& nombre) {
    return !nombre.empty() && std::all_of(nombre.begin(), nombre.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// "comm" is the name cut to 15 characters; where the command line begins with a longer form of it, that one is whole.
std::string nombreDeProceso(const std::filesystem::path& proceso) {
    constexpr std::size_t largoCortado = 15;
    std::string nombre;
    std::getline(std::ifstream(proceso / "comm"), nombre);
    if (nombre.size() < largoCortado)
        return nombre;
    std::string orden;
    std::getline(std::ifstream(proceso / "cmdline"), orden, '\0');
    const std::string_view archivo = std::string_view(orden).substr(orden.rfind('/') + 1);
    return archivo.starts_with(nombre) ? std::string(archivo) : nombre;
}

} // namespace

std::optional<std::vector<std::string>> nombresDeProcesos(const std::filesystem::path& raiz) {
    std::error_code error;
    std::vector<std::string> nombres;
    std::filesystem::directory_iterator entrada(raiz, error);
    for (; !error && entrada != std::filesystem::directory_iterator(); entrada.increment(error)) {
        if (!esNumero(entrada->path().filename().native()))
            continue;
        if (std::string nombre = nombreDeProceso(entrada->path()); !nombre.empty())
            nombres.push_back(std::move(nombre));
    }
    if (error)
        return std::nullopt;
    return nombres;
}
