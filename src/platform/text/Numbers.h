// Numbers as text and back, the same in every program and window. Nothing here depends on the C library's locale: the
// decimal sign is an argument.
//
//     text::writeNumber(1.0 / 15) == "6.66666666666667E-02"
//     text::readNumber(u" -12,5 ", {.decimal = u','}) == -12.5
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace text {

// How numbers are written in a place.
struct NumberSigns {
    char16_t decimal = u',';
    char16_t thousands = 0;               // 0: digits do not stand in groups
    std::u16string_view currencySymbol{}; // read over where it stands before or behind the number
};

// The number that the whole text stands for: blanks around it, a sign before or behind it or brackets for a negative
// one, digits with a decimal sign, an exponent (e or d); or &H and &O with at most 32 bits in two's complement, of
// which up to 16 stand for a 16-bit integer. Nothing when the text is no number; infinite when it is too large for a
// double.
std::optional<double> readNumber(std::u16string_view text, const NumberSigns& signs);

// A number times a power of ten, rounded to a whole one.
struct ScaledNumber {
    std::int64_t value = 0;
    bool fits = true; // false: too large for 64 bits
};

// Reads the same texts, digit by digit and not through a double: the number times ten to the power of `places` (0 to
// 9), rounded half to even. Nothing when the text is no number.
std::optional<ScaledNumber> readScaled(std::u16string_view text, const NumberSigns& signs, int places);

// What users type and configuration files hold: UTF-8, no groups of digits, nothing for what does not fit a double.
std::optional<double> readNumber(std::string_view utf8, char16_t decimal);

// Digits, at most one point among them, and an exponent: "12", ".5", "2.5e-3". Infinite when it is too large, 0 when it
// is too small for a double.
double readPlainNumber(std::string_view digits) noexcept;

// The number with at most `digits` significant digits (1 to 17), `decimal` before its fraction, and no groups. Numbers
// that would need more digits than that are written as 1.5E+20 or 1.5E-20. Negative zero is "0".
std::string writeNumber(double x, char16_t decimal = u'.', int digits = 15);

// A number's size in figures: 0.d1d2d3... times ten to the power of `point`.
struct Figures {
    std::string digits; // as many as were asked for, the first one no zero unless the number is 0
    int point = 0;      // digits before the decimal sign; zero or less where the number begins behind it
};

// The finite number's size rounded to `count` significant digits (1 to 17).
Figures figuresOf(double x, int count);

} // namespace text
