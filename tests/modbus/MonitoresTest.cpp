// The monitors of the station together.
#include "modbus/Monitores.h"

#include <gtest/gtest.h>

namespace {

TEST(Monitors, frameLinesGoToTheirSlaveAndToTheCommonText) {
    Monitores monitores;
    monitores.agregarTrama(1, ClaseTrama::lectura, "uno\r\n");
    monitores.agregarTrama(200, ClaseTrama::lectura, "dos\r\n");
    EXPECT_EQ(monitores.tramas(1).texto(), "uno\r\n");
    EXPECT_EQ(monitores.tramas(200).texto(), "dos\r\n");
    EXPECT_EQ(monitores.tramas(2).texto(), "");
    EXPECT_EQ(monitores.todas().texto(), "uno\r\ndos\r\n");
    EXPECT_EQ(monitores.escrituras().texto(), "");
}

TEST(Monitors, frameMonitorStaysWhereItIsWhenOthersAreMade) {
    Monitores monitores;
    const TextoMonitor* primero = &monitores.tramas(0);
    monitores.tramas(255);
    EXPECT_EQ(&monitores.tramas(0), primero);
}

TEST(Monitors, borrarTramasClearsEveryFrameMonitorButNotTheWrites) {
    Monitores monitores;
    monitores.agregarTrama(1, ClaseTrama::lectura, "uno\r\n");
    monitores.agregarTrama(7, ClaseTrama::lectura, "dos\r\n");
    monitores.escrituras().agregar("tres\r\n");
    monitores.borrarTramas();
    EXPECT_EQ(monitores.tramas(1).texto(), "");
    EXPECT_EQ(monitores.tramas(7).texto(), "");
    EXPECT_EQ(monitores.todas().texto(), "");
    EXPECT_EQ(monitores.escrituras().texto(), "tres\r\n");
}

TEST(Monitors, borrarEscriturasClearsTheWritesOnly) {
    Monitores monitores;
    monitores.agregarTrama(1, ClaseTrama::lectura, "uno\r\n");
    monitores.escrituras().agregar("dos\r\n");
    monitores.borrarEscrituras();
    EXPECT_EQ(monitores.escrituras().texto(), "");
    EXPECT_EQ(monitores.tramas(1).texto(), "uno\r\n");
}

TEST(Monitors, framesAreNotShownAtStart) {
    EXPECT_FALSE(Monitores().verTxRx);
}

} // namespace
