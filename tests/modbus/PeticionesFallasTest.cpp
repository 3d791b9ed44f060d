// Malformed arrivals and faults: each ends the arrival silently after what was already done.
#include "HandlerFixture.h"

#include <gmock/gmock.h>
#include <random>

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

const Bytes excepcionFuncion{1, 2, 0, 0, 0, 3, 0, 128, 2};

Bytes cortada(Bytes trama, std::size_t longitud) {
    trama.resize(longitud);
    return trama;
}

TEST_F(Handler, emptyArrivalDoesNothing) {
    atender({});
    esperarSilencio();
}

TEST_F(Handler, arrivalWithoutAUnitCreatesNoSlave) {
    for (std::size_t longitud = 0; longitud <= 6; ++longitud)
        atender(cortada(lectura(9, 0, 1), longitud));
    EXPECT_FALSE(esclavos.existe(9));
}

TEST_F(Handler, arrivalThatEndsWithTheUnitCreatesTheSlaveAndNothingElse) {
    atender(cortada(lectura(9, 0, 1), 7));
    EXPECT_EQ(esclavos.valores(9).size(), 100U);
    EXPECT_EQ(tramas(9), "");
    EXPECT_THAT(conexion.enviadas, IsEmpty());
}

TEST_F(Handler, truncatedRequestDoesNothingAtAnyLength) {
    for (const Bytes& entera : {lectura(1, 4, 2), peticion(1, 4, 4, 2), escritura(1, 4, 9), lectura(1, 0, 127)})
        for (std::size_t longitud = 0; longitud < entera.size(); ++longitud) {
            atender(cortada(entera, longitud));
            esperarSilencio(std::to_string(longitud));
        }
}

TEST_F(Handler, unsupportedFunctionTruncatedBelowItsLengthFieldIsNotAnswered) {
    for (std::size_t longitud = 0; longitud < 12; ++longitud) {
        atender(cortada(peticion(1, 16, 4, 2), longitud));
        esperarSilencio(std::to_string(longitud));
    }
}

TEST_F(Handler, shortUnsupportedFunctionIsAnsweredWhenItsLengthFieldIsTrue) {
    atender({1, 2, 0, 0, 0, 2, 1, 7});
    EXPECT_THAT(conexion.enviadas, ElementsAre(excepcionFuncion));
    EXPECT_THAT(tramas(1), HasSubstr("FUNCION(7) NO SOPORTADA ) 1 2 0 0 0 2 1 7 \r\n"));
}

TEST_F(Handler, lengthFieldOfZeroStillCopiesSixBytesOfAnException) {
    atender({1, 2, 0, 0, 0, 0, 1, 7});
    EXPECT_THAT(conexion.enviadas, ElementsAre(excepcionFuncion));
    EXPECT_THAT(tramas(1), HasSubstr("FUNCION(7) NO SOPORTADA ) 1 2 0 0 0 0 \r\n"));
}

TEST_F(Handler, lengthFieldOf255NeedsAllItsBytesForAnException) {
    Bytes llegada = peticion(1, 16, 0, 1);
    llegada[5] = 255;
    atender(cortada(llegada, 260));
    esperarSilencio();
    atender(cortada(llegada, 261));
    EXPECT_THAT(conexion.enviadas, ElementsAre(excepcionFuncion));
}

TEST_F(Handler, lengthFieldOfZeroStepsSixBytes) {
    // The second frame begins at the unit of the first, so its function code is the third byte of its own request.
    Bytes llegada = lectura(1, 0, 1);
    llegada[5] = 0;
    atender(llegada + Bytes{0, 6, 0, 3, 0, 77});
    // At 6: 1 3 0 0 0 1 | 0 6 0 3 0 77: unit 0, function 6, but slave 0 does not exist.
    EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(11)));
    EXPECT_EQ(escrituras(), "");
    esclavos.crearEsclavo(0, 0, 99);
    atender(llegada + Bytes{0, 6, 0, 3, 0, 77});
    EXPECT_EQ(registro(0, 3), 77);
}

