#include "modbus/Trama.h"

#include <array>

namespace trama {

namespace {

// " 0", " 1" ... " 255": showing a byte is one append of a ready text.
struct ByteDecimal {
    std::array<char, 4> texto{};
    std::uint8_t longitud = 0;
};

constexpr std::array<ByteDecimal, 256> crearTabla() {
    std::array<ByteDecimal, 256> tabla{};
    for (std::size_t b = 0; b < tabla.size(); ++b) {
        ByteDecimal& entrada = tabla[b];
        entrada.texto[entrada.longitud++] = ' ';
        if (b >= 100)
            entrada.texto[entrada.longitud++] = static_cast<char>('0' + b / 100);
        if (b >= 10)
            entrada.texto[entrada.longitud++] = static_cast<char>('0' + b / 10 % 10);
        entrada.texto[entrada.longitud++] = static_cast<char>('0' + b % 10);
    }
    return tabla;
}

constexpr std::array<ByteDecimal, 256> decimales = crearTabla();

} // namespace

void conBlancoDelante(std::string& texto, std::span<const std::uint8_t> bytes) {
    const std::size_t antes = texto.size();
    texto.resize(antes + bytes.size() * 4);
    char* destino = texto.data() + antes;
    for (const std::uint8_t b : bytes) {
        const ByteDecimal& decimal = decimales[b];
        for (std::size_t i = 0; i < decimal.texto.size(); ++i) // all four: a fixed size is one move
            destino[i] = decimal.texto[i];
        destino += decimal.longitud;
    }
    texto.resize(static_cast<std::size_t>(destino - texto.data()));
}

void conBlancoDetras(std::string& texto, std::span<const std::uint8_t> bytes) {
    if (bytes.empty())
        return;
    separadosPorBlanco(texto, bytes);
    texto.push_back(' ');
}

void separadosPorBlanco(std::string& texto, std::span<const std::uint8_t> bytes) {
    const std::size_t antes = texto.size();
    conBlancoDelante(texto, bytes);
    if (texto.size() > antes)
        texto.erase(antes, 1);
}

} // namespace trama
