#include "platform/vbscript/value/Operators.h"

#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Errors.h"

#include <cmath>
#include <vector>

namespace vbs {

namespace {

// Both operands as numbers; false if one of them is Null.
bool numbers(Context& context, const Value& a, const Value& b, Value& x, Value& y) {
    const Value left = withoutObject(context, a);
    const Value right = withoutObject(context, b);
    if (left.isNull() || right.isNull()) {
        return false;
    }
    x = toNumber(context, left);
    y = toNumber(context, right);
    return true;
}

double asDouble(const Value& v) noexcept {
    switch (v.type) {
    case Type::Double:
    case Type::Single:
    case Type::Date:
        return v.d;
    case Type::Currency:
        return static_cast<double>(v.n) / 10000.0;
    default:
        return static_cast<double>(v.n);
    }
}

// Integer, Long, Byte or Boolean.
bool isWholeKind(const Value& v) noexcept {
    return v.isWhole() || v.type == Type::Byte || v.type == Type::Boolean;
}

Value finite(double x) {
    if (!std::isfinite(x)) {
        raise(ErrorNumber::Overflow);
    }
    return Value::ofDouble(x);
}

Value finiteSingle(double x) {
    const auto narrow = static_cast<float>(x);
    return std::isfinite(narrow) ? Value::ofSingle(x) : finite(x);
}

// The result of a whole-number operation in the narrowest type that both operands allow and that holds it.
Value wholeResult(const Value& a, const Value& b, std::int64_t result) {
    if (a.type == Type::Byte && b.type == Type::Byte && result >= 0 && result <= 255) {
        return Value::ofByte(static_cast<std::uint8_t>(result));
    }
    if (a.type == Type::Long || b.type == Type::Long) {
        return result == static_cast<std::int32_t>(result) ? Value::ofLong(static_cast<std::int32_t>(result))
                                                           : Value::ofDouble(static_cast<double>(result));
    }
    return Value::ofWhole(result);
}

std::int64_t scaled(const Value& v) {
    return v.type == Type::Currency ? v.n : isWholeKind(v) ? v.n * 10000 : currencyFromDouble(asDouble(v));
}

// A Single meets nothing wider than an Integer.
bool staysSingle(const Value& a, const Value& b) noexcept {
    const auto narrow = [](const Value& v) {
        return v.type == Type::Single || v.type == Type::Integer || v.type == Type::Byte || v.type == Type::Boolean;
    };
    return (a.type == Type::Single || b.type == Type::Single) && narrow(a) && narrow(b);
}

Value addNumbers(const Value& x, const Value& y, int sign) {
    if (isWholeKind(x) && isWholeKind(y)) {
        return wholeResult(x, y, x.n + sign * y.n);
    }
    const double sum = asDouble(x) + sign * asDouble(y);
    if (x.type == Type::Date || y.type == Type::Date) {
        if (sign < 0 && x.type == Type::Date && y.type == Type::Date) {
            return Value::ofDouble(sum);
        }
        if (!(sum > -657435.0 && sum < 2958466.0)) {
            raise(ErrorNumber::Overflow);
        }
        return Value::ofDate(sum);
    }
    if (x.type == Type::Currency || y.type == Type::Currency) {
        std::int64_t total = 0;
        const bool over = sign > 0 ? __builtin_add_overflow(scaled(x), scaled(y), &total)
                                   : __builtin_sub_overflow(scaled(x), scaled(y), &total);
        if (over) {
            raise(ErrorNumber::Overflow);
        }
        return Value::ofCurrency(total);
    }
    return staysSingle(x, y) ? finiteSingle(sum) : finite(sum);
}

// Operand of \, Mod and the logical operators: its bits, and the type they came from.
struct Whole {
    std::int64_t n;
    Type type; // Byte, Boolean, Integer or Long
};

Whole wholeOperand(Context& context, const Value& v) {
    if (isWholeKind(v)) {
        return {v.n, v.type};
    }
    if (v.isEmpty() || v.type == Type::Undefined) {
        return {0, Type::Integer};
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

// The operands of \ and Mod; false for Null.
bool divisionOperands(Context& context, const Value& a, const Value& b, Whole& x, Whole& y) {
    Value left;
    Value right;
    if (!numbers(context, a, b, left, right)) {
        return false;
    }
    x = wholeOperand(context, left);
    y = wholeOperand(context, right);
    if (y.n == 0) {
        raise(ErrorNumber::DivisionByZero);
    }
    x.type = x.type == Type::Boolean ? Type::Integer : x.type;
    y.type = y.type == Type::Boolean ? Type::Integer : y.type;
    return true;
}

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
                const Whole w = wholeOperand(context, *given[i]);
                known[i] = ofType(w.type, w.n);
                sides[i] = &known[i];
            }
        }
        return withNull(sides[0], sides[1]);
    }
    const Whole x = wholeOperand(context, left);
    const Whole y = wholeOperand(context, right);
    return ofType(commonType(x.type, y.type), combine(x.n, y.n));
}

