// Intrinsic functions on arrays.
#include "platform/vbscript/Array.h"
#include "platform/vbscript/Builtins.h"

namespace vbs {

namespace {

// The size of the dimension that the optional second argument names (from 1); raises 9 if there is none.
std::int32_t sizeOfDimension(Context& context, Arguments arguments) {
    if (!arguments[0].isArray()) {
        raise(ErrorNumber::TypeMismatch);
    }
    const Value* which = optional(arguments, 1);
    const std::int32_t dimension = which != nullptr ? toLong(context, *which) : 1;
    const ArrayBlock& array = *arguments[0].array();
    if (dimension < 1 || dimension > array.dimensions()) {
        raise(ErrorNumber::OutOfRange);
    }
    return array.size(dimension - 1);
}

Value ubound(Context& context, Arguments arguments) {
    return Value::ofLong(sizeOfDimension(context, arguments) - 1);
}

Value lbound(Context& context, Arguments arguments) {
    sizeOfDimension(context, arguments);
    return Value::ofLong(0);
}

constexpr Builtin table[] = {
    {u"LBound", 1, 2, lbound},
    {u"UBound", 1, 2, ubound},
};

} // namespace

std::span<const Builtin> arrayBuiltins() {
    return table;
}

} // namespace vbs
