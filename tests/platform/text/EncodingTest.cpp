#include "platform/text/Encoding.h"

#include <gtest/gtest.h>

using text::Encoding;
using namespace std::string_literals;

namespace {

const std::string utf8Mark = "\xEF\xBB\xBF";

TEST(Encoding, aByteOrderMarkTells) {
    EXPECT_EQ(text::encodingOf("\xFF\xFE"
                               "a\0"s),
              Encoding::utf16LittleEndian);
    EXPECT_EQ(text::encodingOf("\xFE\xFF\0a"s), Encoding::utf16BigEndian);
    EXPECT_EQ(text::encodingOf(utf8Mark + "a"), Encoding::utf8WithMark);
}

TEST(Encoding, withoutAMarkTheBytesTell) {
    EXPECT_EQ(text::encodingOf(""), Encoding::utf8);
    EXPECT_EQ(text::encodingOf("año €"), Encoding::utf8);
    EXPECT_EQ(text::encodingOf("a\xF1o"), Encoding::windows1252);
    EXPECT_EQ(text::encodingOf(utf8Mark + "a\xF1o"), Encoding::windows1252) << "the mark alone does not make it UTF-8";
}

TEST(Encoding, textsAreReadWithoutTheirMark) {
    EXPECT_EQ(text::decoded("\xFF\xFE"
                            "a\0\xF1\0\x3D\xD8\0\xDE"s),
              "añ😀");
    EXPECT_EQ(text::decoded("\xFE\xFF\0a\0\xF1\xD8\x3D\xDE\0"s), "añ😀");
    EXPECT_EQ(text::decoded(utf8Mark + "año"), "año");
    EXPECT_EQ(text::decoded("a\xF1o"), "año");
}

TEST(Encoding, whatIsNoCharacterBecomesAReplacement) {
    EXPECT_EQ(text::decoded("\xFF\xFE"
                            "a\0b"s),
              "a\uFFFD")
        << "an odd byte";
    EXPECT_EQ(text::decoded("\xFF\xFE\x3D\xD8"
                            "a\0"s),
              "\uFFFDa")
        << "half a pair";
    EXPECT_EQ(text::decoded("\xFF\xFE"), "");
}

TEST(Encoding, everyEncodingGivesTheTextBack) {
    for (const Encoding encoding : {Encoding::utf8, Encoding::utf8WithMark, Encoding::utf16LittleEndian,
                                    Encoding::utf16BigEndian, Encoding::windows1252}) {
        const auto bytes = text::encoded("señal €\r\n", encoding);
        ASSERT_TRUE(bytes.has_value());
        EXPECT_EQ(text::encodingOf(*bytes), encoding);
        EXPECT_EQ(text::decoded(*bytes), "señal €\r\n");
    }
}

TEST(Encoding, windows1252LacksCharacters) {
    EXPECT_EQ(text::encoded("→", Encoding::windows1252), std::nullopt);
    EXPECT_EQ(text::encoded("→", Encoding::utf16BigEndian), "\xFE\xFF\x21\x92");
}

} // namespace
