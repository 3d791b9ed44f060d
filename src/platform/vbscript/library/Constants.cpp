// The predefined constants of the language.
#include "platform/vbscript/library/Builtins.h"

namespace vbs {

namespace {

struct NumberEntry {
    const char16_t* name;
    std::int32_t number;
};

// Of type Long, whatever their size: colours and the flags beyond the reach of an Integer.
constexpr NumberEntry longs[] = {
    {u"vbBlack", 0},
    {u"vbRed", 0xFF},
    {u"vbGreen", 0xFF00},
    {u"vbYellow", 0xFFFF},
    {u"vbBlue", 0xFF0000},
    {u"vbMagenta", 0xFF00FF},
    {u"vbCyan", 0xFFFF00},
    {u"vbWhite", 0xFFFFFF},
    {u"vbObjectError", -2147221504},
    {u"vbMsgBoxHelpButton", 16384},
    {u"vbMsgBoxSetForeground", 65536},
    {u"vbMsgBoxRight", 524288},
    {u"vbMsgBoxRtlReading", 1048576},
};

constexpr NumberEntry integers[] = {
    {u"vbBinaryCompare", 0},
    {u"vbTextCompare", 1},
    {u"vbDatabaseCompare", 2},
    {u"vbSunday", 1},
    {u"vbMonday", 2},
    {u"vbTuesday", 3},
    {u"vbWednesday", 4},
    {u"vbThursday", 5},
    {u"vbFriday", 6},
    {u"vbSaturday", 7},
    {u"vbUseSystem", 0},
    {u"vbUseSystemDayOfWeek", 0},
    {u"vbFirstJan1", 1},
    {u"vbFirstFourDays", 2},
    {u"vbFirstFullWeek", 3},
    {u"vbGeneralDate", 0},
    {u"vbLongDate", 1},
    {u"vbShortDate", 2},
    {u"vbLongTime", 3},
    {u"vbShortTime", 4},
    {u"vbOKOnly", 0},
    {u"vbOKCancel", 1},
    {u"vbAbortRetryIgnore", 2},
    {u"vbYesNoCancel", 3},
    {u"vbYesNo", 4},
    {u"vbRetryCancel", 5},
    {u"vbCritical", 16},
    {u"vbQuestion", 32},
    {u"vbExclamation", 48},
    {u"vbInformation", 64},
    {u"vbDefaultButton1", 0},
    {u"vbDefaultButton2", 256},
    {u"vbDefaultButton3", 512},
    {u"vbDefaultButton4", 768},
    {u"vbApplicationModal", 0},
    {u"vbSystemModal", 4096},
    {u"vbOK", 1},
    {u"vbCancel", 2},
    {u"vbAbort", 3},
    {u"vbRetry", 4},
    {u"vbIgnore", 5},
    {u"vbYes", 6},
    {u"vbNo", 7},
    {u"vbUseDefault", -2},
    {u"vbEmpty", 0},
    {u"vbNull", 1},
    {u"vbInteger", 2},
    {u"vbLong", 3},
    {u"vbSingle", 4},
    {u"vbDouble", 5},
    {u"vbCurrency", 6},
    {u"vbDate", 7},
    {u"vbString", 8},
    {u"vbObject", 9},
    {u"vbError", 10},
    {u"vbBoolean", 11},
    {u"vbVariant", 12},
    {u"vbDataObject", 13},
    {u"vbDecimal", 14},
    {u"vbByte", 17},
    {u"vbArray", 8192},
    {u"vbTrue", -1},
    {u"vbFalse", 0},
};

struct TextEntry {
    const char16_t* name;
    std::u16string_view text;
};

constexpr TextEntry texts[] = {
    {u"vbCr", u"\r"},       {u"vbCrLf", u"\r\n"},    {u"vbFormFeed", u"\f"},
    {u"vbLf", u"\n"},       {u"vbNewLine", u"\r\n"}, {u"vbNullChar", std::u16string_view(u"\0", 1)},
    {u"vbNullString", u""}, {u"vbTab", u"\t"},       {u"vbVerticalTab", u"\v"},
};

} // namespace

const std::vector<NamedConstant>& constants() {
    static const std::vector<NamedConstant> all = [] {
        std::vector<NamedConstant> list;
        for (const NumberEntry& entry : longs) {
            list.push_back({entry.name, Value::ofLong(entry.number)});
        }
        for (const NumberEntry& entry : integers) {
            list.push_back({entry.name, Value::ofInteger(static_cast<std::int16_t>(entry.number))});
        }
        for (const TextEntry& entry : texts) {
            list.push_back({entry.name, Value::ofString(entry.text)});
        }
        return list;
    }();
    return all;
}

} // namespace vbs
