// The period of the script passes: its text in the configuration, its number, and what the timer takes.
#pragma once

#include <chrono>
#include <string_view>

// Bounds of what the editor admits, inclusive, and what it falls back to; milliseconds.
constexpr double periodoMinimo = 10;
constexpr double periodoMaximo = 60000;
constexpr double periodoPorDefecto = 1000;

// The number of a period's text. Raises tiposNoCoinciden when the text is not numeric.
double periodoDeTexto(std::string_view texto, char16_t signoDecimal);

// The interval of a timer: the period rounded to a whole number, halves to the even neighbour, and at least
// periodoMinimo, so that 0 or a negative period in the file leaves time for everything else. Raises desbordamiento when
// the period does not fit 32 bits.
std::chrono::milliseconds intervaloDeTimer(double periodo);
