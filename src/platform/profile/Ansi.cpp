#include "platform/profile/Ansi.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace {

// The characters of the codes 80 to 9F; all other codes are the character of the same number.
constexpr std::array<char32_t, 32> codigos80a9F = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                   0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::optional<char> codigoAnsi(char32_t caracter) {
    if (caracter < 0x80 || (caracter >= 0xA0 && caracter <= 0xFF))
        return static_cast<char>(caracter);
    const auto hallado = std::find(codigos80a9F.begin(), codigos80a9F.end(), caracter);
    if (hallado == codigos80a9F.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (hallado - codigos80a9F.begin()));
}

struct Secuencia {
    char32_t caracter = 0;
    std::size_t largo = 0; // bytes used; 0: what stands here is not UTF-8
};

Secuencia primerCaracter(std::string_view bytes) {
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
    const std::uint8_t cabeza = byte(0);
    if (cabeza < 0x80)
        return {cabeza, 1};
    const std::size_t largo = cabeza >= 0xF0 ? 4 : cabeza >= 0xE0 ? 3 : 2;
    if (cabeza < 0xC2 || cabeza > 0xF4 || bytes.size() < largo)
        return {};
    char32_t caracter = cabeza & (0x7Fu >> largo);
    for (std::size_t i = 1; i < largo; ++i) {
        if ((byte(i) & 0xC0u) != 0x80)
            return {};
        caracter = caracter << 6 | (byte(i) & 0x3Fu);
    }
    constexpr std::array<char32_t, 5> menor = {0, 0, 0x80, 0x800, 0x10000};
    const bool sustituto = caracter >= 0xD800 && caracter <= 0xDFFF;
    if (caracter < menor.at(largo) || caracter > 0x10FFFF || sustituto)
        return {};
    return {caracter, largo};
}

void agregarUtf8(std::string& texto, char32_t caracter) {
    const auto cola = [&](unsigned desplazamiento) {
        texto += static_cast<char>(0x80u | (caracter >> desplazamiento & 0x3Fu));
    };
    if (caracter < 0x80) {
        texto += static_cast<char>(caracter);
    } else if (caracter < 0x800) {
        texto += static_cast<char>(0xC0u | caracter >> 6);
        cola(0);
    } else {
        texto += static_cast<char>(0xE0u | caracter >> 12);
        cola(6);
        cola(0);
    }
}

} // namespace

std::string ansiDeUtf8(std::string_view utf8) {
    std::size_t perdidos = 0;
    return ansiDeUtf8(utf8, perdidos);
}

std::string ansiDeUtf8(std::string_view utf8, std::size_t& perdidos) {
    std::string ansi;
    ansi.reserve(utf8.size());
    perdidos = 0;
    while (!utf8.empty()) {
        const Secuencia secuencia = primerCaracter(utf8);
        const std::optional<char> codigo = secuencia.largo == 0 ? std::nullopt : codigoAnsi(secuencia.caracter);
        ansi += codigo.value_or('?');
        perdidos += codigo ? 0 : 1;
        utf8.remove_prefix(std::max<std::size_t>(secuencia.largo, 1));
    }
    return ansi;
}

std::string utf8DeAnsi(std::string_view ansi) {
    std::string utf8;
    utf8.reserve(ansi.size());
    for (const char c : ansi) {
        const auto codigo = static_cast<std::uint8_t>(c);
        agregarUtf8(utf8, codigo >= 0x80 && codigo <= 0x9F ? codigos80a9F.at(codigo - 0x80u) : codigo);
    }
    return utf8;
}

bool esUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const Secuencia secuencia = primerCaracter(bytes);
        if (secuencia.largo == 0)
            return false;
        bytes.remove_prefix(secuencia.largo);
    }
    return true;
}

unsigned char minusculaAnsi(unsigned char codigo) {
    const bool ascii = codigo >= 'A' && codigo <= 'Z';
    const bool acentuada = codigo >= 0xC0 && codigo <= 0xDE && codigo != 0xD7; // D7 is the multiplication sign
    if (ascii || acentuada)
        return static_cast<unsigned char>(codigo + 0x20);
    if (codigo == 0x8A || codigo == 0x8C || codigo == 0x8E) // S caron, OE, Z caron
        return static_cast<unsigned char>(codigo + 0x10);
    return codigo == 0x9F ? 0xFF : codigo; // Y diaeresis
}

bool igualesSinCaja(std::string_view ansiA, std::string_view ansiB) {
    const auto minuscula = [](char c) { return minusculaAnsi(static_cast<unsigned char>(c)); };
    return std::equal(ansiA.begin(), ansiA.end(), ansiB.begin(), ansiB.end(),
                      [&](char a, char b) { return minuscula(a) == minuscula(b); });
}
