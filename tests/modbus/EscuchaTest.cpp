#include "modbus/Escucha.h"

#include "EventosFalsos.h"
#include "RelojDePrueba.h"
#include "tests/platform/net/Peer.h"

#include <gmock/gmock.h>
#include <memory>

using namespace std::chrono_literals;

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Fila {
    std::string ip;
    std::string estado;
    bool operator==(const Fila&) const = default;
};

struct Ventana : EntornoEscucha {
    double leerPuerto() override { return puerto; }
    void guardarPuerto(double valor) override { guardado = valor; }
    void mostrarPuerto(const std::string& texto) override { etiqueta = texto; }
    void mostrarEscuchando(bool valor) override { verde = valor; }
    void avisar(const std::string& motivo) override { avisos.push_back(motivo); }
    bool esDelPuente(double p) const override { return p == puertoDelPuente; }
    void anunciar(const std::string& texto) override { anuncios.push_back(texto); }
    void agregarFila() override { filas.emplace_back(); }
    void mostrarFila(std::size_t fila, const std::string& ip, const std::string& estado) override {
        filas.at(fila) = {ip, estado};
    }

    double puerto = 0;
    double guardado = -1;
    std::string etiqueta;
    bool verde = false;
    double puertoDelPuente = 500;
    std::vector<std::string> avisos;
    std::vector<std::string> anuncios;
    std::vector<Fila> filas;
};

// A port that was free a moment ago.
std::uint16_t puertoLibre() {
    Reactor reactor;
    Recorder nadie;
    Winsock sonda(reactor, nadie);
    EXPECT_FALSE(sonda.Listen());
    return sonda.LocalPort();
}

class EscuchaTest : public testing::Test {
protected:
    EscuchaTest() { ventana.puerto = puertoLibre(); }

    std::uint16_t puerto() const { return static_cast<std::uint16_t>(ventana.puerto); }

    std::unique_ptr<Peer> conectar() {
        auto maestro = std::make_unique<Peer>(puerto());
        maestro->send(peticion);
        EXPECT_TRUE(runUntil(reactor, [&] { return !maestro->receive().empty(); }));
        escucha.refrescarConexiones();
        return maestro;
    }

    void desconectar(std::unique_ptr<Peer>& maestro) {
        const auto antes = conectadas();
        maestro.reset();
        ASSERT_TRUE(runUntil(reactor, [&] {
            escucha.refrescarConexiones();
            return conectadas() < antes;
        }));
    }

    std::ptrdiff_t conectadas() const { return std::ranges::count(ventana.filas, "Conectado", &Fila::estado); }

    // Reads ten registers of slave 1.
    const std::string peticion{"\0\1\0\0\0\6\1\3\0\0\0\12", 12};
    const Fila conectado{"127.0.0.1", "Conectado"};
    const Fila libre{"127.0.0.1", "NO CONECTADO Y LIBRE"};

    Ventana ventana;
    RelojDePrueba reloj;
    Esclavos esclavos;
    Monitores monitores;
    Peticiones peticiones{esclavos, monitores, reloj};
    Reactor reactor{reloj};
    EventosFalsos eventos;
    std::unique_ptr<Escucha> dueno =
        std::make_unique<Escucha>(reactor, peticiones, ventana, eventos, "/opt/esclavo-modbus");
    Escucha& escucha = *dueno;
};

TEST_F(EscuchaTest, listensShowsThePortAndWritesItBack) {
    escucha.levantarEscucha();
    escucha.refrescarConexiones();
    EXPECT_TRUE(escucha.escuchando());
    EXPECT_EQ(ventana.etiqueta, "Puerto: " + std::to_string(puerto()));
    EXPECT_EQ(ventana.guardado, puerto());
    EXPECT_TRUE(ventana.verde);
    EXPECT_THAT(ventana.avisos, IsEmpty());
}

TEST_F(EscuchaTest, answersARequest) {
    escucha.levantarEscucha();
    Peer maestro(puerto());
    maestro.send(peticion);
    std::string respuesta;
    ASSERT_TRUE(runUntil(reactor, [&] { return (respuesta += maestro.receive()).size() == 29; }));
    EXPECT_EQ(respuesta.substr(0, 9), std::string("\0\1\0\0\0\27\1\3\24", 9));
}

