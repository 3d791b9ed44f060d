// Engines beside each other and after failures: what survives, what is freed, who may stop them.
#include "platform/vbscript/ScriptControl.h"
#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Memory.h"

#include <csignal>
#include <gtest/gtest.h>
#include <string>
#include <sys/time.h>
#include <vector>

namespace {

using namespace vbs;
using Seen = std::vector<std::string>;

class Station final : public NativeObject<Station> {
public:
    static std::span<const Member> members() {
        static constexpr Member table[] = {
            {u"", nullptr, readOnly, 0, 0},
            {u"Put", &Station::put, readOnly, 1, 1},
            {u"Fail", &Station::fail, readOnly, 1, 1},
            {u"Stop", &Station::stop, readOnly, 0, 0},
            {u"Keep", &Station::keep, readOnly, 1, 1},
        };
        return table;
    }
    std::u16string_view typeName() const override { return u"Host"; }

    Seen seen;
    std::vector<Value> kept;
    ScriptControl* control = nullptr;

private:
    Value put(Context& context, Access /*access*/, Arguments arguments) {
        seen.push_back(toUtf8(toString(context, arguments[0]).view()));
        return {};
    }
    Value keep(Context& /*context*/, Access /*access*/, Arguments arguments) {
        kept.push_back(arguments[0]);
        return {};
    }
    Value fail(Context& context, Access /*access*/, Arguments arguments) {
        raise(static_cast<ErrorNumber>(toLong(context, arguments[0])));
    }
    Value stop(Context& /*context*/, Access /*access*/, Arguments /*arguments*/) {
        control->stop();
        return {};
    }
};

struct Engine {
    Engine() {
        out->control = &control;
        control.addObject(u"out", Ref<Object>(out.get()));
    }

