// What the engine answers where no host does: the clock, the boxes, the built-in locales; the meter of memory and the
// texts of errors.
#include "platform/vbscript/value/Host.h"

#include "platform/vbscript/value/Errors.h"
#include "platform/vbscript/value/LocaleNames.h"
#include "platform/vbscript/value/Memory.h"

#include <ctime>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using namespace vbs;
using testing::ElementsAre;

std::vector<int> listed(std::span<const int> numbers) {
    return {numbers.begin(), numbers.end()};
}

auto fields(const LocalTime& t) {
    return std::tuple(t.year, t.month, t.day, t.hour, t.minute, t.second);
}

auto systemTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return std::tuple(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
}

TEST(Host, tellsTheTimeOfTheSystem) {
    Host host;
    const auto before = systemTime();
    const LocalTime told = host.now();
    const auto after = systemTime();
    EXPECT_LE(before, fields(told));
    EXPECT_LE(fields(told), after);
    EXPECT_GE(told.millisecond, 0);
    EXPECT_LT(told.millisecond, 1000);
}

TEST(Host, hasAClockThatOnlyRunsForward) {
    Host host;
    const double first = host.monotonicMilliseconds();
    EXPECT_GE(host.monotonicMilliseconds(), first);
}

TEST(Host, knowsTheButtonsOfEveryMessageBox) {
    EXPECT_THAT(listed(buttonsOf(0)), ElementsAre(1));
    EXPECT_THAT(listed(buttonsOf(1)), ElementsAre(1, 2));
    EXPECT_THAT(listed(buttonsOf(2)), ElementsAre(3, 4, 5));
    EXPECT_THAT(listed(buttonsOf(3)), ElementsAre(6, 7, 2));
    EXPECT_THAT(listed(buttonsOf(4)), ElementsAre(6, 7));
    EXPECT_THAT(listed(buttonsOf(5)), ElementsAre(4, 2));
    EXPECT_THAT(listed(buttonsOf(64 + 256 + 4)), ElementsAre(6, 7)); // with a symbol and a default button
}

TEST(Host, answersWithTheDefaultButton) {
    Host host;
    EXPECT_EQ(host.messageBox(u"text", 3, u"title"), 6);
    EXPECT_EQ(host.messageBox(u"text", 3 + 256, u"title"), 7);
    EXPECT_EQ(host.messageBox(u"text", 3 + 512, u"title"), 2);
    EXPECT_EQ(defaultButton(2 + 48), 3);
    EXPECT_EQ(defaultButton(2 + 512 + 48), 5);
    EXPECT_EQ(defaultButton(256), 1); // one button is the default, whatever the style says
    EXPECT_EQ(defaultButton(4 + 512), 6);
    EXPECT_EQ(host.inputBox(u"prompt", u"title", u"proposal"), u"proposal");
}

TEST(Locale, spanishStandsForTheUsersOwnToo) {
    for (const int id : {0, 1024, 1034, 2048, 3082}) {
        ASSERT_NE(builtinLocale(id), nullptr) << id;
        EXPECT_EQ(builtinLocale(id), builtinLocale(3082)) << id;
    }
    EXPECT_EQ(builtinLocale(3082)->decimal, u',');
    EXPECT_EQ(builtinLocale(1033)->decimal, u'.');
    EXPECT_EQ(builtinLocale(1033)->dateOrder, DateOrder::MonthDayYear);
    EXPECT_EQ(builtinLocale(2057)->dateOrder, DateOrder::DayMonthYear);
    for (const int id : {-1, 1, 1023, 1025, 1031, 1032, 2047, 2049, 3081, 3083, 1035}) {
        EXPECT_EQ(builtinLocale(id), nullptr) << id;
    }
}

TEST(LocaleNames, areFoundInAnyCase) {
    const std::pair<const char16_t*, int> names[] = {
        {u"af", 1078}, {u"ar-sa", 1025}, {u"zh-cn", 2052}, {u"nl", 1043},    {u"en-us", 1033},  {u"EN-GB", 2057},
        {u"fo", 1080}, {u"fr", 1036},    {u"de-de", 1031}, {u"el", 1032},    {u"hi", 1081},     {u"it", 1040},
        {u"ja", 1041}, {u"ko", 1042},    {u"lv", 1062},    {u"no", 1044},    {u"pl", 1045},     {u"pt-br", 1046},
        {u"ru", 1049}, {u"es", 1034},    {u"es-es", 3082}, {u"es-mx", 2058}, {u"es-ar", 11274}, {u"sv", 1053},
        {u"tr", 1055}, {u"uk", 1058},    {u"vi", 1066},    {u"zu", 1077},    {u"hr", 1050},     {u"eu", 1069},
        {u"ca", 1027}, {u"Fr-Ca", 3084},
    };
    for (const auto& [name, number] : names) {
        EXPECT_EQ(localeNumber(name), number) << testing::PrintToString(std::u16string(name));
    }
    for (const char16_t* name : {u"", u"e", u"en-", u"en_us", u"xx", u"es-xx", u" en", u"1033"}) {
        EXPECT_EQ(localeNumber(name), std::nullopt) << testing::PrintToString(std::u16string(name));
    }
}

TEST(Memory, allOfTheCeilingMayBeUsedAndNoByteMore) {
    const std::size_t used = memoryMeter().used;
    const MemoryCeiling ceiling(used + 100);
    chargeMemory(60);
    chargeMemory(40);
    EXPECT_EQ(memoryMeter().used, used + 100);
    EXPECT_THROW(chargeMemory(1), ScriptError);
    EXPECT_THROW(chargeMemory(used + 101), ScriptError);
    EXPECT_EQ(memoryMeter().used, used + 100);
    chargeMemory(0);
    releaseMemory(100);
    chargeMemory(100);
    releaseMemory(100);
}

TEST(Memory, aChargeAsLargeAsTheCeilingIsFine) {
    const std::size_t used = std::exchange(memoryMeter().used, 0);
    {
        const MemoryCeiling ceiling(100);
        EXPECT_THROW(chargeMemory(101), ScriptError);
        chargeMemory(100);
    }
    memoryMeter().used = used;
}

TEST(Errors, compilingHasTheNumbersFrom1001To1999) {
    const String compiling = errorSource(1002);
    const String running = errorSource(13);
    EXPECT_NE(compiling.view(), running.view());
    EXPECT_EQ(errorSource(1001).view(), compiling.view());
    EXPECT_EQ(errorSource(1999).view(), compiling.view());
    for (const int number : {-1, 0, 1000, 2000, 5017, 32766}) {
        EXPECT_EQ(errorSource(number).view(), running.view()) << number;
    }
}

} // namespace
