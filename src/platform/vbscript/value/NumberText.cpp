// Numbers as text and back (declared in Convert.h).
#include "platform/text/Numbers.h"
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Work.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace vbs {

std::optional<double> parseNumber(std::u16string_view text, const Locale& locale) {
    chargeWalk(text.size() * sizeof(char16_t));
    const auto number = text::readNumber(
        text, {.decimal = locale.decimal, .thousands = locale.thousands, .currencySymbol = locale.currencySymbol});
    if (number && std::isinf(*number)) {
        raise(ErrorNumber::Overflow);
    }
    return number;
}

std::optional<std::int64_t> parseCurrency(std::u16string_view text, const Locale& locale) {
    chargeWalk(text.size() * sizeof(char16_t));
    const auto number = text::readScaled(
        text, {.decimal = locale.decimal, .thousands = locale.thousands, .currencySymbol = locale.currencySymbol}, 4);
    if (number && !number->fits) {
        raise(ErrorNumber::Overflow);
    }
    return number ? std::optional(number->value) : std::nullopt;
}

std::u16string_view wholeText(std::int64_t n, WholeDigits& buffer) noexcept {
    std::uint64_t rest = n < 0 ? 0 - static_cast<std::uint64_t>(n) : static_cast<std::uint64_t>(n);
    std::size_t at = buffer.size();
    do {
        buffer[--at] = static_cast<char16_t>(u'0' + rest % 10);
        rest /= 10;
    } while (rest != 0);
    if (n < 0) {
        buffer[--at] = u'-';
    }
    return {buffer.data() + at, buffer.size() - at};
}

String wholeText(std::int64_t n) {
    WholeDigits buffer;
    return String(wholeText(n, buffer));
}

String numberText(double x, const Locale& locale, int digits) {
    String number(text::writeNumber(x, u'.', digits));
    std::replace(number.mutableData(), number.mutableData() + number.size(), u'.', locale.decimal);
    return number;
}

String currencyText(std::int64_t tenThousandths, const Locale& locale) {
    const std::uint64_t size = tenThousandths < 0 ? 0 - static_cast<std::uint64_t>(tenThousandths)
                                                  : static_cast<std::uint64_t>(tenThousandths);
    std::string fraction = std::to_string(10000 + size % 10000).substr(1);
    fraction.erase(fraction.find_last_not_of('0') + 1);
    const std::string text = std::to_string(size / 10000);
    std::u16string out(tenThousandths < 0 ? 1 : 0, u'-');
    out.append(text.begin(), text.end());
    if (!fraction.empty()) {
        out.push_back(locale.decimal);
        out.append(fraction.begin(), fraction.end());
    }
    return String(std::u16string_view(out));
}

} // namespace vbs
