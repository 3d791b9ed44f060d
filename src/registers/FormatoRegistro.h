// How the registers of a page are written: as a number of one word, or of two neighbouring ones.
//
// A format of two words shows at every even address what that register and the next make together, and nothing at the
// odd one. Which of the two holds the high half depends on the device, so there is a format for either order.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

enum class FormatoRegistro {
    decimal, // as stored, fractions included
    conSigno,
    hexadecimal,
    binario,
    entero32, // high word first
    entero32Invertido,
    flotante, // IEEE 754 single, high word first
    flotanteInvertido,
};

struct NombreFormato {
    FormatoRegistro formato;
    std::string_view titulo; // for menus and the manual
};
inline constexpr std::array<NombreFormato, 8> formatosRegistro{{
    {FormatoRegistro::decimal, "Decimal"},
    {FormatoRegistro::conSigno, "Con signo"},
    {FormatoRegistro::hexadecimal, "Hexadecimal"},
    {FormatoRegistro::binario, "Binario"},
    {FormatoRegistro::entero32, "Entero de 32 bits (palabra alta primero)"},
    {FormatoRegistro::entero32Invertido, "Entero de 32 bits (palabra baja primero)"},
    {FormatoRegistro::flotante, "Coma flotante (palabra alta primero)"},
    {FormatoRegistro::flotanteInvertido, "Coma flotante (palabra baja primero)"},
}};

constexpr bool ocupaDosPalabras(FormatoRegistro formato) {
    return formato >= FormatoRegistro::entero32;
}

// The register `direccion` of a table as text; empty beyond the table, and at odd addresses of formats of two words.
std::string textoDeRegistro(std::span<const double> valores, std::size_t direccion, FormatoRegistro formato,
                            char16_t separadorDecimal);
