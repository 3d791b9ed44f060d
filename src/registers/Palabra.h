// Words: 16-bit register quantities carried as doubles, and their conversions.
//
// A register holds an unsigned quantity 0..65535; signed values are kept in two's complement (-1 is 65535). Bits are
// numbered 0 (least significant) to 15; bit n weighs 2^n. Every conversion to a whole number rounds to the nearest,
// halves to the even neighbour: 2.5 gives 2, 3.5 gives 4.
#pragma once

#include <cstdint>

// x as a whole number of 32 or 16 bits. Raises ErrorEjecucion (desbordamiento) when the rounded value does not fit (NaN
// included).
std::int32_t redondear32(double x);
inline std::int32_t entero32(double x) {
    // Nearly every index is whole already: one conversion there and back instead of the rounding function.
    if (x > -2147483648.0 && x < 2147483648.0) {
        if (const auto n = static_cast<std::int32_t>(x); static_cast<double>(n) == x)
            return n;
    }
    return redondear32(x);
}
std::int16_t entero16(double x);

// x + 65536 when x is below 0, else x unchanged. No range check: -70000 gives -4464.
double SINGLEINT(double numeroAComb);

// The inverse view: the low 16 bits of the number read as a signed word, -32768..32767.
double SIGNINT(double numeroAComb);

// 1 if the bit is set in the word, else 0. Raises desbordamiento when the word or 2^bit is outside 32 bits.
std::int16_t NBit(double palabraDecimal, std::int16_t bit);

// The word with the bit set (valor 1) or cleared (any other valor; bits above 15 are then cleared too, because the
// mask is 65535 less the bit's weight). Raises desbordamiento as NBit does.
double SetearBIT_YDevolverPalabra(double palabra, std::int16_t bit, std::int16_t valor);
