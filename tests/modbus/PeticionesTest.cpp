// Requests and their answers, gates and monitor lines. Faults and malformed arrivals: PeticionesFallas_test.
#include "HandlerFixture.h"

#include <gmock/gmock.h>

using namespace std::chrono_literals;

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

TEST_F(Handler, readIsAnsweredHighByteFirst) {
    esclavos.escribir(1, 4, 1234);
    esclavos.escribir(1, 5, 7);
    atender(lectura(1, 4, 2));
    EXPECT_THAT(conexion.enviadas, ElementsAre(Bytes{1, 2, 0, 0, 0, 7, 1, 3, 4, 4, 210, 0, 7}));
}

TEST_F(Handler, functions3And4ReadTheSameTable) {
    esclavos.escribir(1, 4, 1234);
    atender(peticion(1, 4, 4, 1));
    EXPECT_THAT(conexion.enviadas, ElementsAre(Bytes{1, 2, 0, 0, 0, 5, 1, 4, 2, 4, 210}));
}

TEST_F(Handler, readOfNothingIsAnsweredWithoutData) {
    atender(lectura(1, 0, 0));
    EXPECT_THAT(conexion.enviadas, ElementsAre(Bytes{1, 2, 0, 0, 0, 3, 1, 3, 0}));
}

TEST_F(Handler, protocolIdIsNeverCheckedAndEchoed) {
    Bytes llegada = lectura(1, 0, 1);
    llegada[2] = 9;
    llegada[3] = 8;
    atender(llegada);
    EXPECT_THAT(conexion.enviadas, ElementsAre(Bytes{1, 2, 9, 8, 0, 5, 1, 3, 2, 0, 0}));
}

TEST_F(Handler, readWritesBothLines) {
    atender(lectura(1, 0, 1));
    EXPECT_EQ(tramas(1), "12:34:56 ( <-RX- Lectura ) 1 2 0 0 0 6 1 3 0 0 0 1\r\n"
                         "12:34:56 ( -TX-> Lectura )  1 2 0 0 0 5 1 3 2 0 0\r\n");
    EXPECT_EQ(escrituras(), "");
}

TEST_F(Handler, linesFollowTheWallClockAlsoWhenItIsSetBack) {
    reloj.pasar(4s);
    atender(lectura(1, 0, 1));
    EXPECT_TRUE(tramas(1).starts_with("12:35:00 ")) << tramas(1);
    monitores.borrarTramas();
    reloj.cambiarHora(-1h);
    atender(lectura(1, 0, 1));
    EXPECT_TRUE(tramas(1).starts_with("11:35:00 ")) << tramas(1);
}

TEST_F(Handler, trafficIsKeptWithTheMicrosecondsOfTheWallClock) {
    reloj.pasar(1234567us);
    atender(lectura(1, 0, 1));
    const auto ahora = std::chrono::duration_cast<std::chrono::microseconds>(reloj.hora().time_since_epoch()).count();
    int paquetes = 0;
    monitores.trafico.recorrer([&](const Trafico::Paquete& p) {
        ++paquetes;
        EXPECT_EQ(p.cuando, ahora);
    });
    EXPECT_EQ(paquetes, 2);
}

TEST_F(Handler, readOf126FillsTheLengthByte) {
    atender(lectura(1, 0, 126));
    ASSERT_THAT(conexion.enviadas, ElementsAre(SizeIs(9 + 252)));
    EXPECT_EQ(conexion.enviadas[0][5], 255);
    EXPECT_EQ(conexion.enviadas[0][8], 252);
}

TEST_F(Handler, readOf127GivesExceptionOne) {
    atender(lectura(1, 0, 127));
    EXPECT_THAT(conexion.enviadas, ElementsAre(Bytes{1, 2, 0, 0, 0, 3, 0, 128, 1}));
    EXPECT_EQ(tramas(1), "12:34:56 ( <-RX- DESBORDAMIENTO DE DIRECCI\xD3N ) 1 2 0 0 0 6 1 3 0 0 0 127 \r\n"
                         "12:34:56 ( -TX-> RESPUESTA ) 1 2 0 0 0 3 0 128 1 \r\n");
}

