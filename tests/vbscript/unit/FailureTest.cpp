// Where a text failed: the line, the column and the wording of the line.
#include "platform/vbscript/ScriptControl.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>

namespace {

using namespace vbs;

struct Failure : testing::Test {
    const ScriptFailure& of(std::u16string_view text) {
        EXPECT_FALSE(control.addCode(text));
        return control.error();
    }

    Host host;
    ScriptControl control{host};
};

TEST_F(Failure, findsItsLineAfterEveryKindOfLineEnd) {
    for (const std::u16string end : {u"\n", u"\r", u"\r\n"}) {
        const std::u16string before = u"a = 1" + end + end + u"' comment" + end;
        const ScriptFailure& last = of(before + u"  b = 1 / 0");
        EXPECT_EQ(last.line, 4U);
        EXPECT_EQ(last.lineText, u"  b = 1 / 0");
        EXPECT_EQ(last.column, 3U);
        const ScriptFailure& middle = of(before + u"b = 1 / 0" + end + u"c = 2" + end);
        EXPECT_EQ(middle.line, 4U);
        EXPECT_EQ(middle.lineText, u"b = 1 / 0");
        const ScriptFailure& first = of(u"b = 1 / 0" + end + before);
        EXPECT_EQ(first.line, 1U);
        EXPECT_EQ(first.lineText, u"b = 1 / 0");
    }
}

TEST_F(Failure, findsItsLineAmongMixedLineEnds) {
    const ScriptFailure& failure = of(u"a = 1\r\n\n\r\r\na = 2\n\rb = 1 / 0\r\n");
    EXPECT_EQ(failure.line, 7U);
    EXPECT_EQ(failure.lineText, u"b = 1 / 0");
}

TEST_F(Failure, ofCompilingTellsTheLineToo) {
    const ScriptFailure& failure = of(u"a = 1\r\nb = )\r\nc = 3");
    EXPECT_EQ(failure.number, 1002);
    EXPECT_EQ(failure.line, 2U);
    EXPECT_EQ(failure.column, 5U);
    EXPECT_EQ(failure.lineText, u"b = )");
}

TEST_F(Failure, atTheEndOfATextHasAnEmptyLine) {
    const ScriptFailure& failure = of(u"If a Then\r\n");
    EXPECT_EQ(failure.line, 2U);
    EXPECT_EQ(failure.lineText, u"");
}

TEST_F(Failure, isGoneAfterATextThatEndsWell) {
    of(u"x = 1 / 0");
    EXPECT_TRUE(control.addCode(u"x = 1"));
    EXPECT_EQ(control.error(), ScriptFailure());
    of(u"x = 1 / 0");
    control.clearError();
    EXPECT_EQ(control.error(), ScriptFailure());
    EXPECT_FALSE(control.check(u"x = )"));
    EXPECT_EQ(control.error().number, 1002);
    EXPECT_TRUE(control.check(u"x = 1 / 0"));
    EXPECT_EQ(control.error(), ScriptFailure());
}

// A clock that runs a minute each time it is asked.
class HurriedClock final : public Host {
public:
    double monotonicMilliseconds() override { return now_ += 60000; }

private:
    double now_ = 0;
};

TEST(TimeOut, isNoneUnlessItIsSetAndOutlivesAReset) {
    const std::u16string_view longText = u"For i = 1 To 3000000 : Next";
    HurriedClock host;
    ScriptControl control(host);
    EXPECT_TRUE(control.addCode(longText));
    control.reset();
    EXPECT_TRUE(control.addCode(longText));
    control.setTimeout(std::chrono::milliseconds(1));
    EXPECT_FALSE(control.addCode(longText));
    control.reset();
    EXPECT_FALSE(control.addCode(longText));
    control.setTimeout(std::chrono::milliseconds(0));
    EXPECT_TRUE(control.addCode(longText));
}

TEST_F(Failure, inATextThatExecuteRunsIsToldWhereExecuteStands) {
    const ScriptFailure& failure = of(u"x = 1\nSub P\n  Execute \"y = 1\" & vbLf & \"z = 1 / 0\"\nEnd Sub\n\nP");
    EXPECT_EQ(failure.number, 11);
    EXPECT_EQ(failure.line, 3U);
    EXPECT_EQ(failure.column, 3U);
    EXPECT_EQ(failure.lineText, u"  Execute \"y = 1\" & vbLf & \"z = 1 / 0\"");
}

TEST_F(Failure, inATextThatExecuteCannotReadIsToldThereToo) {
    const ScriptFailure& failure = of(u"x = 1\n  ExecuteGlobal \"z = )\"");
    EXPECT_EQ(failure.line, 2U);
    EXPECT_EQ(failure.column, 3U);
}

TEST_F(Failure, inAProcedureOfAnEarlierTextIsToldWhereTheTextCallsIt) {
    ASSERT_TRUE(control.addCode("Sub P\n\n\n  x = 1 / 0\nEnd Sub"));
    EXPECT_FALSE(control.addCode("a = 1\nP"));
    EXPECT_EQ(control.error().line, 2U);
    EXPECT_EQ(control.error().lineText, u"P");
}

} // namespace
