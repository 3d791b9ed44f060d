// The engine as a program sees it: texts one after another, errors, time-out, stopping, memory.
#include "platform/vbscript/ScriptControl.h"

#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Memory.h"

#include <csignal>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using namespace vbs;

// Notes what scripts hand it: `out.put x`.
class Recorder final : public NativeObject<Recorder> {
public:
    static std::span<const Member> members() {
        static constexpr Member table[] = {
            {u"", nullptr, readOnly, 0, 0},
            {u"Put", &Recorder::put, readOnly, 1, 1},
            {u"Stop", &Recorder::stop, readOnly, 0, 0},
            {u"Run", &Recorder::run, readOnly, 1, 1},
            {u"Third", &Recorder::third, readOnly, 1, 3},
        };
        return table;
    }
    std::u16string_view typeName() const override { return u"Recorder"; }

    std::vector<std::string> seen;
    ScriptControl* control = nullptr;

private:
    Value put(Context& context, Access /*access*/, Arguments arguments) {
        seen.push_back(toUtf8(toString(context, arguments[0]).view()));
        return {};
    }
    Value stop(Context& /*context*/, Access /*access*/, Arguments /*arguments*/) {
        control->stop();
        return {};
    }
    Value run(Context& context, Access /*access*/, Arguments arguments) {
        return Value::ofBoolean(control->addCode(toString(context, arguments[0]).view()));
    }
    Value third(Context& /*context*/, Access /*access*/, Arguments arguments) {
        return Value::ofBoolean(arguments.size() > 2 && !arguments[2].isMissing());
    }
};

// A clock that runs a millisecond each time it is asked.
class FastClock final : public Host {
public:
    double monotonicMilliseconds() override { return now_ += 1.0; }

private:
    double now_ = 0.0;
};

class ScriptControlTest : public testing::Test {
protected:
    ScriptControlTest() {
        recorder->control = &control;
        control.addObject(u"out", Ref<Object>(recorder.get()));
    }

    FastClock host;
    Ref<Recorder> recorder = makeObject<Recorder>();
    ScriptControl control{host};
};

using Seen = std::vector<std::string>;

TEST_F(ScriptControlTest, globalsStayFromOneTextToTheNext) {
    ASSERT_TRUE(control.addCode("total = 5"));
    ASSERT_TRUE(control.addCode("total = total + 1 : out.put total"));
    EXPECT_EQ(recorder->seen, Seen{"6"});
}

TEST_F(ScriptControlTest, aTextThatFailsInsideAnotherLeavesTheOuterOneGood) {
    ASSERT_TRUE(control.addCode("out.run \"x = )\""));
    EXPECT_EQ(control.error().number, 0);
}

TEST_F(ScriptControlTest, aTextThatFailsAfterAnInnerFailureTellsItsOwn) {
    ASSERT_FALSE(control.addCode("out.run \"x = )\" : Err.Raise 1000, \"quien\", \"propio\""));
    EXPECT_EQ(control.error().number, 1000);
    EXPECT_EQ(control.error().description, u"propio");
}

TEST_F(ScriptControlTest, aDimOfTheSameTextKeepsTheValue) {
    const char* text = "Dim n : n = n + 1 : out.put n";
    ASSERT_TRUE(control.addCode(text));
    ASSERT_TRUE(control.addCode(text));
    EXPECT_EQ(recorder->seen, (Seen{"1", "2"}));
}

TEST_F(ScriptControlTest, aLaterTextDefinesProceduresAnew) {
    ASSERT_TRUE(control.addCode("Function f : f = 1 : End Function : Sub show : out.put f() : End Sub : show"));
    ASSERT_TRUE(control.addCode("Function f : f = 2 : End Function"));
    ASSERT_TRUE(control.addCode("show"));
    EXPECT_EQ(recorder->seen, (Seen{"1", "2"}));
}

TEST_F(ScriptControlTest, aLaterTextDefinesConstantsAnew) {
    ASSERT_TRUE(control.addCode("Const k = 1 : out.put k"));
    ASSERT_TRUE(control.addCode("Const k = 2 : out.put k"));
    EXPECT_EQ(recorder->seen, (Seen{"1", "2"}));
}

