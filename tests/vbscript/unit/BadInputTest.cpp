// Texts that no one writes by hand: huge, endless, nested beyond reason. Each ends in an error of the script or in a
// finished run, and the engine goes on.
#include "platform/vbscript/ScriptControl.h"
#include "platform/vbscript/value/Memory.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace {

using namespace vbs;

constexpr int outOfMemory = 7;
constexpr int nestedTooDeep = 1901;
constexpr int tooManyArguments = 1902;
constexpr int tooManyNames = 1903;
constexpr int timedOut = static_cast<int>(ErrorNumber::TimedOut);
// Of a machine that does much else: time enough for every text that ends by itself.
constexpr std::chrono::minutes patience(2);

std::string repeat(std::string_view piece, int times) {
    std::string text;
    text.reserve(piece.size() * static_cast<std::size_t>(times));
    for (int i = 0; i < times; ++i) {
        text += piece;
    }
    return text;
}

// `piece` for each number below `count`, with every # replaced by the number.
std::string numbered(std::string_view piece, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        for (const char c : piece) {
            c == '#' ? text += std::to_string(i) : text += c;
        }
    }
    return text;
}

class BadInput : public testing::Test {
protected:
    // The number of the error in which the text ends; 0 for none. Afterwards the engine runs the next text.
    int errorOf(std::string_view text) {
        control.addCode(text);
        const int number = control.error().number;
        control.setTimeout(patience);
        EXPECT_TRUE(control.addCode("nextText = 1")) << toUtf8(control.error().description);
        return number;
    }

    BadInput() { control.setTimeout(patience); }

    Host host;
    ScriptControl control{host};
};

const auto nameOf = [](const auto& parameter) { return parameter.param.name; };

// ---- nesting --------------------------------------------------------------------------------------------------------

struct Nest {
    const char* name;
    const char* open;
};

TEST_F(BadInput, deepCallsInAStatementAreACompileError) {
    EXPECT_EQ(errorOf(repeat("a(", 100000)), nestedTooDeep);
    EXPECT_EQ(errorOf("a " + repeat("b(", 100000)), nestedTooDeep);
    EXPECT_EQ(errorOf("a" + repeat(".b", 100000)), nestedTooDeep);
    EXPECT_EQ(errorOf("Dim a(1)\na" + repeat("(1)", 100000) + " = 1"), nestedTooDeep);
}

class DeepOperators : public BadInput, public testing::WithParamInterface<Nest> {};

TEST_P(DeepOperators, areACompileError) {
    EXPECT_EQ(errorOf("x = " + repeat(GetParam().open, 100000) + "1"), nestedTooDeep);
}

INSTANTIATE_TEST_SUITE_P(OfExpressions, DeepOperators,
                         testing::Values(Nest{"parentheses", "("}, Nest{"minus", "-"}, Nest{"plus", "+"},
                                         Nest{"negation", "Not "}, Nest{"calls", "a("}, Nest{"indexes", "a(1)(2)."},
                                         Nest{"members", "a."}, Nest{"powers", "2 ^ -"}, Nest{"sums", "1 + "},
                                         Nest{"texts", "\"a\" & "}, Nest{"comparisons", "1 = "},
                                         Nest{"conjunctions", "1 And "}, Nest{"implications", "1 Imp "}),
                         nameOf);

class DeepBlocks : public BadInput, public testing::WithParamInterface<Nest> {};

TEST_P(DeepBlocks, areACompileError) {
    EXPECT_EQ(errorOf(numbered(GetParam().open, 20000)), nestedTooDeep);
    EXPECT_EQ(errorOf("Sub s\n" + numbered(GetParam().open, 20000)), nestedTooDeep);
    EXPECT_EQ(errorOf("Class K\nSub s\n" + numbered(GetParam().open, 20000)), nestedTooDeep);
}

INSTANTIATE_TEST_SUITE_P(OfStatements, DeepBlocks,
                         testing::Values(Nest{"ifs", "If 1 Then\n"}, Nest{"elses", "If 1 Then\nElse\n"},
                                         Nest{"ifsOnALine", "If 1 Then "}, Nest{"fors", "For i# = 1 To 2\n"},
                                         Nest{"forEachs", "For Each i# In a\n"}, Nest{"withs", "With o\n"},
                                         Nest{"selects", "Select Case 1\nCase 1\n"}, Nest{"dos", "Do\n"},
                                         Nest{"doWhiles", "Do While 1\n"}, Nest{"whiles", "While 1\n"}),
                         nameOf);

