// The arithmetic operators (declared in Operators.h).
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Errors.h"
#include "platform/vbscript/value/Operators.h"
#include "platform/vbscript/value/WholeOperand.h"

#include <cmath>
#include <cstdlib>
#include <limits>

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
    return v.type == Type::Currency ? v.n : isWholeKind(v) ? v.n * 10000 : currencyFromDouble(plainNumber(v));
}

// Of two amounts in ten-thousandths, the halves rounded to the even neighbour.
std::int64_t productOfAmounts(std::int64_t a, std::int64_t b) {
    constexpr int unit = 10000;
    const auto product = static_cast<__int128>(a) * b;
    auto quotient = product / unit;
    const auto rest = static_cast<int>(product % unit);
    const int twice = 2 * std::abs(rest);
    if (twice > unit || (twice == unit && quotient % 2 != 0)) {
        quotient += rest < 0 ? -1 : 1;
    }
    if (quotient != static_cast<std::int64_t>(quotient)) {
        raise(ErrorNumber::Overflow);
    }
    return static_cast<std::int64_t>(quotient);
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
    const double sum = plainNumber(x) + sign * plainNumber(y);
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

// The operands of \ and Mod; false for Null.
bool divisionOperands(Context& context, const Value& a, const Value& b, WholeOperand& x, WholeOperand& y) {
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
        return Value::ofCurrency(productOfAmounts(scaled(x), scaled(y)));
    }
    const double product = plainNumber(x) * plainNumber(y);
    return staysSingle(x, y) ? finiteSingle(product) : finite(product);
}

Value divide(Context& context, const Value& a, const Value& b) {
    Value x;
    Value y;
    if (!numbers(context, a, b, x, y)) {
        return Value::null();
    }
    const double divisor = plainNumber(y);
    if (divisor == 0.0) {
        raise(plainNumber(x) == 0.0 ? ErrorNumber::Overflow : ErrorNumber::DivisionByZero);
    }
    const double quotient = plainNumber(x) / divisor;
    return staysSingle(x, y) ? finiteSingle(quotient) : finite(quotient);
}

Value integerDivide(Context& context, const Value& a, const Value& b) {
    WholeOperand x{};
    WholeOperand y{};
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
    WholeOperand x{};
    WholeOperand y{};
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
    const double base = plainNumber(x);
    const double exponent = plainNumber(y);
    if ((base == 0.0 && exponent < 0.0) || (base < 0.0 && exponent != std::trunc(exponent))) {
        raise(ErrorNumber::InvalidCall);
    }
    return finite(std::pow(base, exponent));
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
        if (x.n == std::numeric_limits<std::int64_t>::min()) {
            raise(ErrorNumber::Overflow);
        }
        return Value::ofCurrency(-x.n);
    default:
        return wholeResult(x.type == Type::Long ? x : Value::ofInteger(0), Value::ofInteger(0), -x.n);
    }
}

} // namespace vbs
