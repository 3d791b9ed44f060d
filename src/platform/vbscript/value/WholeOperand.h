// Operands of \, Mod and the logical operators: whole numbers that know the type they came from.
#pragma once

#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Value.h"

#include <cstdint>

namespace vbs {

struct WholeOperand {
    std::int64_t n; // within the range of `type`
    Type type;      // Byte, Boolean, Integer or Long
};

// What is no whole number is rounded to a Long; Empty is the Long 0. Raises 6, 13 or 94 as toLong() does.
WholeOperand wholeOperand(Context& context, const Value& v);

// The narrowest of Byte, Boolean, Integer and Long that takes values of both types.
Type commonType(Type a, Type b) noexcept;

// The lowest bits of `n` as a value of that type.
Value ofType(Type type, std::int64_t n) noexcept;

} // namespace vbs
