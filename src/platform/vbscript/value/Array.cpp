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
    array->m_sizes = reinterpret_cast<std::int32_t*>(array + 1);
    std::copy(sizes.begin(), sizes.end(), array->m_sizes);
    array->m_dimensions = static_cast<std::uint8_t>(sizes.size());
    array->m_count = array->m_capacity = count;
    array->m_elements = elements;
    array->m_fixed = fixed;
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
    ArrayBlock* copy = create(std::span<const std::int32_t>(m_sizes, m_dimensions), fixed);
    std::copy_n(m_elements, m_count, copy->m_elements);
    return copy;
}

void ArrayBlock::free(ArrayBlock* array) noexcept {
    for (std::size_t i = 0; i < array->m_count; ++i) {
        array->m_elements[i].~Value();
    }
    releaseMemory(sizeof(ArrayBlock) + array->m_dimensions * sizeof(std::int32_t) + array->m_capacity * sizeof(Value));
    std::free(array->m_elements);
    std::free(array);
}

std::size_t ArrayBlock::offset(std::span<const std::int32_t> indexes) const {
    if (indexes.size() != m_dimensions || indexes.empty()) {
        raise(ErrorNumber::OutOfRange);
    }
    std::size_t place = 0;
    for (std::size_t k = indexes.size(); k-- > 0;) {
        if (indexes[k] < 0 || indexes[k] >= m_sizes[k]) {
            raise(ErrorNumber::OutOfRange);
        }
        place = place * static_cast<std::size_t>(m_sizes[k]) + static_cast<std::size_t>(indexes[k]);
    }
    return place;
}

void ArrayBlock::resizeLast(std::int32_t size) {
    m_sizes[m_dimensions - 1] = std::exchange(size, m_sizes[m_dimensions - 1]);
    std::size_t count = 0;
    try {
        count = elementsOf({m_sizes, m_dimensions});
        if (count > m_capacity) {
            chargeMemory((count - m_capacity) * sizeof(Value));
            void* grown = std::realloc(static_cast<void*>(m_elements), count * sizeof(Value));
            if (grown == nullptr) {
                releaseMemory((count - m_capacity) * sizeof(Value));
                raise(ErrorNumber::OutOfMemory);
            }
            m_elements = static_cast<Value*>(grown);
            m_capacity = count;
        }
    } catch (const ScriptError&) {
        m_sizes[m_dimensions - 1] = size;
        throw;
    }
    for (std::size_t i = m_count; i < count; ++i) {
        new (m_elements + i) Value;
    }
    const std::size_t old = std::exchange(m_count, count);
    for (std::size_t i = count; i < old; ++i) {
        m_elements[i].~Value();
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
