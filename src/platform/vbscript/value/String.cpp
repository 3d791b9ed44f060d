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
        block_ = StringBlock::allocate(text.size());
        std::memcpy(block_->text(), text.data(), text.size() * sizeof(char16_t));
        block_->length = static_cast<std::uint32_t>(text.size());
    }
}

String::String(std::string_view ascii) {
    if (!ascii.empty()) {
        *this = uninitialized(ascii.size());
        std::transform(ascii.begin(), ascii.end(), block_->text(),
                       [](char c) { return static_cast<char16_t>(static_cast<unsigned char>(c)); });
    }
}

String String::uninitialized(std::size_t length) {
    String s;
    if (length > 0) {
        s.block_ = StringBlock::allocate(length);
        s.block_->length = static_cast<std::uint32_t>(length);
    }
    return s;
}

String String::fromBytes(std::span<const std::uint8_t> bytes) {
    static_assert(std::endian::native == std::endian::little);
    String s;
    if (!bytes.empty()) {
        s.block_ = StringBlock::allocate((bytes.size() + 1) / sizeof(char16_t));
        std::memcpy(s.block_->text(), bytes.data(), bytes.size());
        s.block_->length = static_cast<std::uint32_t>(bytes.size() / sizeof(char16_t));
        s.block_->oddByte = bytes.size() % sizeof(char16_t);
    }
    return s;
}

String String::repeated(std::size_t count, char16_t unit) {
    String s = uninitialized(count);
    if (count > 0) {
        std::fill_n(s.block_->text(), count, unit);
    }
    return s;
}

void String::reserveUnique(std::size_t capacity) {
    if (block_ != nullptr && block_->references == 1 && block_->capacity >= capacity) {
        return;
    }
    StringBlock* fresh = StringBlock::allocate(capacity);
    fresh->length = static_cast<std::uint32_t>(size());
    std::memcpy(fresh->text(), data(), size() * sizeof(char16_t));
    release();
    block_ = fresh;
}

char16_t* String::mutableData() {
    reserveUnique(size());
    return block_->text();
}

void String::append(std::u16string_view tail) {
    if (tail.empty()) {
        return;
    }
    const std::size_t total = size() + tail.size();
    if (block_ == nullptr || block_->references != 1 || block_->capacity < total) {
        const bool growing = block_ != nullptr && block_->capacity >= 32;
        String grown =
            adopt(StringBlock::allocate(growing ? std::max(total, std::min(size() * 2, maxLength)) : total + 8));
        std::memcpy(grown.block_->text(), data(), size() * sizeof(char16_t));
        std::memcpy(grown.block_->text() + size(), tail.data(), tail.size() * sizeof(char16_t));
        grown.block_->length = static_cast<std::uint32_t>(total);
        swap(grown); // only now, because `tail` may point into the old text
    } else {
        std::memmove(block_->text() + size(), tail.data(), tail.size() * sizeof(char16_t));
    }
    block_->length = static_cast<std::uint32_t>(total);
    block_->oddByte = 0;
}

void String::truncate(std::size_t length) {
    if (length < size()) {
        reserveUnique(size());
        block_->length = static_cast<std::uint32_t>(length);
        block_->oddByte = 0;
    }
}

} // namespace vbs
