#include "platform/text/Utf.h"

#include <gtest/gtest.h>

TEST(Utf, everyCharacterSurvivesTheWayThereAndBack) {
    for (char32_t code = 0; code <= 0x10FFFF; code = code == 0xD7FF ? 0xE000 : code + 1) {
        std::u16string units;
        if (code < 0x10000) {
            units = {static_cast<char16_t>(code)};
        } else {
            units = {static_cast<char16_t>(0xD7C0 + (code >> 10)), static_cast<char16_t>(0xDC00 + (code & 0x3FF))};
        }
        ASSERT_EQ(text::toUtf16(text::toUtf8(units)), units) << std::hex << static_cast<std::uint32_t>(code);
    }
}

TEST(Utf, bytesAreAsTheStandardSays) {
    EXPECT_EQ(text::toUtf8(u"a\u00F1\u20AC\U0001F600"), "a\xC3\xB1\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(Utf, eachBadByteBecomesAReplacement) {
    EXPECT_EQ(text::toUtf16("\xC0\x80x"), u"\uFFFD\uFFFDx");
    EXPECT_EQ(text::toUtf16("\xE2\x82"), u"\uFFFD\uFFFD");
    EXPECT_EQ(text::toUtf16("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD");
}

TEST(Utf, loneSurrogatesBecomeReplacements) {
    EXPECT_EQ(text::toUtf8(std::u16string{0xD83D}), "\xEF\xBF\xBD");
    EXPECT_EQ(text::toUtf8(std::u16string{0xDE00, u'a'}), "\xEF\xBF\xBD"
                                                          "a");
    EXPECT_EQ(text::toUtf8(std::u16string{0xD83D, 0xD83D, 0xDE00}), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
}

TEST(Utf, wellFormedUtf8IsRecognised) {
    EXPECT_TRUE(text::isUtf8(""));
    EXPECT_TRUE(text::isUtf8("ascii año € 😀"));
    EXPECT_TRUE(text::isUtf8(std::string_view("a\0b", 3)));
}

TEST(Utf, malformedUtf8IsRecognised) {
    EXPECT_FALSE(text::isUtf8("a\xF1o"));
    EXPECT_FALSE(text::isUtf8("\x80"));
    EXPECT_FALSE(text::isUtf8("\xC1\xBF")) << "overlong, two bytes";
    EXPECT_FALSE(text::isUtf8("\xE0\x9F\xBF")) << "overlong, three bytes";
    EXPECT_FALSE(text::isUtf8("\xF0\x8F\xBF\xBF")) << "overlong, four bytes";
    EXPECT_FALSE(text::isUtf8("\xED\xA0\x80")) << "a surrogate";
    EXPECT_FALSE(text::isUtf8("\xF4\x90\x80\x80")) << "above U+10FFFF";
    EXPECT_FALSE(text::isUtf8("\xE2\x82")) << "cut short";
}
