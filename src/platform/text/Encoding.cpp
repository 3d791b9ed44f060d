#include "platform/text/Encoding.h"

#include "platform/text/CodePage.h"
#include "platform/text/Utf.h"

#include <cstddef>
#include <cstdint>

namespace text {

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view littleEndianMark = "\xFF\xFE";
constexpr std::string_view bigEndianMark = "\xFE\xFF";

// The bytes behind the mark; a last odd byte is no character.
std::u16string fromUtf16Bytes(std::string_view bytes, Encoding encoding) {
    const std::size_t low = encoding == Encoding::utf16LittleEndian ? 0 : 1;
    const auto byte = [bytes](std::size_t i) { return static_cast<unsigned>(static_cast<std::uint8_t>(bytes[i])); };
    std::u16string units;
    units.reserve(bytes.size() / 2 + 1);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        units.push_back(static_cast<char16_t>(byte(i + low) | byte(i + 1 - low) << 8));
    }
    if (bytes.size() % 2 != 0) {
        units.push_back(replacement);
    }
    return units;
}

std::string toUtf16Bytes(std::u16string_view units, Encoding encoding) {
    const bool little = encoding == Encoding::utf16LittleEndian;
    std::string bytes(little ? littleEndianMark : bigEndianMark);
    bytes.reserve(units.size() * 2 + 2);
    for (const char16_t unit : units) {
        const char low = static_cast<char>(unit & 0xFFU);
        const char high = static_cast<char>(unit >> 8);
        bytes.push_back(little ? low : high);
        bytes.push_back(little ? high : low);
    }
    return bytes;
}

} // namespace

Encoding encodingOf(std::string_view bytes) noexcept {
    if (bytes.starts_with(littleEndianMark)) {
        return Encoding::utf16LittleEndian;
    }
    if (bytes.starts_with(bigEndianMark)) {
        return Encoding::utf16BigEndian;
    }
    if (!isUtf8(bytes)) {
        return Encoding::windows1252;
    }
    return bytes.starts_with(utf8Mark) ? Encoding::utf8WithMark : Encoding::utf8;
}

std::string decoded(std::string_view bytes) {
    switch (const Encoding encoding = encodingOf(bytes)) {
    case Encoding::utf16LittleEndian:
    case Encoding::utf16BigEndian:
        return toUtf8(fromUtf16Bytes(bytes.substr(2), encoding));
    case Encoding::windows1252:
        return utf8FromAnsi(bytes);
    case Encoding::utf8WithMark:
        return std::string(bytes.substr(utf8Mark.size()));
    case Encoding::utf8:
        break;
    }
    return std::string(bytes);
}

std::optional<std::string> encoded(std::string_view utf8, Encoding encoding) {
    switch (encoding) {
    case Encoding::utf16LittleEndian:
    case Encoding::utf16BigEndian:
        return toUtf16Bytes(toUtf16(utf8), encoding);
    case Encoding::windows1252: {
        std::size_t lost = 0;
        std::string ansi = ansiFromUtf8(utf8, lost);
        return lost == 0 ? std::optional(std::move(ansi)) : std::nullopt;
    }
    case Encoding::utf8WithMark:
        return std::string(utf8Mark).append(utf8);
    case Encoding::utf8:
        break;
    }
    return std::string(utf8);
}

} // namespace text
