#include "platform/vbscript/library/DecimalText.h"

#include "platform/vbscript/value/Convert.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace vbs {

namespace {

void dropLeadingZeros(std::string& whole) {
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size() - 1));
}

// `digits` significant digits, written without an exponent.
DecimalText fromReal(double x, int digits) {
    std::array<char, 40> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(x),
                                   std::chars_format::scientific, digits - 1)
                         .ptr;
    const std::string_view written(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const std::size_t mark = written.find('e');
    const std::string_view power = written.substr(written[mark + 1] == '+' ? mark + 2 : mark + 1);
    int exponent = 0;
    std::from_chars(power.data(), power.data() + power.size(), exponent);
    std::string figures(1, written[0]);
    figures += written.substr(2, mark - 2);

    DecimalText number;
    number.negative = x < 0;
    if (exponent < 0) {
        number.fraction = std::string(static_cast<std::size_t>(-exponent - 1), '0') + figures;
        return number;
    }
    const std::size_t count = static_cast<std::size_t>(exponent) + 1;
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
