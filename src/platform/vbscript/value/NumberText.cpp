// Numbers as text and back (declared in Convert.h).
#include "platform/vbscript/value/Convert.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>

namespace vbs {

namespace {

bool isDigit(char16_t c) noexcept {
    return c >= u'0' && c <= u'9';
}

bool isBlank(char16_t c) noexcept {
    return c == u' ' || (c >= u'\t' && c <= u'\r') || c == 0xA0;
}

int digitValue(char16_t c) noexcept {
    return isDigit(c) ? c - u'0' : c >= u'a' && c <= u'f' ? c - u'a' + 10 : c >= u'A' && c <= u'F' ? c - u'A' + 10 : 99;
}

// What stands after &H or &O: a 16-bit pattern is an Integer, a longer one a Long, both signed.
std::optional<double> parseRadix(std::u16string_view digits, int radix) {
    if (!digits.empty() && digits.back() == u'&') {
        digits.remove_suffix(1);
    }
    if (digits.empty()) {
        return std::nullopt;
    }
    std::uint64_t bits = 0;
    for (const char16_t c : digits) {
        const int digit = digitValue(c);
        if (digit >= radix || bits > 0xFFFFFFFFU) {
            return std::nullopt;
        }
        bits = bits * static_cast<std::uint64_t>(radix) + static_cast<std::uint64_t>(digit);
    }
    if (bits > 0xFFFFFFFFU) {
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

// Digits with at most one decimal sign, thousands signs dropped; false if there is no digit.
bool takeMantissa(std::u16string_view& text, const Locale& locale, std::string& plain) {
    bool digits = false;
    bool point = false;
    while (!text.empty()) {
        const char16_t c = text.front();
        if (isDigit(c)) {
            plain.push_back(static_cast<char>(c));
            digits = true;
        } else if (c == locale.decimal && !point) {
            plain.push_back('.');
            point = true;
        } else if (c != locale.thousands || point || !digits) {
            break;
        }
        text.remove_prefix(1);
    }
    return digits;
}

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

} // namespace

std::optional<double> parseNumber(std::u16string_view text, const Locale& locale) {
    text = trimmed(text);
    if (text.size() > 2 && text[0] == u'&') {
        const char16_t kind = toUpper(text[1]);
        return kind == u'H' ? parseRadix(text.substr(2), 16) : parseRadix(text.substr(kind == u'O' ? 2 : 1), 8);
    }
    bool negative = false;
    bool brackets = false;
    bool sign = false;
    for (bool more = true; more && !text.empty();) {
        more = false;
        if (!sign && (text.front() == u'-' || text.front() == u'+')) {
            negative = text.front() == u'-';
            sign = more = true;
            text.remove_prefix(1);
        } else if (!sign && !brackets && text.front() == u'(') {
            brackets = negative = more = true;
            text.remove_prefix(1);
        } else if (take(text, locale.currencySymbol) || isBlank(text.front())) {
            more = true;
            if (!text.empty() && isBlank(text.front())) {
                text.remove_prefix(1);
            }
        }
    }
    std::string plain;
    if (!takeMantissa(text, locale, plain) || !takeExponent(text, plain)) {
        return std::nullopt;
    }
    text = trimmed(text);
    if (brackets && !take(text, u")")) {
        return std::nullopt;
    }
    if (!sign && !brackets && take(text, u"-")) {
        negative = true;
    }
    take(text, locale.currencySymbol);
    if (!trimmed(text).empty()) {
        return std::nullopt;
    }
    const double number = std::strtod(plain.c_str(), nullptr); // the C locale: a point is the decimal sign
    if (std::isinf(number)) {
        raise(ErrorNumber::Overflow);
    }
    return negative ? -number : number;
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
    if (std::isnan(x)) {
        return String(std::u16string_view(std::signbit(x) ? u"-1,#IND" : u"1,#QNAN"));
    }
    if (std::isinf(x)) {
        return String(std::u16string_view(x < 0 ? u"-1,#INF" : u"1,#INF"));
    }
    if (x == 0.0) {
        return String(std::u16string_view(u"0"));
    }
    // Significant digits and exponent: d.ddddde+xx
    std::array<char, 40> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(x),
                                   std::chars_format::scientific, digits - 1)
                         .ptr;
    const std::string_view written(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const std::size_t mark = written.find('e');
    int exponent = std::atoi(std::string(written.substr(mark + 1)).c_str());
    std::string figures(1, written[0]);
    figures += written.substr(2, mark - 2);
    figures.erase(figures.find_last_not_of('0') + 1);

    std::u16string out;
    if (x < 0) {
        out.push_back(u'-');
    }
    const int count = static_cast<int>(figures.size());
    const auto put = [&out](std::string_view part) { out.append(part.begin(), part.end()); };
    if (exponent >= digits || (exponent < 0 && count - 1 - exponent > digits)) {
        put(figures.substr(0, 1));
        if (count > 1) {
            out.push_back(locale.decimal);
            put(figures.substr(1));
        }
        put(exponent < 0 ? "E-" : "E+");
        exponent = std::abs(exponent);
        if (exponent < 10) {
            out.push_back(u'0');
        }
        put(std::to_string(exponent));
    } else if (exponent < 0) {
        put("0");
        out.push_back(locale.decimal);
        out.append(static_cast<std::size_t>(-exponent - 1), u'0');
        put(figures);
    } else {
        figures.resize(static_cast<std::size_t>(std::max(count, exponent + 1)), '0');
        put(std::string_view(figures).substr(0, static_cast<std::size_t>(exponent) + 1));
        if (count > exponent + 1) {
            out.push_back(locale.decimal);
            put(std::string_view(figures).substr(static_cast<std::size_t>(exponent) + 1));
        }
    }
    return String(std::u16string_view(out));
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