Value alwaysNull(const Value* /*left*/, const Value* /*right*/) {
    return Value::null();
}

} // namespace

Value add(Context& context, const Value& a, const Value& b) {
    const Value left = withoutObject(context, a);
    const Value right = withoutObject(context, b);
    if (left.isNull() || right.isNull()) {
        return Value::null();
    }
    const bool leftEmpty = left.isEmpty() || left.type == Type::Undefined;
    const bool rightEmpty = right.isEmpty() || right.type == Type::Undefined;
    if ((left.isString() && (right.isString() || rightEmpty)) || (leftEmpty && right.isString())) {
        return concatenate(context, left, right);
    }
    return addNumbers(toNumber(context, left), toNumber(context, right), 1);
}

Value subtract(Context& context, const Value& a, const Value& b) {
    Value x;
    Value y;
    return numbers(context, a, b, x, y) ? addNumbers(x, y, -1) : Value::null();
}

Value multiply(Context& context, const Value& a, const Value& b) {
    Value x;
    Value y;
    if (!numbers(context, a, b, x, y)) {
        return Value::null();
    }
    if (isWholeKind(x) && isWholeKind(y)) {
        return wholeResult(x, y, x.n * y.n);
    }
    const bool real = x.type == Type::Double || y.type == Type::Double || x.type == Type::Date || y.type == Type::Date;
    if (!real && (x.type == Type::Currency || y.type == Type::Currency)) {
        const long double product = static_cast<long double>(scaled(x)) * static_cast<long double>(scaled(y)) / 1e8L;
        return Value::ofCurrency(currencyFromDouble(static_cast<double>(product)));
    }
    const double product = asDouble(x) * asDouble(y);
    return staysSingle(x, y) ? finiteSingle(product) : finite(product);
}

Value divide(Context& context, const Value& a, const Value& b) {
    Value x;
    Value y;
    if (!numbers(context, a, b, x, y)) {
        return Value::null();
    }
    const double divisor = asDouble(y);
    if (divisor == 0.0) {
        raise(asDouble(x) == 0.0 ? ErrorNumber::Overflow : ErrorNumber::DivisionByZero);
    }
    const double quotient = asDouble(x) / divisor;
    return staysSingle(x, y) ? finiteSingle(quotient) : finite(quotient);
}

Value integerDivide(Context& context, const Value& a, const Value& b) {
    Whole x{};
    Whole y{};
    if (!divisionOperands(context, a, b, x, y)) {
        return Value::null();
    }
    const std::int64_t quotient = x.n / y.n;
    if (quotient != static_cast<std::int32_t>(quotient)) {
        raise(ErrorNumber::Overflow);
    }
    const Type type = commonType(x.type, y.type);
    return type == Type::Integer ? Value::ofWhole(quotient) : ofType(type, quotient);
}

Value modulo(Context& context, const Value& a, const Value& b) {
    Whole x{};
    Whole y{};
    if (!divisionOperands(context, a, b, x, y)) {
        return Value::null();
    }
    return ofType(commonType(x.type, y.type), x.n % y.n);
}

Value power(Context& context, const Value& a, const Value& b) {
    Value x;
    Value y;
    if (!numbers(context, a, b, x, y)) {
        return Value::null();
    }
    const double base = asDouble(x);
    const double exponent = asDouble(y);
    if ((base == 0.0 && exponent < 0.0) || (base < 0.0 && exponent != std::trunc(exponent))) {
        raise(ErrorNumber::InvalidCall);
    }
    return finite(std::pow(base, exponent));
}

