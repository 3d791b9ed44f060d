#include "VentanaFalsa.h"

#include <gtest/gtest.h>

TEST(Puente, fixedPortsAre500And501) {
    Reactor reactor;
    EventosFalsos eventos;
    const Puente puente(reactor, eventos);
    EXPECT_EQ(puente.puerto(Lado::uno), 500);
    EXPECT_EQ(puente.puerto(Lado::dos), 501);
}

TEST(Puente, nothingListensBeforeTheFirstStateCheck) {
    Reactor reactor;
    VentanaFalsa ventana;
    const std::uint16_t puerto = puertoLibre();
    EventosFalsos eventos;
    Puente puente(reactor, eventos, puerto, puertoLibre());
    puente.mostrarEn(&ventana);
    EXPECT_EQ(puente.estado(Lado::uno), WinsockState::closed);
    EXPECT_EQ(puente.estado(Lado::dos), WinsockState::closed);
    EXPECT_FALSE(Peer(puerto).connected());
    EXPECT_TRUE(ventana.colores[0].empty());
}

TEST(Puente, firstCheckShowsRedAndListensAndTheNextShowsNavy) {
    Banco b;
    for (const std::size_t lado : {Banco::uno, Banco::dos})
        EXPECT_EQ(b.ventana.colores[lado], std::vector{ColorPuerto::rojo});
    EXPECT_EQ(b.puente.estado(Lado::uno), WinsockState::listening);
    EXPECT_EQ(b.puente.estado(Lado::dos), WinsockState::listening);
    b.puente.verificarEstado();
    for (const std::size_t lado : {Banco::uno, Banco::dos})
        EXPECT_EQ(b.ventana.colores[lado].back(), ColorPuerto::azul);
}

TEST(Puente, connectedSideIsGreenAndTheOtherStaysNavy) {
    Banco b;
    const Peer cliente = b.conectar(Lado::dos);
    b.puente.verificarEstado();
    EXPECT_EQ(b.ventana.colores[Banco::dos].back(), ColorPuerto::verde);
    EXPECT_EQ(b.ventana.colores[Banco::uno].back(), ColorPuerto::azul);
}

TEST(Puente, blockOfEitherSideReachesTheOtherUnchanged) {
    Banco b;
    const Peer c1 = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos);
    std::string bytes;
    for (int i = 0; i < 256; ++i)
        bytes.push_back(static_cast<char>(i));
    c1.send(bytes);
    EXPECT_EQ(b.recibir(c2, 256), bytes);
    c2.send(bytes + bytes);
    EXPECT_EQ(b.recibir(c1, 512), bytes + bytes);
}

TEST(Puente, withoutAClientOnSideTwoDataIsEchoedAndShownButNotForwarded) {
    Banco b;
    b.ventana.conEcho = true;
    const Peer c1 = b.conectar(Lado::uno);
    c1.send("hola");
    EXPECT_EQ(b.recibir(c1, 4), "hola");
    EXPECT_EQ(b.ventana.textos[Banco::uno], "hola");
    const Peer c2 = b.conectar(Lado::dos);
    c1.send("!");
    EXPECT_EQ(b.recibir(c2, 1), "!"); // nothing of what came before was kept
}

TEST(Puente, withoutEchoNothingComesBack) {
    Banco b;
    const Peer c1 = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos);
    c1.send("hola");
    b.recibir(c2, 4);
    EXPECT_EQ(c1.receive(), "");
}

TEST(Puente, sideTwoHasNoEcho) {
    Banco b;
    b.ventana.conEcho = true;
    const Peer c2 = b.conectar(Lado::dos);
    c2.send("hola");
    EXPECT_TRUE(b.mostrado(Banco::dos, "hola"));
    EXPECT_EQ(c2.receive(), "");
}

TEST(Puente, secondClientOfASideIsNotAccepted) {
    Banco b;
    const Peer primero = b.conectar(Lado::uno);
    EXPECT_FALSE(Peer(static_cast<std::uint16_t>(b.puente.puerto(Lado::uno))).connected());
    b.puente.verificarEstado();
    EXPECT_FALSE(Peer(static_cast<std::uint16_t>(b.puente.puerto(Lado::uno))).connected());
}

