#include "platform/text/Numbers.h"

#include "platform/text/Case.h"
#include "platform/text/Utf.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace text {

namespace {

bool isDigit(char16_t c) noexcept {
    return c >= u'0' && c <= u'9';
}

bool isBlank(char16_t c) noexcept {
    return c == u' ' || (c >= u'\t' && c <= u'\r') || c == 0xA0;
}

int digitValue(char16_t c) noexcept {
    const char16_t small = toLower(c);
    return isDigit(c) ? c - u'0' : small >= u'a' && small <= u'f' ? small - u'a' + 10 : 99;
}

// What stands after &H or &O: a 16-bit pattern is a 16-bit integer, a longer one or one with an & at its end has 32
// bits, both signed.
std::optional<double> readRadix(std::u16string_view digits, unsigned radix) {
    const bool longMark = digits.ends_with(u'&');
    if (longMark) {
        digits.remove_suffix(1);
    }
    std::uint64_t bits = 0;
    for (const char16_t c : digits) {
        const auto digit = static_cast<unsigned>(digitValue(c));
        bits = bits * radix + digit;
        if (digit >= radix || bits > 0xFFFFFFFFU) {
            return std::nullopt;
        }
    }
    if (digits.empty()) {
        return std::nullopt;
    }
    const bool wide = longMark || bits > 0xFFFF;
    return wide ? static_cast<double>(static_cast<std::int32_t>(bits))
                : static_cast<double>(static_cast<std::int16_t>(bits));
}

// Takes `piece` off the front of `text`.
bool take(std::u16string_view& text, std::u16string_view piece) {
    if (piece.empty() || !text.starts_with(piece)) {
        return false;
    }
    text.remove_prefix(piece.size());
    return true;
}

std::u16string_view trimmed(std::u16string_view text) noexcept {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

struct Head {
    bool negative = false;
    bool sign = false;
    bool brackets = false;
};

// Takes what may stand before the digits: blanks, the currency symbol, one sign or opening bracket.
Head takeHead(std::u16string_view& text, const NumberSigns& signs) {
    Head head;
    while (!text.empty()) {
        const char16_t c = text.front();
        if (!head.sign && (c == u'-' || c == u'+')) {
            head.negative = c == u'-';
            head.sign = true;
        } else if (!head.sign && !head.brackets && c == u'(') {
            head.brackets = head.negative = true;
        } else if (take(text, signs.currencySymbol)) {
            continue;
        } else if (!isBlank(c)) {
            break;
        }
        text.remove_prefix(1);
    }
    return head;
}

// Digits with at most one decimal sign, thousands signs dropped; false if there is no digit.
bool takeMantissa(std::u16string_view& text, const NumberSigns& signs, std::string& plain) {
    bool digits = false;
    bool point = false;
    while (!text.empty()) {
        const char16_t c = text.front();
        if (isDigit(c)) {
            plain.push_back(static_cast<char>(c));
            digits = true;
        } else if (c == signs.decimal && !point) {
            plain.push_back('.');
            point = true;
        } else if (signs.thousands == 0 || c != signs.thousands || point || !digits) {
            break;
        }
        text.remove_prefix(1);
    }
    return digits;
}

// Takes an exponent if one stands there; false if it has no digits.
bool takeExponent(std::u16string_view& text, std::string& plain) {
    if (text.empty() || std::u16string_view(u"eEdD").find(text.front()) == std::u16string_view::npos) {
        return true;
    }
    text.remove_prefix(1);
    plain.push_back('e');
    if (!text.empty() && (text.front() == u'+' || text.front() == u'-')) {
        plain.push_back(static_cast<char>(text.front()));
        text.remove_prefix(1);
    }
    bool digits = false;
    while (!text.empty() && isDigit(text.front())) {
        plain.push_back(static_cast<char>(text.front()));
        text.remove_prefix(1);
        digits = true;
    }
    return digits;
}

// A number's digits without zeros in front: 0.d1d2d3... times ten to the power of `point`.
struct Digits {
    std::string_view whole;
    std::string_view fraction;
    std::int64_t point = 0;

    std::size_t size() const noexcept { return whole.size() + fraction.size(); }
    int operator[](std::size_t i) const noexcept {
        return i >= size() ? 0 : (i < whole.size() ? whole[i] : fraction[i - whole.size()]) - '0';
    }
};

// Of digits, at most one point and an exponent. An exponent beyond all reason counts as a very large one.
Digits digitsOf(std::string_view plain) noexcept {
    constexpr std::int64_t farAway = std::int64_t{1} << 60;
    const std::size_t mark = std::min(plain.find_first_of("eE"), plain.size());
    std::string_view power = plain.substr(std::min(mark + 1, plain.size()));
    if (power.starts_with('+')) {
        power.remove_prefix(1);
    }
    std::int64_t exponent = 0;
    if (std::from_chars(power.data(), power.data() + power.size(), exponent).ec == std::errc::result_out_of_range) {
        exponent = power.starts_with('-') ? -farAway : farAway;
    }
    const std::size_t point = std::min(plain.substr(0, mark).find('.'), mark);
    Digits digits{plain.substr(0, point), plain.substr(std::min(point + 1, mark), mark - std::min(point + 1, mark)),
                  std::clamp(exponent, -farAway, farAway)};
    const auto withoutZeros = [](std::string_view& part) {
        const std::size_t zeros = std::min(part.find_first_not_of('0'), part.size());
        part.remove_prefix(zeros);
        return static_cast<std::int64_t>(zeros);
    };
    withoutZeros(digits.whole);
    digits.point += static_cast<std::int64_t>(digits.whole.size());
    if (digits.whole.empty()) {
        digits.point -= withoutZeros(digits.fraction);
    }
    return digits;
}

// &H or &O with its digits; nothing for anything else.
std::optional<std::optional<double>> radixNumber(std::u16string_view text) {
    if (text.size() <= 2 || text[0] != u'&') {
        return std::nullopt;
    }
    const char16_t kind = toUpper(text[1]);
    return kind == u'H' ? readRadix(text.substr(2), 16) : readRadix(text.substr(kind == u'O' ? 2 : 1), 8);
}

struct Decimal {
    bool negative = false;
    std::string digits; // what readPlainNumber() reads
};

// Any other number.
std::optional<Decimal> readDecimal(std::u16string_view text, const NumberSigns& signs) {
    Head head = takeHead(text, signs);
    std::string plain;
    if (!takeMantissa(text, signs, plain) || !takeExponent(text, plain)) {
        return std::nullopt;
    }
    text = trimmed(text);
    if (head.brackets && !take(text, u")")) {
        return std::nullopt;
    }
    if (!head.sign && !head.brackets && take(text, u"-")) {
        head.negative = true;
    }
    take(text, signs.currencySymbol);
    if (!trimmed(text).empty()) {
        return std::nullopt;
    }
    return Decimal{head.negative, std::move(plain)};
}

// Whether what stands behind the first `whole` digits rounds them up.
bool roundsUp(const Digits& digits, std::size_t whole, bool odd) noexcept {
    bool more = odd;
    for (std::size_t i = whole + 1; i < digits.size() && !more; ++i) {
        more = digits[i] != 0;
    }
    return digits[whole] > 5 || (digits[whole] == 5 && more);
}

} // namespace

double readPlainNumber(std::string_view digits) noexcept {
    double number = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (result.ec == std::errc::result_out_of_range) { // a very large one or a very small one
        return digitsOf(digits).point > 0 ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return number;
}

std::optional<double> readNumber(std::u16string_view text, const NumberSigns& signs) {
    text = trimmed(text);
    if (const auto radix = radixNumber(text)) {
        return *radix;
    }
    const auto decimal = readDecimal(text, signs);
    if (!decimal) {
        return std::nullopt;
    }
    const double number = readPlainNumber(decimal->digits);
    return decimal->negative ? -number : number;
}

std::optional<ScaledNumber> readScaled(std::u16string_view text, const NumberSigns& signs, int places) {
    text = trimmed(text);
    const auto radix = radixNumber(text);
    if (radix && !*radix) {
        return std::nullopt;
    }
    const auto decimal = radix ? Decimal{**radix < 0, std::to_string(std::llabs(static_cast<long long>(**radix)))}
                               : readDecimal(text, signs);
    if (!decimal) {
        return std::nullopt;
    }
    const Digits digits = digitsOf(decimal->digits);
    const std::int64_t count = digits.point + places; // of those that stay
    if (digits.size() == 0 || count < 0) {
        return ScaledNumber{};
    }
    if (count > 19) {
        return ScaledNumber{0, false};
    }
    const auto whole = static_cast<std::size_t>(count);
    std::uint64_t size = 0; // nineteen digits fit
    for (std::size_t i = 0; i < whole; ++i) {
        size = size * 10 + static_cast<std::uint64_t>(digits[i]);
    }
    size += roundsUp(digits, whole, size % 2 != 0) ? 1 : 0;
    constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (size > largest + (decimal->negative ? 1 : 0)) {
        return ScaledNumber{0, false};
    }
    return ScaledNumber{static_cast<std::int64_t>(decimal->negative ? 0 - size : size), true};
}

std::optional<double> readNumber(std::string_view utf8, char16_t decimal) {
    const auto number = readNumber(toUtf16(utf8), NumberSigns{.decimal = decimal});
    return number && std::isfinite(*number) ? number : std::nullopt;
}

} // namespace text
