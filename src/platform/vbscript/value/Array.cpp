#include "platform/vbscript/value/Array.h"

#include "platform/vbscript/value/Errors.h"
#include "platform/vbscript/value/Memory.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>

namespace vbs {

namespace {

// The product of the sizes; raises error 7 when it is beyond any memory.
std::size_t elementsOf(std::span<const std::int32_t> sizes) {
    if (sizes.empty()) {
        return 0;
    }
    std::uint64_t count = 1;
    for (const std::int32_t size : sizes) {
        count *= static_cast<std::uint64_t>(size);
        if (count > std::uint64_t{1} << 40) {
            raise(ErrorNumber::OutOfMemory);
        }
    }
    return count;
}

} // namespace

ArrayBlock* ArrayBlock::create(std::span<const std::int32_t> sizes, bool fixed) {
    const std::size_t count = elementsOf(sizes);
    const std::size_t head = sizeof(ArrayBlock) + sizes.size_bytes();
    chargeMemory(head + count * sizeof(Value));
    void* memory = std::malloc(head);
    auto* elements = static_cast<Value*>(count > 0 ? std::malloc(count * sizeof(Value)) : nullptr);
    if (memory == nullptr || (count > 0 && elements == nullptr)) {
        std::free(memory);
        std::free(elements);
        releaseMemory(head + count * sizeof(Value));
        raise(ErrorNumber::OutOfMemory);
    }
    auto* array = new (memory) ArrayBlock;
    array->sizes_ = reinterpret_cast<std::int32_t*>(array + 1);
    std::copy(sizes.begin(), sizes.end(), array->sizes_);
    array->dimensions_ = static_cast<std::uint8_t>(sizes.size());
    array->count_ = array->capacity_ = count;
    array->elements_ = elements;
    array->fixed_ = fixed;
    for (std::size_t i = 0; i < count; ++i) {
        new (elements + i) Value;
    }
    return array;
}

ArrayBlock* ArrayBlock::create(std::size_t elements) {
    if (elements > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
        raise(ErrorNumber::OutOfMemory);
    }
    const std::int32_t sizes[] = {static_cast<std::int32_t>(elements)};
    return create(sizes);
}

ArrayBlock* ArrayBlock::clone(bool fixed) const {
    ArrayBlock* copy = create(std::span<const std::int32_t>(sizes_, dimensions_), fixed);
    std::copy_n(elements_, count_, copy->elements_);
    return copy;
}

void ArrayBlock::free(ArrayBlock* array) noexcept {
    for (std::size_t i = 0; i < array->count_; ++i) {
        array->elements_[i].~Value();
    }
    releaseMemory(sizeof(ArrayBlock) + array->dimensions_ * sizeof(std::int32_t) + array->capacity_ * sizeof(Value));
    std::free(array->elements_);
    std::free(array);
}

std::size_t ArrayBlock::offset(std::span<const std::int32_t> indexes) const {
    if (indexes.size() != dimensions_ || indexes.empty()) {
        raise(ErrorNumber::OutOfRange);
    }
    std::size_t place = 0;
    for (std::size_t k = indexes.size(); k-- > 0;) {
        if (indexes[k] < 0 || indexes[k] >= sizes_[k]) {
            raise(ErrorNumber::OutOfRange);
        }
        place = place * static_cast<std::size_t>(sizes_[k]) + static_cast<std::size_t>(indexes[k]);
    }
    return place;
}

void ArrayBlock::resizeLast(std::int32_t size) {
    sizes_[dimensions_ - 1] = std::exchange(size, sizes_[dimensions_ - 1]);
    std::size_t count = 0;
    try {
        count = elementsOf({sizes_, dimensions_});
        if (count > capacity_) {
            chargeMemory((count - capacity_) * sizeof(Value));
            void* grown = std::realloc(static_cast<void*>(elements_), count * sizeof(Value));
            if (grown == nullptr) {
                releaseMemory((count - capacity_) * sizeof(Value));
                raise(ErrorNumber::OutOfMemory);
            }
            elements_ = static_cast<Value*>(grown);
            capacity_ = count;
        }
    } catch (const ScriptError&) {
        sizes_[dimensions_ - 1] = size;
        throw;
    }
    for (std::size_t i = count_; i < count; ++i) {
        new (elements_ + i) Value;
    }
    const std::size_t old = std::exchange(count_, count);
    for (std::size_t i = count; i < old; ++i) {
        elements_[i].~Value();
    }
}

ArrayBlock& writableArray(Value& array) {
    ArrayBlock* block = array.array();
    if (block->references > 1 + static_cast<std::uint32_t>(block->locks)) {
        array = Value::ofArray(block->clone(block->fixed()));
    }
    return *array.array();
}

} // namespace vbs
