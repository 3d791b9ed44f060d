// FormatNumber, FormatCurrency, FormatPercent and FormatDateTime: values written the way the locale in force does.
#include "platform/vbscript/library/BuiltinArguments.h"
#include "platform/vbscript/library/DecimalText.h"
#include "platform/vbscript/value/Dates.h"

#include <string>

namespace vbs {

namespace {

// The optional arguments that the three functions for numbers share.
struct Options {
    int places;
    bool leadingZero;
    bool parentheses; // around a negative number, in place of its sign
    bool grouped;
};

// vbUseDefault (-2), vbFalse (0) or vbTrue (-1); any other number counts as true.
bool tristate(Context& context, Arguments arguments, std::size_t i, bool byDefault) {
    const std::int32_t choice = longArgument(context, arguments, i, -2);
    return choice == -2 ? byDefault : choice != 0;
}

Options optionsOf(Context& context, Arguments arguments, bool parenthesesByDefault) {
    const std::int32_t places = longArgument(context, arguments, 1, -1);
    if (places < -1 || places > 255) {
        raise(ErrorNumber::InvalidCall);
    }
    return {places == -1 ? context.locale().fractionDigits : places, tristate(context, arguments, 2, true),
            tristate(context, arguments, 3, parenthesesByDefault), tristate(context, arguments, 4, true)};
}

// The digits without any sign.
std::u16string digitsText(const DecimalText& number, const Options& options, const Locale& locale) {
    std::u16string out;
    const std::string& whole = number.whole;
    if (whole != "0" || options.leadingZero || number.fraction.empty()) {
        for (std::size_t i = 0; i < whole.size(); ++i) {
            if (i > 0 && options.grouped && (whole.size() - i) % 3 == 0) {
                out.push_back(locale.thousands);
            }
            out.push_back(static_cast<char16_t>(whole[i]));
        }
    }
    if (!number.fraction.empty()) {
        out.push_back(locale.decimal);
        out.append(number.fraction.begin(), number.fraction.end());
    }
    return out;
}

std::u16string withSign(std::u16string text, const DecimalText& number, const Options& options) {
    if (!number.negative) {
        return text;
    }
    return options.parentheses ? u"(" + text + u")" : u"-" + text;
}

Value formatNumber(Context& context, Arguments arguments) {
    const Options options = optionsOf(context, arguments, false);
    DecimalText number = decimalText(context, arguments[0]);
    number.round(options.places);
    return Value::ofString(
        std::u16string_view(withSign(digitsText(number, options, context.locale()), number, options)));
}

Value formatPercent(Context& context, Arguments arguments) {
    const Options options = optionsOf(context, arguments, false);
    DecimalText number = decimalText(context, arguments[0]);
    number.timesHundred();
    number.round(options.places);
    return Value::ofString(
        std::u16string_view(withSign(digitsText(number, options, context.locale()) + u"%", number, options)));
}

// Puts digits and symbol into a pattern of Locale.
std::u16string inPattern(std::u16string_view pattern, std::u16string_view digits, std::u16string_view symbol) {
    std::u16string out;
    for (const char16_t c : pattern) {
        if (c == u'n') {
            out += digits;
        } else if (c == u'$') {
            out += symbol;
        } else {
            out.push_back(c);
        }
    }
    return out;
}

// A negative amount takes the locale's pattern unless the caller's choice of parentheses says otherwise.
Value formatCurrency(Context& context, Arguments arguments) {
    const Locale& locale = context.locale();
    const bool usual = locale.negativeCurrency.find(u'(') != std::u16string::npos;
    const Options options = optionsOf(context, arguments, usual);
    DecimalText number = decimalText(context, arguments[0]);
    number.round(options.places);
    const std::u16string digits = digitsText(number, options, locale);
    if (number.negative && options.parentheses == usual) {
        return Value::ofString(std::u16string_view(inPattern(locale.negativeCurrency, digits, locale.currencySymbol)));
    }
    return Value::ofString(std::u16string_view(
        withSign(inPattern(locale.positiveCurrency, digits, locale.currencySymbol), number, options)));
}

// FormatDateTime(date[, format]): 0 general, 1 long date, 2 short date, 3 long time, 4 short time (always 24 hours).
Value formatDateTime(Context& context, Arguments arguments) {
    const std::int32_t format = longArgument(context, arguments, 1, 0);
    if (isNullArgument(context, arguments[0])) {
        raise(ErrorNumber::TypeMismatch);
    }
    const double date = toDate(context, arguments[0]);
    const Locale& locale = context.locale();
    switch (format) {
    case 0:
        return Value::ofString(dateText(date, locale));
    case 1:
        return Value::ofString(formatDate(date, locale.longDate, locale));
    case 2:
        return Value::ofString(formatDate(date, locale.shortDate, locale));
    case 3:
        return Value::ofString(formatDate(date, locale.longTime, locale));
    case 4:
        return Value::ofString(formatDate(date, u"HH:mm", locale));
    default:
        raise(ErrorNumber::InvalidCall);
    }
}

constexpr Builtin table[] = {
    {u"FormatCurrency", 1, 5, formatCurrency},
    {u"FormatDateTime", 1, 2, formatDateTime},
    {u"FormatNumber", 1, 5, formatNumber},
    {u"FormatPercent", 1, 5, formatPercent},
};

} // namespace

std::span<const Builtin> formatBuiltins() {
    return table;
}

} // namespace vbs
