// Windows-1252 and UTF-8.
//
// The configuration file and the logs are Windows-1252 on disk (one byte a character); every text inside the program
// is UTF-8. The five codes that Windows-1252 leaves open (81, 8D, 8F, 90, 9D) stand for the control characters of the
// same number, so that any byte survives the way to UTF-8 and back.
//
//     ansiDeUtf8("año") == "a\xF1o"      utf8DeAnsi("\x80") == "€"
#pragma once

#include <string>
#include <string_view>

// UTF-8 to Windows-1252. A character without a code there, and each byte that is not valid UTF-8, becomes '?'.
std::string ansiDeUtf8(std::string_view utf8);

// As ansiDeUtf8; `perdidos` tells how many characters became '?' for want of a code.
std::string ansiDeUtf8(std::string_view utf8, std::size_t& perdidos);

// Windows-1252 to UTF-8; every byte has a character.
std::string utf8DeAnsi(std::string_view ansi);

// Whether the bytes are well-formed UTF-8 (no overlong forms, no surrogates, nothing above U+10FFFF).
bool esUtf8(std::string_view bytes);

// The small letter of a Windows-1252 capital ('A' to 'Z' and the accented ones); any other code is given back.
unsigned char minusculaAnsi(unsigned char codigo);

// Equality without regard to the case of Windows-1252 letters.
bool igualesSinCaja(std::string_view ansiA, std::string_view ansiB);
