// A reference-counted UTF-16 text with room to grow. Copies share; `append` works in place while nobody else holds the
// text, so building a long string piece by piece is linear. Any code unit may occur, NUL and lone surrogates included.
// Not safe across threads.
#pragma once

#include "platform/text/Case.h"
#include "platform/text/Utf.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace vbs {

// What a Value can own a share of: texts, arrays and objects.
struct Counted {
    std::uint32_t references = 1;
};

// The shared block; only String and Value touch it.
struct StringBlock : Counted {
    std::uint32_t length = 0;        // code units
    std::uint32_t capacity : 31 = 0; // code units
    std::uint32_t oddByte : 1 = 0;   // one byte more stands behind the last whole unit (see String::fromBytes)
    char16_t* text() noexcept { return reinterpret_cast<char16_t*>(this + 1); }
    const char16_t* text() const noexcept { return reinterpret_cast<const char16_t*>(this + 1); }

    static StringBlock* allocate(std::size_t capacity); // length 0, one reference; raises error 7
    static void destroy(StringBlock* block) noexcept;
};

inline constexpr std::size_t unitsPerWord = sizeof(std::uint64_t) / sizeof(char16_t);

inline std::uint64_t wordAt(const char16_t* units) noexcept {
    std::uint64_t word = 0;
    std::memcpy(&word, units, sizeof word);
    return word;
}

// Whether two texts are the same, code unit by code unit. The standard library's comparison goes one unit at a time.
// Here four make a word, the last word may overlap the one before it, and what is long goes to memcmp.
inline bool sameUnits(std::u16string_view a, std::u16string_view b) noexcept {
    const std::size_t size = a.size();
    if (size != b.size()) {
        return false;
    }
    if (size < unitsPerWord) {
        for (std::size_t i = 0; i < size; ++i) {
            if (a[i] != b[i]) {
                return false;
            }
        }
        return true;
    }
    if (size > 8 * unitsPerWord) {
        return std::memcmp(a.data(), b.data(), size * sizeof(char16_t)) == 0;
    }
    for (std::size_t i = 0; i + unitsPerWord < size; i += unitsPerWord) {
        if (wordAt(a.data() + i) != wordAt(b.data() + i)) {
            return false;
        }
    }
    return wordAt(a.data() + size - unitsPerWord) == wordAt(b.data() + size - unitsPerWord);
}

class String {
public:
    static constexpr std::size_t maxLength = 0x3fffffff; // code units; longer raises error 7

    String() noexcept = default; // the empty text allocates nothing
    explicit String(std::u16string_view text);
    explicit String(std::string_view ascii); // each byte is one code unit
    String(const String& other) noexcept : block_(other.block_) { retain(); }
    String(String&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
    ~String() { release(); }
    String& operator=(const String& other) noexcept {
        String(other).swap(*this);
        return *this;
    }
    String& operator=(String&& other) noexcept {
        String(std::move(other)).swap(*this);
        return *this;
    }
    void swap(String& other) noexcept { std::swap(block_, other.block_); }

    // A text of `length` units that the caller fills through mutableData() at once.
    static String uninitialized(std::size_t length);
    static String repeated(std::size_t count, char16_t unit);

    std::size_t size() const noexcept { return block_ != nullptr ? block_->length : 0; }
    bool empty() const noexcept { return size() == 0; }
    const char16_t* data() const noexcept { return block_ != nullptr ? block_->text() : u""; }
    std::u16string_view view() const noexcept { return {data(), size()}; }

    char16_t* mutableData();               // copies first if the text is shared
    void append(std::u16string_view tail); // `tail` may be a part of this text
    void truncate(std::size_t length);     // to at most its present length

    bool operator==(const String& other) const noexcept { return sameUnits(view(), other.view()); }

    // A text is also a row of bytes, two a code unit, the lower one first. One made by ChrB or cut by LeftB may have an
    // odd number: the last byte is then no part of the text, but stays with it until the text is changed, and joining
    // such texts joins their bytes.
    static String fromBytes(std::span<const std::uint8_t> bytes);
    std::span<const std::uint8_t> bytes() const noexcept {
        return {reinterpret_cast<const std::uint8_t*>(data()), size() * sizeof(char16_t) + (hasOddByte() ? 1 : 0)};
    }
    bool hasOddByte() const noexcept { return block_ != nullptr && block_->oddByte != 0; }

    // Ownership passes to and from a Value's payload.
    static String adopt(StringBlock* block) noexcept {
        String s;
        s.block_ = block;
        return s;
    }
    StringBlock* detach() noexcept { return std::exchange(block_, nullptr); }

private:
    void retain() const noexcept {
        if (block_ != nullptr) {
            ++block_->references;
        }
    }
    void release() noexcept {
        if (block_ != nullptr && --block_->references == 0) {
            StringBlock::destroy(block_);
        }
    }
    void reserveUnique(std::size_t capacity);

    StringBlock* block_ = nullptr;
};

// The floor's, for the whole engine.
using text::compareNoCase;
using text::equalNoCase;
using text::toLower;
using text::toUpper;
using text::toUtf8;

} // namespace vbs
