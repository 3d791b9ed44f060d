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
