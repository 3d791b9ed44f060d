#include "platform/system/InstanciaPrevia.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

// FNV-1a: a path of any length as 16 digits, since an address has room for 107 characters.
std::string huella(const std::string& texto) {
    std::uint64_t valor = 0xCBF29CE484222325U;
    for (const char c : texto)
        valor = (valor ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    std::string digitos;
    for (int i = 0; i < 16; ++i, valor >>= 4)
        digitos += "0123456789abcdef"[valor & 15];
    return digitos;
}

std::string nombreDe(const std::filesystem::path& ejecutable) {
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(ejecutable, error);
    std::string nombre = "esclavo-modbus-";
    nombre += std::to_string(::getuid());
    nombre += '-';
    nombre += huella(error ? ejecutable.native() : real.native());
    return nombre;
}

} // namespace

InstanciaPrevia::InstanciaPrevia(const std::filesystem::path& ejecutable)
    : socket_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    if (!socket_)
        return;
    const std::string nombre = nombreDe(ejecutable);
    sockaddr_un direccion{};
    direccion.sun_family = AF_UNIX;
    // A zero before the name makes the address abstract: no file.
    std::copy(nombre.begin(), nombre.end(), std::begin(direccion.sun_path) + 1);
    const auto largo = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + nombre.size());
    if (::bind(socket_.number(), reinterpret_cast<const sockaddr*>(&direccion), largo) != 0)
        hayOtra_ = errno == EADDRINUSE;
}
