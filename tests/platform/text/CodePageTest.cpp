#include "platform/text/CodePage.h"

#include <gtest/gtest.h>

TEST(CodePage, accentedLettersAreOneByte) {
    EXPECT_EQ(text::ansiFromUtf8("año Ü"), "a\xF1o \xDC");
    EXPECT_EQ(text::utf8FromAnsi("a\xF1o \xDC"), "año Ü");
}

TEST(CodePage, theBlockFrom80To9FHasItsOwnCharacters) {
    EXPECT_EQ(text::ansiFromUtf8("€Š™Ÿ"), "\x80\x8A\x99\x9F");
    EXPECT_EQ(text::utf8FromAnsi("\x80\x8A\x99\x9F"), "€Š™Ÿ");
}

TEST(CodePage, everyByteSurvivesTheWayThereAndBack) {
    for (int code = 0; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(code));
        EXPECT_EQ(text::ansiFromUtf8(text::utf8FromAnsi(byte)), byte) << code;
    }
}

TEST(CodePage, aCharacterWithoutACodeBecomesAQuestionMark) {
    std::size_t lost = 0;
    EXPECT_EQ(text::ansiFromUtf8("a→b😀c", lost), "a?b?c");
    EXPECT_EQ(lost, 2U);
}

TEST(CodePage, eachByteThatIsNotUtf8BecomesAQuestionMark) {
    EXPECT_EQ(text::ansiFromUtf8("\xF1x"), "?x");
    EXPECT_EQ(text::ansiFromUtf8("\xE2\x82"), "??");
    EXPECT_EQ(text::ansiFromUtf8("\xC0\xAF"), "??");
}

TEST(CodePage, caseIsFoldedForAsciiAndAccentedLetters) {
    EXPECT_TRUE(text::equalAnsiNoCase("A\xD1O \x8A\x9F", "a\xF1o \x9A\xFF"));
    EXPECT_FALSE(text::equalAnsiNoCase("\xD7", "\xF7")) << "the signs of multiplication and division are no letters";
    EXPECT_FALSE(text::equalAnsiNoCase("ab", "abc"));
    EXPECT_FALSE(text::equalAnsiNoCase("@[", "`{"));
}