TEST_F(BadInput, classesAndProceduresDoNotNest) {
    EXPECT_EQ(errorOf(repeat("Class K\n", 100000)), 1014);
    EXPECT_EQ(errorOf(repeat("Sub s\n", 100000)), 1002);
    EXPECT_EQ(errorOf(repeat("Function f\n", 100000)), 1002);
}

TEST_F(BadInput, nestingMadeAtRunTimeIsRefusedToo) {
    EXPECT_EQ(errorOf("Execute \"x = \" & String(200000, \"(\")"), nestedTooDeep);
    EXPECT_EQ(errorOf("x = Eval(String(200000, \"-\") & 1)"), nestedTooDeep);
}

// ---- large texts ----------------------------------------------------------------------------------------------------

TEST_F(BadInput, nineThousandTermsAreFine) {
    EXPECT_EQ(errorOf("x = " + repeat("1 + ", 9000) + "1\nIf x <> 9001 Then Err.Raise 5"), 0);
    EXPECT_EQ(errorOf("s = \"a\"\nx = " + repeat("s & ", 9000) + "s\nIf Len(x) <> 9001 Then Err.Raise 5"), 0);
}

TEST_F(BadInput, aLineOfTenMegabytesIsFine) {
    EXPECT_EQ(errorOf("x = \"" + std::string(10'000'000, 'a') + "\"\nIf Len(x) <> 10000000 Then Err.Raise 5"), 0);
    EXPECT_EQ(errorOf("'" + std::string(10'000'000, 'a')), 0);
    EXPECT_EQ(errorOf(std::string(10'000'000, ' ') + "x = 1"), 0);
    EXPECT_EQ(errorOf(std::string(10'000'000, ':')), 0);
    EXPECT_EQ(errorOf("x = \"" + std::string(10'000'000, 'a')), 1033);
}

TEST_F(BadInput, fiftyMegabytesOfCommentsAndBlankLinesCompile) {
    EXPECT_EQ(errorOf(repeat("' a line of comment, as long as lines of comment are\n\n", 1'000'000) + "x = 1"), 0);
}

TEST_F(BadInput, aTextWhoseTreePassesTheCeilingIsErrorSeven) {
    control.setMemoryCeiling(memoryMeter().used + (std::size_t{16} << 20));
    EXPECT_EQ(errorOf(repeat("x = 1\n", 1'000'000)), outOfMemory);
}

TEST_F(BadInput, longNumbersAreRefusedOrRead) {
    EXPECT_EQ(errorOf("x = " + std::string(1'000'000, '1')), 1031);
    EXPECT_EQ(errorOf("x = &H" + std::string(1'000'000, '1')), 1031);
    EXPECT_EQ(errorOf("x = 1e" + std::string(1'000'000, '1')), 1031);
    EXPECT_EQ(errorOf("x = 0." + std::string(1'000'000, '5') + "\nIf Int(x * 10) <> 5 Then Err.Raise 5"), 0);
}

TEST_F(BadInput, aHundredThousandOfAKindAreRefusedOrRunInNoTime) {
    EXPECT_EQ(errorOf(numbered("Dim v#\n", 100000)), tooManyNames);
    EXPECT_EQ(errorOf(numbered("v# = #\n", 100000)), tooManyNames);
    EXPECT_EQ(errorOf(numbered("Const c# = #\n", 100000)), tooManyNames);
    EXPECT_EQ(errorOf(numbered("Sub p#\nEnd Sub\n", 100000)), tooManyNames);
    EXPECT_EQ(errorOf(numbered("Class c#\nEnd Class\n", 100000)), tooManyNames);
    EXPECT_EQ(errorOf("Class K\n" + numbered("Public v#\n", 100000) + "End Class\nSet o = New K\no.v99999 = 1"), 0);
    EXPECT_EQ(errorOf("Class K\n" + numbered("Sub p#\nEnd Sub\n", 100000) + "End Class\nSet o = New K\no.p99999"), 0);
    EXPECT_EQ(errorOf("Select Case 99999\n" + numbered("Case #\nx = #\n", 100000) +
                      "End Select\nIf x <> 99999 Then Err.Raise 5"),
              0);
    EXPECT_EQ(errorOf("If 0 Then\n" + numbered("ElseIf # = 99999 Then\nx = #\n", 100000) +
                      "End If\nIf x <> 99999 Then Err.Raise 5"),
              0);
}

