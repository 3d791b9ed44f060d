#include "platform/system/Pantalla.h"

#include <gtest/gtest.h>

namespace {

class PantallasFalsas final : public Pantallas {
public:
    std::string nombreX() const override { return x; }
    std::string nombreWayland() const override { return wayland; }
    bool respondeX() const override { return hayX; }
    bool respondeWayland() const override { return hayWayland; }

    std::string x;
    std::string wayland;
    bool hayX = false;
    bool hayWayland = false;
};

class EleccionDePantalla : public testing::Test {
protected:
    EleccionPantalla elegir(const std::string& pedida = "") const { return elegirPantalla(pedida, pantallas); }

    PantallasFalsas pantallas;
};

TEST_F(EleccionDePantalla, withoutAnyScreenTheWindowsStayUnseen) {
    EXPECT_EQ(elegir().plataforma, "offscreen");
    EXPECT_EQ(elegir().motivo, "no hay pantalla");
}

TEST_F(EleccionDePantalla, aScreenThatDoesNotAnswerIsNamed) {
    pantallas.x = ":99";
    EXPECT_EQ(elegir().plataforma, "offscreen");
    EXPECT_EQ(elegir().motivo, "no se puede abrir la pantalla \":99\" (DISPLAY)");
    pantallas = {};
    pantallas.wayland = "wayland-7";
    EXPECT_EQ(elegir().motivo, "no se puede abrir la pantalla \"wayland-7\" (WAYLAND_DISPLAY)");
}

TEST_F(EleccionDePantalla, theOneThatAnswersIsTaken) {
    pantallas.x = ":0";
    pantallas.wayland = "wayland-0";
    pantallas.hayX = true;
    EXPECT_EQ(elegir().plataforma, "xcb");
    EXPECT_EQ(elegir().motivo, "");
    pantallas.hayX = false;
    pantallas.hayWayland = true;
    EXPECT_EQ(elegir().plataforma, "wayland");
    pantallas.hayX = true;
    EXPECT_EQ(elegir().plataforma, ""); // both: the window system chooses
}

TEST_F(EleccionDePantalla, whatTheUserAskedForIsTriedToo) {
    pantallas.x = ":99";
    EXPECT_EQ(elegir("xcb").plataforma, "offscreen");
    EXPECT_NE(elegir("xcb").motivo, "");
    EXPECT_EQ(elegir("offscreen").plataforma, "");
    EXPECT_EQ(elegir("offscreen").motivo, "");
    EXPECT_EQ(elegir("vnc:size=800x600").plataforma, "");
    EXPECT_EQ(elegir("wayland").plataforma, "offscreen");
    pantallas.hayX = true;
    EXPECT_EQ(elegir("xcb").plataforma, "");
}

} // namespace
