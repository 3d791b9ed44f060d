#include "script/ParejasCodigo.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using Partes = std::vector<std::u16string>;

// What belongs together with the place that "|" marks in the text.
Partes partes(std::u16string texto) {
    const std::size_t lugar = texto.find(u'|');
    texto.erase(lugar, 1);
    Partes resultado;
    for (const Tramo& tramo : parejasEn(texto, lugar))
        resultado.push_back(texto.substr(tramo.inicio, tramo.largo));
    return resultado;
}

TEST(ParejasCodigo, blocksFromEveryOneOfTheirWords) {
    const Partes todas{u"If", u"Then", u"ElseIf", u"Else", u"End If"};
    EXPECT_EQ(partes(u"|If a Then\nElseIf b Then\nElse\nEnd If"), todas);
    EXPECT_EQ(partes(u"If a Then|\nElseIf b Then\nElse\nEnd If"), todas);
    EXPECT_EQ(partes(u"If a Then\nElse|If b Then\nElse\nEnd If"), todas);
    EXPECT_EQ(partes(u"If a Then ' nota\nElseIf b Then\nElse\nEnd |If"), todas);
}

TEST(ParejasCodigo, everyKindOfBlock) {
    EXPECT_EQ(partes(u"|For i = 1 To 2\nNext"), (Partes{u"For", u"Next"}));
    EXPECT_EQ(partes(u"Do Until a\nLo|op"), (Partes{u"Do", u"Loop"}));
    EXPECT_EQ(partes(u"While a\n|Wend"), (Partes{u"While", u"Wend"}));
    EXPECT_EQ(partes(u"Select Case a\n|Case 1\nEnd Select"), (Partes{u"Select", u"Case", u"End Select"}));
    EXPECT_EQ(partes(u"|With a\nEnd With"), (Partes{u"With", u"End With"}));
    EXPECT_EQ(partes(u"Private |Sub f\nEnd Sub"), (Partes{u"Sub", u"End Sub"}));
    EXPECT_EQ(partes(u"Public Default |Function f\nEnd  Function"), (Partes{u"Function", u"End  Function"}));
    EXPECT_EQ(partes(u"Class c\nProperty Get p\nEnd Property\n|End Class"), (Partes{u"Class", u"End Class"}));
    EXPECT_EQ(partes(u"Class c\n|Property Get p\nEnd Property\nEnd Class"), (Partes{u"Property", u"End Property"}));
}

TEST(ParejasCodigo, nestedBlocksAreKeptApart) {
    const std::u16string texto = u"For i = 1 To 2\nFor j = 1 To 2\nNext\nNext";
    EXPECT_EQ(parejasEn(texto, 0), (std::vector<Tramo>{{0, 3}, {35, 4}}));
    EXPECT_EQ(parejasEn(texto, 16), (std::vector<Tramo>{{15, 3}, {30, 4}}));
}

TEST(ParejasCodigo, ifOnOneLineIsNoBlock) {
    EXPECT_EQ(partes(u"|If a Then b = 1 Else c = 2"), Partes());
    EXPECT_EQ(partes(u"|If a Then\nIf b Then c = 1 Else d = 2\nEnd If"), (Partes{u"If", u"Then", u"End If"}));
    EXPECT_EQ(partes(u"|For i = 1 To 2\nIf a Then For j = 1 To 2 : Next\nNext"), (Partes{u"For", u"Next"}));
}

TEST(ParejasCodigo, statementsBehindColonsCount) {
    EXPECT_EQ(partes(u"|For i = 1 To 2 : x = i : Next"), (Partes{u"For", u"Next"}));
}

TEST(ParejasCodigo, continuedLineIsOneStatement) {
    EXPECT_EQ(partes(u"|If a _\n And b Then\nEnd If"), (Partes{u"If", u"Then", u"End If"}));
}

TEST(ParejasCodigo, brackets) {
    EXPECT_EQ(parejasEn(u"a = f(g(1), 2)", 5), (std::vector<Tramo>{{5, 1}, {13, 1}}));
    EXPECT_EQ(parejasEn(u"a = f(g(1), 2)", 10), (std::vector<Tramo>{{7, 1}, {9, 1}}));
    EXPECT_EQ(partes(u"a = |(1\nb = 2)"), Partes());
    EXPECT_EQ(partes(u"a = \"|(\" & (1)"), Partes());
}

TEST(ParejasCodigo, nothingWithoutAPartner) {
    for (const char16_t* texto : {u"|If a Then", u"|Next", u"|)", u"|", u"a|b", u"' |For\nNext", u"Exit |For",
                                  u"o.|Next", u"\"|Do\"\nLoop", u"|End", u"|End 5"})
        EXPECT_EQ(partes(texto), Partes());
}

TEST(ParejasCodigo, blockLeftOpenDoesNotHideTheOneAround) {
    EXPECT_EQ(partes(u"|Sub f\nIf a Then\nEnd Sub"), (Partes{u"Sub", u"End Sub"}));
    EXPECT_EQ(partes(u"Sub f\n|If a Then\nEnd Sub"), Partes());
}

TEST(ParejasCodigo, cheapQuestionSaysYesWhereThereIsAPair) {
    EXPECT_TRUE(puedeTenerPareja(u"  If a Then", 2));
    EXPECT_TRUE(puedeTenerPareja(u"  If a Then", 4));
    EXPECT_TRUE(puedeTenerPareja(u"f(x)", 1));
    EXPECT_TRUE(puedeTenerPareja(u"f(x)", 4));
    EXPECT_FALSE(puedeTenerPareja(u"f(xy)", 3));
    EXPECT_FALSE(puedeTenerPareja(u"Dim a", 1));
    EXPECT_FALSE(puedeTenerPareja(u"", 0));
    EXPECT_FALSE(puedeTenerPareja(u"ab", 99));
}

} // namespace
