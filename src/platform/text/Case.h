// Capital and small letters, one UTF-16 unit at a time and the same in every locale: "I" is always the capital of "i",
// "ß" has none.
#pragma once

#include <string_view>

namespace text {

char16_t toLowerBeyondAscii(char16_t unit) noexcept;
char16_t toUpperBeyondAscii(char16_t unit) noexcept;

// The other letter of its pair; what has no such pair (signs, digits, "×", "µ", "İ") is given back.
inline char16_t toLower(char16_t unit) noexcept {
    return unit >= 0x80                   ? toLowerBeyondAscii(unit)
           : unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32)
                                          : unit;
}
inline char16_t toUpper(char16_t unit) noexcept {
    return unit >= 0x80                   ? toUpperBeyondAscii(unit)
           : unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 32)
                                          : unit;
}

// Order by code without regard to case: negative, zero or positive.
int compareNoCase(std::u16string_view a, std::u16string_view b) noexcept;
bool equalNoCase(std::u16string_view a, std::u16string_view b) noexcept;

} // namespace text
