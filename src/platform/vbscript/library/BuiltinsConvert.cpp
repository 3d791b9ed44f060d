// Intrinsic functions that change the type of a value, and numbers in other bases.
#include "platform/vbscript/library/BuiltinArguments.h"

#include <algorithm>
#include <array>

namespace vbs {

namespace {

Value cbool(Context& context, Arguments arguments) {
    return Value::ofBoolean(toBoolean(context, arguments[0]));
}

Value cbyte(Context& context, Arguments arguments) {
    return Value::ofByte(toByte(context, arguments[0]));
}

Value cint(Context& context, Arguments arguments) {
    return Value::ofInteger(toInteger(context, arguments[0]));
}

Value clng(Context& context, Arguments arguments) {
    return Value::ofLong(longArgument(context, arguments[0]));
}

Value csng(Context& context, Arguments arguments) {
    return Value::ofSingle(toSingle(context, arguments[0]));
}

Value cdbl(Context& context, Arguments arguments) {
    return Value::ofDouble(toDouble(context, arguments[0]));
}

Value ccur(Context& context, Arguments arguments) {
    return Value::ofCurrency(toCurrency(context, arguments[0]));
}

Value cdate(Context& context, Arguments arguments) {
    return Value::ofDate(toDate(context, arguments[0]));
}

Value cstr(Context& context, Arguments arguments) {
    return Value::ofString(toString(context, arguments[0]));
}

// The bits of a value: 16 of an Integer or Boolean, 8 of a Byte, 32 of anything else, rounded.
std::uint32_t bitsOf(Context& context, const Value& v) {
    const std::int32_t number = toLong(context, v);
    const bool narrow = v.type == Type::Integer || v.type == Type::Boolean;
    return narrow ? static_cast<std::uint16_t>(number) : static_cast<std::uint32_t>(number);
}

Value inBase(Context& context, Value& argument, unsigned bitsPerDigit) {
    if (isNullArgument(context, argument)) {
        return Value::null();
    }
    std::uint32_t bits = bitsOf(context, argument);
    std::array<char16_t, 11> digits{};
    std::size_t at = digits.size();
    do {
        digits[--at] = u"0123456789ABCDEF"[bits & ((1U << bitsPerDigit) - 1)];
        bits >>= bitsPerDigit;
    } while (bits != 0);
    return Value::ofString(std::u16string_view(digits.data() + at, digits.size() - at));
}

Value hex(Context& context, Arguments arguments) {
    return inBase(context, arguments[0], 4);
}

Value oct(Context& context, Arguments arguments) {
    return inBase(context, arguments[0], 3);
}

// RGB(red, green, blue): a part above 255 counts as 255, a negative one raises 5.
Value rgb(Context& context, Arguments arguments) {
    std::array<std::int32_t, 3> part{};
    for (std::size_t i = 0; i < part.size(); ++i) {
        part[i] = toInteger(context, arguments[i]);
        if (part[i] < 0) {
            raise(ErrorNumber::InvalidCall);
        }
        part[i] = std::min(part[i], 255);
    }
    return Value::ofLong(part[0] + part[1] * 256 + part[2] * 65536);
}

constexpr Builtin table[] = {
    {u"CBool", 1, 1, cbool},
    {u"CByte", 1, 1, cbyte, Result::Needed},
    {u"CCur", 1, 1, ccur, Result::Needed},
    {u"CDate", 1, 1, cdate, Result::Needed},
    {u"CDbl", 1, 1, cdbl, Result::Needed},
    {u"CInt", 1, 1, cint, Result::Needed},
    {u"CLng", 1, 1, clng, Result::Needed},
    {u"CSng", 1, 1, csng, Result::Needed},
    {u"CStr", 1, 1, cstr},
    {u"Hex", 1, 1, hex},
    {u"Oct", 1, 1, oct},
    {u"RGB", 3, 3, rgb},
};

} // namespace

std::span<const Builtin> convertBuiltins() {
    return table;
}

} // namespace vbs