TEST_F(BadInput, tenThousandNamesAreFine) {
    EXPECT_EQ(errorOf(numbered("v# = #\n", 10000) + "If v9999 <> 9999 Then Err.Raise 5"), 0);
    EXPECT_EQ(errorOf("x = 0\n" + numbered("Sub p#\nx = #\nEnd Sub\n", 5000) + "p4999\nIf x <> 4999 Then Err.Raise 5"),
              0);
}

TEST_F(BadInput, textsThatDoNotCompileLeaveNoNamesBehind) {
    for (int text = 0; text < 10; ++text) {
        EXPECT_EQ(errorOf(numbered("n" + std::to_string(text) + "_# = 1\n", 5000) + "Sub"), 1010);
        EXPECT_TRUE(control.check(numbered("m" + std::to_string(text) + "_# = 1\n", 5000)));
    }
    EXPECT_TRUE(control.addCode(numbered("v# = #\n", 10000)));
}

TEST_F(BadInput, namesHaveAtMost255Characters) {
    EXPECT_EQ(errorOf(std::string(255, 'a') + " = 1"), 0);
    EXPECT_EQ(errorOf(std::string(256, 'a') + " = 1"), 1030);
    EXPECT_EQ(errorOf("[" + std::string(255, 'a') + "] = 1"), 0);
    EXPECT_EQ(errorOf("[" + std::string(1'000'000, 'a') + "] = 1"), 1030);
}

TEST_F(BadInput, arraysHaveAtMostSixtyDimensions) {
    const std::string sixty = repeat("0, ", 59) + "0";
    EXPECT_EQ(errorOf("Dim a(" + sixty + ")\na(" + sixty + ") = 1"), 0);
    EXPECT_EQ(errorOf("ReDim b(" + sixty + ")\nb(" + sixty + ") = 1"), 0);
    EXPECT_EQ(errorOf("Dim a(" + sixty + ", 0)"), tooManyArguments);
    EXPECT_EQ(errorOf("ReDim b(" + sixty + ", 0)"), tooManyArguments);
}

TEST_F(BadInput, aFixedArrayThatIsTooLargeTellsItsLine) {
    EXPECT_FALSE(control.addCode("x = 1\nDim a(" + repeat("1, ", 59) + "1)"));
    EXPECT_EQ(control.error().number, outOfMemory);
    EXPECT_EQ(control.error().line, 2U);
}

// ---- bytes that are no text -----------------------------------------------------------------------------------------

TEST_F(BadInput, everyByteAloneIsHandled) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(3, static_cast<char>(byte));
        control.addCode(text);
        EXPECT_TRUE(control.error().number == 0 || control.error().number >= 5) << byte;
        EXPECT_TRUE(control.addCode("x = \"" + std::string(1, static_cast<char>(byte == '"' ? 'a' : byte)) + "\"") ||
                    byte == '\n' || byte == '\r')
            << byte;
    }
}

TEST_F(BadInput, brokenUtf8BecomesReplacementCharacters) {
    for (const char* bytes : {"\xC3", "\xE2\x82", "\xF0\x9F\x98", "\x80", "\xC0\xAF", "\xF8\x88\x80\x80\x80", "\xFF"}) {
        EXPECT_TRUE(control.addCode("s = \"" + std::string(bytes) + "\"\nIf AscW(s) <> AscW(ChrW(65533)) Then x"))
            << bytes;
    }
}

