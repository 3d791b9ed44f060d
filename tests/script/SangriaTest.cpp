#include "script/Sangria.h"

#include <gtest/gtest.h>
#include <utility>

namespace {

// What a line closes and opens.
std::pair<int, int> de(std::u16string_view linea) {
    const EfectoLinea efecto = efectoDeLinea(linea);
    return {efecto.cierra, efecto.abre};
}
using Par = std::pair<int, int>;

TEST(Sangria, openers) {
    for (const char16_t* linea :
         {u"If a Then", u"  if a then ' nota", u"For i = 1 To 2", u"For Each x In y", u"Do", u"Do While a", u"While a",
          u"With a", u"Sub f", u"Function f(x)", u"Private Sub f", u"Public Default Function f", u"Class c",
          u"Property Get p", u"Public Property Let p(x)"})
        EXPECT_EQ(de(linea), Par(0, 1)) << std::string(linea, linea + std::char_traits<char16_t>::length(linea));
}

TEST(Sangria, closers) {
    for (const char16_t* linea : {u"End If", u"Next", u"Next i", u"Loop", u"Loop Until a", u"Wend", u"End Sub",
                                  u"End Function", u"End With", u"End Class", u"End Property"})
        EXPECT_EQ(de(linea), Par(1, 0)) << std::string(linea, linea + std::char_traits<char16_t>::length(linea));
}

TEST(Sangria, elseClosesAndOpens) {
    EXPECT_EQ(de(u"Else"), Par(1, 1));
    EXPECT_EQ(de(u"ElseIf a Then"), Par(1, 1));
    EXPECT_EQ(de(u"Case 1, 2"), Par(1, 1));
}

TEST(Sangria, selectHoldsItsCases) {
    EXPECT_EQ(de(u"Select Case a"), Par(0, 2));
    EXPECT_EQ(de(u"End Select"), Par(2, 0));
}

TEST(Sangria, linesWithoutEffect) {
    for (const char16_t* linea :
         {u"", u"a = 1", u"If a Then b = 1", u"Exit For", u"Exit Sub", u"' For", u"Rem Sub", u"x = \"Do\"", u"Public a",
          u"Dim ende", u"o.Next", u"On Error Resume Next", u"End", u"End x", u"End Su"})
        EXPECT_EQ(de(linea), Par(0, 0)) << std::string(linea, linea + std::char_traits<char16_t>::length(linea));
}

TEST(Sangria, blockWithinOneLineHasNoEffect) {
    EXPECT_EQ(de(u"For i = 1 To 2 : a = a + i : Next"), Par(0, 0));
    EXPECT_EQ(de(u"Do : Loop"), Par(0, 0));
}

TEST(Sangria, garbageIsHarmless) {
    EXPECT_EQ(de(u"\"sin cerrar"), Par(0, 0));
    EXPECT_EQ(de(u"#@\x01 End"), Par(0, 0));
}

} // namespace
