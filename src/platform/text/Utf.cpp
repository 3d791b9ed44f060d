#include "platform/text/Utf.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace text {

namespace {

void append(std::string& bytes, char32_t code) {
    const auto put = [&bytes](char32_t byte) { bytes.push_back(static_cast<char>(byte)); };
    const auto tail = [&put, code](unsigned shift) { put(0x80U | (code >> shift & 0x3FU)); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0U | code >> 6);
        tail(0);
    } else if (code < 0x10000) {
        put(0xE0U | code >> 12);
        tail(6);
        tail(0);
    } else {
        put(0xF0U | code >> 18);
        tail(12);
        tail(6);
        tail(0);
    }
}

void append(std::u16string& units, char32_t code) {
    if (code < 0x10000) {
        units.push_back(static_cast<char16_t>(code));
    } else {
        units.push_back(static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10)));
        units.push_back(static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF)));
    }
}

// How many bytes at the front are ASCII, looked at eight at a time.
std::size_t asciiAtFront(std::string_view bytes) noexcept {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::size_t count = 0;
    for (std::uint64_t word = 0; count + sizeof word <= bytes.size(); count += sizeof word) {
        std::memcpy(&word, bytes.data() + count, sizeof word);
        if ((word & highBits) != 0) {
            break;
        }
    }
    while (count < bytes.size() && static_cast<std::uint8_t>(bytes[count]) < 0x80) {
        ++count;
    }
    return count;
}

bool isHighSurrogate(char32_t code) noexcept {
    return code >= 0xD800 && code < 0xDC00;
}

bool isLowSurrogate(char32_t code) noexcept {
    return code >= 0xDC00 && code < 0xE000;
}

} // namespace

Utf8Character firstCharacter(std::string_view bytes) noexcept {
    const auto byte = [bytes](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
    const std::uint8_t lead = byte(0);
    if (lead < 0x80) {
        return {lead, 1};
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) {
        return {};
    }
    char32_t code = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80) {
            return {};
        }
        code = code << 6 | (byte(i) & 0x3FU);
    }
    constexpr std::array<char32_t, 5> least = {0, 0, 0x80, 0x800, 0x10000};
    if (code < least[length] || code > 0x10FFFF || isHighSurrogate(code) || isLowSurrogate(code)) {
        return {};
    }
    return {code, length};
}

bool isUtf8(std::string_view bytes) noexcept {
    for (bytes.remove_prefix(asciiAtFront(bytes)); !bytes.empty(); bytes.remove_prefix(asciiAtFront(bytes))) {
        const Utf8Character character = firstCharacter(bytes);
        if (character.length == 0) {
            return false;
        }
        bytes.remove_prefix(character.length);
    }
    return true;
}

std::u16string toUtf16(std::string_view utf8) {
    std::u16string units;
    units.reserve(utf8.size());
    while (true) {
        const std::string_view ascii = utf8.substr(0, asciiAtFront(utf8));
        units.resize(units.size() + ascii.size());
        std::transform(ascii.begin(), ascii.end(), units.end() - static_cast<std::ptrdiff_t>(ascii.size()),
                       [](char c) { return static_cast<char16_t>(c); });
        utf8.remove_prefix(ascii.size());
        if (utf8.empty()) {
            return units;
        }
        const Utf8Character character = firstCharacter(utf8);
        append(units, character.length > 0 ? character.code : replacement);
        utf8.remove_prefix(character.length > 0 ? character.length : 1);
    }
}

std::string toUtf8(std::u16string_view utf16) {
    std::string bytes;
    bytes.reserve(utf16.size());
    for (std::size_t i = 0; i < utf16.size(); ++i) {
        char32_t code = utf16[i];
        if (isHighSurrogate(code) && i + 1 < utf16.size() && isLowSurrogate(utf16[i + 1])) {
            code = 0x10000 + ((code - 0xD800) << 10) + (utf16[++i] - 0xDC00U);
        } else if (isHighSurrogate(code) || isLowSurrogate(code)) {
            code = replacement;
        }
        append(bytes, code);
    }
    return bytes;
}

} // namespace text
