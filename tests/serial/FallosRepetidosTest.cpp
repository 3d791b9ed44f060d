// Repeated faults in the log: counted instead of repeated, bounded whatever a device sends.
#include "serial/FallosRepetidos.h"

#include "EntornoFalso.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

class RepeatedFaults : public testing::Test {
protected:
    std::uint64_t anotar(const std::string& descripcion, const std::string& detalle = "lectura") {
        return fallos.anotar("OnComm", detalle, descripcion, ahora);
    }

    LogFalso log;
    FallosRepetidos fallos{log};
    FallosRepetidos::Hora ahora{};
};

TEST_F(RepeatedFaults, firstIsWrittenWithItsDetail) {
    EXPECT_EQ(anotar("malo"), 1u);
    EXPECT_EQ(log.lineas, std::vector<std::string>{"RS232>OnComm>lectura>malo"});
}

TEST_F(RepeatedFaults, repetitionsAreWrittenAtPowersOfTen) {
    for (int vez = 1; vez <= 1000; ++vez)
        EXPECT_EQ(anotar("malo", std::to_string(vez)), static_cast<std::uint64_t>(vez));
    EXPECT_EQ(log.lineas,
              (std::vector<std::string>{"RS232>OnComm>1>malo", "RS232>OnComm>10>malo (10 veces)",
                                        "RS232>OnComm>100>malo (100 veces)", "RS232>OnComm>1000>malo (1000 veces)"}));
}

TEST_F(RepeatedFaults, twoFaultsThatTakeTurnsAreCountedApart) {
    for (int vez = 0; vez < 9; ++vez) {
        anotar("uno");
        anotar("otro");
    }
    EXPECT_EQ(log.lineas.size(), 2u);
}

TEST_F(RepeatedFaults, faultOfTheNextDayIsNew) {
    anotar("malo");
    ahora += FallosRepetidos::vigencia - 1ns;
    EXPECT_EQ(anotar("malo"), 2u);
    ahora += 1ns;
    EXPECT_EQ(anotar("malo"), 1u);
    EXPECT_EQ(log.lineas.size(), 2u);
}

// A refused reading a second, each with a description of its own.
TEST_F(RepeatedFaults, dayOfNoiseStaysSmall) {
    for (int lectura = 0; lectura < 86'400; ++lectura, ahora += 1s)
        anotar("ruido " + std::to_string(lectura));
    std::size_t bytes = 0;
    for (const std::string& linea : log.lineas)
        bytes += linea.size();
    EXPECT_LE(log.lineas.size(), FallosRepetidos::maximo + 6);
    EXPECT_LE(bytes, 4096u);
}

TEST_F(RepeatedFaults, faultsBeyondTheMaximumAreCountedTogether) {
    for (std::size_t fallo = 1; fallo <= FallosRepetidos::maximo; ++fallo)
        EXPECT_EQ(anotar("propio " + std::to_string(fallo)), 1U);
    EXPECT_EQ(anotar("uno más"), 1U);
    EXPECT_EQ(anotar("y otro"), 2U);
    EXPECT_EQ(anotar("propio 7"), 2U);
}

} // namespace
