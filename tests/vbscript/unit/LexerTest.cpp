// Tokens and their places, as an editor sees them.
#include "platform/vbscript/syntax/Lexer.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using namespace vbs;
using Kind = Token::Kind;

std::vector<Token> tokens(std::u16string_view text) {
    std::vector<Token> all;
    Lexer lexer(text);
    for (Token t = lexer.next(); t.kind != Kind::End; t = lexer.next()) {
        all.push_back(t);
    }
    return all;
}

TEST(Lexer, tellsLineAndColumnFromOne) {
    const auto all = tokens(u"a\r\n  b");
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(all[2].line, 2U);
    EXPECT_EQ(all[2].column, 3U);
    EXPECT_EQ(all[2].offset, 5U);
}

TEST(Lexer, keywordsIgnoreCaseAndAreNamesAfterADot) {
    const auto all = tokens(u"eNd x.End");
    ASSERT_EQ(all.size(), 4U);
    EXPECT_EQ(all[0].word, Word::End);
    EXPECT_EQ(all[3].kind, Kind::Identifier);
}

TEST(Lexer, commentsRunToTheEndOfTheLine) {
    const auto all = tokens(u"x ' uno : dos\nRem tres");
    ASSERT_EQ(all.size(), 4U);
    EXPECT_EQ(all[1].kind, Kind::Comment);
    EXPECT_EQ(all[1].length, 11U);
    EXPECT_EQ(all[3].kind, Kind::Comment);
}

TEST(Lexer, literalsCarryTheirType) {
    const auto type = [](std::u16string_view text) { return tokens(text).at(0).value.type; };
    EXPECT_EQ(type(u"32767"), Type::Integer);
    EXPECT_EQ(type(u"32768"), Type::Long);
    EXPECT_EQ(type(u"2147483648"), Type::Double);
    EXPECT_EQ(type(u"1."), Type::Double);
    EXPECT_EQ(type(u".5"), Type::Double);
    EXPECT_EQ(type(u"1e3"), Type::Double);
    EXPECT_EQ(type(u"&HFFFF"), Type::Integer);
    EXPECT_EQ(type(u"&HFFFF&"), Type::Long);
    EXPECT_EQ(type(u"&H8000"), Type::Long);
    EXPECT_EQ(type(u"&H8001"), Type::Integer);
    EXPECT_EQ(type(u"#1/2/2003#"), Type::Date);
    EXPECT_EQ(type(u"\"a\"\"b\""), Type::String);
}

TEST(Lexer, bareAmpersandDigitsAreOctal) {
    EXPECT_EQ(tokens(u"&100").at(0).value.n, 64);
}

TEST(Lexer, aLineGoesOnAfterAnUnderscore) {
    const auto all = tokens(u"a _ \r\n b");
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[1].line, 2U);
}

TEST(Lexer, whatIsNoTokenIsBadAndTheRestFollows) {
    const auto all = tokens(u"a ? b");
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(all[1].kind, Kind::Bad);
    EXPECT_EQ(all[1].error, ErrorNumber::InvalidCharacter);
    EXPECT_EQ(all[2].kind, Kind::Identifier);
}

TEST(Lexer, everyUnitOfATextIsReachedWhateverItHolds) {
    std::u16string text;
    for (char16_t c = 0; c < 0x300; ++c) {
        text.push_back(c);
    }
    std::size_t end = 0;
    for (const Token& t : tokens(text)) {
        EXPECT_GE(t.offset, end);
        EXPECT_GT(t.length, 0U);
        end = t.offset + t.length;
    }
    EXPECT_EQ(end, text.size());
}

} // namespace