namespace {

// Texts with an odd number of bytes join byte by byte.
Value joinedBytes(const String& text, const String& tail) {
    std::vector<std::uint8_t> bytes(text.bytes().begin(), text.bytes().end());
    bytes.insert(bytes.end(), tail.bytes().begin(), tail.bytes().end());
    return Value::ofString(String::fromBytes(bytes));
}

// The text of both, one after the other; Null counts as no text unless both are. A text joined to nothing is shared.
Value joinedTexts(Context& context, const Value& left, const Value& right) {
    if (left.isNull() && right.isNull()) {
        return Value::null();
    }
    if (left.hasOddByte() || right.hasOddByte()) {
        return joinedBytes(left.isNull() ? String() : toString(context, left),
                           right.isNull() ? String() : toString(context, right));
    }
    const Value nothing = Value::ofString(String());
    const TextArgument text(context, left.isNull() ? nothing : left);
    const TextArgument tail(context, right.isNull() ? nothing : right);
    if (text.size() == 0 && right.isString()) {
        return right;
    }
    if (tail.size() == 0 && left.isString()) {
        return left;
    }
    String joined = String::uninitialized(text.size() + tail.size());
    if (!joined.empty()) {
        char16_t* out = joined.mutableData();
        std::char_traits<char16_t>::copy(out, text.view().data(), text.size());
        std::char_traits<char16_t>::copy(out + text.size(), tail.view().data(), tail.size());
    }
    return Value::ofString(std::move(joined));
}

} // namespace

Value concatenate(Context& context, const Value& a, const Value& b) {
    const Value& left = a.deref();
    const Value& right = b.deref();
    if (left.isObject() || right.isObject()) {
        return joinedTexts(context, withoutObject(context, left), withoutObject(context, right));
    }
    return joinedTexts(context, left, right);
}

Value negate(Context& context, const Value& a) {
    const Value x = toNumber(context, a);
    switch (x.type) {
    case Type::Null:
        return Value::null();
    case Type::Double:
        return Value::ofDouble(-x.d);
    case Type::Single:
        return Value::ofSingle(-x.d);
    case Type::Date:
        return Value::ofDate(-x.d);
    case Type::Currency:
        return Value::ofCurrency(-x.n);
    default:
        return wholeResult(x.type == Type::Long ? x : Value::ofInteger(0), Value::ofInteger(0), -x.n);
    }
}

Value logicalNot(Context& context, const Value& a) {
    const Value v = withoutObject(context, a);
    if (v.isNull()) {
        return Value::null();
    }
    const Whole x = wholeOperand(context, v);
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
                return x->n == 0 ? ofType(x->type, -1) : Value::null();
            }
            return y != nullptr && y->n != 0 ? *y : Value::null();
        });
}

namespace {

Ordering ordering(int difference) noexcept {
    return difference < 0 ? Ordering::Less : difference > 0 ? Ordering::Greater : Ordering::Equal;
}

Ordering orderNumbers(const Value& x, const Value& y) noexcept {
    if ((isWholeKind(x) && isWholeKind(y)) || (x.type == Type::Currency && y.type == Type::Currency)) {
        return x.n < y.n ? Ordering::Less : x.n > y.n ? Ordering::Greater : Ordering::Equal;
    }
    const double p = asDouble(x);
    const double q = asDouble(y);
    return p < q ? Ordering::Less : p > q ? Ordering::Greater : p == q ? Ordering::Equal : Ordering::Unordered;
}

Ordering reversed(Ordering o) noexcept {
    return o == Ordering::Less ? Ordering::Greater : o == Ordering::Greater ? Ordering::Less : o;
}

// A text beside a number: one that the script writes as a literal makes the text a number (error 13 if it is none), any
// other becomes a text itself.
Ordering orderTextWithNumber(Context& context, const Value& text, const Value& number, bool literal) {
    if (literal && (number.isWhole() || number.type == Type::Double)) {
        return orderNumbers(Value::ofDouble(toDouble(context, text)), number);
    }
    return ordering(text.text().compare(toString(context, number).view()));
}

} // namespace

Ordering compare(Context& context, const Value& a, const Value& b, Literals literals) {
    const Value x = withoutObject(context, a);
    const Value y = withoutObject(context, b);
    if (x.isNull() || y.isNull()) {
        return Ordering::Null;
    }
    const auto bits = static_cast<unsigned>(literals);
    const bool xEmpty = x.isEmpty() || x.type == Type::Undefined;
    const bool yEmpty = y.isEmpty() || y.type == Type::Undefined;
    if (x.isString() && (y.isString() || yEmpty)) {
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
