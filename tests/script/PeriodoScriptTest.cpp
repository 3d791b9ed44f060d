#include "script/PeriodoScript.h"

#include "registers/ErrorEjecucion.h"

#include <gtest/gtest.h>

using std::chrono::milliseconds;

namespace {

int numeroDeError(auto operacion) {
    try {
        operacion();
    } catch (const ErrorEjecucion& error) {
        return error.numero();
    }
    return 0;
}

TEST(PeriodoDeTexto, numbersInAnyDress) {
    EXPECT_EQ(periodoDeTexto("500", u','), 500);
    EXPECT_EQ(periodoDeTexto(" 12,5 ", u','), 12.5);
    EXPECT_EQ(periodoDeTexto("1e3", u','), 1000);
    EXPECT_EQ(periodoDeTexto("-5", u','), -5);
}

TEST(PeriodoDeTexto, textRaisesTypeMismatch) {
    for (const char* texto : {"", "  ", "abc", "12 ms", "1,2,3", "12.5", "1.500"})
        EXPECT_EQ(numeroDeError([&] { periodoDeTexto(texto, u','); }), 13) << texto;
}

TEST(IntervaloDeTimer, halvesGoToTheEvenNeighbour) {
    EXPECT_EQ(intervaloDeTimer(12.5), milliseconds(12));
    EXPECT_EQ(intervaloDeTimer(13.5), milliseconds(14));
    EXPECT_EQ(intervaloDeTimer(499.51), milliseconds(500));
}

TEST(IntervaloDeTimer, zeroAndNegativeBecomeTheShortest) {
    EXPECT_EQ(intervaloDeTimer(0), milliseconds(10));
    EXPECT_EQ(intervaloDeTimer(-5), milliseconds(10));
    EXPECT_EQ(intervaloDeTimer(9.4), milliseconds(10));
}

TEST(IntervaloDeTimer, beyond32BitsIsAnOverflow) {
    EXPECT_EQ(intervaloDeTimer(2147483647), milliseconds(2147483647));
    for (const double periodo : {2147483648.0, 1e12, -1e12, 1e300})
        EXPECT_EQ(numeroDeError([&] { intervaloDeTimer(periodo); }), 6) << periodo;
}

} // namespace
