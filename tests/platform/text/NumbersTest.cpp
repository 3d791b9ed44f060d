#include "platform/text/Numbers.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

std::optional<double> typed(std::string_view text, char16_t decimal = u'.') {
    return text::readNumber(text, decimal);
}

TEST(ReadNumber, readsDecimalText) {
    EXPECT_EQ(typed("502"), 502.0);
    EXPECT_EQ(typed(" \t-1.5 "), -1.5);
    EXPECT_EQ(typed("+.5"), 0.5);
    EXPECT_EQ(typed("5."), 5.0);
    EXPECT_EQ(typed("007"), 7.0);
}

TEST(ReadNumber, readsExponents) {
    EXPECT_EQ(typed("1e9"), 1e9);
    EXPECT_EQ(typed("2.5D-1"), 0.25);
    EXPECT_EQ(typed("1E+2"), 100.0);
}

TEST(ReadNumber, theDecimalSignIsTheLocalesAndDigitsDoNotStandInGroups) {
    EXPECT_EQ(typed("12,5", u','), 12.5);
    EXPECT_EQ(typed("12.5", u','), std::nullopt);
    EXPECT_EQ(typed("1.500,5", u','), std::nullopt);
    EXPECT_EQ(typed("12,5", u'.'), std::nullopt);
    EXPECT_EQ(typed("12\u066B5", u'\u066B'), 12.5);
}

TEST(ReadNumber, readsHexadecimalAndOctalText) {
    EXPECT_EQ(typed("&HFF"), 255.0);
    EXPECT_EQ(typed("&hffff"), -1.0);
    EXPECT_EQ(typed("&H10000"), 65536.0);
    EXPECT_EQ(typed("&HFFFFFFFF"), -1.0);
    EXPECT_EQ(typed("&HFFFF"), -1.0);
    EXPECT_EQ(typed("&HFFFF&"), 65535.0);
    EXPECT_EQ(typed("&O17"), 15.0);
    EXPECT_EQ(typed("&17"), 15.0);
}

TEST(ReadNumber, textThatIsNoNumberIsNothing) {
    for (const char* text :
         {"",    " ",     "abc", "502x", "1 2", "-",           ".",   "e5",  "1e",   "1e+",   "-(5)", "(5",
          "--1", "1.2.3", ",5",  "&H",   "&HG", "&H100000000", "nan", "inf", "0x10", "1e400", "(5)-"})
        EXPECT_EQ(typed(text), std::nullopt) << text;
    EXPECT_EQ(typed(std::string_view("5\0", 2)), std::nullopt);
}

TEST(ReadNumber, groupsCurrencyAndBracketsAreReadWhereTheSignsNameThem) {
    const text::NumberSigns spanish{.decimal = u',', .thousands = u'.', .currencySymbol = u"€"};
    EXPECT_EQ(text::readNumber(u"1.500,25 €", spanish), 1500.25);
    EXPECT_EQ(text::readNumber(u"-€ 3", spanish), -3);
    EXPECT_EQ(text::readNumber(u"(5)", spanish), -5);
    EXPECT_EQ(text::readNumber(u"5-", spanish), -5);
    EXPECT_EQ(text::readNumber(u"1,5.000", spanish), std::nullopt) << "no groups behind the decimal sign";
    EXPECT_EQ(text::readNumber(u".5", spanish), std::nullopt) << "no group before the first digit";
    EXPECT_EQ(text::readNumber(u"1e400", spanish), infinity);
    EXPECT_EQ(text::readNumber(u"-1e400", spanish), -infinity);
}