TEST_F(Handler, lengthFieldOf255Steps261Bytes) {
    Bytes primera = lectura(1, 0, 1);
    primera[5] = 255;
    atender(cortada(primera, 261) + escritura(1, 4, 9));
    EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(11), SizeIs(12)));
    EXPECT_EQ(registro(1, 4), 9);
}

TEST_F(Handler, whatWasDoneBeforeATruncatedFrameStays) {
    for (std::size_t longitud = 0; longitud < 12; ++longitud) {
        conexion.enviadas.clear();
        monitores.borrarEscrituras();
        const int valor = 100 + static_cast<int>(longitud);
        atender(escritura(1, 4, valor) + cortada(escritura(1, 5, 9), longitud));
        EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(12))) << longitud;
        EXPECT_EQ(registro(1, 4), valor);
        EXPECT_EQ(registro(1, 5), 0);
        EXPECT_THAT(escrituras(), HasSubstr("Valor:" + std::to_string(valor)));
        EXPECT_THAT(escrituras(), Not(HasSubstr("Mw: 5")));
    }
}

TEST_F(Handler, nothingIsKeptForTheNextArrival) {
    const Bytes entera = escritura(1, 4, 9);
    atender(cortada(entera, 5));
    atender(Bytes(entera.begin() + 5, entera.end()));
    EXPECT_EQ(registro(1, 4), 0);
    EXPECT_THAT(conexion.enviadas, IsEmpty());
}

TEST_F(Handler, writeBeyondTheTableIsShownButNeitherStoredNorAnswered) {
    atender(escritura(1, 100, 9) + escritura(1, 4, 9));
    EXPECT_THAT(conexion.enviadas, IsEmpty());
    EXPECT_EQ(escrituras(), "12:34:56 Ingreso de Escritura. IP:10.0.0.7\r\n"
                            "ESCLAVO: 1/ Mw: 100 Valor:9\r\n");
    EXPECT_EQ(tramas(1), "12:34:56 ( <-RX- Escritura ). IP:10.0.0.7 1 2 0 0 0 6 1 6 0 100 0 9\r\n");
    EXPECT_EQ(esclavos.valores(1).size(), 100U);
    EXPECT_EQ(registro(1, 4), 0) << "the rest of the arrival is dropped";
}

TEST_F(Handler, laterFrameToAnUnknownSlaveEndsTheArrival) {
    esclavos.crearEsclavo(50, 0, 99);
    for (const int desconocido : {7, 200}) {
        conexion.enviadas.clear();
        atender(lectura(1, 0, 1) + lectura(desconocido, 0, 1) + escritura(1, 4, 9));
        EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(11)));
        atender(lectura(1, 0, 1) + escritura(desconocido, 0, 1) + escritura(1, 4, 9));
        EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(11), SizeIs(11)));
        EXPECT_FALSE(esclavos.existe(desconocido));
    }
    EXPECT_EQ(escrituras(), "");
    EXPECT_EQ(registro(1, 4), 0);
}

TEST_F(Handler, exceptionOfALaterFrameTakesItsBytesFromTwiceItsPosition) {
    Bytes relleno(12);
    relleno = {11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22};
    atender(lectura(1, 0, 1) + peticion(1, 16, 0, 1) + relleno);
    EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(11), Bytes{11, 12, 13, 14, 15, 3, 0, 128, 2}));
    EXPECT_THAT(tramas(1), HasSubstr("FUNCION(16) NO SOPORTADA ) 11 12 13 14 15 16 17 18 19 20 21 22 \r\n"));
}

TEST_F(Handler, exceptionOfALaterFrameUsesTheLengthOfTheFirst) {
    Bytes segunda = peticion(1, 16, 0, 1);
    segunda[5] = 200;
    atender(lectura(1, 0, 1) + segunda + Bytes(12));
    EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(11), Bytes{0, 0, 0, 0, 0, 3, 0, 128, 2}));
}

TEST_F(Handler, exceptionOfALaterFrameThatRunsPastTheEndIsNotAnswered) {
    atender(lectura(1, 0, 1) + peticion(1, 16, 0, 1) + Bytes(11));
    EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(11)));
    EXPECT_THAT(tramas(1), Not(HasSubstr("NO SOPORTADA")));
}

