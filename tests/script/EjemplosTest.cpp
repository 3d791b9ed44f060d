// Every sample script, run for many passes on an empty store.
#include "CarpetaTemporal.h"
#include "script/MotorConMW.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace {

constexpr int slave = 1;

class Samples : public testing::Test {
protected:
    void load(const std::string& name) {
        text_ = contenidoDe(std::filesystem::path(ESCLAVO_EJEMPLOS) / name);
        ASSERT_FALSE(text_.empty()) << name;
    }

    void pass(int times = 1) {
        for (int i = 0; i < times; ++i)
            ASSERT_EQ(station_.ejecutar(text_), 0) << "pass " << i << ", line " << station_.motor.error().line;
    }

    double at(std::size_t address) const { return station_.registro(slave, address); }

    bool bitAt(std::size_t address, int bit) const { return (static_cast<int>(at(address)) >> bit & 1) == 1; }

    void masterWrites(double address, double value) { station_.esclavos.escribir(slave, address, value); }

    MotorConMW station_;

private:
    std::string text_;
};

} // namespace

TEST_F(Samples, rampRisesByTenAndStartsAgainAfterItsMaximum) {
    load("rampa.vbs");
    for (int i = 0; i < 250; ++i) {
        pass();
        ASSERT_EQ(at(0), 10 * (i % 101));
    }
}

TEST_F(Samples, sineIsAFullTurnInSixtyPasses) {
    load("seno.vbs");
    const double turn = 8 * std::atan(1.0);
    for (int i = 0; i < 200; ++i) {
        pass();
        const double wave = std::nearbyint(1000 * std::sin(turn * (i % 60) / 60));
        ASSERT_EQ(at(10), wave < 0 ? wave + 65536 : wave) << i;
        ASSERT_EQ(at(11), wave + 1000) << i;
    }
}

TEST_F(Samples, tankStaysBetweenItsSetPointsWithOnePumpThatStartsAndStops) {
    load("tanque.vbs");
    pass(200);
    int starts = 0;
    for (int i = 0; i < 2000; ++i) {
        const bool before = bitAt(24, 0);
        pass();
        starts += !before && bitAt(24, 0) ? 1 : 0;
        ASSERT_GE(at(20), 390);
        ASSERT_LE(at(20), 810);
        ASSERT_FALSE(bitAt(24, 1)) << "the second pump";
        ASSERT_TRUE(bitAt(24, 2)) << "the valve";
        ASSERT_EQ(at(25), 0) << "an alarm";
    }
    EXPECT_GT(starts, 3);
    EXPECT_LT(starts, 20) << "the pump chatters";
}

TEST_F(Samples, tankPumpKeepsItsStateBetweenTheSetPoints) {
    load("tanque.vbs");
    pass();
    while (!bitAt(24, 0))
        pass();
    EXPECT_LT(at(20), 410) << "it starts below the lower one";
    while (bitAt(24, 0))
        pass();
    EXPECT_GT(at(20), 790) << "it stops above the upper one";
}

TEST_F(Samples, tankThatCannotBeFilledGivesTheLowAlarmsAndStartsBothPumps) {
    load("tanque.vbs");
    pass();
    masterWrites(22, 60);
    masterWrites(23, 90);
    masterWrites(21, 100);
    while (!bitAt(25, 1))
        pass();
    EXPECT_FALSE(bitAt(25, 0)) << "low comes before very low";
    while (!bitAt(25, 0))
        pass();
    EXPECT_LT(at(20), 100);
    EXPECT_FALSE(bitAt(25, 2) || bitAt(25, 3));
    while (!bitAt(24, 1))
        pass();
    EXPECT_TRUE(bitAt(24, 0)) << "the first pump helps no less";
}

TEST_F(Samples, tankThatOverflowsGivesTheHighAlarmsAndStopsAtItsBrim) {
    load("tanque.vbs");
    pass();
    masterWrites(21, 0);
    masterWrites(22, 2000);
    masterWrites(23, 3000);
    pass(200);
    EXPECT_EQ(at(20), 1000);
    EXPECT_EQ(at(25), 12) << "bits 2 and 3";
    EXPECT_FALSE(bitAt(24, 2)) << "the valve is shut";
}

TEST_F(Samples, counterSeesWhatAMasterChanges) {
    load("contador_escrituras.vbs");
    pass(3);
    EXPECT_EQ(at(40), 0);
    masterWrites(33, 1234);
    pass();
    EXPECT_EQ(at(40), 1);
    EXPECT_EQ(at(41), 33);
    EXPECT_EQ(at(42), 0);
    masterWrites(33, 99);
    pass(10);
    EXPECT_EQ(at(40), 2) << "each change counts once";
    EXPECT_EQ(at(42), 1234);
}

