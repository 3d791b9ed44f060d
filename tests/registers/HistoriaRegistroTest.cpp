#include "registers/HistoriaRegistro.h"

#include <gtest/gtest.h>

namespace {

TEST(HistoriaRegistroTest, aValueHoldsUntilTheNext) {
    HistoriaRegistro historia;
    historia.anotar(1000, 5);
    historia.anotar(3000, 8);
    EXPECT_FALSE(historia.valorEn(999));
    EXPECT_EQ(historia.valorEn(1000), 5);
    EXPECT_EQ(historia.valorEn(2999), 5);
    EXPECT_EQ(historia.valorEn(3000), 8);
    EXPECT_EQ(historia.valorEn(9999), 8);
}

TEST(HistoriaRegistroTest, aPeakBetweenTwoSamplesIsKept) {
    HistoriaRegistro historia;
    historia.anotar(1000, 5);
    historia.anotar(1005, 900);
    historia.anotar(1019, 6);
    EXPECT_EQ(historia.tramos().size(), 1U);
    EXPECT_EQ(historia.extremos(1000, 1100)->maximo, 900);
    EXPECT_EQ(historia.extremos(1000, 1100)->minimo, 5);
    EXPECT_EQ(historia.valorEn(1100), 6);
    historia.anotar(1020, 7);
    EXPECT_EQ(historia.tramos().size(), 2U);
}

TEST(HistoriaRegistroTest, extremesCountTheValueThatHeldAtTheBeginning) {
    HistoriaRegistro historia;
    historia.anotar(1000, 5);
    historia.anotar(5000, 2);
    EXPECT_EQ(historia.extremos(2000, 3000)->maximo, 5);
    EXPECT_EQ(historia.extremos(2000, 5000)->minimo, 5) << "the end does not belong to it";
    EXPECT_EQ(historia.extremos(2000, 5001)->minimo, 2);
    EXPECT_FALSE(historia.extremos(0, 1000));
}

TEST(HistoriaRegistroTest, memoryHasABound) {
    HistoriaRegistro historia;
    for (std::int64_t t = 0; t < 2 * HistoriaRegistro::maxEdad; t += 5)
        historia.anotar(t, static_cast<double>(t % 100));
    EXPECT_LE(historia.tramos().size(),
              static_cast<std::size_t>(HistoriaRegistro::maxEdad / HistoriaRegistro::grano + 2));
    EXPECT_TRUE(historia.valorEn(HistoriaRegistro::maxEdad));
}

TEST(HistoriaRegistroTest, theValueThatStillHeldAnHourAgoStays) {
    HistoriaRegistro historia;
    historia.anotar(0, 5);
    historia.anotar(HistoriaRegistro::maxEdad + 1000, 6);
    EXPECT_EQ(historia.valorEn(5000), 5);
    historia.anotar(HistoriaRegistro::maxEdad * 2 + 2000, 7);
    EXPECT_EQ(historia.tramos().size(), 2U) << "the first no longer holds within the last hour";
}

TEST(HistoriaRegistroTest, aClockThatWasSetBackStandsStill) {
    HistoriaRegistro historia;
    historia.anotar(5000, 5);
    historia.anotar(1000, 6);
    EXPECT_EQ(historia.valorEn(5000), 6);
    EXPECT_FALSE(historia.valorEn(4999));
}

TEST(HistoriaRegistroTest, aValueReplacedJustBeforeTheBeginningIsNotWithin) {
    HistoriaRegistro historia;
    historia.anotar(0, 1);
    historia.anotar(99, 5);
    const auto desdeEl100 = historia.extremos(100, 200);
    ASSERT_TRUE(desdeEl100);
    EXPECT_EQ(desdeEl100->minimo, 5);
    EXPECT_EQ(desdeEl100->maximo, 5);
    const auto desdeEl99 = historia.extremos(99, 200);
    ASSERT_TRUE(desdeEl99);
    EXPECT_EQ(desdeEl99->minimo, 1) << "the step itself is drawn where it is taken";
}

} // namespace
