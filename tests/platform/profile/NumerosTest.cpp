#include "platform/profile/Numeros.h"

#include <cstdint>
#include <gtest/gtest.h>

TEST(NumeroDeTexto, readsDecimalText) {
    EXPECT_EQ(numeroDeTexto("502"), 502.0);
    EXPECT_EQ(numeroDeTexto(" \t-1.5 "), -1.5);
    EXPECT_EQ(numeroDeTexto("+.5"), 0.5);
    EXPECT_EQ(numeroDeTexto("5."), 5.0);
    EXPECT_EQ(numeroDeTexto("007"), 7.0);
}

TEST(NumeroDeTexto, readsExponents) {
    EXPECT_EQ(numeroDeTexto("1e9"), 1e9);
    EXPECT_EQ(numeroDeTexto("2.5D-1"), 0.25);
    EXPECT_EQ(numeroDeTexto("1E+2"), 100.0);
}

TEST(NumeroDeTexto, theDecimalSignIsTheLocalesAndTheOtherOneIsSkipped) {
    EXPECT_EQ(numeroDeTexto("1.500,5", ','), 1500.5);
    EXPECT_EQ(numeroDeTexto("1,500.5"), 1500.5);
    EXPECT_EQ(numeroDeTexto("0,5", ','), 0.5);
}

TEST(NumeroDeTexto, readsHexadecimalAndOctalText) {
    EXPECT_EQ(numeroDeTexto("&HFF"), 255.0);
    EXPECT_EQ(numeroDeTexto("&hffff"), -1.0);
    EXPECT_EQ(numeroDeTexto("&H10000"), 65536.0);
    EXPECT_EQ(numeroDeTexto("&HFFFFFFFF"), -1.0);
    EXPECT_EQ(numeroDeTexto("&O17"), 15.0);
}

TEST(NumeroDeTexto, reportsTextThatIsNotNumeric) {
    for (const char* texto : {"",    " ",     "abc", "502x", "1 2", "-",           ".",   "e5",  "1e",   "1e+",
                              "--1", "1.2.3", ",5",  "&H",   "&HG", "&H100000000", "nan", "inf", "0x10", "1e400"})
        EXPECT_EQ(numeroDeTexto(texto), std::nullopt) << texto;
    EXPECT_EQ(numeroDeTexto(std::string_view("5\0", 2)), std::nullopt);
}

TEST(EnteroDeTexto, roundsHalvesToTheEvenNeighbour) {
    EXPECT_EQ(enteroDeTexto<std::int32_t>("2.5"), 2);
    EXPECT_EQ(enteroDeTexto<std::int32_t>("3.5"), 4);
    EXPECT_EQ(enteroDeTexto<std::int32_t>("-0.5"), 0);
}

TEST(EnteroDeTexto, reportsWhatDoesNotFit) {
    EXPECT_EQ(enteroDeTexto<std::int16_t>("32767.4"), 32767);
    EXPECT_EQ(enteroDeTexto<std::int16_t>("32767.5"), std::nullopt);
    EXPECT_EQ(enteroDeTexto<std::int16_t>("-32768"), -32768);
    EXPECT_EQ(enteroDeTexto<std::int32_t>("2147483648"), std::nullopt);
    EXPECT_EQ(enteroDeTexto<std::int32_t>("N"), std::nullopt);
}

TEST(TextoDeNumero, wholeNumbersHaveNoFraction) {
    EXPECT_EQ(textoDeNumero(502), "502");
    EXPECT_EQ(textoDeNumero(-0.0), "0");
    EXPECT_EQ(textoDeNumero(100000000), "100000000");
    EXPECT_EQ(textoDeNumero(999999999999999), "999999999999999");
}

TEST(TextoDeNumero, fractionsBearTheLocalesSign) {
    EXPECT_EQ(textoDeNumero(12.5), "12.5");
    EXPECT_EQ(textoDeNumero(-0.1, ','), "-0,1");
    EXPECT_EQ(textoDeNumero(0.1 + 0.2), "0.3");
}

TEST(TextoDeNumero, onlyVeryLargeAndVerySmallNumbersBearAnExponent) {
    EXPECT_EQ(textoDeNumero(1e15), "1E+15");
    EXPECT_EQ(textoDeNumero(0.0001), "0.0001");
    EXPECT_EQ(textoDeNumero(0.00001), "1E-05");
}
