#include "bridge/TextoBloque.h"

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
    for (const std::uint8_t b : bytes) {
        texto.push_back(static_cast<char>(b));
        if (b == '\r')
            texto.push_back('\n');
    }
}
