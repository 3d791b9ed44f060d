#pragma once
// Numbers as users and configuration files write them, and back.
//
// Not for the script language, whose conversions belong to its engine. The decimal sign is the locale's ('.' or ',');
// the other one of the two separates thousands and is skipped.
//
//     numeroDeTexto(" 502 ") == 502.0     numeroDeTexto("1.500,5", ',') == 1500.5     !numeroDeTexto("abc")

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

/// The number that the whole text stands for: blanks around it, a sign, digits, a fraction, an exponent (e or d), or
/// &H and &O with hexadecimal and octal digits of at most 32 bits (in two's complement, as the Basic family writes
/// them). Nothing when the text is not numeric or the number does not fit a double.
std::optional<double> numeroDeTexto(std::string_view texto, char signoDecimal = '.');

/// numeroDeTexto rounded to the nearest whole number, halves to the even one; nothing when it does not fit `Entero`.
template <typename Entero>
std::optional<Entero> enteroDeTexto(std::string_view texto, char signoDecimal = '.') {
    static_assert(std::is_integral_v<Entero> && sizeof(Entero) <= 4, "every value must be exact as a double");
    const std::optional<double> numero = numeroDeTexto(texto, signoDecimal);
    if (!numero)
        return std::nullopt;
    const double entero = std::nearbyint(*numero);
    if (entero < std::numeric_limits<Entero>::min() || entero > std::numeric_limits<Entero>::max())
        return std::nullopt;
    return static_cast<Entero>(entero);
}

/// Decimal text of a number with up to 15 significant digits: no leading blank, no thousands separator, a fraction only
/// when there is one, an exponent ("1E+15", "1E-05") only from 1E+15 on and below 0.0001.
std::string textoDeNumero(double numero, char signoDecimal = '.');
