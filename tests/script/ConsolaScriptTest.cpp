#include "script/ConsolaScript.h"

#include "platform/vbscript/ScriptControl.h"
#include "script/ResumenValor.h"

#include <gtest/gtest.h>
#include <map>
#include <string>

namespace {

class FixedClock final : public vbs::Host {
public:
    vbs::LocalTime now() override { return {2026, 5, 17, 9, 8, 7, 0}; }
};

struct Console : testing::Test {
    FixedClock host;
    vbs::Ref<ConsolaScript> consola = vbs::makeObject<ConsolaScript>();
    vbs::ScriptControl engine{host};

    Console() { engine.addObject(u"WScript", vbs::Ref<vbs::Object>(consola.get())); }

    void run(std::u16string_view text) {
        ASSERT_TRUE(engine.addCode(text)) << engine.error().number << " in line " << engine.error().line;
    }
    // The last line, without the time.
    std::u16string last() const { return consola->lineas().empty() ? u"-" : consola->lineas().back().substr(10); }
    std::size_t size() const {
        std::size_t all = 0;
        for (const std::u16string& line : consola->lineas())
            all += line.size() + 1;
        return all;
    }
};

TEST_F(Console, lineBearsTheTimeOfDay) {
    run(u"WScript.Echo \"hola\"");
    ASSERT_EQ(consola->lineas().size(), 1U);
    EXPECT_EQ(consola->lineas()[0], u"09:08:07  hola");
}

TEST_F(Console, valuesStandSideBySide) {
    run(u"WScript.Echo \"nivel\", 5, True, Empty, Null, 1.5");
    EXPECT_EQ(last().substr(0, 8), u"nivel 5 ");
    EXPECT_NE(last().find(u" Null"), std::u16string::npos);
}

TEST_F(Console, nothingGivesAnEmptyLine) {
    run(u"WScript.Echo");
    EXPECT_EQ(last(), u"");
}

TEST_F(Console, whatHasNoTextIsToldByItsType) {
    run(u"Dim a(9, 4) : WScript.Echo a");
    EXPECT_EQ(last(), u"Variant(): 10 x 5 elementos");
    run(u"WScript.Echo Nothing");
    EXPECT_EQ(last(), u"Nothing");
    run(u"Set d = CreateObject(\"Scripting.Dictionary\") : d.Add 1, 2 : WScript.Echo d");
    EXPECT_EQ(last(), u"Dictionary: 1 clave");
    run(u"Class Punto\nEnd Class\nWScript.Echo New Punto");
    EXPECT_EQ(last(), u"Punto");
}

TEST_F(Console, objectWithAValueGivesIt) {
    run(u"Class Valor\nPublic Default Property Get V\nV = 7\nEnd Property\nEnd Class\nWScript.Echo New Valor");
    EXPECT_EQ(last(), u"7");
}

TEST_F(Console, everyLineOfATextIsOne) {
    run(u"WScript.Echo \"a\" & vbCrLf & \"b\" & vbLf & \"c\"");
    ASSERT_EQ(consola->lineas().size(), 3U);
    EXPECT_EQ(consola->lineas()[1], u"09:08:07  b");
}

TEST_F(Console, keepsNoMoreThanItsLimitAndDropsTheOldest) {
    run(u"For i = 1 To 20000 : WScript.Echo i : Next");
    EXPECT_LE(size(), ConsolaScript::maximo);
    EXPECT_GT(size(), ConsolaScript::maximo - 20);
    EXPECT_EQ(last(), u"20000");
    EXPECT_EQ(consola->idas() + consola->lineas().size(), 20000U);
}

TEST_F(Console, hugeTextIsCutOff) {
    run(u"WScript.Echo String(1000000, \"x\"), \"y\"");
    EXPECT_EQ(consola->lineas().back().size(), ConsolaScript::maximoLinea);
    EXPECT_EQ(consola->lineas().back().back(), u'…');
}

TEST_F(Console, clearingCountsTheLinesAsGone) {
    run(u"WScript.Echo 1 : WScript.Echo 2");
    consola->borrar();
    EXPECT_TRUE(consola->lineas().empty());
    EXPECT_EQ(consola->idas(), 2U);
    run(u"WScript.Echo 3");
    EXPECT_EQ(last(), u"3");
}

TEST(UsoDeWScript, tellsUseOfMembersFromNamesOfOnesOwn) {
    EXPECT_EQ(usoDeWScript(u"a = 1 ' WScript = 2"), UsoDeWScript::Ninguno);
    EXPECT_EQ(usoDeWScript(u"x = \"WScript\" : o.WScript = 1"), UsoDeWScript::Ninguno);
    EXPECT_EQ(usoDeWScript(u"WScript.Echo 1\nwscript.echo 2"), UsoDeWScript::Miembros);
    for (const char16_t* text : {u"WScript = 5", u"Dim WScript", u"Sub WScript\nEnd Sub", u"Set WScript = New C",
                                 u"For Each WScript In a", u"WScript(1) = 2", u"WScript.Echo 1 : WScript = 2",
                                 u"x = WScript", u"With a : WScript .b : End With", u"WScript"})
        EXPECT_EQ(usoDeWScript(text), UsoDeWScript::Propio);
}

// What a script's value looks like.
struct Summary : testing::Test {
    vbs::Host host;
    vbs::ScriptControl engine{host};

    std::pair<std::u16string, std::u16string> of(std::u16string_view text) {
        EXPECT_TRUE(engine.addCode(text));
        std::pair<std::u16string, std::u16string> result;
        engine.globals([&](std::u16string_view name, const vbs::Value& value, vbs::Context& context) {
            if (name == u"x") {
                const ResumenValor resumen = resumirValor(context, value);
                result = {resumen.tipo, resumen.valor};
            }
        });
        return result;
    }
    using Pair = std::pair<std::u16string, std::u16string>;
};

TEST_F(Summary, tellsTypeAndValue) {
    EXPECT_EQ(of(u"Dim x"), Pair(u"Empty", u""));
    EXPECT_EQ(of(u"x = 5"), Pair(u"Integer", u"5"));
    EXPECT_EQ(of(u"x = \"a\" & vbLf & \"b\""), Pair(u"String", u"\"a b\""));
    EXPECT_EQ(of(u"x = Null"), Pair(u"Null", u"Null"));
    EXPECT_EQ(of(u"x = Array()"), Pair(u"Variant()", u"0 elementos"));
    EXPECT_EQ(of(u"x = Array(1)"), Pair(u"Variant()", u"1 elemento"));
    EXPECT_EQ(of(u"Set x = Nothing"), Pair(u"Nothing", u""));
    EXPECT_EQ(of(u"Set x = New RegExp"), Pair(u"IRegExp2", u""));
    EXPECT_EQ(of(u"Set x = CreateObject(\"Scripting.Dictionary\")"), Pair(u"Dictionary", u"0 claves"));
}

TEST_F(Summary, longTextIsCutOff) {
    EXPECT_EQ(of(u"x = String(1000000, \"y\")").second.size(), ResumenValor::maximo + 2);
}

TEST_F(Summary, runsNothingOfTheScript) {
    of(u"Class C\nPublic Default Property Get V\nran = ran + 1\nV = 1\nEnd Property\nEnd Class\nran = 0\nSet x = New "
       u"C");
    std::map<std::u16string, std::u16string> values;
    engine.globals([&](std::u16string_view name, const vbs::Value& value, vbs::Context& context) {
        values[std::u16string(name)] = resumirValor(context, value).valor;
    });
    EXPECT_EQ(values[u"ran"], u"0");
}

} // namespace