TEST_F(EscuchaTest, tellsOfEachConnectedMaster) {
    escucha.levantarEscucha();
    const Reloj::Instante antes = reloj.instante();
    reloj.pasar(1min);
    const Peer callado(puerto());
    ASSERT_TRUE(runUntil(reactor, [&] { return escucha.conectados() == 1; }));
    const auto hablador = conectar();
    reloj.pasar(3s);
    hablador->send(peticion);
    ASSERT_TRUE(runUntil(reactor, [&] { return escucha.maestros().back().peticiones == 2; }));
    const std::vector<Maestro> maestros = escucha.maestros();
    ASSERT_EQ(maestros.size(), 2U);
    EXPECT_EQ(maestros[0].peticiones, 0U);
    EXPECT_FALSE(maestros[0].ultima.has_value());
    EXPECT_EQ(maestros[1].direccion, "127.0.0.1");
    EXPECT_EQ(maestros[1].puerto, hablador->localPort());
    EXPECT_NE(maestros[0].puerto, maestros[1].puerto);
    EXPECT_EQ(maestros[1].desde, antes + 1min);
    EXPECT_EQ(maestros[1].ultima, antes + 1min + 3s);
    escucha.ponerACero();
    EXPECT_EQ(escucha.maestros()[1].peticiones, 0U);
}

TEST_F(EscuchaTest, aMasterThatTheSystemCannotWatchIsNoneAndLeavesItsSocketToTheNext) {
    escucha.levantarEscucha();
    {
        const Peer rechazado(puerto());
        const NoMoreWatches rechaza;
        ASSERT_TRUE(runUntil(reactor, [&] { return rechazado.ended(); }));
    }
    escucha.refrescarConexiones();
    EXPECT_EQ(escucha.conectados(), 0U);
    EXPECT_TRUE(escucha.maestros().empty());
    const auto maestro = conectar();
    EXPECT_EQ(escucha.conectados(), 1U);
    EXPECT_THAT(ventana.filas, ElementsAre(conectado));
}

TEST_F(EscuchaTest, theNextMasterOnASocketBeginsAnew) {
    escucha.levantarEscucha();
    auto maestro = conectar();
    EXPECT_EQ(escucha.maestros().front().peticiones, 1U);
    desconectar(maestro);
    EXPECT_EQ(escucha.conectados(), 0U);
    EXPECT_TRUE(escucha.maestros().empty());
    const Peer siguiente(puerto());
    ASSERT_TRUE(runUntil(reactor, [&] { return escucha.conectados() == 1; }));
    EXPECT_EQ(escucha.maestros().front().peticiones, 0U);
    EXPECT_FALSE(escucha.maestros().front().ultima.has_value());
}

TEST_F(EscuchaTest, showsNoRowBeforeTheFirstMaster) {
    escucha.levantarEscucha();
    escucha.refrescarConexiones();
    EXPECT_THAT(ventana.filas, IsEmpty());
}

TEST_F(EscuchaTest, threeMastersAtOnceUseThreeSocketsAndThreeRows) {
    escucha.levantarEscucha();
    const auto a = conectar();
    const auto b = conectar();
    const auto c = conectar();
    EXPECT_EQ(escucha.conexiones(), 3U);
    EXPECT_THAT(ventana.filas, ElementsAre(conectado, conectado, conectado));
}

TEST_F(EscuchaTest, withNoMastersConnectedEveryRowIsFree) {
    escucha.levantarEscucha();
    auto a = conectar();
    auto b = conectar();
    desconectar(a);
    desconectar(b);
    EXPECT_THAT(ventana.filas, ElementsAre(libre, libre));
}

TEST_F(EscuchaTest, nextMasterReusesTheLowestFreeSocketAndTheArrayDoesNotGrow) {
    escucha.levantarEscucha();
    auto a = conectar();
    auto b = conectar();
    const auto c = conectar();
    desconectar(b);
    desconectar(a);
    const auto d = conectar();
    EXPECT_EQ(escucha.conexiones(), 3U);
    EXPECT_THAT(ventana.filas, ElementsAre(conectado, libre, conectado));
}

TEST_F(EscuchaTest, rowKeepsItsTextUntilTheNextRefresh) {
    escucha.levantarEscucha();
    auto a = conectar();
    a.reset();
    const auto nuevo = std::make_unique<Peer>(puerto());
    nuevo->send(peticion);
    ASSERT_TRUE(runUntil(reactor, [&] { return !nuevo->receive().empty(); }));
    EXPECT_EQ(ventana.filas.front(), conectado);
}

