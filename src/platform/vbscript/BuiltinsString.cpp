// Intrinsic functions on texts.
#include "platform/vbscript/Builtins.h"

namespace vbs {

namespace {

// Len(text): Null for Null.
Value len(Context& context, Arguments arguments) {
    if (arguments[0].isNull()) {
        return Value::null();
    }
    return Value::ofLong(static_cast<std::int32_t>(toString(context, arguments[0]).size()));
}

constexpr Builtin table[] = {
    {u"Len", 1, 1, len},
};

} // namespace

std::span<const Builtin> stringBuiltins() {
    return table;
}

} // namespace vbs
