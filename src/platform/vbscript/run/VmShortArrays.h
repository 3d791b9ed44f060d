// The short roads to elements of arrays, as in VmShort.h; the long ones stand in VmArrays.cpp.
#pragma once

#include "platform/vbscript/run/VmShort.h"
#include "platform/vbscript/value/Array.h"

namespace vbs {

// The element of an array of one dimension; base and index may be references.
[[gnu::always_inline]] inline bool element(Value& to, const Value& from, const Value& index, Store store) noexcept {
    const Value& base = from.deref();
    const Value& at = index.deref();
    if (base.type == Type::Array && at.isWhole()) [[likely]] {
        const ArrayBlock& array = *base.array();
        if (array.dimensions() == 1 && static_cast<std::uint64_t>(at.n) < array.count()) [[likely]] {
            const Value& found = array.elements()[at.n];
            if (!found.isCounted()) [[likely]] {
                put(to, found.type, found.n);
                return true;
            }
            if (goesAsItIs(found.type, store) && dropsQuietly(to)) {
                to = Value(found);
                return true;
            }
        }
    }
    return false;
}

[[gnu::always_inline]] inline bool element2(Value& to, const Value& from, const Value& first,
                                            const Value& second) noexcept {
    const Value& base = from.deref();
    const Value& c = first.deref();
    const Value& d = second.deref();
    if (base.type == Type::Array && bothWhole(c, d)) [[likely]] {
        const ArrayBlock& array = *base.array();
        if (array.dimensions() == 2 && static_cast<std::uint64_t>(c.n) < static_cast<std::uint64_t>(array.size(0)) &&
            static_cast<std::uint64_t>(d.n) < static_cast<std::uint64_t>(array.size(1))) [[likely]] {
            const Value& found = array.elements()[c.n + d.n * array.size(0)];
            if (!found.isCounted()) [[likely]] {
                put(to, found.type, found.n);
                return true;
            }
        }
    }
    return false;
}

// A number into an element of an array that nobody else shares.
[[gnu::always_inline]] inline bool storeElement(Value& into, const Value& index, const Value& from) noexcept {
    Value& base = into.deref();
    const Value& at = index.deref();
    const Value& value = from.deref();
    if (base.type == Type::Array && at.isWhole() && isPlain(value)) [[likely]] {
        ArrayBlock& array = *base.array();
        if (array.references == 1 && array.dimensions() == 1 && static_cast<std::uint64_t>(at.n) < array.count())
            [[likely]] {
            put(array.elements()[at.n], value.type, value.n);
            return true;
        }
    }
    return false;
}

[[gnu::always_inline]] inline bool storeElement2(Value& into, const Value& first, const Value& second,
                                                 const Value& from) noexcept {
    Value& base = into.deref();
    const Value& b = first.deref();
    const Value& c = second.deref();
    const Value& value = from.deref();
    if (base.type == Type::Array && bothWhole(b, c) && isPlain(value)) [[likely]] {
        ArrayBlock& array = *base.array();
        if (array.references == 1 && array.dimensions() == 2 &&
            static_cast<std::uint64_t>(b.n) < static_cast<std::uint64_t>(array.size(0)) &&
            static_cast<std::uint64_t>(c.n) < static_cast<std::uint64_t>(array.size(1))) [[likely]] {
            put(array.elements()[b.n + c.n * array.size(0)], value.type, value.n);
            return true;
        }
    }
    return false;
}

} // namespace vbs
