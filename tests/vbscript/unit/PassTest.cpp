// One pass after another and one inside another: what stops them, what their time counts, what is left of them.
#include "platform/vbscript/ScriptControl.h"
#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Convert.h"

#include <chrono>
#include <cstdio>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using namespace vbs;
using namespace std::chrono_literals;

// A clock that runs a little each time it is asked, and boxes that take as long as the user likes.
class Desk final : public Host {
public:
    double monotonicMilliseconds() override { return now_ += millisecondsALook; }
    int messageBox(std::u16string_view /*text*/, int /*buttons*/, std::u16string_view /*title*/) override {
        now_ += boxMilliseconds;
        whileBoxIsOpen();
        return 1;
    }
    std::u16string inputBox(std::u16string_view /*prompt*/, std::u16string_view /*title*/,
                            std::u16string_view /*start*/) override {
        now_ += boxMilliseconds;
        return u"ok";
    }
    void longRun(std::chrono::milliseconds elapsed) override {
        elapsedAtLongRun.push_back(elapsed);
        inLongRun();
    }
    void longStep(std::chrono::milliseconds elapsed) override {
        elapsedAtLongStep.push_back(elapsed);
        inLongStep();
    }

    double millisecondsALook = 0.1;
    double boxMilliseconds = 0;
    std::function<void()> whileBoxIsOpen = [] {};
    std::function<void()> inLongRun = [] {};
    std::function<void()> inLongStep = [] {};
    std::vector<std::chrono::milliseconds> elapsedAtLongRun;
    std::vector<std::chrono::milliseconds> elapsedAtLongStep;

private:
    double now_ = 0;
};

constexpr const char* endless = "On Error Resume Next\nDo\nLoop";
// Sixty thousand looks at the clock, each after the least that is between two.
constexpr const char* longStep = "On Error Resume Next\ns = String(4000000, \"a\")\n"
                                 "x = InStrRev(s, String(1000, \"a\") & \"b\")";
constexpr int timedOut = 32765;
constexpr int stopped = 32766;

class PassTest : public ::testing::Test {
protected:
    Desk desk;
    ScriptControl control{desk};
};

TEST_F(PassTest, theTimeInABoxDoesNotCountAgainstTheTimeOut) {
    control.setTimeout(1000ms);
    desk.boxMilliseconds = 60000;
    EXPECT_TRUE(control.addCode("MsgBox 1\nx = InputBox(2)\nFor i = 1 To 30000\nNext"));
    EXPECT_FALSE(control.addCode(std::string("MsgBox 1\n") + endless));
    EXPECT_EQ(control.error().number, timedOut);
}

TEST_F(PassTest, aTextInsideABoxHasATimeOutOfItsOwn) {
    control.setTimeout(1000ms);
    bool inner = true;
    desk.whileBoxIsOpen = [&] { inner = control.addCode(endless); };
    EXPECT_TRUE(control.addCode("MsgBox 1\nx = 5"));
    EXPECT_FALSE(inner);
    EXPECT_EQ(control.error().number, 0);
    EXPECT_TRUE(control.addCode("If x <> 5 Then Err.Raise 1"));
}

TEST_F(PassTest, aTextThatFailsInsideABoxLeavesTheTextAroundItItsOwnError) {
    desk.whileBoxIsOpen = [&] { EXPECT_FALSE(control.addCode("y = 1 / 0")); };
    EXPECT_TRUE(control.addCode("MsgBox 1"));
    EXPECT_EQ(control.error().number, 0);
    EXPECT_FALSE(control.addCode("MsgBox 1\nz = CInt(\"mal\")"));
    EXPECT_EQ(control.error().number, 13);
    EXPECT_EQ(control.error().line, 2U);
}

TEST_F(PassTest, aLongRunIsToldAfterHalfASecondAndThenEveryFiftyMilliseconds) {
    control.setTimeout(1000ms);
    control.addCode(endless);
    ASSERT_GE(desk.elapsedAtLongRun.size(), 9U);
    EXPECT_LE(desk.elapsedAtLongRun.size(), 11U);
    EXPECT_GE(desk.elapsedAtLongRun.front(), 500ms);
    EXPECT_LE(desk.elapsedAtLongRun.front(), 510ms);
    EXPECT_GE(desk.elapsedAtLongRun[1] - desk.elapsedAtLongRun[0], 49ms);
}

TEST_F(PassTest, aShortRunIsNotTold) {
    EXPECT_TRUE(control.addCode("For i = 1 To 30000\nNext"));
    EXPECT_TRUE(desk.elapsedAtLongRun.empty());
}

TEST_F(PassTest, stopInALongRunEndsTheTextWhateverItsOnErrorSays) {
    desk.inLongRun = [&] { control.stop(); };
    EXPECT_FALSE(control.addCode(endless));
    EXPECT_EQ(control.error().number, stopped);
    EXPECT_EQ(desk.elapsedAtLongRun.size(), 1U);
    desk.inLongRun = [] {};
    EXPECT_TRUE(control.addCode("x = 1"));
}

