#include "registers/FormatoRegistro.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using F = FormatoRegistro;

std::string texto(std::vector<double> valores, F formato, std::size_t direccion = 0) {
    return textoDeRegistro(valores, direccion, formato, ',');
}

TEST(FormatoRegistroTest, decimalIsTheValueAsStored) {
    EXPECT_EQ(texto({65535}, F::decimal), "65535");
    EXPECT_EQ(texto({12.5}, F::decimal), "12,5");
}

TEST(FormatoRegistroTest, aSignedWordIsInTwosComplement) {
    EXPECT_EQ(texto({65535}, F::conSigno), "-1");
    EXPECT_EQ(texto({32768}, F::conSigno), "-32768");
    EXPECT_EQ(texto({32767}, F::conSigno), "32767");
}

TEST(FormatoRegistroTest, hexadecimalAndBinaryShowTheWholeWord) {
    EXPECT_EQ(texto({255}, F::hexadecimal), "00FF");
    EXPECT_EQ(texto({48879}, F::hexadecimal), "BEEF");
    EXPECT_EQ(texto({5}, F::binario), "0000000000000101");
    EXPECT_EQ(texto({65534.6}, F::hexadecimal), "FFFF");
}

TEST(FormatoRegistroTest, twoWordsMakeASignedNumberInEitherOrder) {
    EXPECT_EQ(texto({1, 2}, F::entero32), "65538");
    EXPECT_EQ(texto({1, 2}, F::entero32Invertido), "131073");
    EXPECT_EQ(texto({65535, 65534}, F::entero32), "-2");
}

TEST(FormatoRegistroTest, twoWordsMakeASingleInEitherOrder) {
    EXPECT_EQ(texto({0x42F6, 0xE979}, F::flotante), "123,456");
    EXPECT_EQ(texto({0xE979, 0x42F6}, F::flotanteInvertido), "123,456");
    EXPECT_EQ(texto({0x3DCC, 0xCCCD}, F::flotante), "0,1");
    EXPECT_EQ(texto({0xBF80, 0}, F::flotante), "-1");
    EXPECT_EQ(texto({0x7FC0, 0}, F::flotante), "NaN");
    EXPECT_EQ(texto({0xFF80, 0}, F::flotante), "-Inf");
    EXPECT_EQ(texto({0x7F80, 0}, F::flotante), "+Inf");
}

TEST(FormatoRegistroTest, formatsOfTwoWordsLeaveOddAddressesEmpty) {
    EXPECT_EQ(texto({1, 2, 3, 4}, F::entero32, 1), "");
    EXPECT_EQ(texto({1, 2, 3, 4}, F::entero32, 2), "196612");
    EXPECT_EQ(texto({1, 2, 3}, F::entero32, 2), "") << "the second word is beyond the table";
}

TEST(FormatoRegistroTest, nothingStandsBeyondTheTable) {
    for (const NombreFormato& formato : formatosRegistro)
        EXPECT_EQ(texto({1, 2}, formato.formato, 2), "") << formato.titulo;
}

} // namespace
