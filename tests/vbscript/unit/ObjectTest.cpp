// A host object that uses the objects of scripts by the names of their members, as it would any other object's.
#include "platform/vbscript/Object.h"

#include "platform/vbscript/ScriptControl.h"
#include "platform/vbscript/value/Convert.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using namespace vbs;

// Get, Call, Let and Set take an object, the name of a member and its arguments (with the value at the end).
class User final : public NativeObject<User> {
public:
    static std::span<const Member> members() {
        static constexpr Member table[] = {
            {u"", nullptr, readOnly, 0, 0},
            {u"Get", &User::use<Access::Get>, readOnly, 2, 9},
            {u"Call", &User::use<Access::Call>, readOnly, 2, 9},
            {u"Let", &User::use<Access::Let>, readOnly, 3, 9},
            {u"Set", &User::use<Access::Set>, readOnly, 3, 9},
            {u"Put", &User::put, readOnly, 1, 1},
        };
        return table;
    }
    std::u16string_view typeName() const override { return u"User"; }

    std::string seen;

private:
    template <Access access>
    Value use(Context& context, Access /*access*/, Arguments arguments) {
        const Value object = arguments[0];
        const String name = toString(context, arguments[1]);
        return object.object()->invoke(context, object.object()->resolve(name.view()), access, arguments.subspan(2));
    }
    Value put(Context& context, Access /*access*/, Arguments arguments) {
        seen += toUtf8(toString(context, arguments[0]).view()) + ";";
        return {};
    }
};

struct ObjectTest : testing::Test {
    ObjectTest() {
        control.addObject(u"host", Ref<Object>(user.get()));
        EXPECT_TRUE(control.addCode(R"(
Class Thing
    Public first, second, list(2)
    Private hidden
    Public Property Get Doubled(n)
        Doubled = n * 2
    End Property
    Public Property Let Kept(i, v)
        hidden = i & ":" & v
    End Property
    Public Property Set Linked(v)
        Set hidden = v
    End Property
    Public Property Get Held
        If IsObject(hidden) Then Set Held = hidden Else Held = hidden
    End Property
    Public Function Sum(a, b)
        Sum = a + b
    End Function
End Class
Set o = New Thing
o.first = 1
o.second = 2
o.list(1) = 3)"))
            << control.error().number;
    }
    std::string put(const std::string& expressions) {
        user->seen.clear();
        EXPECT_TRUE(control.addCode(expressions)) << control.error().number;
        return user->seen;
    }
    // The error that the statement ends in.
    int error(const std::string& statement) {
        EXPECT_FALSE(control.addCode(statement));
        return control.error().number;
    }

    Host host;
    ScriptControl control{host};
    Ref<User> user = makeObject<User>();
};

TEST_F(ObjectTest, readsFieldsAndTheirElements) {
    EXPECT_EQ(put(R"(host.put host.get(o, "First"): host.put host.get(o, "second"): host.put host.get(o, "LIST", 1))"),
              "1;2;3;");
    EXPECT_EQ(put(R"(host.put UBound(host.get(o, "list")): host.put host.call(o, "first"))"), "2;1;");
    EXPECT_EQ(error(R"(x = host.get(o, "first", 1))"), 13);
    EXPECT_EQ(error(R"(x = host.get(o, "list", 3))"), 9);
}

TEST_F(ObjectTest, writesFieldsAndTheirElements) {
    EXPECT_EQ(put(R"(host.let o, "first", 7: host.let o, "list", 2, 8: host.put o.first: host.put o.list(2))"), "7;8;");
    EXPECT_EQ(put(R"(host.set o, "second", o: host.put TypeName(o.second): Set o.second = Nothing)"), "Thing;");
    EXPECT_EQ(error(R"(host.let o, "first", 0, 1)"), 13);
}

TEST_F(ObjectTest, callsMethodsAndProperties) {
    EXPECT_EQ(put(R"(host.put host.call(o, "sum", 3, 4): host.put host.get(o, "sum", 5, 6))"), "7;11;");
    EXPECT_EQ(put(R"(host.put host.get(o, "doubled", 21): host.let o, "kept", 3, "v": host.put host.get(o, "held"))"),
              "42;3:v;");
    EXPECT_EQ(put(R"(host.set o, "linked", New Thing: host.put TypeName(host.get(o, "held")))"), "Thing;");
    EXPECT_EQ(error(R"(x = host.get(o, "sum", 1))"), 450);
}

TEST_F(ObjectTest, isRefusedWhatTheClassHasNot) {
    EXPECT_EQ(error(R"(x = host.get(o, "nothingSuch"))"), 438);
    EXPECT_EQ(error(R"(host.let o, "doubled", 1, 2)"), 438);
    EXPECT_EQ(error(R"(host.let o, "linked", o)"), 438);
    EXPECT_EQ(error(R"(host.set o, "kept", 1, o)"), 438);
    EXPECT_EQ(error(R"(host.let o, "sum", 1, 2, 3)"), 438);
}

TEST_F(ObjectTest, usesTheObjectsOfTheLanguageToo) {
    EXPECT_EQ(put(R"(Set d = CreateObject("Scripting.Dictionary"): host.call d, "add", "k", 5: host.put d("k"))"),
              "5;");
    EXPECT_EQ(put(R"(host.put host.get(d, "Item", "k"): host.let d, "item", "j", 6: host.put host.get(d, "count"))"),
              "5;2;");
    EXPECT_EQ(put(R"(host.let New RegExp, "pattern", "x": total = 3: host.put host.get(Me, "total"))"), "3;");
    EXPECT_EQ(put(R"(host.let Me, "total", 4: host.put total: host.put host.get(Me, "o").first)"), "4;1;");
}

} // namespace
