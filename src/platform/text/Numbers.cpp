#include "platform/text/Numbers.h"

#include "platform/text/Case.h"
#include "platform/text/Utf.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
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

// What stands after &H or &O: a 16-bit pattern is a 16-bit integer, a longer one has 32 bits, both signed.
std::optional<double> readRadix(std::u16string_view digits, unsigned radix) {
    if (digits.ends_with(u'&')) {
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
    return bits <= 0xFFFF ? static_cast<double>(static_cast<std::int16_t>(bits))
                          : static_cast<double>(static_cast<std::int32_t>(bits));
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

// Of a number beyond a double's range: whether it is a very large one, not a very small one.
bool isLarge(std::string_view digits) noexcept {
    const std::size_t mark = std::min(digits.find_first_of("eE"), digits.size());
    const std::string_view mantissa = digits.substr(0, mark);
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<std::int64_t>(std::min(mantissa.find_first_not_of("0."), mantissa.size()));
    std::string_view power = digits.substr(std::min(mark + 1, digits.size()));
    if (power.starts_with('+')) {
        power.remove_prefix(1);
    }
    std::int64_t exponent = 0;
    if (std::from_chars(power.data(), power.data() + power.size(), exponent).ec == std::errc::result_out_of_range) {
        return !power.starts_with('-');
    }
    return point - first + exponent > 0;
}

} // namespace

double readPlainNumber(std::string_view digits) noexcept {
    double number = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (result.ec == std::errc::result_out_of_range) {
        return isLarge(digits) ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return number;
}

std::optional<double> readNumber(std::u16string_view text, const NumberSigns& signs) {
    text = trimmed(text);
    if (text.size() > 2 && text[0] == u'&') {
        const char16_t kind = toUpper(text[1]);
        return kind == u'H' ? readRadix(text.substr(2), 16) : readRadix(text.substr(kind == u'O' ? 2 : 1), 8);
    }
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
    const double number = readPlainNumber(plain);
    return head.negative ? -number : number;
}

std::optional<double> readNumber(std::string_view utf8, char16_t decimal) {
    const auto number = readNumber(toUtf16(utf8), NumberSigns{.decimal = decimal});
    return number && std::isfinite(*number) ? number : std::nullopt;
}

Figures figuresOf(double x, int count) {
    std::array<char, 40> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(x),
                                   std::chars_format::scientific, count - 1)
                         .ptr;
    // d.ddde+xx
    const std::string_view written(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const std::size_t mark = written.find('e');
    const std::string_view power = written.substr(written[mark + 1] == '+' ? mark + 2 : mark + 1);
    Figures figures;
    std::from_chars(power.data(), power.data() + power.size(), figures.point);
    ++figures.point;
    figures.digits.assign(1, written[0]);
    if (mark > 1) {
        figures.digits += written.substr(2, mark - 2);
    }
    return figures;
}

std::string writeNumber(double x, char16_t decimal, int digits) {
    const std::string sign = toUtf8({&decimal, 1});
    const auto notFinite = [&sign](const char* one, const char* what) { return one + sign + what; };
    if (std::isnan(x)) {
        return std::signbit(x) ? notFinite("-1", "#IND") : notFinite("1", "#QNAN");
    }
    if (std::isinf(x)) {
        return notFinite(x < 0 ? "-1" : "1", "#INF");
    }
    if (x == 0.0) {
        return "0";
    }
    Figures rounded = figuresOf(x, digits);
    std::string& figures = rounded.digits;
    const int point = rounded.point;
    figures.erase(figures.find_last_not_of('0') + 1);
    const int count = static_cast<int>(figures.size());
    std::string out(x < 0 ? 1 : 0, '-');
    const auto put = [&](std::size_t whole) {
        out.append(figures, 0, whole);
        if (figures.size() > whole) {
            out.append(sign).append(figures, whole);
        }
    };
    if (point > digits || (point <= 0 && count - point > digits)) {
        put(1);
        const int exponent = std::abs(point - 1);
        out.append(point > 0 ? "E+" : "E-").append(exponent < 10 ? 1 : 0, '0').append(std::to_string(exponent));
    } else if (point <= 0) {
        figures.insert(0, static_cast<std::size_t>(1 - point), '0');
        put(1);
    } else {
        figures.resize(static_cast<std::size_t>(std::max(count, point)), '0');
        put(static_cast<std::size_t>(point));
    }
    return out;
}

} // namespace text
