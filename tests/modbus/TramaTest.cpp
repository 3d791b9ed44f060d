// Bytes as the monitors show them.
#include "modbus/Trama.h"

#include <array>
#include <gtest/gtest.h>
#include <numeric>

namespace {

constexpr std::array<std::uint8_t, 5> bytes{0, 7, 10, 99, 255};

TEST(FrameText, blankBeforeEachByte) {
    std::string texto = "a";
    trama::conBlancoDelante(texto, bytes);
    EXPECT_EQ(texto, "a 0 7 10 99 255");
}

TEST(FrameText, blankAfterEachByte) {
    std::string texto = "a";
    trama::conBlancoDetras(texto, bytes);
    EXPECT_EQ(texto, "a0 7 10 99 255 ");
}

TEST(FrameText, blankBetweenBytes) {
    std::string texto = "a";
    trama::separadosPorBlanco(texto, bytes);
    EXPECT_EQ(texto, "a0 7 10 99 255");
}

TEST(FrameText, noBytesAddNothing) {
    std::string texto = "a";
    trama::conBlancoDelante(texto, {});
    trama::conBlancoDetras(texto, {});
    trama::separadosPorBlanco(texto, {});
    EXPECT_EQ(texto, "a");
}

TEST(FrameText, everyByteIsShownInPlainDecimal) {
    std::array<std::uint8_t, 256> todos{};
    std::iota(todos.begin(), todos.end(), std::uint8_t{0});
    std::string esperado;
    for (int b = 0; b < 256; ++b)
        esperado.append(" ").append(std::to_string(b));
    std::string texto;
    trama::conBlancoDelante(texto, todos);
    EXPECT_EQ(texto, esperado);
}

TEST(FrameWord, highByteComesFirst) {
    EXPECT_EQ(trama::palabra(bytes, 1), 7 * 256 + 10);
    EXPECT_EQ(trama::palabra(bytes, 3), 99 * 256 + 255);
}

} // namespace
