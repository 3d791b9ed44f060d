#include "platform/vbscript/value/String.h"

#include "platform/vbscript/value/Errors.h"
#include "platform/vbscript/value/Memory.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>
#include <new>

namespace vbs {

namespace {

std::size_t bytesOf(std::size_t capacity) noexcept {
    return sizeof(StringBlock) + capacity * sizeof(char16_t);
}

} // namespace

StringBlock* StringBlock::allocate(std::size_t capacity) {
    if (capacity > String::maxLength) {
        raise(ErrorNumber::OutOfMemory);
    }
    const std::size_t bytes = (bytesOf(capacity) + 15) & ~std::size_t{15};
    chargeMemory(bytes);
    void* memory = std::malloc(bytes);
    if (memory == nullptr) {
        releaseMemory(bytes);
        raise(ErrorNumber::OutOfMemory);
    }
    auto* block = new (memory) StringBlock;
    block->capacity = static_cast<std::uint32_t>((bytes - sizeof(StringBlock)) / sizeof(char16_t)) & 0x7FFFFFFFU;
    return block;
}

void StringBlock::destroy(StringBlock* block) noexcept {
    releaseMemory((bytesOf(block->capacity) + 15) & ~std::size_t{15});
    std::free(block);
}

String::String(std::u16string_view text) {
    if (!text.empty()) {
        m_block = StringBlock::allocate(text.size());
        std::memcpy(m_block->text(), text.data(), text.size() * sizeof(char16_t));
        m_block->length = static_cast<std::uint32_t>(text.size());
    }
}

String::String(std::string_view ascii) {
    if (!ascii.empty()) {
        *this = uninitialized(ascii.size());
        std::transform(ascii.begin(), ascii.end(), m_block->text(),
                       [](char c) { return static_cast<char16_t>(static_cast<unsigned char>(c)); });
    }
}

String String::uninitialized(std::size_t length) {
    String s;
    if (length > 0) {
        s.m_block = StringBlock::allocate(length);
        s.m_block->length = static_cast<std::uint32_t>(length);
    }
    return s;
}

String String::fromBytes(std::span<const std::uint8_t> bytes) {
    static_assert(std::endian::native == std::endian::little);
    String s;
    if (!bytes.empty()) {
        s.m_block = StringBlock::allocate((bytes.size() + 1) / sizeof(char16_t));
        std::memcpy(s.m_block->text(), bytes.data(), bytes.size());
        s.m_block->length = static_cast<std::uint32_t>(bytes.size() / sizeof(char16_t));
        s.m_block->oddByte = bytes.size() % sizeof(char16_t);
    }
    return s;
}

String String::repeated(std::size_t count, char16_t unit) {
    String s = uninitialized(count);
    if (count > 0) {
        std::fill_n(s.m_block->text(), count, unit);
    }
    return s;
}

void String::reserveUnique(std::size_t capacity) {
    if (m_block != nullptr && m_block->references == 1 && m_block->capacity >= capacity) {
        return;
    }
    StringBlock* fresh = StringBlock::allocate(capacity);
    fresh->length = static_cast<std::uint32_t>(size());
    std::memcpy(fresh->text(), data(), size() * sizeof(char16_t));
    release();
    m_block = fresh;
}

char16_t* String::mutableData() {
    reserveUnique(size());
    return m_block->text();
}

void String::append(std::u16string_view tail) {
    if (tail.empty()) {
        return;
    }
    const std::size_t total = size() + tail.size();
    if (m_block == nullptr || m_block->references != 1 || m_block->capacity < total) {
        const bool growing = m_block != nullptr && m_block->capacity >= 32;
        String grown =
            adopt(StringBlock::allocate(growing ? std::max(total, std::min(size() * 2, maxLength)) : total + 8));
        std::memcpy(grown.m_block->text(), data(), size() * sizeof(char16_t));
        std::memcpy(grown.m_block->text() + size(), tail.data(), tail.size() * sizeof(char16_t));
        grown.m_block->length = static_cast<std::uint32_t>(total);
        swap(grown); // only now, because `tail` may point into the old text
    } else {
        std::memmove(m_block->text() + size(), tail.data(), tail.size() * sizeof(char16_t));
    }
    m_block->length = static_cast<std::uint32_t>(total);
    m_block->oddByte = 0;
}

void String::truncate(std::size_t length) {
    if (length < size()) {
        reserveUnique(size());
        m_block->length = static_cast<std::uint32_t>(length);
        m_block->oddByte = 0;
    }
}

std::u16string fromUtf8(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    std::size_t i = bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0;
    while (i < bytes.size()) {
        const auto lead = static_cast<unsigned char>(bytes[i]);
        if (lead < 0x80) {
            text.push_back(lead);
            ++i;
            continue;
        }
        const std::size_t extra = lead >= 0xF0 && lead < 0xF5   ? 3
                                  : lead >= 0xE0 && lead < 0xF0 ? 2
                                  : lead >= 0xC2 && lead < 0xE0 ? 1
                                                                : 0;
        char32_t code = extra == 3 ? lead & 0x07U : extra == 2 ? lead & 0x0FU : lead & 0x1FU;
        bool good = extra > 0 && i + extra < bytes.size();
        for (std::size_t k = 1; good && k <= extra; ++k) {
            const auto next = static_cast<unsigned char>(bytes[i + k]);
            good = (next & 0xC0U) == 0x80;
            code = (code << 6) | (next & 0x3FU);
        }
        constexpr char32_t least[] = {0, 0x80, 0x800, 0x10000};
        good = good && code >= least[extra] && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
        if (!good) {
            text.push_back(u'\uFFFD');
            ++i;
            continue;
        }
        if (code >= 0x10000) {
            text.push_back(static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10)));
            text.push_back(static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF)));
        } else {
            text.push_back(static_cast<char16_t>(code));
        }
        i += extra + 1;
    }
    return text;
}