TEST_F(ScriptControlTest, aConstantMayBecomeAVariableAndBack) {
    const char* constant = "Const k = 1 : out.put k";
    const char* variable = "Dim k : k = 7 : out.put k";
    for (const char* text : {constant, variable, constant, variable}) {
        ASSERT_TRUE(control.addCode(text));
    }
    EXPECT_EQ(recorder->seen, (Seen{"1", "7", "1", "7"}));
}

TEST_F(ScriptControlTest, aNameThatBecomesGlobalLaterIsSeenByATextThatComesBack) {
    const char* text = "Sub s : n = n + 1 : End Sub : s";
    ASSERT_TRUE(control.addCode(text));
    ASSERT_TRUE(control.addCode("n = 10"));
    ASSERT_TRUE(control.addCode(text));
    ASSERT_TRUE(control.addCode("out.put n"));
    EXPECT_EQ(recorder->seen, Seen{"11"});
}

TEST_F(ScriptControlTest, aRunTimeErrorTellsNumberTextAndPlace) {
    EXPECT_FALSE(control.addCode("a = 1\n  b = a \\ 0\n"));
    EXPECT_EQ(control.error().number, 11);
    EXPECT_EQ(control.error().description, u"División por cero");
    EXPECT_EQ(control.error().line, 2U);
    EXPECT_EQ(control.error().column, 3U);
    EXPECT_EQ(control.error().lineText, u"  b = a \\ 0");
}

TEST_F(ScriptControlTest, aCompileErrorTellsNumberAndPlaceAndRunsNothing) {
    EXPECT_FALSE(control.addCode("out.put 1\nIf x Than\n"));
    EXPECT_EQ(control.error().number, 1017);
    EXPECT_EQ(control.error().line, 2U);
    EXPECT_EQ(control.error().column, 6U);
    EXPECT_TRUE(recorder->seen.empty());
}

TEST_F(ScriptControlTest, aGoodTextClearsTheError) {
    EXPECT_FALSE(control.addCode("x = "));
    EXPECT_TRUE(control.addCode("x = 1"));
    EXPECT_EQ(control.error().number, 0);
}

TEST_F(ScriptControlTest, aTextThatFailedLeavesTheEngineUsable) {
    EXPECT_FALSE(control.addCode("Sub s(n) : s n + 1 : End Sub : s 1"));
    EXPECT_EQ(control.error().number, 28);
    EXPECT_TRUE(control.addCode("out.put 3"));
    EXPECT_EQ(recorder->seen, Seen{"3"});
}

TEST_F(ScriptControlTest, checkingDefinesAndRunsNothing) {
    EXPECT_TRUE(control.check("out.put 1 : Sub s : End Sub"));
    EXPECT_TRUE(recorder->seen.empty());
    EXPECT_FALSE(control.addCode("s"));
    EXPECT_FALSE(control.check("Sub"));
    EXPECT_EQ(control.error().number, 1010);
}

TEST_F(ScriptControlTest, anEndlessLoopEndsAtTheTimeOutWhateverOnErrorSays) {
    control.setTimeout(std::chrono::milliseconds(20));
    EXPECT_FALSE(control.addCode("On Error Resume Next\nDo : x = x + 1 : Loop"));
    EXPECT_EQ(control.error().number, static_cast<int>(ErrorNumber::TimedOut));
    EXPECT_TRUE(control.addCode("out.put 1"));
}

TEST_F(ScriptControlTest, aLoopWhoseConditionFailsEndsAtTheTimeOutToo) {
    control.setTimeout(std::chrono::milliseconds(20));
    EXPECT_FALSE(control.addCode("On Error Resume Next\nDo While h.Count > 0 : s = s & h.Pop : Loop"));
    EXPECT_EQ(control.error().number, static_cast<int>(ErrorNumber::TimedOut));
    EXPECT_TRUE(control.addCode("out.put 1"));
}

TEST_F(ScriptControlTest, endlessRecursionThroughMethodsIsErrorTwentyEight) {
    EXPECT_FALSE(control.addCode("Class K : Function f(n) : f = Me.f(n + 1) : End Function : End Class\n"
                                 "Set o = New K : o.f 1"));
    EXPECT_EQ(control.error().number, 28);
}

TEST_F(ScriptControlTest, endlessRecursionThroughInitializeIsErrorTwentyEight) {
    EXPECT_FALSE(
        control.addCode("Class K : Sub Class_Initialize : Set x = New K : End Sub : End Class\nSet o = New K"));
    EXPECT_EQ(control.error().number, 28);
}

