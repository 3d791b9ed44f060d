#include "platform/vbscript/value/WholeOperand.h"

#include "platform/vbscript/value/Convert.h"

namespace vbs {

WholeOperand wholeOperand(Context& context, const Value& v) {
    if (isWholeKind(v)) {
        return {v.n, v.type};
    }
    return {toLong(context, v), Type::Long};
}

Type commonType(Type a, Type b) noexcept {
    if (a == b) {
        return a;
    }
    return a == Type::Long || b == Type::Long ? Type::Long : Type::Integer;
}

Value ofType(Type type, std::int64_t n) noexcept {
    switch (type) {
    case Type::Byte:
        return {Type::Byte, n & 0xFF};
    case Type::Boolean:
        return {Type::Boolean, n != 0 ? -1 : 0};
    case Type::Integer:
        return {Type::Integer, static_cast<std::int16_t>(n)};
    default:
        return {Type::Long, static_cast<std::int32_t>(n)};
    }
}

} // namespace vbs
