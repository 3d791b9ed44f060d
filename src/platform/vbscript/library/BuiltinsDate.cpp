// Intrinsic functions on dates: the clock, the parts of a date, and dates made of parts or of text.
#include "platform/vbscript/library/BuiltinArguments.h"
#include "platform/vbscript/value/Dates.h"

#include <optional>

namespace vbs {

namespace {

Value now(Context& context, Arguments /*arguments*/) {
    return Value::ofDate(dateFrom(context.host.now()));
}

Value today(Context& context, Arguments /*arguments*/) {
    return Value::ofDate(daysOf(dateFrom(context.host.now())));
}

Value timeOfDay(Context& context, Arguments /*arguments*/) {
    const LocalTime t = context.host.now();
    return Value::ofDate(timeSerial(t.hour, t.minute, t.second));
}

// Seconds since midnight, as Single.
Value timer(Context& context, Arguments /*arguments*/) {
    return Value::ofSingle(secondsSinceMidnight(context.host.now()));
}

template <int CivilTime::*field>
Value datePart(Context& context, Arguments arguments) {
    if (isNullArgument(context, arguments[0])) {
        return Value::null();
    }
    return Value::ofInteger(static_cast<std::int16_t>(civilTime(toDate(context, arguments[0])).*field));
}

// Weekday(date[, first day]): 1 is the first day of the week.
Value weekday(Context& context, Arguments arguments) {
    const int first = firstDayArgument(context, arguments, 1);
    if (isNullArgument(context, arguments[0])) {
        return Value::null();
    }
    return Value::ofInteger(
        static_cast<std::int16_t>(weekdayFrom(civilTime(toDate(context, arguments[0])).weekday, first)));
}

// 1 to `most`, else error 5.
std::size_t nameNumber(Context& context, const Value& v, std::int32_t most) {
    const std::int32_t number = longArgument(context, v);
    if (number < 1 || number > most) {
        raise(ErrorNumber::InvalidCall);
    }
    return static_cast<std::size_t>(number);
}

// WeekdayName(weekday[, abbreviated[, first day]])
Value weekdayName(Context& context, Arguments arguments) {
    refuseNull(context, arguments);
    const std::size_t number = nameNumber(context, arguments[0], 7);
    const bool abbreviated = booleanArgument(context, arguments, 1, false);
    const auto first = static_cast<std::size_t>(firstDayArgument(context, arguments, 2));
    const Locale& locale = context.locale();
    const std::size_t fromSunday = (number + first - 2) % 7;
    return Value::ofString(
        std::u16string_view(abbreviated ? locale.shortWeekdays[fromSunday] : locale.weekdays[fromSunday]));
}

// MonthName(month[, abbreviated])
Value monthName(Context& context, Arguments arguments) {
    refuseNull(context, arguments);
    const std::size_t month = nameNumber(context, arguments[0], 12) - 1;
    const bool abbreviated = booleanArgument(context, arguments, 1, false);
    const Locale& locale = context.locale();
    return Value::ofString(std::u16string_view(abbreviated ? locale.shortMonths[month] : locale.months[month]));
}

// DateSerial(year, month, day): years 0 to 99 lie between 1930 and 2029.
Value dateSerialOf(Context& context, Arguments arguments) {
    const int year = toInteger(context, arguments[0]);
    const int month = toInteger(context, arguments[1]);
    const int day = toInteger(context, arguments[2]);
    return Value::ofDate(dateSerial(fullYear(year), month, day));
}

Value timeSerialOf(Context& context, Arguments arguments) {
    const int hour = toInteger(context, arguments[0]);
    const int minute = toInteger(context, arguments[1]);
    const int second = toInteger(context, arguments[2]);
    return Value::ofDate(timeSerial(hour, minute, second));
}

// A date, or a text that is one: a number is none (13), nor is a text that holds one.
double dateOrText(Context& context, const Value& argument) {
    const Value v = withoutObject(context, argument);
    if (v.type == Type::Date) {
        return v.d;
    }
    const auto date = v.isString() ? textAsDate(context, v.text()) : std::nullopt;
    if (!date) {
        raise(v.isNull() ? ErrorNumber::InvalidNull : ErrorNumber::TypeMismatch);
    }
    return *date;
}

Value dateValue(Context& context, Arguments arguments) {
    return Value::ofDate(daysOf(dateOrText(context, arguments[0])));
}

Value timeValue(Context& context, Arguments arguments) {
    return Value::ofDate(timeOf(dateOrText(context, arguments[0])));
}

constexpr Builtin table[] = {
    {u"Date", 0, 0, today},
    {u"DateSerial", 3, 3, dateSerialOf},
    {u"DateValue", 1, 1, dateValue},
    {u"Day", 1, 1, datePart<&CivilTime::day>},
    {u"Hour", 1, 1, datePart<&CivilTime::hour>},
    {u"Minute", 1, 1, datePart<&CivilTime::minute>},
    {u"Month", 1, 1, datePart<&CivilTime::month>},
    {u"MonthName", 1, 2, monthName},
    {u"Now", 0, 0, now},
    {u"Second", 1, 1, datePart<&CivilTime::second>},
    {u"Time", 0, 0, timeOfDay},
    {u"Timer", 0, 0, timer},
    {u"TimeSerial", 3, 3, timeSerialOf},
    {u"TimeValue", 1, 1, timeValue},
    {u"Weekday", 1, 2, weekday},
    {u"WeekdayName", 1, 3, weekdayName},
    {u"Year", 1, 1, datePart<&CivilTime::year>},
};

} // namespace

std::span<const Builtin> dateBuiltins() {
    return table;
}

} // namespace vbs
