// Dates are days since 1899-12-30 with the time of day as fraction; before that day the fraction still counts forward,
// so -1.25 is 1899-12-29 06:00. The calendar is Gregorian throughout, years 100 to 9999.
#pragma once

#include "platform/vbscript/value/Host.h"
#include "platform/vbscript/value/Locale.h"
#include "platform/vbscript/value/String.h"

#include <optional>
#include <string_view>

namespace vbs {

struct CivilTime {
    int year = 1899, month = 12, day = 30; // month and day from 1
    int hour = 0, minute = 0, second = 0;
    int weekday = 7; // 1 is Sunday
};

inline constexpr double leastDate = -657434.0;    // 0100-01-01
inline constexpr double greatestDate = 2958466.0; // 10000-01-01, exclusive

// The quotient rounded down; b is positive.
long long floorDivide(long long a, long long b) noexcept;

// Rounds to the nearest second. Raises 5 outside the range.
CivilTime civilTime(double date);

// Whole days of a date; month and day may lie outside their ranges and carry over. Raises 5 outside the years.
double dateSerial(long long year, long long month, long long day);
// Fraction of a day; may carry over and be negative.
double timeSerial(long long hour, long long minute, long long second);
// Puts whole days and a time of day (0 <= time < 1) together.
double joinDate(double days, double time) noexcept;
// Whole days and time of day (always forward) of a date.
double daysOf(double date) noexcept;
double timeOf(double date) noexcept;

double dateFrom(const LocalTime& time);
double secondsSinceMidnight(const LocalTime& time) noexcept; // with the milliseconds as fraction
// 0 to 29 is 2000 to 2029, 30 to 99 is 1930 to 1999, anything else the year itself.
int fullYear(int year) noexcept;
// Place of a weekday (1 is Sunday) in a week that begins on `firstDay`: 1 to 7.
int weekdayFrom(int weekday, int firstDay) noexcept;
bool isLeapYear(int year) noexcept;
int daysInMonth(int year, int month) noexcept;

// Text as date: numbers in the locale's order, month names, times with AM/PM. Two-digit years go through fullYear();
// a day and a month alone lie in `thisYear` (0: they are no date).
std::optional<double> parseDate(std::u16string_view text, const Locale& locale, int thisYear = 0);

// Short date, a blank and long time; only the time on day 0, else only the date when the time is midnight.
String dateText(double date, const Locale& locale);
// Writes a date after a pattern of Locale.
String formatDate(double date, std::u16string_view pattern, const Locale& locale);

} // namespace vbs