    Host host;
    Ref<Station> out = makeObject<Station>();
    ScriptControl control{host};
};

class FailedText : public Engine, public testing::TestWithParam<const char*> {};

TEST_P(FailedText, leavesTheEngineUsable) {
    ASSERT_TRUE(control.addCode("Class K : Public v\nProperty Get p : p = 1 \\ 0 : End Property\n"
                                "Property Let q(x) : v = 1 \\ 0 : End Property\n"
                                "Public Default Function d : d = 1 \\ 0 : End Function : End Class\n"
                                "Dim kept : kept = 7 : Dim list(2) : Set o = New K"));
    for (int pass = 0; pass < 3; ++pass) {
        EXPECT_FALSE(control.addCode(GetParam()));
        EXPECT_EQ(control.error().number, 11);
        ASSERT_TRUE(control.addCode("out.put kept\nReDim again(3)\nFor Each x In list : x = 1 : Next\n"
                                    "With o : .v = 3 : out.put .v : End With"));
    }
    EXPECT_EQ(out->seen, (Seen{"7", "3", "7", "3", "7", "3"}));
}

INSTANTIATE_TEST_SUITE_P(InTheMiddleOf, FailedText,
                         testing::Values("For Each x In list : y = 1 \\ 0 : Next",
                                         "For Each x In Array(1, 2) : For i = 1 To 3 : y = 1 \\ 0 : Next : Next",
                                         "With o : .v = 1 : With New K : .v = 1 \\ 0 : End With : End With", "y = o.p",
                                         "o.q = 5", "y = o + 1", "y = Array(1, Array(2, o.p))",
                                         "Sub s : Dim a(5) : a(1) = \"x\" : t a(1) : End Sub\n"
                                         "Sub t(ByRef r) : r = 1 \\ 0 : End Sub : s",
                                         "x = Eval(\"1 \\ 0\")", "Execute \"y = 1 \\ 0\"",
                                         "Select Case 1 \\ 0 : Case 1 : End Select"));

class EngineLife : public Engine, public testing::Test {};

TEST_F(EngineLife, anErrorOfAHostObjectIsTheScripts) {
    EXPECT_FALSE(control.addCode("x = 1\nout.fail 70"));
    EXPECT_EQ(control.error().number, 70);
    EXPECT_EQ(control.error().line, 2U);
    EXPECT_TRUE(control.addCode("On Error Resume Next\nout.fail 53\nout.put Err.Number"));
    EXPECT_EQ(out->seen, Seen{"53"});
}

TEST_F(EngineLife, aStopThatCameTooLateDoesNotEndTheNextText) {
    ASSERT_TRUE(control.addCode("out.stop"));
    EXPECT_TRUE(control.addCode("For i = 1 To 200000 : n = n + 1 : Next : out.put n"));
    control.stop();
    EXPECT_TRUE(control.addCode("For i = 1 To 200000 : n = n + 1 : Next : out.put n"));
    EXPECT_EQ(out->seen, (Seen{"200000", "400000"}));
}

ScriptControl* interrupted = nullptr;

TEST_F(EngineLife, aSignalHandlerMayStopAText) {
    interrupted = &control;
    const auto before = std::signal(SIGALRM, [](int) { interrupted->stop(); });
    const itimerval soon{{0, 0}, {0, 20000}};
    ASSERT_EQ(setitimer(ITIMER_REAL, &soon, nullptr), 0);
    EXPECT_FALSE(control.addCode("On Error Resume Next\nDo : x = 1 \\ 0 : Loop"));
    std::signal(SIGALRM, before);
    EXPECT_EQ(control.error().number, static_cast<int>(ErrorNumber::Stopped));
}

TEST_F(EngineLife, twoEnginesKnowNothingOfEachOther) {
    Engine other;
    ASSERT_TRUE(control.addCode("x = 1 : Const k = 5 : Function f : f = \"first\" : End Function"));
    ASSERT_TRUE(other.control.addCode("x = 2 : k = 6 : Function f : f = \"second\" : End Function"));
    ASSERT_TRUE(control.addCode("out.put x & k & f"));
    ASSERT_TRUE(other.control.addCode("out.put x & k & f"));
    EXPECT_EQ(out->seen, Seen{"15first"});
    EXPECT_EQ(other.out->seen, Seen{"26second"});
}

TEST_F(EngineLife, eachEngineKeepsItsOwnCeiling) {
    Engine small;
    small.control.setMemoryCeiling(memoryMeter().used + (std::size_t{1} << 20));
    EXPECT_FALSE(small.control.addCode("s = String(5000000, \"x\")"));
    EXPECT_EQ(small.control.error().number, 7);
    EXPECT_TRUE(control.addCode("s = String(5000000, \"x\")"));
}

TEST(EngineEnd, runsClassTerminateWhileTheRestStillStands) {
    const auto out = makeObject<Station>();
    {
        Host host;
        ScriptControl control(host);
        control.addObject(u"out", Ref<Object>(out.get()));
        ASSERT_TRUE(control.addCode("Function text : text = \"bye\" : End Function\n"
                                    "Class K : Sub Class_Terminate : out.put text() : End Sub : End Class\n"
                                    "Set o = New K"));
        EXPECT_TRUE(out->seen.empty());
    }
    EXPECT_EQ(out->seen, Seen{"bye"});
}

TEST(EngineEnd, comesDespiteAnEndlessTerminate) {
    Host host;
    ScriptControl control(host);
    ASSERT_TRUE(control.addCode("Class K : Sub Class_Terminate : Do : Loop : End Sub : End Class\nSet o = New K"));
}

TEST_F(EngineLife, aHundredThousandPassesLeaveMemoryFlat) {
    const std::string text = "n = n + 1\n" + std::string(20000, '\'') + "\n";
    ASSERT_TRUE(control.addCode(text));
    const std::u16string same = text::toUtf16(text);
    const std::size_t before = memoryMeter().used;
    for (int pass = 1; pass < 100000; ++pass) {
        ASSERT_TRUE(control.addCode(std::u16string_view(same)));
    }
    EXPECT_EQ(memoryMeter().used, before);
    ASSERT_TRUE(control.addCode("out.put n"));
    EXPECT_EQ(out->seen, Seen{"100000"});
}

// Hands out what another engine left to its host.
class Legacy final : public NativeObject<Legacy> {
public:
    explicit Legacy(std::vector<Value> values) : values_(std::move(values)) {}
    static std::span<const Member> members() {
        static constexpr Member table[] = {{u"Item", &Legacy::item, readOnly, 1, 1}};
        return table;
    }
    std::u16string_view typeName() const override { return u"Legacy"; }

private:
    Value item(Context& context, Access /*access*/, Arguments arguments) {
        return values_.at(static_cast<std::size_t>(toLong(context, arguments[0])));
    }
    std::vector<Value> values_;
};

TEST_F(EngineLife, whatAHostKeepsOfAnEngineThatHasGoneOnlyFails) {
    std::vector<Value> kept;
    {
        Engine gone;
        ASSERT_TRUE(gone.control.addCode(
            "Class K : Public v, other : Public Default Property Get d : d = v : End Property\n"
            "Sub s : v = 1 : End Sub : Private Sub Class_Terminate : out.put \"end\" : End Sub : End Class\n"
            "Function f(a) : f = a : End Function\n"
            "Set o = New K : Set o.other = o : o.v = Array(1, New K)\n"
            "out.keep o : out.keep GetRef(\"f\") : out.keep Me : out.keep Err : out.keep New K\n"
            "Set d = CreateObject(\"Scripting.Dictionary\") : Set d(\"k\") = o : out.keep d : out.keep Array(o, d)\n"
            "out.keep Eval(\"New RegExp\").Execute(\"a\")"));
        kept = gone.out->kept;
    }
    EXPECT_EQ(kept.at(0).object()->typeName(), u"Object");
    EXPECT_EQ(kept.at(0).object()->resolve(u"v"), Object::noMember);
    control.addObject(u"old", Ref<Object>(makeObject<Legacy>(kept).get()));
    kept.clear();
    ASSERT_TRUE(control.addCode("Dim x, i\nOn Error Resume Next\n"
                                "For i = 0 To 4 : x = old(i) : out.put i & \":\" & Err.Number : Err.Clear : Next\n"
                                "x = old(0).v : out.put Err.Number : Err.Clear\n"
                                "old(0).v = 1 : out.put Err.Number : Err.Clear\n"
                                "old(0).s : out.put Err.Number : Err.Clear\n"
                                "Set r = old(1) : x = r(1) : out.put Err.Number : Err.Clear\n"
                                "r 1 : out.put Err.Number : Err.Clear\n"
                                "x = old(2).x : out.put Err.Number : Err.Clear\n"
                                "x = old(3).Number : out.put Err.Number : Err.Clear\n"
                                "x = old(5).Count : out.put Err.Number & \" \" & x : Err.Clear\n"
                                "out.put TypeName(old(0)) & \" \" & old(7).Count"));
    EXPECT_EQ(out->seen, (Seen{"0:424", "1:424", "2:424", "3:424", "4:424", "438", "438", "438", "424", "424", "438",
                               "424", "0 0", "Object 1"}));
    control.removeObject(u"old");
    control.reset();
}

} // namespace