TEST_F(Handler, everyUnsupportedFunctionGivesExceptionTwo) {
    for (int funcion = 0; funcion < 256; ++funcion) {
        if (funcion == 3 || funcion == 4 || funcion == 6)
            continue;
        conexion.enviadas.clear();
        atender(peticion(1, funcion, 0, 1));
        EXPECT_THAT(conexion.enviadas, ElementsAre(Bytes{1, 2, 0, 0, 0, 3, 0, 128, 2})) << funcion;
    }
}

TEST_F(Handler, unsupportedFunctionLineShowsTheCodeAndTheWholeRequest) {
    atender({1, 2, 0, 0, 0, 9, 1, 16, 0, 4, 0, 1, 2, 4, 210});
    EXPECT_EQ(tramas(1), "12:34:56 ( <-RX- FUNCION(16) NO SOPORTADA ) 1 2 0 0 0 9 1 16 0 4 0 1 2 4 210 \r\n"
                         "12:34:56 ( -TX-> RESPUESTA ) 1 2 0 0 0 3 0 128 2 \r\n");
}

TEST_F(Handler, exceptionIgnoresTheCheckBoxes) {
    Pagina& pagina = *esclavos.pagina(1);
    pagina.recibir = pagina.responder = pagina.recibirEscrituras = pagina.responderEscrituras = false;
    atender(lectura(1, 0, 127));
    EXPECT_THAT(conexion.enviadas, SizeIs(1));
    EXPECT_THAT(tramas(1), HasSubstr("RESPUESTA"));
}

TEST_F(Handler, exceptionCopiesTheLengthHighByte) {
    Bytes llegada = peticion(1, 16, 0, 1);
    llegada[4] = 7;
    atender(llegada);
    EXPECT_THAT(conexion.enviadas, ElementsAre(Bytes{1, 2, 0, 0, 7, 3, 0, 128, 2}));
}

TEST_F(Handler, readAtTheLastAddressIsNotRefused) {
    atender(lectura(1, 65535, 100));
    ASSERT_THAT(conexion.enviadas, ElementsAre(SizeIs(9 + 200)));
    EXPECT_EQ(esclavos.valores(1).size(), 65636U);
}

TEST_F(Handler, readsAtTheLastAddressGrowTheTableTo65661) {
    atender(lectura(1, 65535, 126));
    EXPECT_EQ(esclavos.valores(1).size(), 65662U);
    EXPECT_EQ(esclavos.pagina(1)->filas(), 65661 / 10 + 2);
}

TEST_F(Handler, readWithinTheTableGrowsNothing) {
    atender(lectura(1, 0, 98));
    EXPECT_EQ(esclavos.valores(1).size(), 100U);
}

TEST_F(Handler, registersThatDidNotExistAnswerZero) {
    esclavos.escribir(1, 99, 258);
    atender(lectura(1, 99, 2));
    EXPECT_THAT(conexion.enviadas, ElementsAre(Bytes{1, 2, 0, 0, 0, 7, 1, 3, 4, 1, 2, 0, 0}));
}

TEST_F(Handler, writeIsStoredLoggedAndAnswered) {
    atender(escritura(1, 4, 1234));
    EXPECT_EQ(registro(1, 4), 1234);
    EXPECT_THAT(conexion.enviadas, ElementsAre(Bytes{1, 2, 0, 0, 0, 6, 1, 6, 0, 4, 4, 210}));
    EXPECT_EQ(escrituras(), "12:34:56 Ingreso de Escritura. IP:10.0.0.7\r\n"
                            "ESCLAVO: 1/ Mw: 4 Valor:1234\r\n");
    EXPECT_EQ(tramas(1), "12:34:56 ( <-RX- Escritura ). IP:10.0.0.7 1 2 0 0 0 6 1 6 0 4 4 210\r\n"
                         "12:34:56 ( -TX-> Escrituras )  1 2 0 0 0 6 1 6 0 4 4 210\r\n");
}