TEST_F(ScriptControlTest, stoppingEndsTheText) {
    EXPECT_FALSE(control.addCode("On Error Resume Next\nout.stop\nDo : Loop"));
    EXPECT_EQ(control.error().number, static_cast<int>(ErrorNumber::Stopped));
}

TEST_F(ScriptControlTest, aTextMayRunAnotherThroughTheHost) {
    EXPECT_TRUE(control.addCode("x = 1 : ok = out.run(\"x = x + 1\") : out.put x : out.put ok"));
    EXPECT_EQ(recorder->seen, (Seen{"2", "True"}));
}

TEST_F(ScriptControlTest, argumentsLeftOutReachTheHostAsMissing) {
    EXPECT_TRUE(control.addCode("out.put out.third(1) : out.put out.third(1, , 2) : out.put out.third(1, 2, )"));
    EXPECT_EQ(recorder->seen, (Seen{"False", "True", "False"}));
}

TEST_F(ScriptControlTest, aGrowingTextMeetsTheCeiling) {
    control.setMemoryCeiling(memoryMeter().used + (std::size_t{1} << 20));
    EXPECT_FALSE(control.addCode("s = \"x\"\nDo : s = s & s : Loop"));
    EXPECT_EQ(control.error().number, 7);
}

TEST_F(ScriptControlTest, anArrayBeyondTheCeilingIsErrorSeven) {
    EXPECT_FALSE(control.addCode("ReDim a(2000000000)"));
    EXPECT_EQ(control.error().number, 7);
}

TEST_F(ScriptControlTest, aScriptMayCatchErrorSeven) {
    EXPECT_TRUE(control.addCode("On Error Resume Next\nReDim a(2000000000)\nout.put Err.Number"));
    EXPECT_EQ(recorder->seen, Seen{"7"});
}

TEST_F(ScriptControlTest, manyPassesLeaveMemoryFlat) {
    const char* text = "Class K : Public v : End Class\nDim a(10), s, o\nSet o = New K : o.v = \"x\" & 1\n"
                       "For i = 0 To 10 : a(i) = a(i) & \"\" : Next\ns = Left(\"abc\" & o.v, 2)\nSet o = Nothing";
    ASSERT_TRUE(control.addCode(text));
    const std::size_t before = memoryMeter().used;
    for (int pass = 0; pass < 1000; ++pass) {
        ASSERT_TRUE(control.addCode(text));
    }
    EXPECT_EQ(memoryMeter().used, before);
}

TEST_F(ScriptControlTest, everDifferentTextsLeaveMemoryFlat) {
    const auto run = [this](int i) {
        return control.addCode("AA =" + std::to_string(i) + "\nSub s : x = AA & \"!\" : End Sub\ns");
    };
    for (int i = 0; i < 200; ++i) {
        ASSERT_TRUE(run(1000 + i));
    }
    const std::size_t before = memoryMeter().used;
    for (int i = 200; i < 1000; ++i) {
        ASSERT_TRUE(run(1000 + i));
    }
    EXPECT_EQ(memoryMeter().used, before);
}

TEST(ScriptControlLife, cyclicGraphsAreFreedWithTheEngine) {
    Host firstHost;
    const ScriptControl first(firstHost); // makes the tables that live for ever
    const std::size_t before = memoryMeter().used;
    {
        Host host;
        ScriptControl control(host);
        ASSERT_TRUE(control.addCode("Class K : Public other, text : End Class\n"
                                    "Sub s : Set a = New K : Set b = New K : Set a.other = b : Set b.other = a\n"
                                    "a.text = String(1000, \"x\") : End Sub\ns"));
        ASSERT_TRUE(control.addCode("Set d = CreateObject(\"Scripting.Dictionary\") : d.Add \"self\", d"));
        EXPECT_GT(memoryMeter().used, before + 2000);
    }
    EXPECT_EQ(memoryMeter().used, before);
}

TEST(ScriptControlLife, aLongChainOfObjectsIsFreedWithoutNesting) {
    Host host;
    ScriptControl control(host);
    EXPECT_TRUE(
        control.addCode("Class K : Public rest : End Class\nFor i = 1 To 200000\nSet n = New K\n"
                        "If i > 1 Then Set n.rest = head\nSet head = n\nNext\nSet n = Nothing\nSet head = Nothing"));
}

