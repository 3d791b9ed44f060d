// How the bridge's monitors show bytes.
#pragma once

#include <cstdint>
#include <span>
#include <string>

// "[0][1][FF]": upper-case hexadecimal without a leading zero.
void agregarHexadecimal(std::string& texto, std::span<const std::uint8_t> bytes);

// The characters of the bytes (ANSI code page); a carriage return alone becomes CR LF.
void agregarCaracteres(std::string& texto, std::span<const std::uint8_t> bytes);
