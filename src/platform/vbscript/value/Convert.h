// Coercions with VBScript's rules: rounding half to even, error 6 when the value does not fit, 13 when there is none,
// 94 for Null. An object stands for its default member. Text is read and written with the locale's signs.
#pragma once

#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Value.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vbs {

// Integer, Long, Byte or Boolean.
inline bool isWholeKind(const Value& v) noexcept {
    return v.isWhole() || v.type == Type::Byte || v.type == Type::Boolean;
}
// The value of any number: Integer, Long, Byte, Boolean, Double, Single, Date or Currency.
inline double plainNumber(const Value& v) noexcept {
    return isWholeKind(v)             ? static_cast<double>(v.n)
           : v.type == Type::Currency ? static_cast<double>(v.n) / 10000.0
                                      : v.d;
}

double toDoubleSlowly(Context& context, const Value& v); // toDouble of what is neither whole nor Double
inline double toDouble(Context& context, const Value& v) {
    return v.isWhole() ? static_cast<double>(v.n) : v.type == Type::Double ? v.d : toDoubleSlowly(context, v);
}
std::int32_t toLong(Context& context, const Value& v);
std::int16_t toInteger(Context& context, const Value& v);
std::uint8_t toByte(Context& context, const Value& v);
bool toBoolean(Context& context, const Value& v);
double toSingle(Context& context, const Value& v);
std::int64_t toCurrency(Context& context, const Value& v); // ten-thousandths
double toDate(Context& context, const Value& v);
String toString(Context& context, const Value& v);

// The value as number: whole types and reals as they are, Empty as Integer 0, texts as Double; Null stays Null.
Value toNumber(Context& context, const Value& v);
// The value of the default member if `v` is an object, else `v` itself.
Value withoutObject(Context& context, const Value& v);

// Rounds half to even.
double roundHalfEven(double x) noexcept;
// Raises 6 if the rounded value does not fit.
std::int32_t longFromDouble(double x);
std::int64_t currencyFromDouble(double x);

// A number as text: 15 significant digits (7 for a Single), exponent beyond that.
String numberText(double x, const Locale& locale, int digits = 15);
String currencyText(std::int64_t tenThousandths, const Locale& locale);
String wholeText(std::int64_t n);
using WholeDigits = std::array<char16_t, 24>;
std::u16string_view wholeText(std::int64_t n, WholeDigits& buffer) noexcept; // written into the buffer

// Text as number: blanks around it, thousands signs, exponent, &H and &O, currency sign and brackets are understood.
std::optional<double> parseNumber(std::u16string_view text, const Locale& locale);
// The same as ten-thousandths, to the last digit.
std::optional<std::int64_t> parseCurrency(std::u16string_view text, const Locale& locale);

// Text as date in the locale and the year in force.
std::optional<double> textAsDate(Context& context, std::u16string_view text);

// A value as text for as long as it takes to read it: a text is looked at in place, a whole number is written on the
// spot, anything else is converted. Must not outlive the value.
class TextArgument {
public:
    TextArgument(Context& context, const Value& v) {
        if (v.isString()) {
            view_ = v.text();
        } else if (v.isWhole()) {
            view_ = wholeText(v.n, digits_);
        } else {
            converted_ = toString(context, v);
            view_ = converted_.view();
        }
    }
    TextArgument(const TextArgument&) = delete;
    TextArgument& operator=(const TextArgument&) = delete;

    std::u16string_view view() const noexcept { return view_; }
    std::size_t size() const noexcept { return view_.size(); }

private:
    String converted_;
    WholeDigits digits_;
    std::u16string_view view_;
};

} // namespace vbs