TEST_F(ScriptControlTest, resetForgetsGlobalsButKeepsObjects) {
    ASSERT_TRUE(control.addCode("x = 5"));
    control.reset();
    ASSERT_TRUE(control.addCode("out.put \"[\" & x & \"]\""));
    EXPECT_EQ(recorder->seen, Seen{"[]"});
}

TEST_F(ScriptControlTest, resetForgetsTheFailureToo) {
    ASSERT_FALSE(control.addCode("x = 1 \\ 0"));
    ASSERT_EQ(control.error().number, 11);
    control.reset();
    EXPECT_EQ(control.error().number, 0);
    EXPECT_EQ(control.error().lineText, u"");
}

TEST_F(ScriptControlTest, aTextCheckedWithoutMemoryFailsAtNoLine) {
    control.setMemoryCeiling(memoryMeter().used);
    EXPECT_FALSE(control.check("x = 1"));
    EXPECT_EQ(control.error().number, 7);
    EXPECT_EQ(control.error().line, 0U);
    EXPECT_EQ(control.error().lineText, u"");
}

TEST_F(ScriptControlTest, invalidUtf8AndLoneSurrogatesAreCarried) {
    EXPECT_TRUE(control.addCode(std::string_view("out.put \"a\xFF\"")));
    EXPECT_TRUE(control.addCode("out.put AscW(ChrW(&HD800))"));
    EXPECT_EQ(recorder->seen, (Seen{"a\xEF\xBF\xBD", "-10240"}));
}

TEST_F(ScriptControlTest, aNulByteInTheTextIsACompileError) {
    EXPECT_FALSE(control.addCode(std::string_view("x = 1\0 + 2", 11)));
    EXPECT_EQ(control.error().number, 1032);
}

TEST_F(ScriptControlTest, deepNestingIsACompileError) {
    const std::string deep = "x = " + std::string(100000, '(') + "1" + std::string(100000, ')');
    EXPECT_FALSE(control.addCode(deep));
    EXPECT_EQ(control.error().number, 1901);
    std::string ifs;
    for (int i = 0; i < 100000; ++i) {
        ifs += "If 1 Then\n";
    }
    EXPECT_FALSE(control.addCode(ifs));
    EXPECT_EQ(control.error().number, 1901);
}

TEST(ScriptControl, globalsShowsTheVariablesThatScriptsHaveMade) {
    Host host;
    ScriptControl control(host);
    control.addObject(u"out", Ref<Object>(makeObject<Recorder>().get()));
    ASSERT_TRUE(
        control.addCode("Dim One : Const two = 2 : three = \"x\" : Sub four(five) : Dim six : End Sub : four 1"));
    std::vector<std::string> names;
    control.globals([&](std::u16string_view name, const Value& value, Context& context) {
        names.push_back(toUtf8(name) + "=" + toUtf8(toString(context, value).view()));
    });
    EXPECT_EQ(names, (std::vector<std::string>{"One=", "three=x"}));
}

TEST(ScriptControl, objectThatWasTakenAwayLeavesItsNameFree) {
    Host host;
    ScriptControl control(host);
    const auto recorder = makeObject<Recorder>();
    control.addObject(u"Out", Ref<Object>(recorder.get()));
    ASSERT_TRUE(control.addCode("Sub tell : out.put 1 : End Sub : tell"));
    EXPECT_FALSE(control.addCode("out = 5"));
    control.removeObject(u"oUT");
    EXPECT_FALSE(control.addCode("tell")); // what was compiled for it finds nothing
    EXPECT_TRUE(control.addCode("out = 5 : out = out + 1")) << control.error().number;
    control.removeObject(u"out"); // a variable now
    EXPECT_TRUE(control.addCode("If out <> 6 Then Err.Raise 5")) << control.error().number;
    control.addObject(u"Out", Ref<Object>(recorder.get()));
    EXPECT_TRUE(control.addCode("out.put 2 : tell")) << control.error().number;
    EXPECT_EQ(recorder->seen, (std::vector<std::string>{"1", "2", "1"}));
}

TEST(ScriptControl, objectThatWasTakenAwayDoesNotComeBackWithReset) {
    Host host;
    ScriptControl control(host);
    control.addObject(u"out", Ref<Object>(makeObject<Recorder>().get()));
    control.removeObject(u"out");
    control.removeObject(u"nobody");
    control.reset();
    EXPECT_TRUE(control.addCode("out = 5"));
}

} // namespace
