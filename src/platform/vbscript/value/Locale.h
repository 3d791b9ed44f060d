// What the language needs to know about a country: how numbers, money and dates are written. The host hands one such
// struct for each locale number; Spanish (Spain) and English (United States) are built in.
#pragma once

#include <array>
#include <string>

namespace vbs {

enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };

struct Locale {
    int id = 3082; // LCID
    char16_t decimal = u',';
    char16_t thousands = u'.';
    std::u16string currencySymbol = u"€";
    int fractionDigits = 2;
    // Where the symbol ($) and the number (n) stand, e.g. "n $", "-n $", "($n)".
    std::u16string positiveCurrency = u"n $";
    std::u16string negativeCurrency = u"-n $";
    DateOrder dateOrder = DateOrder::DayMonthYear;
    // Patterns with d dd ddd dddd M MM MMM MMMM yy yyyy h hh H HH m mm s ss tt and 'quoted text'.
    std::u16string shortDate = u"dd/MM/yyyy";
    std::u16string longDate = u"dddd, d' de 'MMMM' de 'yyyy";
    std::u16string shortTime = u"H:mm";
    std::u16string longTime = u"H:mm:ss";
    std::u16string am;
    std::u16string pm;
    std::array<std::u16string, 12> months;
    std::array<std::u16string, 12> shortMonths;
    std::array<std::u16string, 7> weekdays; // from Sunday
    std::array<std::u16string, 7> shortWeekdays;
    int firstDayOfWeek = 2; // 1 is Sunday
};

// Built-in facts: 3082 (and 0, 1034, 1024, 2048: the default) Spanish, 1033 and 2057 English; null for any other
// number.
const Locale* builtinLocale(int id);

} // namespace vbs
