// The receive event step by step, and the silence that follows it.
#include "serial/RecepcionSerie.h"

#include "EntornoFalso.h"

#include <deque>
#include <gtest/gtest.h>
#include <stdexcept>
#include <utility>
#include <vector>

namespace {

using Pasos = std::vector<std::string>;

// A port, an engine and a window that tell in order what was done to them.
class ReceiveEvent : public testing::Test, protected MotorSerie, protected SalidaSerie {
protected:
    void recibir(std::deque<std::string> llegan) {
        pasos.clear();
        entradas = std::move(llegan);
        recepcion.alRecibir();
    }
    std::string Input() {
        if (puertoCerrado && entradas.empty())
            throw std::runtime_error("El puerto no está abierto");
        std::string entrada;
        if (!entradas.empty()) {
            entrada = entradas.front();
            entradas.pop_front();
        }
        pasos.push_back("Input " + entrada);
        return entrada;
    }

    void AddCode(std::string_view codigo) override {
        // AA =xx\r\n: the reading's first two characters tell it
        const std::string_view lectura = codigo.substr(4, codigo.find("\r\nMM") - 4);
        pasos.push_back("motor " + std::string(lectura));
        if (lectura == mala)
            throw std::runtime_error("Error de sintaxis");
    }
    void agregarRecibido(std::string_view trozo) override { pasos.push_back("recibido " + std::string(trozo)); }
    void agregarListado(std::string_view listado) override { pasos.push_back("listado " + std::string(listado)); }
    void rechazar(std::string_view lectura, std::string_view causa) override {
        pasos.push_back("rechazo " + std::string(lectura) + ": " + std::string(causa));
    }

    Pasos pasos;
    std::string mala = "nada";        // a reading's first two characters; the engine rejects it
    std::deque<std::string> entradas; // at the port
    bool puertoCerrado = false;       // once they are taken
    AjustesFalsos configuracion;
    RecepcionSerie recepcion{MarcaFin('.', ';'), configuracion, *this, [this] { return Input(); }, *this};
};

TEST_F(ReceiveEvent, stepsComeInTheirOrder) {
    recibir({"AB.;"});
    EXPECT_EQ(pasos, (Pasos{"Input AB.;", "recibido AB.;", "motor AB", "listado AB.\r\n", "Input "}));
    EXPECT_EQ(recepcion.buffer(), ";");
}

TEST_F(ReceiveEvent, eventWithoutCharactersMakesOnePass) {
    recibir({});
    EXPECT_EQ(pasos, (Pasos{"Input ", "recibido ", "Input "}));
}

TEST_F(ReceiveEvent, unfinishedFrameIsNotInterpreted) {
    recibir({"AB"});
    EXPECT_EQ(pasos, (Pasos{"Input AB", "recibido AB", "Input "}));
    EXPECT_EQ(recepcion.buffer(), "AB");
}

TEST_F(ReceiveEvent, twoFramesInOneChunkAreInterpretedInOneText) {
    recibir({"A.;B.;"});
    EXPECT_EQ(pasos,
              (Pasos{"Input A.;B.;", "recibido A.;B.;", "motor A.", "motor ;B", "listado A.\r\n;B.\r\n", "Input "}));
}

TEST_F(ReceiveEvent, frameOfAnEarlierPassIsInterpretedAgainInEachLaterPass) {
    recibir({"A.;", "B", "C.;"});
    EXPECT_EQ(pasos, (Pasos{"Input A.;", "recibido A.;", "motor A.", "listado A.\r\n", //
                            "Input B", "recibido B", "motor A.", "listado A.\r\n",     //
                            "Input C.;", "recibido C.;", "motor A.", "motor ;B", "listado A.\r\n;BC.\r\n", "Input "}));
}

TEST_F(ReceiveEvent, frameTextStartsEmptyInEachEvent) {
    recibir({"A.;"});
    recibir({"B.;"});
    EXPECT_EQ(pasos[2], "motor ;B");
}

TEST_F(ReceiveEvent, refusedReadingIsToldAndEndsTheEvent) {
    mala = "A.";
    recibir({"A.;", "B.;"});
    EXPECT_EQ(pasos, (Pasos{"Input A.;", "recibido A.;", "motor A.", "rechazo A.: Error de sintaxis"}));
    EXPECT_EQ(recepcion.buffer(), ";");
}

TEST_F(ReceiveEvent, readingsAfterTheRefusedOneAreNeitherInterpretedNorListed) {
    mala = ";B";
    recibir({"A.;B.;C.;"});
    EXPECT_EQ(pasos, (Pasos{"Input A.;B.;C.;", "recibido A.;B.;C.;", "motor A.", "motor ;B",
                            "rechazo ;B.: Error de sintaxis"}));
}

TEST_F(ReceiveEvent, validityThatIsNoNumberRefusesTheFirstReading) {
    configuracion.valores["RS232_Cant_Intervalos_Validez"] = "dos";
    recibir({"A.;"});
    EXPECT_EQ(pasos.back(), "rechazo A.: No coinciden los tipos");
}

TEST_F(ReceiveEvent, eventAfterARefusedReadingGoesOnWithTheBuffer) {
    mala = "A.";
    recibir({"A.;"});
    recibir({"B.;"});
    EXPECT_EQ(pasos, (Pasos{"Input B.;", "recibido B.;", "motor ;B", "listado ;B.\r\n", "Input "}));
}

TEST_F(ReceiveEvent, faultOfThePortIsToldWithoutAReading) {
    puertoCerrado = true;
    recibir({});
    EXPECT_EQ(pasos, Pasos{"rechazo : El puerto no está abierto"});
}

TEST_F(ReceiveEvent, silenceDropsHalfAFrame) {
    recibir({"media"});
    recepcion.alCallar();
    EXPECT_EQ(recepcion.buffer(), "");
    recibir({"A.;"});
    EXPECT_EQ(pasos[2], "motor A.");
}

TEST_F(ReceiveEvent, silenceDropsTheLeftOverEndCharacter) {
    recibir({"A.;"});
    recepcion.alCallar();
    recepcion.alCallar();
    recibir({"B.;"});
    EXPECT_EQ(pasos[2], "motor B.");
}

TEST_F(ReceiveEvent, silenceAfterARefusedReadingDropsWhatItLeft) {
    mala = ";B";
    recibir({"A.;"});
    recibir({"B.;C"});
    EXPECT_EQ(recepcion.buffer(), ";C");
    recepcion.alCallar();
    EXPECT_EQ(recepcion.buffer(), "");
}

TEST_F(ReceiveEvent, silenceAfterAFaultOfThePortDropsWhatWasThere) {
    recibir({"media"});
    puertoCerrado = true;
    recibir({});
    recepcion.alCallar();
    EXPECT_EQ(recepcion.buffer(), "");
}

TEST_F(ReceiveEvent, silenceAfterAPortThatFailsInTheMiddleDropsWhatItGave) {
    puertoCerrado = true;
    recibir({"AB"});
    EXPECT_EQ(pasos.back(), "rechazo : El puerto no está abierto");
    EXPECT_EQ(recepcion.buffer(), "AB");
    recepcion.alCallar();
    EXPECT_EQ(recepcion.buffer(), "");
}

TEST_F(ReceiveEvent, tickBeforeTheFirstEventIsHarmless) {
    recepcion.alCallar();
    EXPECT_EQ(recepcion.buffer(), "");
}

} // namespace