TEST(ReadPlainNumber, beyondTheRangeOfADoubleIsInfiniteOrZero) {
    EXPECT_EQ(text::readPlainNumber("1e309"), infinity);
    EXPECT_EQ(text::readPlainNumber("1" + std::string(400, '0')), infinity);
    EXPECT_EQ(text::readPlainNumber("1e99999999999999999999"), infinity);
    EXPECT_EQ(text::readPlainNumber("1e+400"), infinity);
    EXPECT_EQ(text::readPlainNumber("1e-400"), 0.0);
    EXPECT_EQ(text::readPlainNumber("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(text::readPlainNumber("1e-99999999999999999999"), 0.0);
    EXPECT_EQ(text::readPlainNumber("0e400"), 0.0);
    EXPECT_EQ(text::readPlainNumber("4.9406564584124654e-324"), 4.9406564584124654e-324);
    EXPECT_EQ(text::readPlainNumber("2.5e+2"), 250.0);
}

TEST(WriteNumber, wholeNumbersHaveNeitherBlankNorSeparator) {
    EXPECT_EQ(text::writeNumber(0, u','), "0");
    EXPECT_EQ(text::writeNumber(65535, u','), "65535");
    EXPECT_EQ(text::writeNumber(1000000), "1000000");
    EXPECT_EQ(text::writeNumber(-32768, u','), "-32768");
}

TEST(WriteNumber, fractionsUseTheGivenSeparator) {
    EXPECT_EQ(text::writeNumber(12.5, u','), "12,5");
    EXPECT_EQ(text::writeNumber(12.5), "12.5");
    EXPECT_EQ(text::writeNumber(-0.25, u','), "-0,25");
}

TEST(WriteNumber, keeps15Digits) {
    EXPECT_EQ(text::writeNumber(0.1 + 0.2), "0.3");
    EXPECT_EQ(text::writeNumber(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(text::writeNumber(65534.999999999999), "65535");
}

TEST(WriteNumber, verySmallAndVeryLargeNumbersUseAnExponent) {
    EXPECT_EQ(text::writeNumber(0.00001, u','), "0,00001");
    EXPECT_EQ(text::writeNumber(1.0 / 30000, u','), "3,33333333333333E-05");
    EXPECT_EQ(text::writeNumber(1e15, u','), "1E+15");
    EXPECT_EQ(text::writeNumber(1e-300, u','), "1E-300");
}

TEST(WriteNumber, negativeZeroIsZero) {
    EXPECT_EQ(text::writeNumber(-0.0, u','), "0");
}

TEST(WriteNumber, aSmallNumberWithManyDigitsUsesAnExponent) {
    EXPECT_EQ(text::writeNumber(1.0 / 15, u','), "6,66666666666667E-02");
    EXPECT_EQ(text::writeNumber(-1.5e-9), "-0.0000000015");
    EXPECT_EQ(text::writeNumber(-1.5e-20), "-1.5E-20");
    EXPECT_EQ(text::writeNumber(0.1), "0.1");
    EXPECT_EQ(text::writeNumber(123456789012345678.0), "1.23456789012346E+17");
}

TEST(WriteNumber, fewerDigitsCanBeAskedFor) {
    EXPECT_EQ(text::writeNumber(1.0 / 3, u',', 7), "0,3333333");
    EXPECT_EQ(text::writeNumber(99999999.0, u'.', 7), "1E+08");
    EXPECT_EQ(text::writeNumber(5, u'.', 1), "5");
}

TEST(WriteNumber, whatIsNoFiniteNumberHasATextToo) {
    EXPECT_EQ(text::writeNumber(infinity, u','), "1,#INF");
    EXPECT_EQ(text::writeNumber(-infinity, u','), "-1,#INF");
    EXPECT_EQ(text::writeNumber(std::nan(""), u','), "1,#QNAN");
}

std::optional<std::int64_t> scaled(std::u16string_view text, int places = 4) {
    const auto number = text::readScaled(text, {.decimal = u','}, places);
    return number && number->fits ? std::optional(number->value) : std::nullopt;
}

TEST(ReadScaled, keepsEveryDigitOfSixtyFourBits) {
    EXPECT_EQ(scaled(u"922337203685477,5807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(scaled(u"-922337203685477,5808"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(scaled(u"0000000000000000000000000001,50"), 15000);
    EXPECT_EQ(scaled(u"0,0000000000000000000015E19"), 150);
    EXPECT_EQ(scaled(u"12", 0), 12);
    EXPECT_EQ(scaled(u"12,345678901", 9), 12345678901);
}

TEST(ReadScaled, roundsHalfToEvenAndLooksAtEveryDigitForIt) {
    EXPECT_EQ(scaled(u"0,5", 0), 0);
    EXPECT_EQ(scaled(u"1,5", 0), 2);
    EXPECT_EQ(scaled(u"2,5", 0), 2);
    EXPECT_EQ(scaled(u"-2,5", 0), -2);
    EXPECT_EQ(scaled(u"2,50000000000000000000000000001", 0), 3);
    EXPECT_EQ(scaled(u"2,49999999999999999999999999999", 0), 2);
    EXPECT_EQ(scaled(u"0,05", 0), 0);
    EXPECT_EQ(scaled(u"0,96", 0), 1);
}

TEST(ReadScaled, tellsWhatIsTooLargeFromWhatIsNoNumber) {
    for (const char16_t* large :
         {u"922337203685477,5808", u"-922337203685477,5809", u"1e400", u"99999999999999999999"}) {
        const auto number = text::readScaled(large, {.decimal = u','}, 4);
        ASSERT_TRUE(number.has_value());
        EXPECT_FALSE(number->fits);
    }
    for (const char16_t* no : {u"", u",", u"x", u"1e", u"1,2,3", u"&HG"})
        EXPECT_FALSE(text::readScaled(no, {.decimal = u','}, 4).has_value());
}

TEST(ReadScaled, noExponentIsTooLongToRead) {
    EXPECT_EQ(scaled(u"1e-99999999999999999999"), 0);
    EXPECT_EQ(scaled(u"0e99999999999999999999"), 0);
    EXPECT_EQ(scaled(u"1e99999999999999999999"), std::nullopt);
    EXPECT_EQ(scaled(u"&HFFFF"), -10000);
}

} // namespace