std::string toUtf8(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t code = text[i];
        const bool high = code >= 0xD800 && code < 0xDC00;
        if (high && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000) {
            code = 0x10000 + ((code - 0xD800) << 10) + (text[++i] - 0xDC00U);
        } else if (code >= 0xD800 && code < 0xE000) {
            code = 0xFFFD;
        }
        const auto put = [&bytes](char32_t byte) { bytes.push_back(static_cast<char>(byte)); };
        if (code < 0x80) {
            put(code);
        } else if (code < 0x800) {
            put(0xC0 | (code >> 6));
            put(0x80 | (code & 0x3F));
        } else if (code < 0x10000) {
            put(0xE0 | (code >> 12));
            put(0x80 | ((code >> 6) & 0x3F));
            put(0x80 | (code & 0x3F));
        } else {
            put(0xF0 | (code >> 18));
            put(0x80 | ((code >> 12) & 0x3F));
            put(0x80 | ((code >> 6) & 0x3F));
            put(0x80 | (code & 0x3F));
        }
    }
    return bytes;
}

namespace {

// Blocks in which capital and small letters alternate, the capital on the even code.
bool alternatesEvenFirst(char16_t c) noexcept {
    return (c >= 0x100 && c <= 0x137 && c != 0x130 && c != 0x131) || (c >= 0x14A && c <= 0x177) ||
           (c >= 0x1E00 && c <= 0x1E95) || (c >= 0x460 && c <= 0x481) || (c >= 0x48A && c <= 0x4BF);
}

// The same with the capital on the odd code.
bool alternatesOddFirst(char16_t c) noexcept {
    return (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
}

char16_t shifted(char16_t c, int by) noexcept {
    return static_cast<char16_t>(c + by);
}

} // namespace

char16_t toLowerBeyondAscii(char16_t c) noexcept {
    if ((c >= 0xC0 && c <= 0xDE && c != 0xD7) || (c >= 0x391 && c <= 0x3AB && c != 0x3A2) ||
        (c >= 0x410 && c <= 0x42F)) {
        return shifted(c, 32);
    }
    if (c >= 0x400 && c <= 0x40F) {
        return shifted(c, 80);
    }
    if (c == 0x178) {
        return 0xFF;
    }
    if ((alternatesEvenFirst(c) && c % 2 == 0) || (alternatesOddFirst(c) && c % 2 == 1)) {
        return shifted(c, 1);
    }
    return c;
}

char16_t toUpperBeyondAscii(char16_t c) noexcept {
    if ((c >= 0xE0 && c <= 0xFE && c != 0xF7) || (c >= 0x3B1 && c <= 0x3CB && c != 0x3C2) ||
        (c >= 0x430 && c <= 0x44F)) {
        return shifted(c, -32);
    }
    if (c >= 0x450 && c <= 0x45F) {
        return shifted(c, -80);
    }
    if (c == 0xFF) {
        return 0x178;
    }
    if ((alternatesEvenFirst(c) && c % 2 == 1) || (alternatesOddFirst(c) && c % 2 == 0)) {
        return shifted(c, -1);
    }
    return c;
}

int compareText(std::u16string_view a, std::u16string_view b) noexcept {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const int difference = toLower(a[i]) - toLower(b[i]);
        if (difference != 0) {
            return difference;
        }
    }
    return a.size() < b.size() ? -1 : a.size() > b.size() ? 1 : 0;
}

bool equalNoCase(std::u16string_view a, std::u16string_view b) noexcept {
    return a.size() == b.size() && compareText(a, b) == 0;
}

} // namespace vbs
