// The code page Windows-1252, in which the configuration file and the logs are written: one byte a character.
//
// The five codes that it leaves open (81, 8D, 8F, 90, 9D) stand for the control characters of the same number, so that
// any byte survives the way to UTF-8 and back.
//
//     text::ansiFromUtf8("a\xC3\xB1o") == "a\xF1o"      text::utf8FromAnsi("\x80") == "€"
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace text {

char16_t fromAnsi(std::uint8_t code) noexcept;
// Nothing for a character that the page lacks.
std::optional<std::uint8_t> toAnsi(char32_t character) noexcept;

std::string utf8FromAnsi(std::string_view ansi);
std::u16string utf16FromAnsi(std::string_view ansi);

// A character that the page lacks, and each byte that is not valid UTF-8, becomes '?'; `lost` counts them.
std::string ansiFromUtf8(std::string_view utf8, std::size_t& lost);
std::string ansiFromUtf8(std::string_view utf8);

// Equality of Windows-1252 texts without regard to case.
bool equalAnsiNoCase(std::string_view a, std::string_view b) noexcept;

} // namespace text
