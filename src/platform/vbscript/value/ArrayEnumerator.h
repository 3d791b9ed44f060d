// For Each over the elements of an array value, for objects that hand out a snapshot of what they hold.
#pragma once

#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Object.h"

#include <utility>

namespace vbs {

class ArrayEnumerator : public Enumerator {
public:
    explicit ArrayEnumerator(Value array) noexcept : array_(std::move(array)) {}

    bool next(Context& /*context*/, Value& element) override {
        if (next_ >= array_.array()->count()) {
            return false;
        }
        element = array_.array()->elements()[next_++];
        return true;
    }

private:
    Value array_;
    std::size_t next_ = 0;
};

} // namespace vbs