TEST_F(PassTest, aTextMayRunInALongRun) {
    control.setTimeout(700ms);
    desk.inLongRun = [&] { EXPECT_TRUE(control.addCode("inner = inner + 1")); };
    EXPECT_FALSE(control.addCode(endless));
    EXPECT_EQ(control.error().number, timedOut);
    EXPECT_TRUE(control.addCode("If inner < 3 Then Err.Raise 1"));
}

TEST_F(PassTest, stopInsideABoxEndsTheTextThatOpenedItToo) {
    desk.whileBoxIsOpen = [&] {
        desk.inLongRun = [&] { control.stop(); };
        EXPECT_FALSE(control.addCode(endless));
    };
    EXPECT_FALSE(control.addCode(std::string("MsgBox 1\n") + endless));
    EXPECT_EQ(control.error().number, stopped);
}

TEST_F(PassTest, exhaustedMemoryLeavesTheEngineUsable) {
    control.setMemoryCeiling(8 << 20);
    const char* const hungry = "Dim a(), d\nSub grow(n)\nDim mine\nmine = String(100000, \"x\") & n\n"
                               "ReDim Preserve a(n)\na(n) = mine\ngrow n + 1\nEnd Sub\n";
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(control.addCode(std::string(hungry) + "grow 0"));
        EXPECT_EQ(control.error().number, 7);
        EXPECT_TRUE(control.addCode("Erase a\nOn Error Resume Next\nErr.Raise 9"));
        EXPECT_TRUE(control.addCode(std::string(hungry) + "On Error Resume Next\ngrow 0\n"
                                                          "n = Err.Number\nErase a\nOn Error GoTo 0\n"
                                                          "If n <> 7 Then Err.Raise n"));
    }
}

TEST_F(PassTest, aStackThatIsFullToTheBrimGivesError28ForEveryNumberOfLocals) {
    for (int locals = 1; locals <= 300; ++locals) {
        std::string names = "v1";
        for (int i = 2; i <= locals; ++i) {
            names += ", v" + std::to_string(i);
        }
        const std::string body = "Dim " + names + "\n";
        ASSERT_FALSE(control.addCode("Sub down(n)\n" + body + "down n + 1\nEnd Sub\ndown 0"));
        ASSERT_EQ(control.error().number, 28) << locals;
        ASSERT_FALSE(control.addCode("Class K\nPublic f\nPublic Property Let p(v)\n" + body +
                                     "f = v\nMe.p = f\nSet o = New K\no.p = f\nEnd Property\nEnd Class\n"
                                     "Set k1 = New K\nk1.p = 1"));
        ASSERT_EQ(control.error().number, 28) << locals;
        ASSERT_FALSE(control.addCode("Class M\nPublic f\nPublic Sub s(m)\n" + body +
                                     "m.f = 1\nx = m.f\nm.s m\nEnd Sub\nEnd Class\nSet k2 = New M\nk2.s k2"));
        ASSERT_EQ(control.error().number, 28) << locals;
    }
}

std::size_t residentPages() {
    std::FILE* file = std::fopen("/proc/self/statm", "r");
    std::size_t total = 0;
    std::string line(128, '\0');
    if (file != nullptr && std::fgets(line.data(), static_cast<int>(line.size()), file) != nullptr) {
        total = std::stoul(line.substr(line.find(' ') + 1));
    }
    if (file != nullptr) {
        std::fclose(file);
    }
    return total;
}

TEST_F(PassTest, readingsThatBringANewNameEachLeaveNothingBehind) {
    const auto read = [&](int from, int to) {
        for (int i = from; i < to; ++i) {
            const std::string name = "lectura" + std::to_string(i);
            ASSERT_TRUE(control.addCode("ID = " + name)) << i;
            if (i % 16 == 0) {
                control.addCode("Sub s" + name + "(\n"); // does not compile
                control.addCode("x = Eval(\"otra" + name + "\")");
            }
        }
    };
    read(0, 40000);
    const std::size_t before = residentPages();
    read(40000, 160000);
#ifdef __SANITIZE_ADDRESS__
    EXPECT_LE(residentPages(), 2 * before); // what was freed is kept aside there for a while
#else
    EXPECT_LE(residentPages(), before + 128);
#endif
}

