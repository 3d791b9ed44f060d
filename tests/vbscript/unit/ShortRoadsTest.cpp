// The machine does the commonest types on the spot; whatever way an operand comes by, the result must be the one of the
// operator's function, which takes every type.
#include "platform/vbscript/ScriptControl.h"
#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Errors.h"
#include "platform/vbscript/value/Operators.h"
#include "vbscript/unit/ShortRoadsScripts.h"

#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace vbs;

// What an operator gave: type and number as text, or the number of the error.
std::string described(Context& context, const Value& v) {
    const std::string type = std::to_string(static_cast<int>(v.type)) + ": ";
    return v.isNull() || v.isEmpty() ? type : type + toUtf8(toString(context, v).view());
}

// `bench.X` and `bench.Y` are the operands, `bench.Note road, value, error` compares what a road gave with what it
// should.
class Bench final : public NativeObject<Bench> {
public:
    static std::span<const Member> members() {
        static constexpr Member table[] = {
            {u"", nullptr, readOnly},
            {u"X", &Bench::getX, readOnly},
            {u"Y", &Bench::getY, readOnly},
            {u"Note", &Bench::note, readOnly, 3, 3},
            {u"Truth", &Bench::truth, readOnly, 3, 3},
        };
        return table;
    }
    std::u16string_view typeName() const override { return u"Bench"; }

    Value x;
    Value y;
    std::function<Value(Context&, const Value&, const Value&)> operation;
    std::string name;
    int notes = 0;

private:
    Value getX(Context& /*context*/, Access /*access*/, Arguments /*arguments*/) { return x; }
    Value getY(Context& /*context*/, Access /*access*/, Arguments /*arguments*/) { return y; }

    // The result that the operator's function gives, or its error.
    std::string expected(Context& context, bool asCondition) const {
        try {
            const Value result = operation(context, x, y);
            return asCondition ? (result.isNull()              ? "no"
                                  : toBoolean(context, result) ? "yes"
                                                               : "no")
                               : described(context, result);
        } catch (const ScriptError& error) {
            return "error " + std::to_string(error.number);
        }
    }
    void check(Context& context, Arguments arguments, bool asCondition) {
        ++notes;
        const std::string road = toUtf8(toString(context, arguments[0]).view());
        const std::int32_t error = toLong(context, arguments[2]);
        const std::string seen = error != 0    ? "error " + std::to_string(error)
                                 : asCondition ? toUtf8(toString(context, arguments[1]).view())
                                               : described(context, arguments[1]);
        EXPECT_EQ(seen, expected(context, asCondition))
            << described(context, x) << " " << name << " " << described(context, y) << " by " << road;
    }
    Value note(Context& context, Access /*access*/, Arguments arguments) {
        check(context, arguments, false);
        return {};
    }
    Value truth(Context& context, Access /*access*/, Arguments arguments) {
        check(context, arguments, true);
        return {};
    }
};

Value comparison(Context& context, const Value& a, const Value& b, const std::function<bool(Ordering)>& holds) {
    const Ordering order = compare(context, a, b);
    return order == Ordering::Null ? Value::null() : Value::ofBoolean(holds(order));
}

struct Operation {
    const char* sign;
    std::function<Value(Context&, const Value&, const Value&)> function;
    bool isComparison = false;
};

std::vector<Operation> operations() {
    const auto compares = [](std::function<bool(Ordering)> holds) {
        return [holds = std::move(holds)](Context& c, const Value& a, const Value& b) {
            return comparison(c, a, b, holds);
        };
    };
    return {
        {"+", add},
        {"-", subtract},
        {"*", multiply},
        {"/", divide},
        {"\\", integerDivide},
        {"Mod", modulo},
        {"And", logicalAnd},
        {"Or", logicalOr},
        {"Xor", logicalXor},
        {"=", compares([](Ordering o) { return o == Ordering::Equal; }), true},
        {"<>", compares([](Ordering o) { return o != Ordering::Equal; }), true},
        {"<", compares([](Ordering o) { return o == Ordering::Less; }), true},
        {">", compares([](Ordering o) { return o == Ordering::Greater; }), true},
        {"<=", compares([](Ordering o) { return o == Ordering::Less || o == Ordering::Equal; }), true},
        {">=", compares([](Ordering o) { return o == Ordering::Greater || o == Ordering::Equal; }), true},
    };
}

