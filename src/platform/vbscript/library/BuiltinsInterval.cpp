// DateAdd, DateDiff and DatePart: counting in the intervals "yyyy", "q", "m", "y", "d", "w", "ww", "h", "n" and "s".
#include "platform/vbscript/library/BuiltinArguments.h"
#include "platform/vbscript/value/Dates.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace vbs {

namespace {

enum class Interval { Year, Quarter, Month, DayOfYear, Day, Weekday, Week, Hour, Minute, Second };

Interval intervalArgument(Context& context, const Value& v) {
    constexpr std::pair<std::u16string_view, Interval> names[] = {
        {u"yyyy", Interval::Year}, {u"q", Interval::Quarter}, {u"m", Interval::Month}, {u"y", Interval::DayOfYear},
        {u"d", Interval::Day},     {u"w", Interval::Weekday}, {u"ww", Interval::Week}, {u"h", Interval::Hour},
        {u"n", Interval::Minute},  {u"s", Interval::Second},
    };
    const TextArgument text(context, v);
    for (const auto& [name, interval] : names) {
        if (equalNoCase(name, text.view())) {
            return interval;
        }
    }
    raise(ErrorNumber::InvalidCall);
}

// A date as whole days and seconds of the day, free of the sign rule of dates before day 0.
struct Moment {
    long long days;
    long long seconds;
};

Moment momentOf(const CivilTime& t) {
    return {static_cast<long long>(dateSerial(t.year, t.month, t.day)), t.hour * 3600LL + t.minute * 60LL + t.second};
}

double dateOf(long long seconds) {
    constexpr long long day = 86400;
    const long long days = floorDivide(seconds, day);
    const auto date = static_cast<double>(days);
    if (date < leastDate || date >= greatestDate) {
        raise(ErrorNumber::InvalidCall);
    }
    return joinDate(date, static_cast<double>(seconds - days * day) / static_cast<double>(day));
}

// The day is cut down to the length of the month it lands in.
double addMonths(const CivilTime& t, long long months) {
    const long long month = t.year * 12LL + t.month - 1 + months;
    const long long year = floorDivide(month, 12);
    if (year < 100 || year > 9999) {
        raise(ErrorNumber::InvalidCall);
    }
    const int inYear = static_cast<int>(month - year * 12) + 1;
    const int day = std::min(t.day, daysInMonth(static_cast<int>(year), inYear));
    return joinDate(dateSerial(year, inYear, day), timeSerial(t.hour, t.minute, t.second));
}

double addSeconds(const CivilTime& t, long long seconds) {
    const Moment moment = momentOf(t);
    return dateOf(moment.days * 86400 + moment.seconds + seconds);
}

// DateAdd(interval, number, date): the number is rounded to a whole one.
Value dateAdd(Context& context, Arguments arguments) {
    const Interval interval = intervalArgument(context, arguments[0]);
    const double number = roundHalfEven(toDouble(context, arguments[1]));
    if (isNullArgument(context, arguments[2])) {
        return Value::null();
    }
    const CivilTime t = civilTime(toDate(context, arguments[2]));
    if (!(std::fabs(number) < 1e12)) {
        raise(ErrorNumber::InvalidCall); // further than any date lies from any other
    }
    const auto count = static_cast<long long>(number);
    switch (interval) {
    case Interval::Year:
        return Value::ofDate(addMonths(t, count * 12));
    case Interval::Quarter:
        return Value::ofDate(addMonths(t, count * 3));
    case Interval::Month:
        return Value::ofDate(addMonths(t, count));
    case Interval::Week:
        return Value::ofDate(addSeconds(t, count * 7 * 86400));
    case Interval::Hour:
        return Value::ofDate(addSeconds(t, count * 3600));
    case Interval::Minute:
        return Value::ofDate(addSeconds(t, count * 60));
    case Interval::Second:
        return Value::ofDate(addSeconds(t, count));
    default:
        return Value::ofDate(addSeconds(t, count * 86400));
    }
}

// Number of the week that a day lies in, counted from a fixed week; weeks begin on `firstDay` (1 is Sunday).
long long weekIndex(long long days, int firstDay) noexcept {
    return floorDivide(days - firstDay, 7); // day 1 was a Sunday
}

long long difference(Interval interval, const CivilTime& from, const CivilTime& to, int firstDay) {
    const Moment a = momentOf(from);
    const Moment b = momentOf(to);
    const long long days = b.days - a.days;
    switch (interval) {
    case Interval::Year:
        return to.year - from.year;
    case Interval::Quarter:
        return (to.year - from.year) * 4LL + (to.month - 1) / 3 - (from.month - 1) / 3;
    case Interval::Month:
        return (to.year - from.year) * 12LL + to.month - from.month;
    case Interval::Weekday:
        return days / 7;
    case Interval::Week:
        return weekIndex(b.days, firstDay) - weekIndex(a.days, firstDay);
    case Interval::Hour:
        return days * 24 + b.seconds / 3600 - a.seconds / 3600;
    case Interval::Minute:
        return days * 1440 + b.seconds / 60 - a.seconds / 60;
    case Interval::Second:
        return days * 86400 + b.seconds - a.seconds;
    default:
        return days;
    }
}

enum class FirstWeek { Jan1 = 1, FourDays = 2, Full = 3 };

// 1 (also when left out) to 3; 0 stands for the system's, which is 1.
FirstWeek firstWeekArgument(Context& context, Arguments arguments, std::size_t i) {
    const std::int32_t rule = longArgument(context, arguments, i, 1);
    if (rule < 0 || rule > 3) {
        raise(ErrorNumber::InvalidCall);
    }
    return static_cast<FirstWeek>(std::max(rule, 1));
}

// DateDiff(interval, from, to[, first day of the week[, first week of the year]]): boundaries crossed, a Long.
Value dateDiff(Context& context, Arguments arguments) {
    const Interval interval = intervalArgument(context, arguments[0]);
    const int firstDay = firstDayArgument(context, arguments, 3);
    firstWeekArgument(context, arguments, 4);
    if (isNullArgument(context, arguments[1]) || isNullArgument(context, arguments[2])) {
        return Value::null();
    }
    const CivilTime from = civilTime(toDate(context, arguments[1]));
    const CivilTime to = civilTime(toDate(context, arguments[2]));
    return Value::ofLong(longFromDouble(static_cast<double>(difference(interval, from, to, firstDay))));
}

// The day on which week 1 of a year begins; it may lie in the year before.
long long firstWeekStart(int year, int firstDay, FirstWeek rule) {
    const CivilTime newYear = civilTime(dateSerial(year, 1, 1));
    const auto days = static_cast<long long>(dateSerial(year, 1, 1));
    const int before = weekdayFrom(newYear.weekday, firstDay) - 1; // days of that week in the old year
    const bool counts = rule == FirstWeek::Jan1 || before == 0 || (rule == FirstWeek::FourDays && before <= 3);
    return days - before + (counts ? 0 : 7);
}

long long weekOfYear(const CivilTime& t, int firstDay, FirstWeek rule) {
    const long long days = momentOf(t).days;
    if (rule == FirstWeek::FourDays && t.year < 9999 && days >= firstWeekStart(t.year + 1, firstDay, rule)) {
        return 1;
    }
    long long start = firstWeekStart(t.year, firstDay, rule);
    if (days < start && t.year > 100) {
        start = firstWeekStart(t.year - 1, firstDay, rule);
    }
    return floorDivide(days - start, 7) + 1;
}

long long partOf(Interval interval, const CivilTime& t, int firstDay, FirstWeek rule) {
    switch (interval) {
    case Interval::Year:
        return t.year;
    case Interval::Quarter:
        return (t.month - 1) / 3 + 1;
    case Interval::Month:
        return t.month;
    case Interval::DayOfYear:
        return momentOf(t).days - static_cast<long long>(dateSerial(t.year, 1, 1)) + 1;
    case Interval::Day:
        return t.day;
    case Interval::Weekday:
        return weekdayFrom(t.weekday, firstDay);
    case Interval::Week:
        return weekOfYear(t, firstDay, rule);
    case Interval::Hour:
        return t.hour;
    case Interval::Minute:
        return t.minute;
    default:
        return t.second;
    }
}

// DatePart(interval, date[, first day of the week[, first week of the year]])
Value datePart(Context& context, Arguments arguments) {
    const Interval interval = intervalArgument(context, arguments[0]);
    const int firstDay = firstDayArgument(context, arguments, 2);
    const FirstWeek rule = firstWeekArgument(context, arguments, 3);
    if (isNullArgument(context, arguments[1])) {
        return Value::null();
    }
    const CivilTime t = civilTime(toDate(context, arguments[1]));
    return Value::ofInteger(static_cast<std::int16_t>(partOf(interval, t, firstDay, rule)));
}

constexpr Builtin table[] = {
    {u"DateAdd", 3, 3, dateAdd},
    {u"DateDiff", 3, 5, dateDiff},
    {u"DatePart", 2, 4, datePart},
};

} // namespace

std::span<const Builtin> intervalBuiltins() {
    return table;
}

} // namespace vbs
