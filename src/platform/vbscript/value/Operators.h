// The operators of the language on values of any type (Arithmetic.cpp, Concatenation.cpp, Logic.cpp, Comparison.cpp).
// Result types: Integer widens to Long and Double on overflow, Null is contagious, Empty is "", in arithmetic the
// Integer 0, in logic the Long 0. The machine handles the common whole and Double cases itself and calls these for the
// rest.
#pragma once

#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Value.h"

namespace vbs {

Value add(Context& context, const Value& a, const Value& b); // + : also joins two texts
Value subtract(Context& context, const Value& a, const Value& b);
Value multiply(Context& context, const Value& a, const Value& b);
Value divide(Context& context, const Value& a, const Value& b);
Value integerDivide(Context& context, const Value& a, const Value& b);
Value modulo(Context& context, const Value& a, const Value& b);
Value power(Context& context, const Value& a, const Value& b);
Value concatenate(Context& context, const Value& a, const Value& b);
Value negate(Context& context, const Value& a);

Value logicalNot(Context& context, const Value& a);
Value logicalAnd(Context& context, const Value& a, const Value& b);
Value logicalOr(Context& context, const Value& a, const Value& b);
Value logicalXor(Context& context, const Value& a, const Value& b);
Value logicalEqv(Context& context, const Value& a, const Value& b);
Value logicalImp(Context& context, const Value& a, const Value& b);

// Which operand of a comparison is written as a literal: a number that is one makes a text beside it a number.
enum class Literals : std::uint8_t { None = 0, Left = 1, Right = 2, Both = 3 };

enum class Ordering : std::int8_t { Less = -1, Equal = 0, Greater = 1, Null = 2, Unordered = 3 };

// Order of two values; Null if one of them is Null, Unordered for a NaN.
Ordering compare(Context& context, const Value& a, const Value& b, Literals literals = Literals::None);

// Is: the same object (or both Nothing). Raises 424 for what is no object.
bool isSameObject(const Value& a, const Value& b);

} // namespace vbs
