#include "platform/vbscript/library/DecimalText.h"

#include "platform/text/Numbers.h"
#include "platform/vbscript/value/Convert.h"

#include <algorithm>

namespace vbs {

namespace {

void dropLeadingZeros(std::string& whole) {
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size() - 1));
}

// `digits` significant digits, written without an exponent.
DecimalText fromReal(double x, int digits) {
    auto [figures, point] = text::figuresOf(x, digits);
    DecimalText number;
    number.negative = x < 0;
    if (point <= 0) {
        number.fraction = std::string(static_cast<std::size_t>(-point), '0') + figures;
        return number;
    }
    const auto count = static_cast<std::size_t>(point);
    figures.resize(std::max(figures.size(), count), '0');
    number.whole = figures.substr(0, count);
    number.fraction = figures.substr(count);
    return number;
}

DecimalText fromCurrency(std::int64_t tenThousandths) {
    const std::uint64_t size = tenThousandths < 0 ? 0 - static_cast<std::uint64_t>(tenThousandths)
                                                  : static_cast<std::uint64_t>(tenThousandths);
    DecimalText number;
    number.negative = tenThousandths < 0;
    number.whole = std::to_string(size / 10000);
    number.fraction = std::to_string(10000 + size % 10000).substr(1);
    return number;
}

} // namespace

void DecimalText::timesHundred() {
    fraction.resize(std::max<std::size_t>(fraction.size(), 2), '0');
    whole += fraction.substr(0, 2);
    fraction.erase(0, 2);
    dropLeadingZeros(whole);
}

void DecimalText::round(int places) {
    const auto kept = static_cast<std::size_t>(places);
    const bool up = fraction.size() > kept && fraction[kept] >= '5';
    fraction.resize(kept, '0');
    std::string digits = '0' + whole + fraction;
    for (std::size_t i = digits.size(); up && i-- > 0;) {
        if (digits[i] != '9') {
            ++digits[i];
            break;
        }
        digits[i] = '0';
    }
    fraction = digits.substr(digits.size() - kept);
    whole = digits.substr(0, digits.size() - kept);
    dropLeadingZeros(whole);
    negative = negative && digits.find_first_not_of('0') != std::string::npos;
}

DecimalText decimalText(Context& context, const Value& v) {
    const Value x = toNumber(context, v);
    switch (x.type) {
    case Type::Null:
        raise(ErrorNumber::TypeMismatch); // what is to be formatted, unlike the options, is converted the plain way
    case Type::Currency:
        return fromCurrency(x.n);
    case Type::Single:
        return fromReal(x.d, 7);
    default:
        return fromReal(toDouble(context, x), 15);
    }
}

} // namespace vbs
