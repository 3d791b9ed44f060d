#include "platform/vbscript/value/Ansi.h"

#include "platform/vbscript/value/String.h"

#include <algorithm>
#include <array>

namespace vbs {

namespace {

// Codes 0x80 to 0x9F; the five that the set leaves open stand for themselves.
constexpr std::array<char16_t, 32> upper = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

} // namespace

char16_t fromAnsi(std::uint8_t code) noexcept {
    return code >= 0x80 && code <= 0x9F ? upper[code - 0x80U] : code;
}

std::uint8_t toAnsi(char16_t unit) noexcept {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) {
        return static_cast<std::uint8_t>(unit);
    }
    const auto* const found = std::find(upper.begin(), upper.end(), unit);
    return found != upper.end() ? static_cast<std::uint8_t>(0x80 + (found - upper.begin())) : std::uint8_t{63};
}

std::u16string decodeScript(std::string_view bytes) {
    std::u16string text = fromUtf8(bytes);
    const bool written = bytes.find("\xEF\xBF\xBD") != std::string_view::npos; // U+FFFD itself
    if (written || text.find(u'\uFFFD') == std::u16string::npos) {
        return text;
    }
    text.clear();
    for (const char byte : bytes) {
        text.push_back(fromAnsi(static_cast<std::uint8_t>(byte)));
    }
    return text;
}

} // namespace vbs
