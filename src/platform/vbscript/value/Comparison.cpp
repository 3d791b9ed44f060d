// The comparison operators and Is (declared in Operators.h).
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Errors.h"
#include "platform/vbscript/value/Operators.h"
#include "platform/vbscript/value/Work.h"

#include <algorithm>

namespace vbs {

namespace {

Ordering ordering(int difference) noexcept {
    return difference < 0 ? Ordering::Less : difference > 0 ? Ordering::Greater : Ordering::Equal;
}

// The number in the precision of a Single.
double narrowed(const Value& v) noexcept {
    return static_cast<double>(static_cast<float>(plainNumber(v)));
}

bool isWiderReal(const Value& v) noexcept {
    return v.type == Type::Double || v.type == Type::Currency;
}

// A Single beside a Double or a Currency is compared with the precision of the Single.
Ordering orderNumbers(const Value& x, const Value& y) noexcept {
    if ((isWholeKind(x) && isWholeKind(y)) || (x.type == Type::Currency && y.type == Type::Currency)) {
        return x.n < y.n ? Ordering::Less : x.n > y.n ? Ordering::Greater : Ordering::Equal;
    }
    const bool single = (x.type == Type::Single && isWiderReal(y)) || (isWiderReal(x) && y.type == Type::Single);
    const double p = single ? narrowed(x) : plainNumber(x);
    const double q = single ? narrowed(y) : plainNumber(y);
    return p < q ? Ordering::Less : p > q ? Ordering::Greater : p == q ? Ordering::Equal : Ordering::Unordered;
}

Ordering reversed(Ordering o) noexcept {
    return o == Ordering::Less ? Ordering::Greater : o == Ordering::Greater ? Ordering::Less : o;
}

// A text beside a number. A Boolean becomes its word, and a number its text, unless the number is written as a literal:
// then the text is read as a number (13 if it is none).
Ordering orderTextWithNumber(Context& context, const Value& text, const Value& number, bool numberIsLiteral) {
    if (numberIsLiteral && number.type != Type::Boolean && number.type != Type::Date) {
        return orderNumbers(Value::ofDouble(toDouble(context, text)), number);
    }
    return ordering(text.text().compare(TextArgument(context, number).view()));
}

// An array cannot be compared, not even with Null.
void refuseArrays(const Value& x, const Value& y) {
    if (x.isArray() || y.isArray()) {
        raise(ErrorNumber::TypeMismatch);
    }
}

} // namespace

Ordering compare(Context& context, const Value& a, const Value& b, Literals literals) {
    refuseArrays(a.deref(), b.deref());
    const Value x = withoutObject(context, a);
    const Value y = withoutObject(context, b);
    refuseArrays(x, y);
    if (x.isNull() || y.isNull()) {
        return Ordering::Null;
    }
    const auto bits = static_cast<unsigned>(literals);
    const bool xEmpty = x.isEmpty() || x.type == Type::Undefined;
    const bool yEmpty = y.isEmpty() || y.type == Type::Undefined;
    if (x.isString() && (y.isString() || yEmpty)) {
        chargeWalk(yEmpty ? 0 : std::min(x.text().size(), y.text().size()) * sizeof(char16_t));
        return ordering(x.text().compare(yEmpty ? std::u16string_view() : y.text()));
    }
    if (xEmpty && y.isString()) {
        return ordering(y.text().empty() ? 0 : -1);
    }
    if (x.isString() && y.type < Type::Null) {
        return orderTextWithNumber(context, x, y, (bits & 2U) != 0);
    }
    if (y.isString() && x.type < Type::Null) {
        return reversed(orderTextWithNumber(context, y, x, (bits & 1U) != 0));
    }
    return orderNumbers(toNumber(context, x), toNumber(context, y));
}

bool isSameObject(const Value& a, const Value& b) {
    const Value& x = a.deref();
    const Value& y = b.deref();
    if (!x.isObject() || !y.isObject()) {
        raise(ErrorNumber::ObjectRequired);
    }
    return x.counted == y.counted;
}

} // namespace vbs