TEST_F(Samples, counterSeesNeitherEqualValuesNorRegistersThatItDoesNotWatch) {
    load("contador_escrituras.vbs");
    pass();
    masterWrites(30, 0);
    masterWrites(29, 5);
    masterWrites(43, 5);
    pass();
    EXPECT_EQ(at(40), 0);
}

TEST_F(Samples, counterStartsAgainAfter65535) {
    load("contador_escrituras.vbs");
    pass();
    ASSERT_EQ(station_.ejecutar("contados = 65534"), 0);
    for (const double expected : {65535, 0, 1}) {
        masterWrites(39, at(39) + 1);
        pass();
        EXPECT_EQ(at(40), expected);
    }
}

TEST_F(Samples, walkStaysWithinItsBoundsAndTellsItsSteps) {
    load("paseo_aleatorio.vbs");
    pass();
    std::set<double> steps;
    double before = at(50);
    double least = std::min(before, 200.0); // where the walk begins
    double greatest = std::max(before, 200.0);
    for (int i = 0; i < 3000; ++i) {
        pass();
        const double step = at(51) >= 32768 ? at(51) - 65536 : at(51);
        ASSERT_EQ(at(50), before + step);
        before = at(50);
        least = std::min(least, before);
        greatest = std::max(greatest, before);
        steps.insert(step);
    }
    EXPECT_GE(least, 150);
    EXPECT_LE(greatest, 300);
    EXPECT_EQ(at(52), least);
    EXPECT_EQ(at(53), greatest);
    EXPECT_EQ(steps.size(), 11U) << "every step from -5 to 5";
}

TEST_F(Samples, serialReadingGoesToTheRegistersAndStaysValidForItsPasses) {
    load("lectura_serie.vbs");
    pass(5);
    EXPECT_EQ(at(65), 0);
    EXPECT_EQ(at(66), 0);
    ASSERT_EQ(station_.ejecutar("AA =24\r\nMM =05\r\nDD = 17\r\nID = 123\r\nVALIDEZ = 2\r\n"), 0);
    pass();
    EXPECT_EQ(at(60), 24);
    EXPECT_EQ(at(61), 5);
    EXPECT_EQ(at(62), 17);
    EXPECT_EQ(at(63), 123);
    EXPECT_EQ(at(64), 0);
    EXPECT_EQ(at(65), 1);
    EXPECT_EQ(at(66), 1);
    pass();
    EXPECT_EQ(at(66), 1) << "two passes";
    pass(10);
    EXPECT_EQ(at(66), 0);
    EXPECT_EQ(at(65), 1) << "one reading counts once";
    EXPECT_EQ(at(63), 123) << "the last reading stays";
}

TEST_F(Samples, equalSerialReadingsCountAndLongIdentifiersTakeTwoWords) {
    load("lectura_serie.vbs");
    pass();
    for (int i = 0; i < 3; ++i) {
        ASSERT_EQ(station_.ejecutar("AA =24\r\nMM =05\r\nDD = 17\r\nID = 4294967295\r\nVALIDEZ = 2\r\n"), 0);
        pass();
    }
    EXPECT_EQ(at(63), 65535);
    EXPECT_EQ(at(64), 65535);
    EXPECT_EQ(at(65), 3);
}

TEST_F(Samples, trafficLightGoesRoundInItsTimes) {
    load("semaforo.vbs");
    std::string lights;
    for (int i = 0; i < 50; ++i) {
        pass();
        lights += at(70) == 1 ? 'r' : at(70) == 2 ? 'a' : at(70) == 4 ? 'v' : '?';
    }
    EXPECT_EQ(lights, "rrrrrrrrrrvvvvvvvvvvvvaaarrrrrrrrrrvvvvvvvvvvvvaaa");
}

TEST_F(Samples, trafficLightShortensGreenForAPedestrian) {
    load("semaforo.vbs");
    pass(11);
    ASSERT_EQ(at(70), 4);
    masterWrites(72, 1);
    pass();
    EXPECT_EQ(at(72), 0);
    EXPECT_EQ(at(71), 3);
    pass(3);
    EXPECT_EQ(at(70), 2);
}

// A sample that nobody tests is found here.
TEST(SampleFolder, holdsTheScriptsThatAreTested) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(ESCLAVO_EJEMPLOS)) {
        if (entry.path().extension() == ".vbs")
            names.insert(entry.path().filename().string());
    }
    EXPECT_EQ(names, (std::set<std::string>{"contador_escrituras.vbs", "lectura_serie.vbs", "paseo_aleatorio.vbs",
                                            "rampa.vbs", "semaforo.vbs", "seno.vbs", "tanque.vbs"}));
}