TEST_F(Handler, writeAnswerAlwaysCarriesUnitOne) {
    Bytes llegada = escritura(5, 99, 65535);
    llegada[4] = 3;
    atender(llegada);
    EXPECT_EQ(registro(5, 99), 65535);
    EXPECT_THAT(conexion.enviadas, ElementsAre(Bytes{1, 2, 0, 0, 3, 6, 1, 6, 0, 99, 255, 255}));
    EXPECT_THAT(escrituras(), HasSubstr("ESCLAVO: 5/ Mw: 99 Valor:65535\r\n"));
}

TEST_F(Handler, writeAnswerAlwaysCarriesLengthSix) {
    Bytes llegada = escritura(1, 0, 1);
    llegada[5] = 200;
    atender(llegada);
    EXPECT_THAT(conexion.enviadas, ElementsAre(Bytes{1, 2, 0, 0, 0, 6, 1, 6, 0, 0, 0, 1}));
}

TEST_F(Handler, withoutVerTxRxWritesStillReachTheWritesMonitor) {
    monitores.verTxRx = false;
    atender(escritura(1, 4, 1234) + lectura(1, 4, 1) + lectura(1, 0, 127));
    EXPECT_EQ(tramas(1), "");
    EXPECT_THAT(escrituras(), HasSubstr("Mw: 4 Valor:1234"));
}

TEST_F(Handler, writeThatIsNotAnsweredIsStoredAndLogged) {
    esclavos.pagina(1)->responderEscrituras = false;
    atender(escritura(1, 4, 1234));
    EXPECT_EQ(registro(1, 4), 1234);
    EXPECT_THAT(conexion.enviadas, IsEmpty());
    EXPECT_THAT(escrituras(), HasSubstr("Valor:1234"));
    EXPECT_EQ(tramas(1), "12:34:56 ( <-RX- Escritura ). IP:10.0.0.7 1 2 0 0 0 6 1 6 0 4 4 210\r\n");
}

TEST_F(Handler, writeThatIsNotReceivedLeavesNoTrace) {
    esclavos.pagina(1)->recibirEscrituras = false;
    atender(escritura(1, 4, 1234));
    esperarSilencio();
}

TEST_F(Handler, readThatIsNotReceivedLeavesNoTrace) {
    esclavos.pagina(1)->recibir = false;
    atender(lectura(1, 0, 1));
    esperarSilencio();
}

TEST_F(Handler, readThatIsNotAnsweredIsShownButGrowsNothing) {
    esclavos.pagina(1)->responder = false;
    atender(lectura(1, 500, 1));
    EXPECT_THAT(conexion.enviadas, IsEmpty());
    EXPECT_EQ(tramas(1), "12:34:56 ( <-RX- Lectura ) 1 2 0 0 0 6 1 3 1 244 0 1\r\n");
    EXPECT_EQ(esclavos.valores(1).size(), 100U);
}

TEST_F(Handler, gatesOfReadsAndWritesDoNotTouchEachOther) {
    esclavos.pagina(1)->recibir = esclavos.pagina(1)->responder = false;
    atender(lectura(1, 0, 1) + escritura(1, 4, 9));
    EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(12)));
    esclavos.pagina(1)->recibir = esclavos.pagina(1)->responder = true;
    esclavos.pagina(1)->recibirEscrituras = esclavos.pagina(1)->responderEscrituras = false;
    atender(escritura(1, 4, 8) + lectura(1, 4, 1));
    EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(12), Bytes({1, 2, 0, 0, 0, 5, 1, 3, 2, 0, 9})));
}

