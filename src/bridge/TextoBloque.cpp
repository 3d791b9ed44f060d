#include "bridge/TextoBloque.h"

#include <cstring>

void agregarHexadecimal(std::string& texto, std::span<const std::uint8_t> bytes) {
    static constexpr char cifras[] = "0123456789ABCDEF";
    for (const std::uint8_t b : bytes) {
        texto.push_back('[');
        if (b >= 16)
            texto.push_back(cifras[b / 16]);
        texto.push_back(cifras[b % 16]);
        texto.push_back(']');
    }
}

void agregarCaracteres(std::string& texto, std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const auto* const cr = static_cast<const std::uint8_t*>(std::memchr(bytes.data(), '\r', bytes.size()));
        const std::size_t cuantos = cr == nullptr ? bytes.size() : static_cast<std::size_t>(cr - bytes.data()) + 1;
        texto.append(reinterpret_cast<const char*>(bytes.data()), cuantos);
        if (cr != nullptr)
            texto.push_back('\n');
        bytes = bytes.subspan(cuantos);
    }
}
