// Each request is counted once, by how it ended.
#include "HandlerFixture.h"

#include <ostream>

namespace {

struct Cuenta {
    std::uint64_t lecturas = 0;
    std::uint64_t escrituras = 0;
    std::uint64_t excepciones = 0;
    std::uint64_t sinRespuesta = 0;
    bool operator==(const Cuenta&) const = default;
};

void PrintTo(const Cuenta& c, std::ostream* salida) {
    *salida << c.lecturas << " reads, " << c.escrituras << " writes, " << c.excepciones << " exceptions, "
            << c.sinRespuesta << " unanswered";
}

Cuenta cuenta(const Contadores& c) {
    EXPECT_EQ(c.peticiones, c.lecturas + c.escrituras + c.excepciones + c.sinRespuesta());
    return {c.lecturas, c.escrituras, c.excepciones, c.sinRespuesta()};
}

constexpr Cuenta unaLectura{.lecturas = 1};
constexpr Cuenta unaEscritura{.escrituras = 1};
constexpr Cuenta unaExcepcion{.excepciones = 1};
constexpr Cuenta unaSinRespuesta{.sinRespuesta = 1};

class ContadoresTest : public Handler {
protected:
    Cuenta total() const { return cuenta(peticiones.total()); }
    Cuenta de(int esclavo) const { return cuenta(peticiones.contadores(esclavo)); }

    // That arrival to slave 1 is counted so, for the slave, in all and on the connection.
    void esperar(const Bytes& llegada, const Cuenta& esperada) {
        atender(llegada);
        EXPECT_EQ(de(1), esperada);
        EXPECT_EQ(total(), esperada);
        EXPECT_EQ(conexion.peticiones, 1U);
    }
    Pagina& pagina() { return *esclavos.pagina(1); }
};

} // namespace

TEST_F(ContadoresTest, answeredReadOfHoldingRegisters) {
    esperar(lectura(1, 0, 10), unaLectura);
}

TEST_F(ContadoresTest, answeredReadOfInputRegisters) {
    esperar(peticion(1, 4, 0, 10), unaLectura);
}

TEST_F(ContadoresTest, answeredWrite) {
    esperar(escritura(1, 5, 7), unaEscritura);
}

TEST_F(ContadoresTest, exceptionForAFunctionThatIsNotServed) {
    esperar(peticion(1, 16, 0, 1), unaExcepcion);
}

TEST_F(ContadoresTest, exceptionForTooManyRegisters) {
    esperar(lectura(1, 0, 127), unaExcepcion);
}

TEST_F(ContadoresTest, theSameWithoutTheMonitors) {
    monitores.verTxRx = false;
    for (const Bytes& llegada : {lectura(1, 0, 10), escritura(1, 5, 7), peticion(1, 16, 0, 1)})
        atender(llegada);
    EXPECT_EQ(de(1), (Cuenta{.lecturas = 1, .escrituras = 1, .excepciones = 1}));
}

TEST_F(ContadoresTest, readNotReceived) {
    pagina().recibir = false;
    esperar(lectura(1, 0, 10), unaSinRespuesta);
}

TEST_F(ContadoresTest, readReceivedAndNotAnswered) {
    pagina().responder = false;
    esperar(lectura(1, 0, 10), unaSinRespuesta);
}

TEST_F(ContadoresTest, readOnASocketThatIsNotConnected) {
    conexion.abierta = false;
    esperar(lectura(1, 0, 10), unaSinRespuesta);
}

TEST_F(ContadoresTest, writeNotReceived) {
    pagina().recibirEscrituras = false;
    esperar(escritura(1, 5, 7), unaSinRespuesta);
}

TEST_F(ContadoresTest, writeStoredAndNotAnswered) {
    pagina().responderEscrituras = false;
    esperar(escritura(1, 5, 7), unaSinRespuesta);
    EXPECT_EQ(registro(1, 5), 7);
}

