// Intrinsic functions on numbers. Abs, Int, Fix and Round keep the type of their argument (a text counts as Double, a
// Boolean as Integer); the transcendental ones answer a Double.
#include "platform/vbscript/library/BuiltinArguments.h"
#include "platform/vbscript/value/Operators.h"

#include <cmath>

namespace vbs {

namespace {

bool isReal(const Value& x) noexcept {
    return x.type == Type::Double || x.type == Type::Single || x.type == Type::Date;
}

// The argument as number, a Boolean as Integer.
Value numberArgument(Context& context, const Value& v) {
    if (v.isWhole() || v.type == Type::Double) {
        return v;
    }
    Value x = toNumber(context, v);
    if (x.type == Type::Boolean) {
        x.type = Type::Integer;
    }
    return x;
}

Value withReal(const Value& like, double x) noexcept {
    Value result = like;
    result.d = x;
    return result;
}

// A result out of range raises 6.
Value real(double x) {
    if (!std::isfinite(x)) {
        raise(ErrorNumber::Overflow);
    }
    return Value::ofDouble(x);
}

// Where the type cannot hold the positive value, the next larger one takes over (Abs(CInt(-32768)) is a Long).
Value absolute(Context& context, Arguments arguments) {
    Value x = numberArgument(context, arguments[0]);
    if (x.isNull()) {
        return x;
    }
    if (isReal(x)) {
        return withReal(x, std::fabs(x.d));
    }
    return x.n >= 0 ? x : negate(context, x);
}

Value sgn(Context& context, Arguments arguments) {
    const double x = toDouble(context, arguments[0]);
    return Value::ofInteger(static_cast<std::int16_t>((x > 0) - (x < 0)));
}

constexpr std::int64_t currencyUnit = 10000;

// A multiple of the unit; raises 6 where an amount ends.
std::int64_t amount(std::int64_t quotient, std::int64_t unit) {
    std::int64_t product = 0;
    if (__builtin_mul_overflow(quotient, unit, &product)) {
        raise(ErrorNumber::Overflow);
    }
    return product;
}

Value floorOf(Context& context, Arguments arguments) {
    Value x = numberArgument(context, arguments[0]);
    if (isReal(x)) {
        return withReal(x, std::floor(x.d));
    }
    if (x.type == Type::Currency) {
        x.n = amount(x.n / currencyUnit - (x.n % currencyUnit < 0 ? 1 : 0), currencyUnit);
    }
    return x;
}

Value fix(Context& context, Arguments arguments) {
    Value x = numberArgument(context, arguments[0]);
    if (isReal(x)) {
        return withReal(x, std::trunc(x.d));
    }
    if (x.type == Type::Currency) {
        x.n -= x.n % currencyUnit;
    }
    return x;
}

double roundedTo(double x, int places) noexcept {
    const double scale = std::pow(10.0, places);
    const double scaled = x * scale;
    // Beyond 2^52 there are no fractions left to round.
    return std::fabs(scaled) < 4503599627370496.0 ? roundHalfEven(scaled) / scale : x;
}

// The exact decimal of a Currency is rounded, half to even as well.
std::int64_t currencyRoundedTo(std::int64_t x, int places) {
    std::int64_t unit = 1;
    for (int i = places; i < 4; ++i) {
        unit *= 10;
    }
    const std::int64_t rest = x % unit;
    std::int64_t quotient = x / unit;
    const std::int64_t twice = 2 * (rest < 0 ? -rest : rest);
    if (twice > unit || (twice == unit && quotient % 2 != 0)) {
        quotient += x < 0 ? -1 : 1;
    }
    return amount(quotient, unit);
}

// Round(number[, places]): half to even; 0 to 22 places. A Boolean stays what it is.
Value round(Context& context, Arguments arguments) {
    const std::int32_t places = longArgument(context, arguments, 1, 0);
    if (places < 0 || places > 22) {
        raise(ErrorNumber::InvalidCall);
    }
    Value given = withoutObject(context, arguments[0]); // asks a default member once
    if (given.type == Type::Boolean) {
        return given;
    }
    Value x = numberArgument(context, given);
    if (x.type == Type::Single) {
        return Value::ofSingle(roundedTo(x.d, places));
    }
    if (isReal(x)) {
        return Value::ofDouble(roundedTo(x.d, places));
    }
    if (x.type == Type::Currency) {
        x.n = currencyRoundedTo(x.n, places);
    }
    return x;
}

Value sqr(Context& context, Arguments arguments) {
    const double x = toDouble(context, arguments[0]);
    if (x < 0) {
        raise(ErrorNumber::InvalidCall);
    }
    return Value::ofDouble(std::sqrt(x));
}

Value exponential(Context& context, Arguments arguments) {
    return real(std::exp(toDouble(context, arguments[0])));
}

Value logarithm(Context& context, Arguments arguments) {
    const double x = toDouble(context, arguments[0]);
    if (x <= 0) {
        raise(ErrorNumber::InvalidCall);
    }
    return Value::ofDouble(std::log(x));
}

Value sine(Context& context, Arguments arguments) {
    return Value::ofDouble(std::sin(toDouble(context, arguments[0])));
}

Value cosine(Context& context, Arguments arguments) {
    return Value::ofDouble(std::cos(toDouble(context, arguments[0])));
}

Value tangent(Context& context, Arguments arguments) {
    return real(std::tan(toDouble(context, arguments[0])));
}

Value arcTangent(Context& context, Arguments arguments) {
    return Value::ofDouble(std::atan(toDouble(context, arguments[0])));
}

constexpr Builtin table[] = {
    {u"Abs", 1, 1, absolute}, {u"Atn", 1, 1, arcTangent}, {u"Cos", 1, 1, cosine},    {u"Exp", 1, 1, exponential},
    {u"Fix", 1, 1, fix},      {u"Int", 1, 1, floorOf},    {u"Log", 1, 1, logarithm}, {u"Round", 1, 2, round},
    {u"Sgn", 1, 1, sgn},      {u"Sin", 1, 1, sine},       {u"Sqr", 1, 1, sqr},       {u"Tan", 1, 1, tangent},
};

} // namespace

std::span<const Builtin> mathBuiltins() {
    return table;
}

} // namespace vbs