TEST_F(BadInput, encodedAndLoneSurrogatesAreHandled) {
    EXPECT_EQ(errorOf("x = \"\xED\xA0\x80\""), 0);
    EXPECT_TRUE(control.addCode(std::u16string_view(u"x = \"\xD800\" : If Len(x) <> 1 Then Err.Raise 5")));
    EXPECT_FALSE(control.addCode(std::u16string_view(u"\xD800 = 1")));
    EXPECT_EQ(control.error().number, 1032);
    EXPECT_EQ(errorOf("x = UCase(ChrW(&HD800) & ChrW(&HDC00)) & StrReverse(ChrW(&HDBFF)) & Escape(ChrW(&HDFFF))"), 0);
}

// ---- endless --------------------------------------------------------------------------------------------------------

struct Endless {
    const char* name;
    const char* text;
    int number;
};

class EndlessText : public BadInput, public testing::WithParamInterface<Endless> {};

TEST_P(EndlessText, endsInItsError) {
    const bool endless = GetParam().number == timedOut;
    control.setTimeout(endless ? std::chrono::milliseconds(200) : patience);
    control.setMemoryCeiling(memoryMeter().used + (std::size_t{64} << 20));
    EXPECT_EQ(errorOf(GetParam().text), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(
    Recursion, EndlessText,
    testing::Values(
        Endless{"ofASub", "Sub s : s : End Sub\ns", 28},
        Endless{"ofAFunction", "Function f(n) : f = f(n + 1) : End Function\nx = f(1)", 28},
        Endless{"ofAProperty", "Class K : Property Get p : p = Me.p : End Property : End Class\nx = (New K).p", 28},
        Endless{"ofALet", "Class K : Property Let p(v) : Me.p = v : End Property : End Class\nSet o = New K\no.p = 1",
                28},
        Endless{"ofADefaultMember",
                "Class K : Public Default Property Get p : p = Me : End Property : End Class\nSet o = New K\nx = o",
                28},
        Endless{"ofInitialize",
                "Class K : Private o : Sub Class_Initialize : Set o = New K : End Sub : End Class\nSet x = New K", 28},
        Endless{"ofExecute", "Sub s : Execute \"s\" : End Sub\ns", 28},
        Endless{"ofExecuteGlobal", "Sub s : ExecuteGlobal \"s\" : End Sub\ns", 28},
        Endless{"ofEval", "Function f : f = Eval(\"f()\") : End Function\nx = f", 28},
        Endless{"ofEvalOfItself", "t = \"Eval(t)\"\nx = Eval(t)", 28},
        Endless{"ofAReference", "Function f(r) : f = r(r) : End Function\nx = f(GetRef(\"f\"))", 28},
        Endless{"ofACallback",
                "Function f(a, b, c)\nSet r = New RegExp : r.Pattern = \"x\"\nf = r.Replace(\"x\", GetRef(\"f\"))\nEnd "
                "Function\nx = f(1, 2, 3)",
                28}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Loop, EndlessText,
    testing::Values(
        Endless{"do_", "Do : Loop", timedOut}, Endless{"while_", "While True : Wend", timedOut},
        Endless{"forWithoutStep", "For i = 1 To 2 Step 0 : Next", timedOut},
        Endless{"forOfDoubles", "For i = 1e16 To 2e16 : Next", timedOut},
        Endless{"underResumeNext", "On Error Resume Next\nDo : x = 1 \\ 0 : Loop", timedOut},
        Endless{"ofCallsUnderResumeNext",
                "Sub s : On Error Resume Next : Do : t : Loop : End Sub\nSub t : Err.Raise 5 : End Sub\nOn Error "
                "Resume Next\nDo : s : Loop",
                timedOut},
        Endless{"inExecuteUnderResumeNext", "On Error Resume Next\nDo : Execute \"Do : Loop\" : Loop", timedOut},
        Endless{"inTerminate",
                "Class K : Sub Class_Terminate : Do : Loop : End Sub : End Class\nOn Error Resume Next\nSet o = New "
                "K\nSet o = Nothing\nDo : Loop",
                timedOut},
        Endless{"thatBringsObjectsBack",
                "Class K : Sub Class_Terminate : Set x = New K : End Sub : End Class\nDo : Set o = New K : Loop",
                timedOut},
        Endless{"ofANameSearch", "Do : x = InStr(String(100000, \"a\"), String(50000, \"a\") & \"b\") : Loop",
                timedOut},
        Endless{"ofRegularExpressions",
                "Set r = New RegExp : r.Pattern = \"(a+)+$\"\nOn Error Resume Next\nDo : x = r.Test(String(40, \"a\") "
                "& \"b\") : Loop",
                timedOut}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Growth, EndlessText,
    testing::Values(
        Endless{"ofATextByItself", "s = \"x\"\nDo : s = s & s : Loop", outOfMemory},
        Endless{"ofAnArray", "Dim a()\nn = 1\nDo : n = n * 2 : ReDim Preserve a(n) : Loop", outOfMemory},
        Endless{"ofADictionary",
                "Set d = CreateObject(\"Scripting.Dictionary\")\ns = String(100000, \"x\")\nDo : n = n + 1 : d.Add n, "
                "s & n : Loop",
                outOfMemory},
        Endless{"ofAList",
                "Class K : Public rest, load : End Class\nDo : Set k1 = New K : Set k1.rest = head : k1.load = "
                "String(10000, \"x\") : Set head = k1 : Loop",
                424},
        Endless{"string", "x = String(2000000000, \"x\")", outOfMemory},
        Endless{"space", "x = Space(2000000000)", outOfMemory},
        Endless{"replace", "s = String(100000, \"a\")\nx = Replace(s, \"a\", s)", outOfMemory},
        Endless{"join", "Dim a(100000)\nx = Join(a, String(10000, \"x\"))", outOfMemory},
        Endless{"split", "x = Split(String(10000000, \",\"), \",\")", outOfMemory},
        Endless{"redim", "ReDim a(2000000000)", outOfMemory},
        Endless{"redimOfThree", "ReDim a(1000, 1000, 1000)", outOfMemory},
        Endless{"redimOfProduct", "ReDim a(2147483646, 2147483646, 2147483646)", outOfMemory},
        Endless{"redimBeyondLong", "ReDim a(1e10)", 6}, Endless{"stringBeyondLong", "x = String(1e10, \"x\")", 6},
        Endless{
            "regexpReplace",
            "Set r = New RegExp : r.Pattern = \"a\" : r.Global = True\ns = String(100000, \"a\")\nx = r.Replace(s, s)",
            outOfMemory}),
    nameOf);

TEST_F(BadInput, errorSevenMayBeCaughtAndTheScriptGoesOn) {
    control.setMemoryCeiling(memoryMeter().used + (std::size_t{16} << 20));
    EXPECT_EQ(errorOf("On Error Resume Next\ns = \"x\"\nDo While Err.Number = 0 : s = s & s : Loop\n"
                      "If Err.Number <> 7 Then n = 1\nOn Error GoTo 0\nIf n = 1 Then Err.Raise 5"),
              0);
}

TEST_F(BadInput, arraysWithinArraysMeetTheCeilingAndAreFreed) {
    control.setMemoryCeiling(memoryMeter().used + (std::size_t{64} << 20));
    EXPECT_FALSE(control.addCode("a = Array()\nDo : a = Array(a) : Loop"));
    EXPECT_EQ(control.error().number, outOfMemory);
    const std::size_t full = memoryMeter().used;
    control.reset();
    EXPECT_LT(memoryMeter().used, full / 2);
}

TEST_F(BadInput, aDictionaryMayChangeWhileItIsWalked) {
    EXPECT_EQ(errorOf("Set d = CreateObject(\"Scripting.Dictionary\")\nFor i = 1 To 100 : d.Add i, i : Next\n"
                      "For Each k In d\nd.RemoveAll\nd.Add \"new\", 1\nNext"),
              0);
    EXPECT_EQ(errorOf("Set d = CreateObject(\"Scripting.Dictionary\")\nd.Add 1, 1\n"
                      "For Each k In d\nn = n + 1\nIf n < 1000 Then d.Add n + 1, 1\nSet d = Nothing\n"
                      "Set d = CreateObject(\"Scripting.Dictionary\")\nNext"),
              0);
}

TEST_F(BadInput, anArrayMayBeErasedWhileItIsWalked) {
    const int number = errorOf("Dim a()\nReDim a(9)\nFor Each v In a\nReDim a(1)\nErase a\nNext");
    EXPECT_TRUE(number == 0 || number == 10) << number;
}

} // namespace
