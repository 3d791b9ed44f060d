#include "platform/text/CodePage.h"

#include "platform/text/Case.h"
#include "platform/text/Utf.h"

#include <algorithm>
#include <array>

namespace text {

namespace {

// The characters of the codes 80 to 9F; every other code is the character of the same number.
constexpr std::array<char16_t, 32> from80To9F = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t characterOf(char ansi) noexcept {
    return fromAnsi(static_cast<std::uint8_t>(ansi));
}

} // namespace

char16_t fromAnsi(std::uint8_t code) noexcept {
    return code >= 0x80 && code <= 0x9F ? from80To9F[code - 0x80U] : code;
}

std::optional<std::uint8_t> toAnsi(char32_t character) noexcept {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<std::uint8_t>(character);
    }
    const auto* const found = std::find(from80To9F.begin(), from80To9F.end(), character);
    if (found == from80To9F.end()) {
        return std::nullopt;
    }
    return static_cast<std::uint8_t>(0x80 + (found - from80To9F.begin()));
}

std::u16string utf16FromAnsi(std::string_view ansi) {
    std::u16string units(ansi.size(), u'\0');
    std::transform(ansi.begin(), ansi.end(), units.begin(), characterOf);
    return units;
}

std::string utf8FromAnsi(std::string_view ansi) {
    return toUtf8(utf16FromAnsi(ansi));
}

std::string ansiFromUtf8(std::string_view utf8, std::size_t& lost) {
    std::string ansi;
    ansi.reserve(utf8.size());
    lost = 0;
    while (!utf8.empty()) {
        const Utf8Character character = firstCharacter(utf8);
        const auto code = character.length == 0 ? std::nullopt : toAnsi(character.code);
        ansi.push_back(static_cast<char>(code.value_or('?')));
        lost += code ? 0 : 1;
        utf8.remove_prefix(std::max<std::size_t>(character.length, 1));
    }
    return ansi;
}

std::string ansiFromUtf8(std::string_view utf8) {
    std::size_t lost = 0;
    return ansiFromUtf8(utf8, lost);
}

bool equalAnsiNoCase(std::string_view a, std::string_view b) noexcept {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return toLower(characterOf(x)) == toLower(characterOf(y)); });
}

} // namespace text