TEST_F(EscuchaTest, acceptsWhileHandlersLetEventsPass) {
    eventos.alPasarEventos = [this] { reactor.turn(); };
    escucha.levantarEscucha();
    std::vector<std::unique_ptr<Peer>> maestros;
    for (int i = 0; i < 40; ++i) {
        maestros.push_back(std::make_unique<Peer>(puerto()));
        maestros.back()->send(peticion);
    }
    for (auto& maestro : maestros)
        EXPECT_TRUE(runUntil(reactor, [&] { return !maestro->receive().empty(); }));
    EXPECT_EQ(escucha.conexiones(), 40U);
}

TEST_F(EscuchaTest, newMastersAreServedWhileAnAcceptWaitsForAPerson) {
    escucha.levantarEscucha();
    std::vector<std::unique_ptr<Peer>> dentro;
    eventos.alPasarEventos = [&] {
        eventos.alPasarEventos = nullptr;
        for (int i = 0; i < 3; ++i)
            dentro.push_back(conectar()); // as the loop of an open box would
    };
    const auto primero = conectar();
    EXPECT_EQ(dentro.size(), 3U);
    EXPECT_EQ(escucha.conexiones(), 4U);
    EXPECT_THAT(ventana.filas, ElementsAre(conectado, conectado, conectado, conectado));
}

TEST_F(EscuchaTest, newMastersAreServedWhileACloseWaitsForAPerson) {
    escucha.levantarEscucha();
    auto a = conectar();
    std::unique_ptr<Peer> nuevo;
    eventos.alPasarEventos = [&] {
        eventos.alPasarEventos = nullptr;
        nuevo = conectar();
    };
    a.reset();
    EXPECT_TRUE(runUntil(reactor, [&] { return nuevo != nullptr; }));
    EXPECT_EQ(escucha.conexiones(), 1U); // the socket was free by then
}

TEST_F(EscuchaTest, eventsPassWhenTheConnectionStands) {
    escucha.levantarEscucha();
    std::size_t filas = 0;
    std::string respuesta;
    std::unique_ptr<Peer> maestro;
    eventos.alPasarEventos = [&] {
        eventos.alPasarEventos = nullptr;
        filas = ventana.filas.size();
        EXPECT_TRUE(runUntil(reactor, [&] { return !(respuesta += maestro->receive()).empty(); }));
    };
    maestro = std::make_unique<Peer>(puerto());
    maestro->send(peticion);
    EXPECT_TRUE(runUntil(reactor, [&] { return filas == 1; }));
    EXPECT_EQ(respuesta.size(), 29U);
}

TEST_F(EscuchaTest, mayBeGoneWhenEventsHavePassedInAnAccept) {
    escucha.levantarEscucha();
    const Peer maestro(puerto());
    eventos.alPasarEventos = [&] { dueno.reset(); };
    EXPECT_TRUE(runUntil(reactor, [&] { return dueno == nullptr; }));
    EXPECT_TRUE(runUntil(reactor, [&] { return maestro.ended(); }));
}

TEST_F(EscuchaTest, mayBeGoneWhenEventsHavePassedInAClose) {
    escucha.levantarEscucha();
    auto maestro = conectar();
    eventos.alPasarEventos = [&] { dueno.reset(); };
    maestro.reset();
    EXPECT_TRUE(runUntil(reactor, [&] { return dueno == nullptr; }));
}

TEST_F(EscuchaTest, acceptsAtTheSameCostHoweverManySocketsAreFree) {
    escucha.levantarEscucha();
    constexpr std::size_t muchos = 1000;
    std::vector<std::unique_ptr<Peer>> maestros;
    for (std::size_t i = 0; i < muchos; ++i) {
        maestros.push_back(std::make_unique<Peer>(puerto()));
        ASSERT_TRUE(runUntil(reactor, [&] { return escucha.conexiones() == i + 1; }));
    }
    const int alCrecer = eventos.veces;
    maestros.clear();
    ASSERT_TRUE(runUntil(reactor, [&] {
        escucha.refrescarConexiones();
        return conectadas() == 0;
    }));
    const int alCerrar = eventos.veces - alCrecer;
    maestros.push_back(conectar());
    EXPECT_EQ(alCrecer, static_cast<int>(muchos));
    EXPECT_EQ(alCerrar, static_cast<int>(muchos));
    EXPECT_EQ(eventos.veces, alCrecer + alCerrar + 1);
    EXPECT_EQ(escucha.conexiones(), muchos);
    EXPECT_EQ(ventana.filas.front(), conectado);
}