// The borders of the types, and what belongs to no short road.
std::vector<Value> operands() {
    std::vector<Value> all;
    for (const int n : {0, 1, -1, 2, 3, 7, -7, 127, 128, -128, -129, 255, 256, 32767, -32768}) {
        all.push_back(Value::ofInteger(static_cast<std::int16_t>(n)));
    }
    for (const std::int32_t n : {0, 1, -1, 7, 32767, 32768, -32768, -32769, 65535, 65536,
                                 std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
        all.push_back(Value::ofLong(n));
    }
    for (const double d : {0.0, -0.0, 0.5, -2.5, 7.0, 32768.0, 2147483647.5, -2147483649.0, 1e300, -1e300,
                           std::numeric_limits<double>::max(), std::numeric_limits<double>::min()}) {
        all.push_back(Value::ofDouble(d));
    }
    all.insert(all.end(), {Value::null(), Value::empty(), Value::ofBoolean(true), Value::ofBoolean(false),
                           Value::ofByte(200), Value::ofSingle(1.5), Value::ofDate(43831.25), Value::ofCurrency(12345),
                           Value::ofString(u"7"), Value::ofString(u"b"), Value::ofString(u"B"), Value::ofString(u""),
                           Value::ofString(u"the same text"), Value::ofString(u"the same texts")});
    return all;
}

// Those that the others meet: a third of the borders, and everything that is no number.
std::vector<Value> partners() {
    const std::vector<Value> all = operands();
    std::vector<Value> some;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (i % 3 == 0 || all[i].type > Type::Double) {
            some.push_back(all[i]);
        }
    }
    return some;
}

class ShortRoads : public ::testing::Test {
protected:
    ShortRoads() { control.addObject(u"bench", Ref<Object>(bench.get())); }

    void run(const std::string& text) {
        ASSERT_TRUE(control.addCode(text))
            << toUtf8(control.error().description) << " in line " << control.error().line << " of\n"
            << text;
    }

    Host host;
    Ref<Bench> bench = makeObject<Bench>();
    ScriptControl control{host};
};

// A text with the sign of an operator in place of every @, and a number in place of every #.
std::string filledIn(std::string text, const std::string& sign, const std::string& number = "") {
    for (const auto& [mark, with] : {std::pair{'@', sign}, std::pair{'#', number}}) {
        for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + with.size())) {
            text.replace(at, 1, with);
        }
    }
    return text;
}

TEST_F(ShortRoads, everyOperatorGivesTheSameFromEveryPlace) {
    const std::vector<Value> all = operands();
    const std::vector<Value> others = partners();
    for (const Operation& operation : operations()) {
        bench->name = operation.sign;
        bench->operation = operation.function;
        const std::string values = filledIn(valuesOfEveryPlace, operation.sign);
        for (const Value& x : all) {
            for (const Value& y : others) {
                bench->x = x;
                bench->y = y;
                bench->notes = 0;
                ASSERT_NO_FATAL_FAILURE(run(values));
                ASSERT_EQ(bench->notes, 9);
            }
        }
    }
}

