// The 8-bit character set of Asc and Chr: Windows-1252.
#pragma once

#include <cstdint>

namespace vbs {

char16_t fromAnsi(std::uint8_t code) noexcept;
// 63 ("?") for what the set does not contain.
std::uint8_t toAnsi(char16_t unit) noexcept;

} // namespace vbs
