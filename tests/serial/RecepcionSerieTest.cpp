// The receive event step by step, and the silence timer.
#include "serial/RecepcionSerie.h"

#include <deque>
#include <gtest/gtest.h>
#include <stdexcept>
#include <vector>

namespace {

// A window that tells in order what was done to it.
class VentanaFalsa final : public VentanaRecepcion {
public:
    std::deque<std::string> entradas; // of Input; empty texts from their end on
    std::vector<std::string> pasos;
    std::string tramaMala; // is rejected
    bool puertoCerrado = false;

    std::string Input() override {
        if (puertoCerrado)
            throw std::runtime_error("El puerto no está abierto");
        std::string entrada;
        if (!entradas.empty()) {
            entrada = entradas.front();
            entradas.pop_front();
        }
        pasos.push_back("Input " + entrada);
        return entrada;
    }

    void agregarRecibido(std::string_view trozo) override { pasos.push_back("recibido " + std::string(trozo)); }

    void interpretarTrama(std::string_view trama) override {
        pasos.push_back("trama " + std::string(trama));
        if (trama == tramaMala)
            throw std::runtime_error("Error de sintaxis");
    }

    void vigilarSilencio(bool activo) override { pasos.emplace_back(activo ? "vigilar" : "no vigilar"); }
};

using Pasos = std::vector<std::string>;

class ReceiveEvent : public testing::Test {
protected:
    void recibir(std::deque<std::string> entradas) {
        ventana.pasos.clear();
        ventana.entradas = std::move(entradas);
        recepcion.alRecibir();
    }

    VentanaFalsa ventana;
    RecepcionSerie recepcion{MarcaFin('.', ';'), ventana};
};

TEST_F(ReceiveEvent, stepsComeInTheirOrder) {
    recibir({"AB.;"});
    EXPECT_EQ(ventana.pasos, (Pasos{"no vigilar", "Input AB.;", "recibido AB.;", "trama AB..;", "Input ", "vigilar"}));
    EXPECT_EQ(recepcion.buffer(), ";");
}

TEST_F(ReceiveEvent, eventWithoutCharactersMakesOnePass) {
    recibir({});
    EXPECT_EQ(ventana.pasos, (Pasos{"no vigilar", "Input ", "recibido ", "Input ", "vigilar"}));
}

TEST_F(ReceiveEvent, unfinishedFrameIsNotInterpreted) {
    recibir({"AB"});
    EXPECT_EQ(ventana.pasos, (Pasos{"no vigilar", "Input AB", "recibido AB", "Input ", "vigilar"}));
    EXPECT_EQ(recepcion.buffer(), "AB");
}

TEST_F(ReceiveEvent, twoFramesInOneChunkAreHandedOnInOneText) {
    recibir({"A.;B.;"});
    EXPECT_EQ(ventana.pasos[3], "trama A..;;B..;");
    EXPECT_EQ(ventana.pasos.size(), 6u);
}

TEST_F(ReceiveEvent, frameOfAnEarlierPassIsHandedOnAgainInEachLaterPass) {
    recibir({"A.;", "B", "C.;"});
    EXPECT_EQ(ventana.pasos, (Pasos{"no vigilar", "Input A.;", "recibido A.;", "trama A..;", //
                                    "Input B", "recibido B", "trama A..;",                   //
                                    "Input C.;", "recibido C.;", "trama A..;;BC..;",         //
                                    "Input ", "vigilar"}));
}

TEST_F(ReceiveEvent, frameTextStartsEmptyInEachEvent) {
    recibir({"A.;"});
    recibir({"B.;"});
    EXPECT_EQ(ventana.pasos[3], "trama ;B..;");
}

TEST_F(ReceiveEvent, faultOfTheInterpreterEndsTheEventWithTheTimerOff) {
    ventana.tramaMala = "A..;";
    EXPECT_THROW(recibir({"A.;", "B.;"}), std::runtime_error);
    EXPECT_EQ(ventana.pasos, (Pasos{"no vigilar", "Input A.;", "recibido A.;", "trama A..;"}));
    EXPECT_EQ(recepcion.buffer(), ";");
}

TEST_F(ReceiveEvent, eventAfterAFaultGoesOnWithTheBuffer) {
    ventana.tramaMala = "A..;";
    EXPECT_THROW(recibir({"A.;"}), std::runtime_error);
    recibir({"B.;"});
    EXPECT_EQ(ventana.pasos, (Pasos{"no vigilar", "Input B.;", "recibido B.;", "trama ;B..;", "Input ", "vigilar"}));
}

TEST_F(ReceiveEvent, faultOfThePortPassesThrough) {
    ventana.puertoCerrado = true;
    EXPECT_THROW(recibir({}), std::runtime_error);
}

TEST_F(ReceiveEvent, silenceDropsHalfAFrame) {
    recibir({"media"});
    recepcion.alCallar();
    EXPECT_EQ(recepcion.buffer(), "");
    recibir({"A.;"});
    EXPECT_EQ(ventana.pasos[3], "trama A..;");
}

TEST_F(ReceiveEvent, silenceDropsTheLeftOverEndCharacter) {
    recibir({"A.;"});
    recepcion.alCallar();
    recepcion.alCallar();
    recibir({"B.;"});
    EXPECT_EQ(ventana.pasos[3], "trama B..;");
}

TEST_F(ReceiveEvent, whatCameAfterTheLastWholeEventOutlivesATick) {
    recibir({"A.;"});
    ventana.tramaMala = ";B..;";
    EXPECT_THROW(recibir({"B.;C"}), std::runtime_error);
    recepcion.alCallar();
    EXPECT_EQ(recepcion.buffer(), ";C");
}

TEST_F(ReceiveEvent, tickBeforeTheFirstEventIsHarmless) {
    recepcion.alCallar();
    EXPECT_EQ(recepcion.buffer(), "");
}

} // namespace
