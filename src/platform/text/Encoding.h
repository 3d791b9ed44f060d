// Text files as bytes: which encoding they are in, and the way back into the same one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace text {

enum class Encoding { utf8, utf8WithMark, utf16LittleEndian, utf16BigEndian, windows1252 };

// What the bytes are in: what their byte order mark says, else UTF-8 where all of it is valid UTF-8, else Windows-1252.
Encoding encodingOf(std::string_view bytes) noexcept;

// The text of a file as UTF-8, without a byte order mark. What is no character in its encoding becomes U+FFFD.
std::string decoded(std::string_view bytes);

// The UTF-8 text in the encoding, with its byte order mark. Nothing when the encoding lacks one of the characters,
// which only Windows-1252 does.
std::optional<std::string> encoded(std::string_view utf8, Encoding encoding);

} // namespace text