TEST_F(EscuchaTest, takenPortStaysRedIsRetriedAndSaidOnce) {
    Reactor otro;
    Recorder nadie;
    Winsock ocupante(otro, nadie);
    ocupante.LocalPort(puerto());
    ASSERT_FALSE(ocupante.Listen());

    escucha.levantarEscucha();
    escucha.levantarEscucha();
    escucha.refrescarConexiones();
    EXPECT_FALSE(escucha.escuchando());
    EXPECT_FALSE(ventana.verde);
    EXPECT_THAT(ventana.avisos, ElementsAre(HasSubstr("ocupado por otro programa")));
    EXPECT_THAT(ventana.anuncios, IsEmpty());

    ocupante.Close();
    escucha.levantarEscucha();
    EXPECT_TRUE(escucha.escuchando());
    EXPECT_EQ(ventana.avisos.back(), "");
    EXPECT_THAT(ventana.anuncios, ElementsAre("escucha en el puerto " + std::to_string(puerto())));
}

TEST_F(EscuchaTest, announcesThePortOnceAtTheStartAndAgainWhenItMoves) {
    escucha.levantarEscucha();
    escucha.levantarEscucha();
    const std::string primero = "escucha en el puerto " + std::to_string(puerto());
    EXPECT_THAT(ventana.anuncios, ElementsAre(primero));
    ventana.puerto = puertoLibre();
    escucha.levantarEscucha();
    EXPECT_THAT(ventana.anuncios, ElementsAre(primero, "escucha en el puerto " + std::to_string(puerto())));
}

TEST_F(EscuchaTest, aPortOfTheBridgeIsToldAsWhatItIs) {
    Reactor otro;
    Recorder nadie;
    Winsock puente(otro, nadie);
    puente.LocalPort(puerto());
    ASSERT_FALSE(puente.Listen());
    ventana.puertoDelPuente = ventana.puerto;
    escucha.levantarEscucha();
    EXPECT_FALSE(escucha.escuchando());
    const std::string numero = std::to_string(puerto());
    EXPECT_THAT(ventana.avisos,
                ElementsAre("El puerto " + numero + " es del puente de esta estación: escriba otro en PUERTO_VALOR."));
    puente.Close();
    escucha.levantarEscucha();
    EXPECT_TRUE(escucha.escuchando());
    EXPECT_EQ(ventana.avisos.back(),
              "El puerto " + numero +
                  " es del puente de esta estación, que se queda sin él: escriba otro en PUERTO_VALOR.");
}

TEST_F(EscuchaTest, editedPortMovesTheListener) {
    escucha.levantarEscucha();
    const auto anterior = puerto();
    ventana.puerto = puertoLibre();
    escucha.levantarEscucha();
    EXPECT_EQ(ventana.etiqueta, "Puerto: " + std::to_string(puerto()));
    EXPECT_TRUE(Peer(puerto()).connected());
    EXPECT_FALSE(Peer(anterior).connected());
}

TEST_F(EscuchaTest, connectedMastersSurviveAChangeOfPort) {
    escucha.levantarEscucha();
    const auto maestro = conectar();
    ventana.puerto = puertoLibre();
    escucha.levantarEscucha();
    maestro->send(peticion);
    EXPECT_TRUE(runUntil(reactor, [&] { return !maestro->receive().empty(); }));
}

class PuertoInvalido : public EscuchaTest, public testing::WithParamInterface<std::pair<double, std::string>> {};

TEST_P(PuertoInvalido, isRedAndTheNoticeSaysWhy) {
    ventana.puerto = GetParam().first;
    escucha.levantarEscucha();
    escucha.refrescarConexiones();
    EXPECT_FALSE(escucha.escuchando());
    EXPECT_FALSE(ventana.verde);
    EXPECT_EQ(ventana.etiqueta, "Puerto: " + GetParam().second);
    EXPECT_THAT(ventana.avisos, ElementsAre(HasSubstr("no es válido")));
}

INSTANTIATE_TEST_SUITE_P(Valores, PuertoInvalido,
                         testing::Values(std::pair(0.0, "0"), std::pair(70000.0, "70000"), std::pair(-1.0, "-1"),
                                         std::pair(1e9, "1000000000")));

} // namespace
