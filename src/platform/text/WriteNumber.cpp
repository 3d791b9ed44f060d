// Numbers as text (declared in Numbers.h).
#include "platform/text/Numbers.h"
#include "platform/text/Utf.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace text {

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
