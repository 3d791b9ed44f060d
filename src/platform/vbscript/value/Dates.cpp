#include "platform/vbscript/value/Dates.h"

#include "platform/vbscript/value/Errors.h"

#include <array>
#include <cmath>
#include <vector>

namespace vbs {

namespace {

constexpr long long secondsPerDay = 86400;

// Days from 1899-12-30 to a civil date (month 1 to 12), by counting 400-year eras.
long long daysFromCivil(long long year, long long month, long long day) noexcept {
    year -= month <= 2 ? 1 : 0;
    const long long era = (year >= 0 ? year : year - 399) / 400;
    const long long yearOfEra = year - era * 400;
    const long long dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const long long dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468 + 25569;
}

void civilFromDays(long long days, CivilTime& out) noexcept {
    const long long z = days - 25569 + 719468;
    const long long era = (z >= 0 ? z : z - 146096) / 146097;
    const long long dayOfEra = z - era * 146097;
    const long long yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const long long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const long long shifted = (5 * dayOfYear + 2) / 153;
    out.day = static_cast<int>(dayOfYear - (153 * shifted + 2) / 5 + 1);
    out.month = static_cast<int>(shifted < 10 ? shifted + 3 : shifted - 9);
    out.year = static_cast<int>(yearOfEra + era * 400 + (out.month <= 2 ? 1 : 0));
}

} // namespace

long long floorDivide(long long a, long long b) noexcept {
    return a / b - (a % b < 0 ? 1 : 0);
}

double daysOf(double date) noexcept {
    return std::trunc(date);
}

double timeOf(double date) noexcept {
    return std::fabs(date - std::trunc(date));
}

double joinDate(double days, double time) noexcept {
    return days < 0 ? days - time : days + time;
}

CivilTime civilTime(double date) {
    if (!(date >= leastDate && date < greatestDate)) {
        raise(ErrorNumber::InvalidCall);
    }
    auto days = static_cast<long long>(daysOf(date));
    auto seconds = static_cast<long long>(std::floor(timeOf(date) * static_cast<double>(secondsPerDay) + 0.5));
    if (seconds == secondsPerDay) {
        seconds = 0;
        ++days;
    }
    CivilTime t;
    civilFromDays(days, t);
    t.hour = static_cast<int>(seconds / 3600);
    t.minute = static_cast<int>(seconds / 60 % 60);
    t.second = static_cast<int>(seconds % 60);
    t.weekday = static_cast<int>(((days % 7) + 7 + 6) % 7) + 1;
    return t;
}

double dateSerial(long long year, long long month, long long day) {
    if (year < -1000000 || year > 1000000 || month < -100000000 || month > 100000000 || day < -100000000 ||
        day > 100000000) {
        raise(ErrorNumber::InvalidCall);
    }
    const long long months = year * 12 + month - 1;
    const long long days =
        daysFromCivil(floorDivide(months, 12), months - floorDivide(months, 12) * 12 + 1, 1) + day - 1;
    const auto date = static_cast<double>(days);
    if (!(date >= leastDate && date < greatestDate)) {
        raise(ErrorNumber::InvalidCall);
    }
    return date;
}

double timeSerial(long long hour, long long minute, long long second) {
    const long long total = hour * 3600 + minute * 60 + second;
    const long long days = total / secondsPerDay; // towards zero: the time keeps the sign of the whole
    const long long rest = total % secondsPerDay;
    return static_cast<double>(days) + static_cast<double>(rest) / static_cast<double>(secondsPerDay);
}

double dateFrom(const LocalTime& t) {
    return joinDate(dateSerial(t.year, t.month, t.day), timeSerial(t.hour, t.minute, t.second));
}

double secondsSinceMidnight(const LocalTime& t) noexcept {
    return t.hour * 3600 + t.minute * 60 + t.second + t.millisecond / 1000.0;
}

int fullYear(int year) noexcept {
    return year < 0 || year > 99 ? year : year < 30 ? year + 2000 : year + 1900;
}

int weekdayFrom(int weekday, int firstDay) noexcept {
    return (weekday - firstDay + 7) % 7 + 1;
}

bool isLeapYear(int year) noexcept {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int daysInMonth(int year, int month) noexcept {
    constexpr std::array<int, 12> days = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : days[static_cast<std::size_t>(month - 1)];
}

String formatDate(double date, std::u16string_view pattern, const Locale& locale) {
    const CivilTime t = civilTime(date);
    std::u16string out;
    const auto number = [&out](int n, std::size_t width) {
        const std::string digits = std::to_string(n);
        out.append(width > digits.size() ? width - digits.size() : 0, u'0');
        out.append(digits.begin(), digits.end());
    };
    for (std::size_t i = 0; i < pattern.size();) {
        const char16_t c = pattern[i];
        if (c == u'\'') {
            const std::size_t end = std::min(pattern.find(u'\'', i + 1), pattern.size());
            out.append(pattern.substr(i + 1, end - i - 1));
            i = end + 1;
            continue;
        }
        std::size_t run = 1;
        while (i + run < pattern.size() && pattern[i + run] == c) {
            ++run;
        }
        i += run;
        const auto weekday = static_cast<std::size_t>(t.weekday - 1);
        const auto month = static_cast<std::size_t>(t.month - 1);
        switch (c) {
        case u'd':
            run >= 4   ? void(out += locale.weekdays[weekday])
            : run == 3 ? void(out += locale.shortWeekdays[weekday])
                       : number(t.day, run);
            break;
        case u'M':
            run >= 4   ? void(out += locale.months[month])
            : run == 3 ? void(out += locale.shortMonths[month])
                       : number(t.month, run);
            break;
        case u'y':
            run >= 3 ? number(t.year, run) : number(t.year % 100, run);
            break;
        case u'h':
            number((t.hour + 11) % 12 + 1, run);
            break;
        case u'H':
            number(t.hour, run);
            break;
        case u'm':
            number(t.minute, run);
            break;
        case u's':
            number(t.second, run);
            break;
        case u't':
            out += t.hour < 12 ? locale.am : locale.pm;
            break;
        default:
            out.append(run, c);
        }
    }
    return String(std::u16string_view(out));
}

String dateText(double date, const Locale& locale) {
    const CivilTime t = civilTime(date);
    const bool midnight = t.hour == 0 && t.minute == 0 && t.second == 0;
    if (daysOf(date) == 0.0) {
        return formatDate(date, locale.longTime, locale);
    }
    String text = formatDate(date, locale.shortDate, locale);
    if (!midnight) {
        text.append(u" ");
        text.append(formatDate(date, locale.longTime, locale).view());
    }
    return text;
}

} // namespace vbs