TEST_F(ContadoresTest, writeBeyondTheTable) {
    esperar(escritura(1, 60000, 7), unaSinRespuesta);
}

TEST_F(ContadoresTest, writeIsAnsweredOnASocketThatIsNotConnected) {
    conexion.abierta = false;
    esperar(escritura(1, 5, 7), unaEscritura);
}

TEST_F(ContadoresTest, failedSends) {
    conexion.enviosBuenos = 0;
    for (const Bytes& llegada : {lectura(1, 0, 10), escritura(1, 5, 7), peticion(1, 16, 0, 1)})
        atender(llegada);
    EXPECT_EQ(de(1), (Cuenta{.sinRespuesta = 3}));
}

TEST_F(ContadoresTest, truncatedRequest) {
    Bytes corta = lectura(1, 0, 10);
    corta.pop_back();
    esperar(corta, unaSinRespuesta);
}

TEST_F(ContadoresTest, arrivalThatEndsWithTheUnit) {
    esperar({1, 2, 0, 0, 0, 6, 1}, unaSinRespuesta);
}

TEST_F(ContadoresTest, exceptionWhoseCopyRunsPastTheEnd) {
    esperar({1, 2, 0, 0, 0, 255, 1, 16}, unaSinRespuesta);
}

TEST_F(ContadoresTest, arrivalWithoutAUnitBelongsToNoSlave) {
    atender({1, 2, 0, 0, 0, 6});
    EXPECT_EQ(total(), unaSinRespuesta);
    for (int esclavo = 0; esclavo < Peticiones::numerosDeEsclavo; ++esclavo)
        EXPECT_EQ(de(esclavo), Cuenta{}) << esclavo;
    EXPECT_EQ(conexion.peticiones, 1U);
}

TEST_F(ContadoresTest, emptyArrivalIsNoRequest) {
    atender({});
    EXPECT_EQ(peticiones.total().peticiones, 0U);
    EXPECT_EQ(conexion.peticiones, 0U);
}

TEST_F(ContadoresTest, slaveThatCannotBeCreated) {
    for (int numero = 1; numero < Esclavos::maxPaginas; ++numero) // slave 1 is there
        esclavos.crearEsclavo(numero + 300, 0, 0);
    atender(lectura(9, 0, 1));
    EXPECT_EQ(de(9), unaSinRespuesta);
}

TEST_F(ContadoresTest, laterFrameToAnUnknownSlave) {
    atender(lectura(1, 0, 1) + lectura(9, 0, 1));
    EXPECT_EQ(de(1), unaLectura);
    EXPECT_EQ(de(9), unaSinRespuesta);
}

TEST_F(ContadoresTest, everyFrameOfAnArrivalCounts) {
    atender(lectura(1, 0, 1) + escritura(1, 0, 1) + lectura(1, 0, 1));
    EXPECT_EQ(de(1), (Cuenta{.lecturas = 2, .escrituras = 1}));
    EXPECT_EQ(conexion.peticiones, 3U);
}

TEST_F(ContadoresTest, framesAfterAnExceptionAreNotLookedAt) {
    atender(peticion(1, 16, 0, 1) + lectura(1, 0, 1));
    EXPECT_EQ(de(1), unaExcepcion);
}

TEST_F(ContadoresTest, oneByteAfterTheLastFrameIsNoRequest) {
    esperar(lectura(1, 0, 1) + Bytes{0}, unaLectura);
}

TEST_F(ContadoresTest, theHighestSlaveNumber) {
    atender(lectura(255, 0, 1));
    EXPECT_EQ(de(255), unaLectura);
    EXPECT_EQ(total(), unaLectura);
}

TEST_F(ContadoresTest, setToZeroTheyBeginAnew) {
    atender(lectura(1, 0, 1) + escritura(1, 0, 1));
    peticiones.ponerACero();
    EXPECT_EQ(total(), Cuenta{});
    atender(lectura(1, 0, 1));
    EXPECT_EQ(de(1), unaLectura);
}
