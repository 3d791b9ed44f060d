// The block behind an array value: bounds and elements. Lower bounds are 0. Elements lie with the first index running
// fastest, so that ReDim Preserve of the last dimension only lengthens or shortens the block.
#pragma once

#include "platform/vbscript/value/Value.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace vbs {

class ArrayBlock : public Counted {
public:
    static constexpr int maxDimensions = 60;

    // `sizes`: elements of each dimension (upper bound + 1, so 0 for an upper bound of -1). An empty span makes an
    // array that has no dimensions yet. Elements are Empty. Raises error 7 for what does not fit.
    static ArrayBlock* create(std::span<const std::int32_t> sizes, bool fixed = false);
    static ArrayBlock* create(std::size_t elements); // one dimension
    ArrayBlock* clone(bool fixed = false) const;     // a copy with one reference
    static void free(ArrayBlock* array) noexcept;    // of an array without references; its elements are dropped

    int dimensions() const noexcept { return dimensions_; }
    std::int32_t size(int dimension) const noexcept { return sizes_[dimension]; } // dimension from 0
    std::size_t count() const noexcept { return count_; }                         // elements in all
    bool fixed() const noexcept { return fixed_; }
    Value* elements() noexcept { return elements_; }
    const Value* elements() const noexcept { return elements_; }

    // Place of an element; raises error 9 if an index is outside or their number is wrong.
    std::size_t offset(std::span<const std::int32_t> indexes) const;

    // New upper bound of the last dimension, contents kept; the caller holds the only reference.
    void resizeLast(std::int32_t size);

    // While a For Each runs over the array it holds a lock and a reference: writes still go in place, but ReDim and
    // Erase raise error 10.
    int locks = 0;

    ArrayBlock* nextDead = nullptr; // in a list of those whose last reference is gone

private:
    ArrayBlock() noexcept = default;

    std::size_t count_ = 0;
    Value* elements_ = nullptr;
    std::size_t capacity_ = 0;
    std::int32_t* sizes_ = nullptr;
    std::uint8_t dimensions_ = 0;
    bool fixed_ = false;
};

inline ArrayBlock* Value::array() const noexcept {
    return static_cast<ArrayBlock*>(counted);
}

inline Value Value::ofArray(ArrayBlock* array) noexcept {
    Value v;
    v.type = Type::Array;
    v.counted = array;
    return v;
}

// The block of an array value, made unique first so that its elements may be written.
ArrayBlock& writableArray(Value& array);

} // namespace vbs