TEST_F(Handler, gatesOfOneSlaveDoNotTouchAnother) {
    esclavos.crearEsclavo(2, 0, 99);
    esclavos.pagina(2)->recibir = false;
    atender(lectura(2, 0, 1) + lectura(1, 0, 1));
    ASSERT_THAT(conexion.enviadas, SizeIs(1));
    EXPECT_EQ(conexion.enviadas[0][6], 1);
}

TEST_F(Handler, readAnswerIsNotSentWhenTheSocketIsNotConnectedButTheRestIs) {
    conexion.abierta = false;
    atender(lectura(1, 0, 1) + escritura(1, 4, 9) + lectura(1, 0, 127) + Bytes(30));
    EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(12), SizeIs(9)));
    EXPECT_THAT(tramas(1), HasSubstr("-TX-> Lectura")) << "the line is written all the same";
}

TEST_F(Handler, framesOfOneArrivalAreAnsweredInOrder) {
    esclavos.escribir(1, 0, 7);
    esclavos.escribir(1, 1, 8);
    Bytes segunda = lectura(1, 1, 1);
    segunda[1] = 3;
    atender(lectura(1, 0, 1) + segunda);
    EXPECT_THAT(conexion.enviadas,
                ElementsAre(Bytes{1, 2, 0, 0, 0, 5, 1, 3, 2, 0, 7}, Bytes{1, 3, 0, 0, 0, 5, 1, 3, 2, 0, 8}));
}

TEST_F(Handler, readAfterAWriteInOneArrivalSeesTheValue) {
    atender(escritura(1, 3, 77) + lectura(1, 3, 1));
    EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(12), Bytes{1, 2, 0, 0, 0, 5, 1, 3, 2, 0, 77}));
}

TEST_F(Handler, requestForAnUnknownSlaveCreatesItWith100Registers) {
    atender(lectura(9, 0, 1));
    EXPECT_EQ(esclavos.valores(9).size(), 100U);
    EXPECT_FALSE(esclavos.existe(8));
    EXPECT_THAT(conexion.enviadas, ElementsAre(Bytes{1, 2, 0, 0, 0, 5, 9, 3, 2, 0, 0}));
    EXPECT_THAT(tramas(9), HasSubstr("( <-RX- Lectura ) 1 2 0 0 0 6 9 3 0 0 0 1"));
}

TEST_F(Handler, unknownSlaveInAGapIsCreatedToo) {
    esclavos.crearEsclavo(50, 0, 99);
    atender(escritura(20, 7, 5));
    EXPECT_EQ(registro(20, 7), 5);
}

TEST_F(Handler, all256UnitsAreServed) {
    for (int unidad = 0; unidad < 256; ++unidad)
        atender(escritura(unidad, 99, unidad));
    EXPECT_THAT(conexion.enviadas, SizeIs(256));
    for (int unidad = 0; unidad < 256; ++unidad)
        EXPECT_EQ(registro(unidad, 99), unidad);
}

TEST_F(Handler, lengthHighByteIsCopiedAndIgnoredForStepping) {
    Bytes primera = lectura(1, 0, 1);
    primera[4] = 1;
    atender(primera + lectura(1, 0, 2));
    EXPECT_THAT(conexion.enviadas, ElementsAre(Bytes{1, 2, 0, 0, 1, 5, 1, 3, 2, 0, 0}, SizeIs(13)));
}

TEST_F(Handler, nextFrameIsLookedForAfterSixPlusTheLengthByte) {
    Bytes primera = lectura(1, 0, 1);
    primera[5] = 9;
    atender(primera + Bytes{0, 0, 0} + lectura(1, 0, 2));
    EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(11), SizeIs(13)));
}

TEST_F(Handler, fractionalRegisterIsAnsweredRounded) {
    esclavos.escribir(1, 0, 12.5);
    atender(lectura(1, 0, 1));
    EXPECT_THAT(conexion.enviadas, ElementsAre(Bytes{1, 2, 0, 0, 0, 5, 1, 3, 2, 0, 12}));
}

} // namespace