TEST_F(PassTest, aNameThatCameBackAfterItWasForgottenMeansWhatItShould) {
    EXPECT_TRUE(control.addCode("Function ask\nask = IsEmpty(later)\nEnd Function\nkeep = 7"));
    for (int i = 0; i < 200; ++i) {
        ASSERT_TRUE(control.addCode("ID = passing" + std::to_string(i)));
    }
    EXPECT_TRUE(control.addCode("If Not ask() Then Err.Raise 1"));
    EXPECT_TRUE(control.addCode("later = 3"));
    for (int i = 0; i < 200; ++i) {
        ASSERT_TRUE(control.addCode("ID = more" + std::to_string(i)));
    }
    EXPECT_TRUE(control.addCode("If ask() Then Err.Raise 2"));
    EXPECT_TRUE(control.addCode("If keep <> 7 Or later <> 3 Or Not IsEmpty(more3) Then Err.Raise 3"));
}

TEST_F(PassTest, tooManyDefinedNamesAreRefusedWhereTheyStand) {
    std::string text = "x = 1\n";
    for (int i = 0; i < 17000; ++i) {
        text += "v" + std::to_string(i) + " = 1\n";
    }
    EXPECT_FALSE(control.addCode(text));
    EXPECT_EQ(control.error().number, 1903);
    EXPECT_EQ(control.error().lineText, u"v" + text::toUtf16(std::to_string(control.error().line - 2)) + u" = 1");
    EXPECT_GT(control.error().line, 16000U);
    EXPECT_EQ(control.error().column, 1U);
    EXPECT_TRUE(control.addCode("x = 1"));
    text = "Sub use(a) : End Sub\n";
    for (int i = 0; i < 17000; ++i) {
        text += "use n" + std::to_string(i) + "\n";
    }
    EXPECT_FALSE(control.addCode(text));
    EXPECT_EQ(control.error().number, 1903);
    EXPECT_GT(control.error().line, 16000U);
    EXPECT_EQ(control.error().column, 5U);
    EXPECT_TRUE(control.addCode("x = 1"));
}

TEST_F(PassTest, aLongStepIsToldAndMayBeStopped) {
    desk.millisecondsALook = 1;
    desk.inLongStep = [&] {
        if (desk.elapsedAtLongStep.size() == 3) {
            control.stop();
        }
    };
    EXPECT_FALSE(control.addCode(longStep));
    EXPECT_EQ(control.error().number, stopped);
    EXPECT_EQ(desk.elapsedAtLongStep.size(), 3U);
    EXPECT_GE(desk.elapsedAtLongStep.front(), 499ms);
    EXPECT_TRUE(desk.elapsedAtLongRun.empty());
    EXPECT_TRUE(control.addCode("x = 1"));
}

TEST_F(PassTest, noTextRunsInTheMiddleOfALongStep) {
    constexpr int internalError = 51;
    control.setTimeout(1000ms);
    desk.millisecondsALook = 1;
    bool ran = false;
    desk.inLongStep = [&] {
        ran = ran || control.addCode("x = 1");
        EXPECT_EQ(control.error().number, internalError);
    };
    EXPECT_FALSE(control.addCode(longStep));
    EXPECT_EQ(control.error().number, timedOut);
    EXPECT_FALSE(desk.elapsedAtLongStep.empty());
    EXPECT_FALSE(ran);
    EXPECT_TRUE(control.addCode("x = 1"));
}

TEST_F(PassTest, aRefusedTextIsNotCompiledAgain) {
    std::string text;
    for (int i = 0; i < 100000; ++i) {
        text += "x = x + " + std::to_string(i) + "\n";
    }
    text += "End If\n";
    const auto taken = [&] {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_FALSE(control.addCode(text));
        EXPECT_EQ(control.error().line, 100001U);
        return std::chrono::steady_clock::now() - start;
    };
    const auto first = taken();
    auto best = taken();
    for (int i = 0; i < 5; ++i) {
        best = std::min(best, taken());
    }
    EXPECT_LT(best * 3, first);
}

TEST_F(PassTest, aTextOfFiveMegabytesCompiles) {
    std::string text;
    for (int i = 0; text.size() < (5U << 20); ++i) {
        const std::string n = std::to_string(i);
        text += "total = total + " + n + "\nIf total < 0 Then host.escribir 1, " + n + ", total\n";
    }
    EXPECT_TRUE(control.check(text)) << control.error().number << " at " << control.error().line;
}

// A text may come before the one that makes its values run code; when it comes back it knows.
TEST_F(PassTest, aTextRunAgainReckonsWithTheDefaultMembersOfALaterOne) {
    constexpr const char* sums = "g = 1\nIf IsObject(o) Then If g + Len(o) <> 2 Then Err.Raise 77";
    EXPECT_TRUE(control.addCode("Dim o"));
    EXPECT_TRUE(control.addCode(sums));
    EXPECT_TRUE(control.addCode("Class C\nPublic Default Property Get V\ng = g + 1\nV = 1\nEnd Property\nEnd Class\n"
                                "Set o = New C"));
    EXPECT_TRUE(control.addCode(sums)) << control.error().number;
}

} // namespace
