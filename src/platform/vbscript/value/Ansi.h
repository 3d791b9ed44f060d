// The 8-bit character set of Asc and Chr: Windows-1252.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vbs {

char16_t fromAnsi(std::uint8_t code) noexcept;
// 63 ("?") for what the set does not contain.
std::uint8_t toAnsi(char16_t unit) noexcept;

// A script file as text: UTF-8 where all of it is valid UTF-8, else Windows-1252.
std::u16string decodeScript(std::string_view bytes);

} // namespace vbs
