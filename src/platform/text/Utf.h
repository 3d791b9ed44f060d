// UTF-8 and UTF-16.
//
//     text::toUtf16("a\xC3\xB1o") == u"año"      text::toUtf8(u"€") == "\xE2\x82\xAC"
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace text {

// What stands in the place of what is no character.
constexpr char16_t replacement = 0xFFFD;

// One character at the front of some UTF-8.
struct Utf8Character {
    char32_t code = 0;
    std::size_t length = 0; // bytes; 0: what stands there is not UTF-8
};

// `bytes` must not be empty. Overlong forms, surrogates and what lies above U+10FFFF are not UTF-8.
Utf8Character firstCharacter(std::string_view bytes) noexcept;

bool isUtf8(std::string_view bytes) noexcept;

// Each byte that is not part of valid UTF-8 becomes U+FFFD.
std::u16string toUtf16(std::string_view utf8);

// Lone surrogates become U+FFFD.
std::string toUtf8(std::u16string_view utf16);

} // namespace text
