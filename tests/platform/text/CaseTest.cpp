#include "platform/text/Case.h"

#include <gtest/gtest.h>

using namespace text;

TEST(Case, lettersOfManyAlphabetsHaveAPartner) {
    for (const std::u16string_view pair :
         {u"aA",           u"zZ",           u"\u00F1\u00D1", u"\u00FC\u00DC", u"\u00FE\u00DE", u"\u00FF\u0178",
          u"\u0153\u0152", u"\u017E\u017D", u"\u0219\u0218", u"\u03B1\u0391", u"\u03AC\u0386", u"\u03CE\u038F",
          u"\u0434\u0414", u"\u0451\u0401", u"\u04CF\u04C0", u"\u0561\u0531", u"\u1E95\u1E94", u"\u1F00\u1F08",
          u"\u2170\u2160", u"\u24D0\u24B6", u"\uFF41\uFF21"}) {
        EXPECT_EQ(toUpper(pair[0]), pair[1]) << static_cast<int>(pair[0]);
        EXPECT_EQ(toLower(pair[1]), pair[0]) << static_cast<int>(pair[1]);
    }
}

TEST(Case, whatHasNoPartnerStaysAsItIs) {
    for (const char16_t c : u"0[`{@\u00AA\u00B5\u00BA\u00D7\u00DF\u00F7\u0130\u0131\u0138\u0149\u03C2\u4E2D\uFFFD") {
        EXPECT_EQ(toLower(c), c) << static_cast<int>(c);
        EXPECT_EQ(toUpper(c), c) << static_cast<int>(c);
    }
}

TEST(Case, everyPairLeadsThereAndBack) {
    for (int code = 0; code <= 0xFFFF; ++code) {
        const auto c = static_cast<char16_t>(code);
        ASSERT_TRUE(toLower(c) == c || toUpper(c) == c) << code;
        ASSERT_EQ(toUpper(toLower(c)), toUpper(c)) << code;
        ASSERT_EQ(toLower(toUpper(c)), toLower(c)) << code;
    }
}

TEST(Case, textsAreComparedByTheirSmallLetters) {
    EXPECT_TRUE(equalNoCase(u"A\u00D1O", u"a\u00F1o"));
    EXPECT_FALSE(equalNoCase(u"ab", u"abc"));
    EXPECT_FALSE(equalNoCase(u"\u00D7", u"\u00F7"));
    EXPECT_LT(compareNoCase(u"Ab", u"aC"), 0);
    EXPECT_GT(compareNoCase(u"abc", u"AB"), 0);
    EXPECT_EQ(compareNoCase(u"", u""), 0);
}
