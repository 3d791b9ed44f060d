// Conversions between numbers, words, signs and bits, and numbers as text.
#include "registers/Palabra.h"

#include "errores.h"
#include "registers/ErrorEjecucion.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinito = std::numeric_limits<double>::infinity();

TEST(WholeNumbers, halvesGoToTheEvenNeighbour) {
    EXPECT_EQ(entero32(0.5), 0);
    EXPECT_EQ(entero32(1.5), 2);
    EXPECT_EQ(entero32(2.5), 2);
    EXPECT_EQ(entero32(-0.5), 0);
    EXPECT_EQ(entero32(-1.5), -2);
    EXPECT_EQ(entero16(3.5), 4);
    EXPECT_EQ(entero16(-2.5), -2);
}

TEST(WholeNumbers, theBoundIsTestedAfterRounding) {
    EXPECT_EQ(entero32(2147483647.4), 2147483647);
    EXPECT_EQ(entero32(-2147483648.5), -2147483647 - 1);
    EXPECT_EQ(entero16(32767.4), 32767);
    EXPECT_EQ(numeroDeError([] { entero32(2147483647.5); }), 6);
    EXPECT_EQ(numeroDeError([] { entero32(-2147483649.0); }), 6);
    EXPECT_EQ(numeroDeError([] { entero16(32767.5); }), 6);
    EXPECT_EQ(numeroDeError([] { entero16(-32769); }), 6);
}

TEST(WholeNumbers, whatIsNoNumberOverflows) {
    for (const double x : {nan, infinito, -infinito, 1e300}) {
        EXPECT_EQ(numeroDeError([x] { entero32(x); }), 6) << x;
        EXPECT_EQ(numeroDeError([x] { entero16(x); }), 6) << x;
    }
}

TEST(SingleInt, negativeNumbersBecomeTwosComplement) {
    EXPECT_EQ(SINGLEINT(-1), 65535);
    EXPECT_EQ(SINGLEINT(-32768), 32768);
    EXPECT_EQ(SINGLEINT(-0.5), 65535.5);
}

TEST(SingleInt, hasNoRangeCheck) {
    EXPECT_EQ(SINGLEINT(0), 0);
    EXPECT_EQ(SINGLEINT(40000), 40000);
    EXPECT_EQ(SINGLEINT(70000), 70000);
    EXPECT_EQ(SINGLEINT(-70000), -4464);
}

TEST(SignInt, lowWordIsReadAsSigned) {
    EXPECT_EQ(SIGNINT(0), 0);
    EXPECT_EQ(SIGNINT(32767), 32767);
    EXPECT_EQ(SIGNINT(32768), -32768);
    EXPECT_EQ(SIGNINT(65535), -1);
}

TEST(SignInt, undoesSingleIntForEveryWord) {
    for (int x = -32768; x <= 32767; ++x)
        ASSERT_EQ(SIGNINT(SINGLEINT(x)), x);
}

TEST(BitOfWord, isOneWhereTheBitIsSet) {
    EXPECT_EQ(NBit(8, 3), 1);
    EXPECT_EQ(NBit(8, 2), 0);
    EXPECT_EQ(NBit(65535, 15), 1);
    EXPECT_EQ(NBit(65535, 16), 0);
    EXPECT_EQ(NBit(0, 30), 0);
}

TEST(BitOfWord, theWordIsRounded) {
    EXPECT_EQ(NBit(7.5, 3), 1);
    EXPECT_EQ(NBit(8.5, 0), 0);
}

TEST(BitOfWord, negativeBitWeighsNothing) {
    EXPECT_EQ(NBit(65535, -1), 0);
    EXPECT_EQ(NBit(65535, std::numeric_limits<std::int16_t>::min()), 0);
}

TEST(BitOfWord, beyond32BitsOverflows) {
    EXPECT_EQ(numeroDeError([] { NBit(1, 31); }), 6);
    EXPECT_EQ(numeroDeError([] { NBit(1, 32767); }), 6);
    EXPECT_EQ(numeroDeError([] { NBit(2147483648.0, 0); }), 6);
    EXPECT_EQ(numeroDeError([] { NBit(nan, 0); }), 6);
}

TEST(SetBit, setsAndClears) {
    EXPECT_EQ(SetearBIT_YDevolverPalabra(8, 0, 1), 9);
    EXPECT_EQ(SetearBIT_YDevolverPalabra(9, 0, 1), 9);
    EXPECT_EQ(SetearBIT_YDevolverPalabra(9, 3, 0), 1);
    EXPECT_EQ(SetearBIT_YDevolverPalabra(1, 3, 0), 1);
    EXPECT_EQ(SetearBIT_YDevolverPalabra(0, 15, 1), 32768);
}

TEST(SetBit, anyValueButOneClears) {
    EXPECT_EQ(SetearBIT_YDevolverPalabra(9, 3, 2), 1);
    EXPECT_EQ(SetearBIT_YDevolverPalabra(9, 3, -1), 1);
}

TEST(SetBit, bitsAboveTheWordYieldMoreThanAWordOrLeaveItAsItWas) {
    EXPECT_EQ(SetearBIT_YDevolverPalabra(8, 16, 1), 65544);
    for (std::int16_t bit = 16; bit <= 31; ++bit)
        EXPECT_EQ(SetearBIT_YDevolverPalabra(65535, bit, 0), 65535) << bit;
}

TEST(SetBit, theWordIsRoundedHalvesToEven) {
    EXPECT_EQ(SetearBIT_YDevolverPalabra(12.5, 0, 1), 13);
    EXPECT_EQ(SetearBIT_YDevolverPalabra(13.5, 0, 0), 14);
}

TEST(SetBit, beyond32BitsOverflows) {
    EXPECT_EQ(numeroDeError([] { SetearBIT_YDevolverPalabra(1, 31, 1); }), 6);
    EXPECT_EQ(numeroDeError([] { SetearBIT_YDevolverPalabra(1, 32, 0); }), 6);
    EXPECT_EQ(numeroDeError([] { SetearBIT_YDevolverPalabra(3e9, 0, 0); }), 6);
}

TEST(RunTimeError, carriesNumberAndSpanishText) {
    EXPECT_STREQ(ErrorEjecucion(6).what(), "Desbordamiento");
    EXPECT_STREQ(ErrorEjecucion(7).what(), "Memoria agotada");
    EXPECT_STREQ(ErrorEjecucion(9).what(), "El subíndice está fuera del intervalo");
    EXPECT_EQ(ErrorEjecucion(9).numero(), 9);
}

} // namespace
