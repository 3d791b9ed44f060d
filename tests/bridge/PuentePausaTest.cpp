#include "VentanaFalsa.h"

#include <gtest/gtest.h>

namespace {

const std::string mucho(64 * 1024, 'x');

// Sends until neither the kernel nor the bridge takes more; returns how much went out.
std::size_t llenar(Banco& b, const Peer& cliente) {
    std::size_t enviados = 0;
    int quieto = 0;
    b.esperar([&] {
        const std::size_t ahora = cliente.sendSome(bytesOf(mucho));
        enviados += ahora;
        quieto = ahora == 0 ? quieto + 1 : 0;
        return quieto == 200;
    });
    return enviados;
}

// A client that closes its window early, so that the bridge soon has to wait for it.
constexpr int buferPequeno = 32768;

} // namespace

TEST(PuentePausa, slowSideTwoHoldsSideOneAndNothingIsLost) {
    Banco b;
    b.ventana.conStop = true;
    const Peer c1 = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos, buferPequeno);
    const std::size_t enviados = llenar(b, c1);
    EXPECT_GT(b.puente.pendiente(Lado::dos), Puente::maxPendiente);
    EXPECT_LE(b.puente.pendiente(Lado::dos), Puente::maxPendiente + Reactor::receiveSize);
    EXPECT_EQ(b.recibir(c2, enviados).size(), enviados);
    EXPECT_EQ(b.puente.pendiente(Lado::dos), 0U);
    c1.send("fin");
    EXPECT_EQ(b.recibir(c2, 3), "fin");
}

TEST(PuentePausa, slowSideTwoDoesNotHoldWhatItSendsItself) {
    Banco b;
    b.ventana.conStop = true;
    const Peer c1 = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos, buferPequeno);
    llenar(b, c1);
    c2.send("respuesta");
    EXPECT_EQ(b.recibir(c1, 9), "respuesta");
}

TEST(PuentePausa, echoToAClientThatDoesNotReadStaysBounded) {
    Banco b;
    b.ventana.conStop = b.ventana.conEcho = true;
    const Peer c1 = b.conectar(Lado::uno, buferPequeno);
    const std::size_t enviados = llenar(b, c1);
    EXPECT_LE(b.puente.pendiente(Lado::uno), Puente::maxPendiente + Reactor::receiveSize);
    EXPECT_EQ(b.recibir(c1, enviados).size(), enviados);
}

TEST(PuentePausa, echoSwitchedOffWhileItWaitsLetsTheClientGoOn) {
    Banco b;
    b.ventana.conStop = b.ventana.conEcho = true;
    const Peer c1 = b.conectar(Lado::uno, buferPequeno);
    const Peer c2 = b.conectar(Lado::dos);
    llenar(b, c1);
    b.ventana.conEcho = false;
    b.puente.verificarEstado();
    std::size_t llegados = 0;
    EXPECT_TRUE(b.esperar([&] {
        llegados += c2.receive().size();
        return c1.sendSome(bytesOf(mucho)) > 0;
    }));
}

TEST(PuentePausa, slowClientThatLeavesFreesTheOther) {
    Banco b;
    b.ventana.conStop = true;
    const Peer c1 = b.conectar(Lado::uno);
    Peer c2 = b.conectar(Lado::dos, buferPequeno);
    llenar(b, c1);
    c2.close();
    EXPECT_TRUE(b.esperar([&] { return c1.sendSome(bytesOf(mucho)) > 0; }));
    EXPECT_EQ(b.puente.pendiente(Lado::dos), 0U);
}

TEST(PuentePausa, slowClientThatResetsFreesTheOther) {
    Banco b;
    b.ventana.conStop = true;
    const Peer c1 = b.conectar(Lado::uno);
    Peer c2 = b.conectar(Lado::dos, buferPequeno);
    llenar(b, c1);
    c2.reset();
    EXPECT_TRUE(b.esperar([&] { return c1.sendSome(bytesOf(mucho)) > 0; }));
}

TEST(PuentePausa, newClientOfAHeldSideIsServedWhenTheSlowOneReadsOn) {
    Banco b;
    b.ventana.conStop = true;
    Peer viejo = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos, buferPequeno);
    const std::size_t enviados = llenar(b, viejo);
    viejo.reset();
    b.esperar([&] { return b.puente.estado(Lado::uno) == WinsockState::error; });
    b.puente.verificarEstado();
    const Peer nuevo = b.conectar(Lado::uno);
    nuevo.send("nuevo");
    std::string recibidos;
    EXPECT_TRUE(b.esperar([&] {
        recibidos += c2.receive();
        return recibidos.ends_with("nuevo");
    }));
    EXPECT_LE(recibidos.size(), enviados + 5);
}
