// The logical operators, bit by bit (declared in Operators.h).
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Operators.h"
#include "platform/vbscript/value/WholeOperand.h"

namespace vbs {

namespace {

template <class Combine>
Value logical(Context& context, const Value& a, const Value& b, Combine combine,
              Value (*withNull)(const Value*, const Value*)) {
    const Value left = withoutObject(context, a);
    const Value right = withoutObject(context, b);
    if (left.isNull() || right.isNull()) {
        Value known[2];
        const Value* sides[2] = {nullptr, nullptr};
        const Value* given[2] = {&left, &right};
        for (int i = 0; i < 2; ++i) {
            if (!given[i]->isNull()) {
                const WholeOperand w = wholeOperand(context, *given[i]);
                known[i] = ofType(w.type, w.n);
                sides[i] = &known[i];
            }
        }
        return withNull(sides[0], sides[1]);
    }
    const WholeOperand x = wholeOperand(context, left);
    const WholeOperand y = wholeOperand(context, right);
    return ofType(commonType(x.type, y.type), combine(x.n, y.n));
}

Value alwaysNull(const Value* /*left*/, const Value* /*right*/) {
    return Value::null();
}

} // namespace

Value logicalNot(Context& context, const Value& a) {
    const Value v = withoutObject(context, a);
    if (v.isNull()) {
        return Value::null();
    }
    const WholeOperand x = wholeOperand(context, v);
    return x.type == Type::Boolean ? Value::ofBoolean(x.n == 0) : ofType(x.type, ~x.n);
}

Value logicalAnd(Context& context, const Value& a, const Value& b) {
    // Null And 0 is 0: no bit can be set.
    return logical(
        context, a, b, [](std::int64_t x, std::int64_t y) { return x & y; },
        [](const Value* x, const Value* y) {
            const Value* known = x != nullptr ? x : y;
            return known != nullptr && known->n == 0 ? *known : Value::null();
        });
}

Value logicalOr(Context& context, const Value& a, const Value& b) {
    // Null Or a value other than 0 is that value.
    return logical(
        context, a, b, [](std::int64_t x, std::int64_t y) { return x | y; },
        [](const Value* x, const Value* y) {
            const Value* known = x != nullptr ? x : y;
            return known != nullptr && known->n != 0 ? *known : Value::null();
        });
}

Value logicalXor(Context& context, const Value& a, const Value& b) {
    return logical(
        context, a, b, [](std::int64_t x, std::int64_t y) { return x ^ y; }, alwaysNull);
}

Value logicalEqv(Context& context, const Value& a, const Value& b) {
    // For Booleans, ~(x ^ y) is 0 or -1 as well.
    return logical(
        context, a, b, [](std::int64_t x, std::int64_t y) { return ~(x ^ y); }, alwaysNull);
}

Value logicalImp(Context& context, const Value& a, const Value& b) {
    return logical(
        context, a, b, [](std::int64_t x, std::int64_t y) { return ~x | y; },
        [](const Value* x, const Value* y) {
            if (x != nullptr) {
                // The inverted bits of a Byte stand whatever the other side is.
                return x->type == Type::Byte ? ofType(Type::Byte, ~x->n)
                       : x->n == 0           ? ofType(x->type, -1)
                                             : Value::null();
            }
            return y != nullptr && y->n != 0 ? *y : Value::null();
        });
}

} // namespace vbs
