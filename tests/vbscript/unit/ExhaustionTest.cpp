// Memory that runs out in the middle of a text, at every allocation in turn: the text fails, nothing is lost or freed
// twice, and the next text finds the engine as it was. A program of its own, since it replaces operator new.
#include "platform/vbscript/ScriptControl.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <new>
#include <string>

namespace {

constinit long allocationsLeft = -1; // until one fails; below zero none does
constinit bool failed = false;

bool fails() noexcept {
    if (allocationsLeft == 0) {
        failed = true;
        allocationsLeft = -1;
        return true;
    }
    allocationsLeft -= allocationsLeft > 0 ? 1 : 0;
    return false;
}

} // namespace

// The linker sends every call of malloc and realloc here (--wrap); these names are its own, reserved or not.
extern "C" {
void* __real_malloc(std::size_t size);                // NOLINT(bugprone-reserved-identifier)
void* __real_realloc(void* memory, std::size_t size); // NOLINT(bugprone-reserved-identifier)
void* __wrap_malloc(std::size_t size) {               // NOLINT(bugprone-reserved-identifier)
    return fails() ? nullptr : __real_malloc(size);
}
void* __wrap_realloc(void* memory, std::size_t size) { // NOLINT(bugprone-reserved-identifier)
    return fails() ? nullptr : __real_realloc(memory, size);
}
}

namespace {

void* allocate(std::size_t size) {
    void* memory = std::malloc(size != 0 ? size : 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace

void* operator new(std::size_t size) {
    return allocate(size);
}
void* operator new[](std::size_t size) {
    return allocate(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace {

using namespace vbs;

class Exhaustion : public testing::TestWithParam<const char*> {
protected:
    Host host;
};

// The text runs in a fresh engine again and again, the n-th allocation of the run failing, until none is left to fail.
TEST_P(Exhaustion, anywhereInATextLeavesTheEngineUsable) {
    long runs = 0;
    for (bool reached = true; reached; ++runs) {
        ScriptControl control(host);
        ASSERT_TRUE(control.addCode("Dim kept, list(2), seen : kept = 7\n"
                                    "Class K : Public v, other : Public Default Property Get d : d = v : End Property\n"
                                    "Private Sub Class_Terminate : seen = seen + 1 : End Sub : End Class\n"
                                    "Sub grow(a) : a = a & \"x\" : End Sub"));
        failed = false;
        allocationsLeft = runs;
        const bool ran = control.addCode(GetParam());
        allocationsLeft = -1;
        reached = failed;
        if (!ran) {
            ASSERT_EQ(control.error().number, 7) << "at allocation " << runs;
        }
        ASSERT_TRUE(control.addCode("If kept <> 7 Or UBound(list) <> 2 Then Err.Raise 1\n"
                                    "Set o = New K : o.v = \"a\" & kept : If o <> \"a7\" Then Err.Raise 2\n"
                                    "Set o = Nothing : If seen < 1 Then Err.Raise 3\n"
                                    "For Each x In list : x = 1 : Next"))
            << "after allocation " << runs << ": " << control.error().number;
        ASSERT_TRUE(control.addCode(GetParam())) << "after allocation " << runs << ": " << control.error().number;
        ASSERT_EQ(control.error().number, 0);
    }
    EXPECT_GT(runs, 5);
}

INSTANTIATE_TEST_SUITE_P(
    Of, Exhaustion,
    testing::Values(
        "s = \"a\" : For i = 1 To 20 : s = s & i & \"-\" : Next : t = Replace(UCase(s), \"-\", \"+\")",
        "Dim a : a = Array(1, \"zwei\", Array(3)) : b = a : b(0) = 2 : ReDim Preserve b(9) : c = Split(\"a b c\")",
        "Set d = CreateObject(\"Scripting.Dictionary\") : For i = 1 To 20 : d.Add \"k\" & i, Array(i) : Next : "
        "all = d.Keys : d.Remove \"k3\"",
        "Set p = New K : Set p.other = New K : p.v = String(50, \"x\") : Set p = Nothing",
        "Sub deep(n) : Dim l : l = \"t\" & n : If n > 0 Then deep n - 1\nEnd Sub : deep 10",
        "Execute \"Sub inner : fresh = 1 : End Sub : inner\" : y = Eval(\"1 + 2 & \"\"z\"\"\")",
        "Sub outer : Execute \"Function f1 : f1 = \"\"q\"\" : End Function : Const c1 = 3 : Dim v1 : v1 = 4\" : "
        "z = f1 & v1 : End Sub : outer",
        "Set r = New RegExp : r.Pattern = \"(a+)(b)?\" : r.Global = True : Set m = r.Execute(\"aab ab a\") : "
        "u = m(0).SubMatches(0) & r.Replace(\"aab\", \"$2$1\")",
        "Dim e(1) : e(0) = \"m\" : grow e(0) : grow kept2 : Set g = GetRef(\"grow\") : g \"x\"",
        "w = FormatNumber(12345.678, 2) & FormatDateTime(#1/2/2020#) & CStr(CDate(\"1/2/2020\")) & Join(Array(1, 2))",
        "For Each x In Array(\"a\" & 1, \"b\" & 2) : h = h & x : Next : With New K : .v = \"w\" & h : End With"));

TEST(ExhaustionWhileFailing, isErrorSevenAsWell) {
    Host host;
    for (const char* text : {"x = 1 \\ 0", "x = = 1", "Err.Raise 1000, \"a source of its own\", \"and a text\""}) {
        failed = true;
        for (long runs = 0; failed; ++runs) {
            ScriptControl control(host);
            failed = false;
            allocationsLeft = runs;
            ASSERT_FALSE(control.addCode(text));
            allocationsLeft = -1;
            EXPECT_TRUE(!failed || control.error().number == 7 || !control.error().description.empty());
            EXPECT_NE(control.error().number, 0);
            ASSERT_TRUE(control.addCode("x = 1"));
        }
    }
}

} // namespace
