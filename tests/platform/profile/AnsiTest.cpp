#include "platform/profile/Ansi.h"

#include <gtest/gtest.h>

TEST(Ansi, accentedLettersAreOneByte) {
    EXPECT_EQ(ansiDeUtf8("año Ü"), "a\xF1o \xDC");
    EXPECT_EQ(utf8DeAnsi("a\xF1o \xDC"), "año Ü");
}

TEST(Ansi, theBlockFrom80To9FHasItsOwnCharacters) {
    EXPECT_EQ(ansiDeUtf8("€Š™Ÿ"), "\x80\x8A\x99\x9F");
    EXPECT_EQ(utf8DeAnsi("\x80\x8A\x99\x9F"), "€Š™Ÿ");
}

TEST(Ansi, everyByteSurvivesTheWayThereAndBack) {
    for (int codigo = 0; codigo < 256; ++codigo) {
        const std::string byte(1, static_cast<char>(codigo));
        EXPECT_EQ(ansiDeUtf8(utf8DeAnsi(byte)), byte) << codigo;
    }
}

TEST(Ansi, aCharacterWithoutACodeBecomesAQuestionMark) {
    std::size_t perdidos = 0;
    EXPECT_EQ(ansiDeUtf8("a→b😀c", perdidos), "a?b?c");
    EXPECT_EQ(perdidos, 2U);
}

TEST(Ansi, eachByteThatIsNotUtf8BecomesAQuestionMark) {
    EXPECT_EQ(ansiDeUtf8("\xF1x"), "?x");
    EXPECT_EQ(ansiDeUtf8("\xE2\x82"), "??");
    EXPECT_EQ(ansiDeUtf8("\xC0\xAF"), "??");
}

TEST(Ansi, wellFormedUtf8IsRecognised) {
    EXPECT_TRUE(esUtf8(""));
    EXPECT_TRUE(esUtf8("ascii año € 😀"));
    EXPECT_TRUE(esUtf8(std::string_view("a\0b", 3)));
}

TEST(Ansi, malformedUtf8IsRecognised) {
    EXPECT_FALSE(esUtf8("a\xF1o"));
    EXPECT_FALSE(esUtf8("\x80"));
    EXPECT_FALSE(esUtf8("\xC1\xBF")) << "overlong, two bytes";
    EXPECT_FALSE(esUtf8("\xE0\x9F\xBF")) << "overlong, three bytes";
    EXPECT_FALSE(esUtf8("\xF0\x8F\xBF\xBF")) << "overlong, four bytes";
    EXPECT_FALSE(esUtf8("\xED\xA0\x80")) << "a surrogate";
    EXPECT_FALSE(esUtf8("\xF4\x90\x80\x80")) << "above U+10FFFF";
    EXPECT_FALSE(esUtf8("\xE2\x82")) << "cut short";
}

TEST(Ansi, caseIsFoldedForAsciiAndAccentedLetters) {
    EXPECT_TRUE(igualesSinCaja("A\xD1O \x8A\x9F", "a\xF1o \x9A\xFF"));
    EXPECT_FALSE(igualesSinCaja("\xD7", "\xF7")) << "the signs of multiplication and division are no letters";
    EXPECT_FALSE(igualesSinCaja("ab", "abc"));
    EXPECT_FALSE(igualesSinCaja("@[", "`{"));
}
