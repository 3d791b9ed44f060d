// Intrinsic functions on numbers.
#include "platform/vbscript/Builtins.h"
#include "platform/vbscript/Operators.h"

#include <cmath>

namespace vbs {

namespace {

// Abs(number): the type stays, except where the value does not fit (Abs(-32768) is a Long).
Value absolute(Context& context, Arguments arguments) {
    const Value x = toNumber(context, arguments[0]);
    const bool real = x.type == Type::Double || x.type == Type::Single || x.type == Type::Date;
    if (x.isNull() || (real ? x.d >= 0 : x.n >= 0)) {
        return x;
    }
    return negate(context, x);
}

constexpr Builtin table[] = {
    {u"Abs", 1, 1, absolute},
};

} // namespace

std::span<const Builtin> mathBuiltins() {
    return table;
}

} // namespace vbs
