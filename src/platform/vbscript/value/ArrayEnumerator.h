// For Each over the elements of an array value, for objects that hand out a snapshot of what they hold.
#pragma once

#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Object.h"

#include <utility>

namespace vbs {

class ArrayEnumerator : public Enumerator {
public:
    explicit ArrayEnumerator(Value array) noexcept : m_array(std::move(array)) {}

    bool next(Context& /*context*/, Value& element) override {
        if (m_next >= m_array.array()->count()) {
            return false;
        }
        element = m_array.array()->elements()[m_next++];
        return true;
    }

private:
    Value m_array;
    std::size_t m_next = 0;
};

} // namespace vbs