TEST(Puente, clientThatWaitsInTheBacklogIsTurnedAwayWhenAnotherIsServed) {
    Banco b;
    const auto puerto = static_cast<std::uint16_t>(b.puente.puerto(Lado::uno));
    const Peer primero(puerto);
    const Peer segundo(puerto); // the kernel takes both before the bridge looks
    const Peer c2 = b.conectar(Lado::dos);
    EXPECT_TRUE(b.esperar([&] { return segundo.ended(); }));
    primero.send("hola");
    EXPECT_EQ(b.recibir(c2, 4), "hola");
}

TEST(Puente, portListensAgainAfterTheClientLeft) {
    Banco b;
    Peer primero = b.conectar(Lado::uno);
    primero.close();
    EXPECT_TRUE(b.esperar([&] { return b.puente.estado(Lado::uno) != WinsockState::connected; }));
    EXPECT_EQ(b.puente.estado(Lado::uno), WinsockState::closing);
    b.puente.verificarEstado();
    EXPECT_EQ(b.ventana.colores[Banco::uno].back(), ColorPuerto::rojo);
    b.puente.verificarEstado();
    EXPECT_EQ(b.ventana.colores[Banco::uno].back(), ColorPuerto::azul);
    const Peer segundo = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos);
    segundo.send("hola");
    EXPECT_EQ(b.recibir(c2, 4), "hola");
}

TEST(Puente, otherSideStaysConnectedWhenOneClientLeaves) {
    Banco b;
    Peer c1 = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos);
    c1.close();
    b.esperar([&] { return b.puente.estado(Lado::uno) != WinsockState::connected; });
    EXPECT_EQ(b.puente.estado(Lado::dos), WinsockState::connected);
    c2.send("nadie");
    EXPECT_TRUE(b.mostrado(Banco::dos, "nadie"));
}

TEST(Puente, clientThatResetsInTheMiddleIsAnErrorAndThePortOpensAgain) {
    Banco b;
    Peer c1 = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos);
    c1.send("mitad");
    EXPECT_EQ(b.recibir(c2, 5), "mitad");
    c1.reset();
    EXPECT_TRUE(b.esperar([&] { return b.puente.estado(Lado::uno) == WinsockState::error; }));
    EXPECT_EQ(b.puente.estado(Lado::dos), WinsockState::connected);
    b.puente.verificarEstado();
    EXPECT_EQ(b.puente.estado(Lado::uno), WinsockState::listening);
}

TEST(Puente, whatAHalfClosedClientSentIsStillRelayed) {
    Banco b;
    const Peer c1 = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos);
    const std::string mucho(3'000'000, 'x'); // more than the kernel's buffers and the bridge's bound hold together
    std::size_t enviados = 0;
    std::string recibidos;
    b.esperar([&] {
        if (enviados < mucho.size()) {
            enviados += c1.sendSome(bytesOf(std::string_view(mucho).substr(enviados)));
            if (enviados == mucho.size())
                c1.halfClose();
        } else {
            recibidos += c2.receive();
        }
        if (enviados < mucho.size() && b.puente.pendiente(Lado::dos) > Puente::maxPendiente)
            recibidos += c2.receive();
        return recibidos.size() == mucho.size();
    });
    EXPECT_EQ(recibidos, mucho);
    EXPECT_TRUE(b.esperar([&] { return b.puente.estado(Lado::uno) == WinsockState::closing; }));
}

TEST(Puente, blockIsShownAsHexadecimalWhileModbusIsTicked) {
    Banco b;
    b.ventana.conModbus = true;
    const Peer c1 = b.conectar(Lado::uno);
    c1.send(std::string_view("\x00\x01\xFF", 3));
    EXPECT_TRUE(b.mostrado(Banco::uno, std::string_view("\x00\x01\xFF|", 4)));
}

TEST(Puente, charactersFollowEachOtherWithoutAddedLineBreaks) {
    Banco b;
    const Peer c1 = b.conectar(Lado::uno);
    c1.send("AB\r");
    EXPECT_TRUE(b.mostrado(Banco::uno, "AB\r"));
    c1.send("C\nD");
    EXPECT_TRUE(b.mostrado(Banco::uno, "AB\rC\nD"));
}