TEST_F(ShortRoads, everyConditionHoldsOrNotFromEveryPlace) {
    const std::vector<Value> all = operands();
    const std::vector<Value> others = partners();
    for (const Operation& operation : operations()) {
        if (!operation.isComparison && std::string(operation.sign) != "And") {
            continue;
        }
        bench->name = operation.sign;
        bench->operation = operation.function;
        const std::string conditions = filledIn(conditionsOfEveryPlace, operation.sign);
        for (const Value& x : all) {
            for (const Value& y : others) {
                bench->x = x;
                bench->y = y;
                bench->notes = 0;
                const bool good = control.addCode(conditions);
                ASSERT_TRUE(good || bench->notes == 4) << "only the loops may fail, which have no On Error";
                ASSERT_TRUE(!good || bench->notes == 6);
            }
        }
    }
}

TEST_F(ShortRoads, aSmallNumberOnTheRightIsAnInteger) {
    for (const Operation& operation : operations()) {
        bench->name = operation.sign;
        bench->operation = operation.function;
        for (const int number : {0, 1, 2, 7, 8, 127, -1, -128, 128, -129}) {
            const std::string text =
                filledIn(operation.isComparison ? conditionsBesideASmallNumber : besideASmallNumber, operation.sign,
                         std::to_string(number));
            bench->y = Value::ofInteger(static_cast<std::int16_t>(number));
            for (const Value& x : operands()) {
                if (operation.isComparison && x.isString()) {
                    continue; // beside a literal a text counts as a number
                }
                bench->x = x;
                bench->notes = 0;
                ASSERT_NO_FATAL_FAILURE(run(text));
                ASSERT_EQ(bench->notes, operation.isComparison ? 3 : 5);
            }
        }
    }
}

TEST_F(ShortRoads, anObjectCountsAsItsDefaultMember) {
    bench->x = Value::ofInteger(32767);
    bench->y = Value::ofInteger(1);
    for (const Operation& operation : operations()) {
        bench->name = operation.sign;
        bench->operation = operation.function;
        bench->notes = 0;
        ASSERT_NO_FATAL_FAILURE(run(filledIn(R"vbs(
Class Box
  Public Held
  Public Default Property Get Value
    Value = Held
  End Property
End Class
Sub Locals
  Dim a, b, z
  Set a = New Box
  a.Held = bench.X
  Set b = New Box
  b.Held = bench.Y
  z = a @ b
  bench.Note "two objects", z, 0
  z = a @ 1
  bench.Note "an object and a small number", z, 0
  z = "no"
  If a @ b Then z = "yes"
  bench.Truth "a condition", z, 0
End Sub
Locals
)vbs",
                                             operation.sign)));
        ASSERT_EQ(bench->notes, 3);
    }
}

// Where a counter leaves the type that it began with.
TEST_F(ShortRoads, aCounterWidensAtTheBordersOfItsType) {
    bench->operation = [](Context&, const Value& /*x*/, const Value& y) { return y; };
    bench->y = Value::ofLong(32769);
    run("Sub a\nDim i\nFor i = 32766 To 32768\nNext\nbench.Note \"For\", i, 0\nEnd Sub\na");
    run("For i = 32766 To 32768\nNext\nbench.Note \"For on a global\", i, 0");
    run("Sub a\nDim i, n\nFor i = 32765 To 32768 Step 2\nNext\nbench.Note \"Step\", i, 0\nEnd Sub\na");
    bench->y = Value::ofDouble(2147483648.0);
    run("Sub a\nDim i\nFor i = 2147483646 To 2147483647\nNext\nbench.Note \"For\", i, 0\nEnd Sub\na");
    run("Sub a\nDim i\ni = 2147483647\ni = i + 1\nbench.Note \"+ 1\", i, 0\nEnd Sub\na");
    bench->y = Value::ofLong(-32769);
    run("Sub a\nDim i\nFor i = -32767 To -32768 Step -1\nNext\nbench.Note \"Step -1\", i, 0\nEnd Sub\na");
    run("Sub a\nDim i\ni = -32768\ni = i - 1\nbench.Note \"- 1\", i, 0\nEnd Sub\na");
    EXPECT_EQ(bench->notes, 7);
}

} // namespace