TEST_F(Handler, framesAfterAnExceptionAreDropped) {
    atender(peticion(1, 16, 0, 1) + escritura(1, 4, 9));
    EXPECT_THAT(conexion.enviadas, ElementsAre(excepcionFuncion));
    EXPECT_EQ(registro(1, 4), 0);
}

TEST_F(Handler, exceptionForAnUnknownSlaveIsSentOnlyWhenNothingIsToBeShown) {
    const Bytes llegada = lectura(1, 0, 1) + peticion(7, 16, 0, 1) + Bytes(12);
    atender(llegada);
    EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(11)));
    monitores.verTxRx = false;
    atender(llegada);
    EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(11), SizeIs(11), SizeIs(9)));
    EXPECT_FALSE(esclavos.existe(7));
}

TEST_F(Handler, failedSendOfAReadEndsTheArrival) {
    conexion.enviosBuenos = 0;
    atender(lectura(1, 0, 1) + escritura(1, 4, 9));
    EXPECT_THAT(tramas(1), HasSubstr("-TX-> Lectura"));
    EXPECT_EQ(registro(1, 4), 0);
}

TEST_F(Handler, failedSendOfAWriteEndsTheArrivalWithTheValueStored) {
    conexion.enviosBuenos = 1;
    atender(escritura(1, 3, 7) + escritura(1, 4, 8) + escritura(1, 5, 9));
    EXPECT_EQ(registro(1, 3), 7);
    EXPECT_EQ(registro(1, 4), 8);
    EXPECT_EQ(registro(1, 5), 0);
    EXPECT_THAT(conexion.enviadas, SizeIs(1));
}

TEST_F(Handler, failedSendOfAnExceptionLeavesOutItsAnswerLine) {
    conexion.enviosBuenos = 0;
    atender(peticion(1, 16, 0, 1));
    EXPECT_THAT(tramas(1), HasSubstr("NO SOPORTADA"));
    EXPECT_THAT(tramas(1), Not(HasSubstr("RESPUESTA")));
}

TEST_F(Handler, nextArrivalAfterAFaultIsServed) {
    atender({1, 2, 3});
    atender(escritura(1, 5000, 1));
    atender(lectura(1, 0, 1));
    EXPECT_THAT(conexion.enviadas, ElementsAre(SizeIs(11)));
}

TEST_F(Handler, oneByteAfterTheLastFrameIsIgnored) {
    atender(lectura(1, 0, 1) + Bytes{9});
    EXPECT_THAT(conexion.enviadas, SizeIs(1));
}

TEST_F(Handler, fullArrivalOfReadsAnswersEveryOne) {
    Bytes llegada;
    while (llegada.size() + 12 <= 65535)
        llegada = std::move(llegada) + lectura(1, 0, 1);
    llegada.resize(65535);
    atender(llegada);
    EXPECT_THAT(conexion.enviadas, SizeIs(5461));
    EXPECT_THAT(conexion.enviadas, Each(SizeIs(11)));
    EXPECT_LE(tramas(1).size(), 60000U);
}

TEST_F(Handler, fullArrivalOfAnyOneByteEnds) {
    for (int b = 0; b < 256; ++b)
        atender(Bytes(65535, static_cast<std::uint8_t>(b)));
    for (const Bytes& respuesta : conexion.enviadas)
        ASSERT_TRUE(respuesta.size() == 12 || (respuesta.size() >= 9 && respuesta.size() % 2 == 1));
}

TEST_F(Handler, shortArrivalsOfAnythingEnd) {
    constexpr std::uint64_t semilla = 20;
    std::mt19937_64 azar(semilla);
    for (int vuelta = 0; vuelta < 20000; ++vuelta) {
        Bytes llegada(azar() % 21);
        for (std::uint8_t& b : llegada)
            b = static_cast<std::uint8_t>(azar() % 4 == 0 ? azar() : azar() % 8);
        conexion.enviadas.clear();
        atender(llegada);
        ASSERT_LE(conexion.enviadas.size(), llegada.size() / 6 + 1) << "start value " << semilla << " turn " << vuelta;
    }
}

} // namespace
