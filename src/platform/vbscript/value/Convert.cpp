#include "platform/vbscript/value/Convert.h"

#include "platform/vbscript/value/Dates.h"
#include "platform/vbscript/value/Errors.h"

#include <cmath>
#include <limits>

namespace vbs {

namespace {

template <class Integral>
Integral wholeIn(double x) {
    const double rounded = roundHalfEven(x);
    // The negated form also catches NaN.
    if (!(rounded >= static_cast<double>(std::numeric_limits<Integral>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<Integral>::max()))) {
        raise(ErrorNumber::Overflow);
    }
    return static_cast<Integral>(rounded);
}

template <class Integral>
Integral toWhole(Context& context, const Value& v) {
    switch (v.type) {
    case Type::Integer:
    case Type::Long:
    case Type::Byte:
    case Type::Boolean:
        // A Boolean True is -1, which as a Byte is 255.
        if (std::is_same_v<Integral, std::uint8_t> && v.type == Type::Boolean) {
            return static_cast<Integral>(v.n);
        }
        if (v.n < std::numeric_limits<Integral>::min() || v.n > std::numeric_limits<Integral>::max()) {
            raise(ErrorNumber::Overflow);
        }
        return static_cast<Integral>(v.n);
    default:
        return wholeIn<Integral>(toDouble(context, v));
    }
}

} // namespace

Value withoutObject(Context& context, const Value& v) {
    const Value& plain = v.deref();
    return plain.isObject() ? context.defaultValue(plain) : plain;
}

double toDoubleSlowly(Context& context, const Value& value) {
    const Value& v = value.deref();
    switch (v.type) {
    case Type::Integer:
    case Type::Long:
    case Type::Boolean:
    case Type::Byte:
    case Type::Double:
    case Type::Single:
    case Type::Date:
    case Type::Currency:
        return plainNumber(v);
    case Type::Empty:
    case Type::Undefined:
        return 0.0;
    case Type::Null:
        raise(ErrorNumber::InvalidNull);
    case Type::String: {
        const auto number = parseNumber(v.text(), context.locale());
        if (!number) {
            raise(ErrorNumber::TypeMismatch);
        }
        return *number;
    }
    case Type::Object:
        return toDouble(context, context.defaultValue(v));
    default:
        raise(ErrorNumber::TypeMismatch);
    }
}

std::int32_t toLong(Context& context, const Value& v) {
    return toWhole<std::int32_t>(context, v.deref());
}

std::int16_t toInteger(Context& context, const Value& v) {
    return toWhole<std::int16_t>(context, v.deref());
}

std::uint8_t toByte(Context& context, const Value& v) {
    return toWhole<std::uint8_t>(context, v.deref());
}

bool toBoolean(Context& context, const Value& value) {
    const Value& v = value.deref();
    switch (v.type) {
    case Type::Boolean:
    case Type::Integer:
    case Type::Long:
    case Type::Byte:
    case Type::Currency:
        return v.n != 0;
    case Type::String: {
        const auto isWord = [&v](std::u16string_view plain, std::u16string_view hashed) {
            return equalNoCase(v.text(), plain) || equalNoCase(v.text(), hashed);
        };
        return isWord(u"true", u"#true#") || (!isWord(u"false", u"#false#") && toDouble(context, v) != 0.0);
    }
    case Type::Object:
        return toBoolean(context, context.defaultValue(v));
    default:
        return toDouble(context, v) != 0.0;
    }
}

double toSingle(Context& context, const Value& v) {
    const double x = toDouble(context, v);
    if (std::fabs(x) > static_cast<double>(std::numeric_limits<float>::max())) {
        raise(ErrorNumber::Overflow);
    }
    return static_cast<double>(static_cast<float>(x));
}

std::int64_t toCurrency(Context& context, const Value& value) {
    const Value& v = value.deref();
    if (v.type == Type::Currency) {
        return v.n;
    }
    if (isWholeKind(v)) {
        return v.n * 10000;
    }
    if (v.isObject()) {
        return toCurrency(context, context.defaultValue(v));
    }
    if (v.isString()) {
        const auto amount = parseCurrency(v.text(), context.locale());
        if (!amount) {
            raise(ErrorNumber::TypeMismatch);
        }
        return *amount;
    }
    return currencyFromDouble(toDouble(context, v));
}

std::optional<double> textAsDate(Context& context, std::u16string_view text) {
    return parseDate(text, context.locale(), context.host.now().year);
}

double toDate(Context& context, const Value& value) {
    const Value& v = value.deref();
    if (v.isString()) {
        if (const auto date = textAsDate(context, v.text())) {
            return *date;
        }
    }
    if (v.isObject()) {
        return toDate(context, context.defaultValue(v));
    }
    const double date = toDouble(context, v);
    if (!(date >= leastDate && date < greatestDate)) {
        raise(ErrorNumber::Overflow);
    }
    return date;
}

String toString(Context& context, const Value& value) {
    const Value& v = value.deref();
    switch (v.type) {
    case Type::String:
        return v.string();
    case Type::Integer:
    case Type::Long:
    case Type::Byte:
        return wholeText(v.n);
    case Type::Double:
        return numberText(v.d, context.locale());
    case Type::Single:
        return numberText(v.d, context.locale(), 7);
    case Type::Currency:
        return currencyText(v.n, context.locale());
    case Type::Date:
        return dateText(v.d, context.locale());
    case Type::Boolean:
        return String(v.n != 0 ? std::u16string_view(u"True") : std::u16string_view(u"False"));
    case Type::Empty:
    case Type::Undefined:
        return {};
    case Type::Null:
        raise(ErrorNumber::InvalidNull);
    case Type::Object:
        return toString(context, context.defaultValue(v));
    case Type::Error: {
        String text(std::u16string_view(u"Error "));
        text.append(wholeText(v.n).view());
        return text;
    }
    default:
        raise(ErrorNumber::TypeMismatch);
    }
}

Value toNumber(Context& context, const Value& value) {
    const Value& v = value.deref();
    switch (v.type) {
    case Type::Empty:
    case Type::Undefined:
        return Value::ofInteger(0);
    case Type::String:
        return Value::ofDouble(toDouble(context, v));
    case Type::Object:
        return toNumber(context, context.defaultValue(v));
    case Type::Error:
    case Type::Array:
    case Type::Procedure:
        raise(ErrorNumber::TypeMismatch);
    default:
        return v;
    }
}

double roundHalfEven(double x) noexcept {
    return std::nearbyint(x); // the default rounding mode is never changed
}

std::int32_t longFromDouble(double x) {
    return wholeIn<std::int32_t>(x);
}

std::int64_t currencyFromDouble(double x) {
    // A double has fewer digits than an amount, and times ten thousand it must not lose any.
    const long double scaled = std::nearbyint(static_cast<long double>(x) * 10000.0L);
    if (!(scaled >= -9223372036854775808.0L && scaled < 9223372036854775808.0L)) {
        raise(ErrorNumber::Overflow);
    }
    return static_cast<std::int64_t>(scaled);
}

} // namespace vbs
