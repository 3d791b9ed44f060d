// Long steps of native code and the clock: a loop over them meets its time-out, and the host hears of it, as one over
// short ones does. Told by how often the engine looks at the clock, so that no test depends on the machine's speed.
#include "platform/vbscript/ScriptControl.h"

#include <chrono>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <sys/resource.h>

namespace {

using namespace vbs;

constexpr int rounds = 20; // of each loop: by its jumps alone it is hundreds of times too short for a look at the clock

// Stands still and counts who looks.
class WatchedClock final : public Host {
public:
    double monotonicMilliseconds() override {
        ++looks;
        return 0;
    }

    int looks = 0;
};

// Runs a millisecond each time it is asked.
class FastClock final : public Host {
public:
    double monotonicMilliseconds() override { return now_ += 1.0; }

private:
    double now_ = 0.0;
};

int looksOf(const std::string& prepare, const std::string& statement) {
    WatchedClock clock;
    ScriptControl control(clock);
    control.setTimeout(std::chrono::milliseconds(1));
    EXPECT_TRUE(control.addCode(prepare)) << control.error().number;
    clock.looks = 0;
    EXPECT_TRUE(control.addCode("For i = 1 To " + std::to_string(rounds) + "\n" + statement + "\nNext"))
        << control.error().number << " in line " << control.error().line;
    return clock.looks;
}

struct Step {
    const char* name;
    const char* prepare;
    const char* statement;
};

std::ostream& operator<<(std::ostream& out, const Step& step) {
    return out << step.name;
}

class LongStep : public testing::TestWithParam<Step> {};

TEST_P(LongStep, isFollowedByALookAtTheClock) {
    EXPECT_GE(looksOf(GetParam().prepare, GetParam().statement), rounds);
}

constexpr const char* letters = "s = String(1000000, \"a\") : t = s & \"b\" : u = s & \"c\"";
constexpr const char* digits = "s = String(1000000, \"1\")";
constexpr const char* words =
    "list = Split(String(100000, \",\"), \",\") : Set d = CreateObject(\"Scripting.Dictionary\")\n"
    "For i = 1 To 50000 : d(i) = i : Next";
constexpr const char* arrays =
    "Dim fixed(100000) : Dim grid(300, 300) : Dim open() : Sub S(ByVal a) : a(0) = 1 : End Sub";

INSTANTIATE_TEST_SUITE_P(
    OverTexts, LongStep,
    testing::Values(Step{"Replace", letters, "x = Replace(s, \"a\", \"b\")"},
                    Step{"ReplaceThatFindsNothing", letters, "x = Replace(s, \"z\", \"b\")"},
                    Step{"UCase", letters, "x = UCase(s)"}, Step{"Concatenation", letters, "x = s & t"},
                    Step{"Mid", letters, "x = Mid(s, 2)"}, Step{"StrReverse", letters, "x = StrReverse(s)"},
                    Step{"String", letters, "x = String(1000000, \"a\")"}, Step{"Space", letters, "x = Space(1000000)"},
                    Step{"InStr", letters, "x = InStr(s, \"z\")"},
                    Step{"InStrAtTheEnd", letters, "x = InStr(t, \"b\")"},
                    Step{"InStrAsText", letters, "x = InStr(1, s, \"z\", 1)"},
                    Step{"InStrRev", letters, "x = InStrRev(s, \"z\")"},
                    Step{"InStrB", letters, "x = InStrB(s, \"z\")"}, Step{"StrComp", letters, "x = StrComp(t, u)"},
                    Step{"StrCompAsText", letters, "x = StrComp(t, u, 1)"}, Step{"Equal", letters, "x = (t = u)"},
                    Step{"Less", letters, "x = (t < u)"}, Step{"EqualInACondition", letters, "If t = u Then x = 1"},
                    Step{"SelectCase", letters, "Select Case t : Case u : x = 1 : End Select"},
                    Step{"Escape", letters, "x = Escape(s)"}, Step{"Unescape", letters, "x = Unescape(s)"},
                    Step{"Split", letters, "x = Split(s, \"z\")"}, Step{"LTrim", letters, "x = LTrim(\" \" & s)"},
                    Step{"IsNumeric", digits, "x = IsNumeric(s)"}, Step{"IsDate", digits, "x = IsDate(s)"},
                    Step{"Eval", letters, "x = Eval(\"1\" & Space(1000000))"},
                    Step{"Execute", letters, "Execute String(1000000, \":\")"},
                    Step{"ExecuteOfAnotherText", letters, "Execute \"x =\" & Space(100000) & i"}),
    testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(
    OverLists, LongStep,
    testing::Values(
        Step{"Join", words, "x = Join(list, \",\")"}, Step{"Filter", words, "x = Filter(list, \"z\")"},
        Step{"Keys", words, "x = d.Keys"}, Step{"Items", words, "x = d.Items"},
        Step{"LongKey",
             "s = String(1000000, \"a\") : Set d = CreateObject(\"Scripting.Dictionary\") : d(s) = 1 : t = s & \"b\"",
             "x = d.Exists(s) Or d.Exists(t)"},
        Step{"LongKeyAsText",
             "s = String(1000000, \"a\") : Set d = CreateObject(\"Scripting.Dictionary\")\n"
             "d.CompareMode = 1 : d(s) = 1 : t = s & \"b\"",
             "x = d.Exists(s) Or d.Exists(t)"},
        Step{"CopyOfAnArray", arrays, "x = fixed : x(0) = 1"}, Step{"CopyOfAGrid", arrays, "x = grid : x(1, 1) = 1"},
        Step{"ArrayByValue", arrays, "S fixed"}, Step{"ReDim", arrays, "ReDim open(100000)"},
        Step{"ReDimPreserve", arrays, "ReDim Preserve open(100000 * i)"},
        Step{"EraseOfAFixedArray", arrays, "Erase fixed"}),
    testing::PrintToStringParamName());

TEST(ShortSteps, askForNoClock) {
    EXPECT_LT(looksOf("s = String(1000000, \"a\") : Dim a(1000000)",
                      "x = Mid(s, 500000, 1) : y = InStr(s, \"a\") : z = Len(s) : a(i) = Asc(s) : x = LCase(\"A\")"),
              rounds / 2);
}

// What a builtin gathers on the way to its result counts as memory, too.
TEST(Gathered, piecesStayBelowTheCeiling) {
    constexpr std::size_t ceiling = std::size_t{64} << 20;
    const auto mostKilobytes = [] {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return static_cast<std::size_t>(usage.ru_maxrss);
    };
    WatchedClock clock;
    ScriptControl control(clock);
    control.setMemoryCeiling(ceiling);
    ASSERT_TRUE(control.addCode("s = String(20000000, \",\")"));
    const std::size_t before = mostKilobytes();
    EXPECT_FALSE(control.addCode("x = Split(s, \",\")"));
    EXPECT_EQ(control.error().number, static_cast<int>(ErrorNumber::OutOfMemory));
    EXPECT_LT(mostKilobytes() - before, ceiling / 1024);
}

// One call that by itself would take hours.
class EndlessStep : public testing::TestWithParam<Step> {};

TEST_P(EndlessStep, endsAtTheTimeOut) {
    FastClock clock;
    ScriptControl control(clock);
    control.setTimeout(std::chrono::milliseconds(20));
    ASSERT_TRUE(control.addCode(GetParam().prepare));
    EXPECT_FALSE(control.addCode(GetParam().statement));
    EXPECT_EQ(control.error().number, static_cast<int>(ErrorNumber::TimedOut));
    EXPECT_TRUE(control.addCode("x = 1"));
}

constexpr const char* haystack = "s = String(4000000, \"a\") : n = String(2000000, \"a\")";

INSTANTIATE_TEST_SUITE_P(Searches, EndlessStep,
                         testing::Values(Step{"InStr", haystack, "x = InStr(s, n & \"b\")"},
                                         Step{"InStrAsText", haystack, "x = InStr(1, s, n & \"b\", 1)"},
                                         Step{"InStrRev", haystack, "x = InStrRev(s, n & \"b\")"},
                                         Step{"InStrRevAsText", haystack, "x = InStrRev(s, n & \"b\", -1, 1)"},
                                         Step{"InStrB", haystack, "x = InStrB(s, n & \"b\")"},
                                         Step{"Replace", haystack, "x = Replace(s, n & \"b\", \"\")"},
                                         Step{"Split", haystack, "x = Split(s, n & \"b\")"}),
                         testing::PrintToStringParamName());

constexpr const char* pattern = "Set r = New RegExp : s = String(200000, \"a\")";

INSTANTIATE_TEST_SUITE_P(Patterns, EndlessStep,
                         testing::Values(Step{"PlacesThatEachGoToTheEnd", pattern,
                                              "r.Pattern = \"a[^b]*b|z\" : x = r.Test(s)"},
                                         Step{"LazyOnes", pattern, "r.Pattern = \"a*?b|c\" : x = r.Test(s)"},
                                         Step{"TwoRepeats", pattern, "r.Pattern = \"\\w+\\s+[yz]\" : x = r.Test(s)"}),
                         testing::PrintToStringParamName());

// Loops that go round only by errors that are passed over.
class FailingLoop : public testing::TestWithParam<Step> {};

TEST_P(FailingLoop, endsAtTheTimeOut) {
    FastClock clock;
    ScriptControl control(clock);
    control.setTimeout(std::chrono::milliseconds(20));
    EXPECT_FALSE(control.addCode(std::string(GetParam().prepare) + "\nOn Error Resume Next\n" + GetParam().statement));
    EXPECT_EQ(control.error().number, static_cast<int>(ErrorNumber::TimedOut));
    EXPECT_TRUE(control.addCode("x = 1"));
}

INSTANTIATE_TEST_SUITE_P(
    Conditions, FailingLoop,
    testing::Values(Step{"DoWhile", "", "Do While h.Count > 0 : x = x + 1 : Loop"},
                    Step{"DoWhileOverNothing", "", "Do While h.Count > 0\nLoop"},
                    Step{"DoUntil", "", "Do Until h.Count\nLoop"}, Step{"While", "", "While h.Count\nWend"},
                    Step{"WithAHandledErrorInside", "", "Do While h.Count > 0 : h.Next : Loop"},
                    Step{"InAProcedure", "Sub S : On Error Resume Next : Do While h.Count > 0\nLoop : End Sub", "S"},
                    Step{"InAClass",
                         "Class C : Sub Class_Terminate : On Error Resume Next : Do While h.Count > 0\nLoop : End Sub\n"
                         "End Class",
                         "Set o = New C : Set o = Nothing : Do : Loop"}),
    testing::PrintToStringParamName());

TEST(FailingLoops, letTheHostLive) {
    class Living final : public Host {
    public:
        double monotonicMilliseconds() override { return now_ += 1.0; }
        void longRun(std::chrono::milliseconds /*so far*/) override { ++told; }
        int told = 0;

    private:
        double now_ = 0.0;
    } host;
    ScriptControl control(host);
    control.setTimeout(std::chrono::milliseconds(2000));
    EXPECT_FALSE(control.addCode("On Error Resume Next\nDo While h.Count > 0\nLoop"));
    EXPECT_GT(host.told, 5);
}

} // namespace