TEST(Puente, blocksAreReadWhereTheMonitorKeepsThem) {
    Banco b;
    std::array<std::uint8_t, 100> lugar{};
    b.ventana.lugar = lugar;
    const Peer c1 = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos);
    const std::string bytes = std::string(100, 'a') + std::string(100, 'b') + std::string(50, 'c');
    c1.send(bytes);
    EXPECT_EQ(b.recibir(c2, bytes.size()), bytes);
    EXPECT_EQ(b.ventana.textos[Banco::uno], bytes);
    EXPECT_EQ(std::string(lugar.begin(), lugar.end()), std::string(50, 'c') + std::string(50, 'b'));
}

TEST(Puente, whatIsNotShownIsReadElsewhere) {
    Banco b;
    std::array<std::uint8_t, 100> lugar{};
    b.ventana.lugar = lugar;
    b.ventana.conStop = true;
    const Peer c1 = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos);
    c1.send("abc");
    EXPECT_EQ(b.recibir(c2, 3), "abc");
    EXPECT_EQ(lugar[0], 0);
}

TEST(Puente, eachSideHasItsOwnMonitor) {
    Banco b;
    const Peer c1 = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos);
    c1.send("uno");
    EXPECT_TRUE(b.mostrado(Banco::uno, "uno"));
    c2.send("dos");
    EXPECT_TRUE(b.mostrado(Banco::dos, "dos"));
    EXPECT_EQ(b.ventana.textos[Banco::uno], "uno");
}

TEST(Puente, withStopRelayingAndEchoGoOnAndNeitherMonitorChanges) {
    Banco b;
    b.ventana.conStop = b.ventana.conEcho = true;
    const Peer c1 = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos);
    c1.send("ida");
    EXPECT_EQ(b.recibir(c2, 3), "ida");
    EXPECT_EQ(b.recibir(c1, 3), "ida");
    c2.send("vuelta");
    EXPECT_EQ(b.recibir(c1, 6), "vuelta");
    EXPECT_EQ(b.ventana.textos[Banco::uno], "");
    EXPECT_EQ(b.ventana.textos[Banco::dos], "");
}

TEST(Puente, firstByteOfSideOneIsKeptOnlyInHexadecimal) {
    Banco b;
    const Peer c1 = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos);
    c1.send("A");
    b.recibir(c2, 1);
    EXPECT_EQ(b.puente.primerByteModbus(), 0);
    b.ventana.conModbus = b.ventana.conStop = true;
    c1.send("BC");
    b.recibir(c2, 2);
    EXPECT_EQ(b.puente.primerByteModbus(), 'B');
    c2.send("D");
    b.recibir(c1, 1);
    EXPECT_EQ(b.puente.primerByteModbus(), 'B');
}

TEST(Puente, blocksAreShownInTheOrderOfArrivalAlthoughEventsRunBetween) {
    Banco b;
    b.ventana.conModbus = true;
    const Peer c1 = b.conectar(Lado::uno);
    b.eventos.alPasarEventos = [&] { b.reactor.turn(); };
    std::string esperado;
    for (int i = 0; i < 50; ++i) {
        c1.send(std::string(1, static_cast<char>('0' + i % 10)));
        b.reactor.turn();
        esperado += static_cast<char>('0' + i % 10);
    }
    std::string sinFines;
    EXPECT_TRUE(b.esperar([&] {
        sinFines = b.ventana.textos[0];
        std::erase(sinFines, '|');
        return sinFines.size() == esperado.size();
    }));
    EXPECT_EQ(sinFines, esperado);
}

TEST(Puente, takenPortStaysRedAndIsTriedAtEveryCheck) {
    Reactor reactor;
    Recorder otro;
    Winsock ocupante(reactor, otro);
    ASSERT_FALSE(ocupante.Listen());
    VentanaFalsa ventana;
    EventosFalsos eventos;
    Puente puente(reactor, eventos, ocupante.LocalPort(), puertoLibre());
    puente.mostrarEn(&ventana);
    for (int vez = 0; vez < 3; ++vez)
        puente.verificarEstado();
    EXPECT_EQ(ventana.colores[0], std::vector(3, ColorPuerto::rojo));
    ASSERT_EQ(ventana.fallos[0].size(), 3U);
    EXPECT_TRUE(ventana.fallos[0].front() == std::errc::address_in_use);
    EXPECT_EQ(ventana.colores[1].back(), ColorPuerto::azul);
    EXPECT_TRUE(ventana.fallos[1].empty());
    ocupante.Close();
    puente.verificarEstado();
    EXPECT_EQ(puente.estado(Lado::uno), WinsockState::listening);
}
