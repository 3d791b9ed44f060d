// Numbers as users and configuration files write them.
//
// Not for the script language, whose conversions belong to its engine. The decimal sign is the locale's ('.' or ',');
// the other one of the two separates thousands and is skipped.
//
//     numeroDeTexto(" 502 ") == 502.0     numeroDeTexto("1.500,5", ',') == 1500.5     !numeroDeTexto("abc")
#pragma once

#include <optional>
#include <string_view>

// The number that the whole text stands for: blanks around it, a sign, digits, a fraction, an exponent (e or d), or
// &H and &O with hexadecimal and octal digits of at most 32 bits (in two's complement, as the Basic family writes
// them). Nothing when the text is not numeric or the number does not fit a double.
std::optional<double> numeroDeTexto(std::string_view texto, char signoDecimal = '.');
