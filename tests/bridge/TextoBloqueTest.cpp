#include "bridge/TextoBloque.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

namespace {

std::string hexadecimal(std::initializer_list<std::uint8_t> bytes) {
    std::string texto;
    agregarHexadecimal(texto, std::span(bytes.begin(), bytes.size()));
    return texto;
}

std::string caracteres(std::initializer_list<std::uint8_t> bytes) {
    std::string texto;
    agregarCaracteres(texto, std::span(bytes.begin(), bytes.size()));
    return texto;
}

} // namespace

TEST(TextoBloque, hexadecimalIsUpperCaseWithoutLeadingZero) {
    EXPECT_EQ(hexadecimal({0x00, 0x01, 0xFF, 10, 3, 0x10}), "[0][1][FF][A][3][10]");
}

TEST(TextoBloque, everyByteHasItsHexadecimalForm) {
    for (int b = 0; b < 256; ++b) {
        std::array<char, 8> esperado{};
        std::snprintf(esperado.data(), esperado.size(), "[%X]", static_cast<unsigned>(b));
        EXPECT_EQ(hexadecimal({static_cast<std::uint8_t>(b)}), esperado.data());
    }
}

TEST(TextoBloque, carriageReturnBecomesCarriageReturnAndLineFeed) {
    EXPECT_EQ(caracteres({0x41, 0x42, 13}), "AB\r\n");
}

TEST(TextoBloque, lineFeedIsShownAsItself) {
    EXPECT_EQ(caracteres({'A', 10, 'B'}), "A\nB");
}

TEST(TextoBloque, carriageReturnBeforeLineFeedStillGetsItsOwn) {
    EXPECT_EQ(caracteres({13, 10}), "\r\n\n");
}

TEST(TextoBloque, everyOtherByteIsACharacter) {
    EXPECT_EQ(caracteres({0, 9, 0x80, 0xFF}), std::string("\0\x09\x80\xFF", 4));
}

TEST(TextoBloque, emptyBlockAddsNothing) {
    EXPECT_EQ(hexadecimal({}), "");
    EXPECT_EQ(caracteres({}), "");
}
