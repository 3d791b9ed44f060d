// The traffic kept for a capture file: what is kept, in which order, how much; the list of slaves, lines in
// hexadecimal.

#include "modbus/Trafico.h"

#include "HandlerFixture.h"
#include "modbus/ArchivoPcap.h"
#include "modbus/FiltroTramas.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

std::vector<Bytes> todo(const Trafico& trafico) {
    std::vector<Bytes> paquetes;
    trafico.recorrer([&](const Trafico::Paquete& p) { paquetes.emplace_back(p.bytes.begin(), p.bytes.end()); });
    return paquetes;
}

} // namespace

TEST(Trafico, keepsWhatWasNotedInOrder) {
    Trafico trafico;
    const auto una = trafico.nuevaConexion({});
    const auto otra = trafico.nuevaConexion({});
    trafico.anotar(10, una, Trafico::Sentido::recibido, Bytes{1, 2});
    trafico.anotar(20, otra, Trafico::Sentido::enviado, Bytes{3});
    std::vector<std::int64_t> cuando;
    trafico.recorrer([&](const Trafico::Paquete& p) {
        cuando.push_back(p.cuando);
        EXPECT_EQ(p.conexion, p.cuando == 10 ? una : otra);
        EXPECT_EQ(p.sentido, p.cuando == 10 ? Trafico::Sentido::recibido : Trafico::Sentido::enviado);
    });
    EXPECT_EQ(cuando, (std::vector<std::int64_t>{10, 20}));
    EXPECT_EQ(todo(trafico), (std::vector<Bytes>{{1, 2}, {3}}));
    trafico.borrar();
    EXPECT_EQ(trafico.paquetes(), 0U);
    EXPECT_TRUE(todo(trafico).empty());
}

TEST(Trafico, theOldestGivesWayAndTheNewestStaysWhole) {
    Trafico trafico;
    const auto conexion = trafico.nuevaConexion({});
    std::uint32_t numero = 0;
    for (int vuelta = 0; vuelta < 300; ++vuelta) // several times round
        for (const std::size_t largo : {12U, 29U, 259U, 65536U, 1U}) {
            Bytes bytes(largo, static_cast<std::uint8_t>(numero));
            trafico.anotar(numero++, conexion, Trafico::Sentido::recibido, bytes);
            ASSERT_LE(trafico.ocupados(), Trafico::maximo);
        }
    std::int64_t siguiente = numero - static_cast<std::int64_t>(trafico.paquetes());
    EXPECT_GT(trafico.paquetes(), 250U);
    trafico.recorrer([&](const Trafico::Paquete& p) {
        ASSERT_EQ(p.cuando, siguiente++);
        for (const std::uint8_t byte : p.bytes)
            ASSERT_EQ(byte, static_cast<std::uint8_t>(p.cuando));
    });
    EXPECT_EQ(siguiente, numero);
}

TEST(Trafico, theEndsOfOldConnectionsAreForgotten) {
    Trafico trafico;
    const auto primera = trafico.nuevaConexion({});
    trafico.anotar(1, primera, Trafico::Sentido::recibido, Bytes{1});
    std::uint32_t ultima = 0;
    for (std::size_t n = 0; n < Trafico::maximasConexiones; ++n)
        ultima = trafico.nuevaConexion({});
    EXPECT_FALSE(trafico.conocida(primera));
    EXPECT_TRUE(trafico.conocida(ultima));
    EXPECT_FALSE(trafico.conocida(0));
    EXPECT_TRUE(todo(trafico).empty()); // nobody knows whose it was
    EXPECT_EQ(comoPcap(trafico).size(), 24U);
}

class TraficoDePeticiones : public Handler {};

TEST_F(TraficoDePeticiones, requestsAndAnswersAreKeptOnlyWhileTheMonitorIsOn) {
    atender(lectura(1, 0, 1));
    EXPECT_EQ(todo(monitores.trafico), (std::vector<Bytes>{lectura(1, 0, 1), conexion.enviadas.at(0)}));
    monitores.verTxRx = false;
    atender(lectura(1, 0, 1));
    EXPECT_EQ(monitores.trafico.paquetes(), 2U);
}

TEST_F(TraficoDePeticiones, whatIsNotUnderstoodIsKeptToo) {
    atender({1, 2, 3});
    EXPECT_EQ(todo(monitores.trafico), (std::vector<Bytes>{{1, 2, 3}}));
}

TEST_F(TraficoDePeticiones, anAnswerThatCouldNotBeSentIsNotKept) {
    conexion.enviosBuenos = 0;
    atender(escritura(1, 0, 5));
    EXPECT_EQ(monitores.trafico.paquetes(), 1U);
}

TEST_F(TraficoDePeticiones, linesAreMarkedWithTheirSlaveAndKind) {
    atender(lectura(3, 0, 1));
    atender(escritura(4, 0, 1));    // answered as unit 1
    atender(peticion(5, 16, 0, 1)); // answered as unit 0
    const auto marcas = monitores.marcas();
    ASSERT_EQ(marcas.size(), 6U);
    const std::vector<int> deQuien{3, 3, 4, 4, 5, 5};
    const std::vector<ClaseTrama> clases{ClaseTrama::lectura,   ClaseTrama::lectura, ClaseTrama::escritura,
                                         ClaseTrama::escritura, ClaseTrama::otra,    ClaseTrama::otra};
    const std::string_view texto = monitores.todas().texto();
    for (std::size_t i = 0; i < marcas.size(); ++i) {
        EXPECT_EQ(marcas[i].esclavo, deQuien[i]) << i;
        EXPECT_EQ(marcas[i].clase, clases[i]) << i;
        EXPECT_EQ(texto.substr(marcas[i].lugar, 8), "12:34:56") << i;
    }
}

TEST_F(TraficoDePeticiones, marksStartOverWithTheText) {
    for (int vez = 0; vez < 2000; ++vez) { // several times past the limit
        atender(lectura(1, 0, 10));
        const auto marcas = monitores.marcas();
        const std::string_view texto = monitores.todas().texto();
        if (texto.empty())
            continue;
        ASSERT_EQ(marcas.front().lugar, 0U);
        ASSERT_LT(marcas.back().lugar, texto.size());
        ASSERT_EQ(texto.substr(marcas.back().lugar, 8), "12:34:56");
    }
}

TEST(FiltroTramas, readsListsOfSlaves) {
    const auto cuales = [](std::string_view lista) {
        std::vector<int> numeros;
        const auto esclavos = leerEsclavos(lista);
        for (int n = 0; esclavos && n < 256; ++n)
            if ((*esclavos)[static_cast<std::size_t>(n)])
                numeros.push_back(n);
        return numeros;
    };
    EXPECT_EQ(cuales("1"), (std::vector<int>{1}));
    EXPECT_EQ(cuales(" 1, 3-5 ;255"), (std::vector<int>{1, 3, 4, 5, 255}));
    EXPECT_EQ(cuales("7 8"), (std::vector<int>{7, 8}));
    EXPECT_EQ(cuales("").size(), 256U);
    EXPECT_EQ(cuales("  ").size(), 256U);
    for (const char* mala : {"x", "1x", "256", "5-3", "1-", "-1", "1..2", "1--2", "99999999999999999999"})
        EXPECT_FALSE(leerEsclavos(mala)) << mala;
}

TEST(FiltroTramas, writesOnlyTheBytesInHexadecimal) {
    EXPECT_EQ(tramaEnHexadecimal("10:32:05 ( <-RX- Lectura ) 0 1 255 10\r\n"),
              "10:32:05 ( <-RX- Lectura ) 00 01 FF 0A\r\n");
    EXPECT_EQ(tramaEnHexadecimal("10:32:05 ( -TX-> Lectura )  0 16\r\n"), "10:32:05 ( -TX-> Lectura )  00 10\r\n");
    EXPECT_EQ(tramaEnHexadecimal("10:32:05 ( <-RX- Escritura ). IP:10.0.0.7 0 1\r\n"),
              "10:32:05 ( <-RX- Escritura ). IP:10.0.0.7 00 01\r\n");
    EXPECT_EQ(tramaEnHexadecimal("10:32:05 ( <-RX- FUNCION(16) NO SOPORTADA ) 7 8 \r\n"),
              "10:32:05 ( <-RX- FUNCION(16) NO SOPORTADA ) 07 08 \r\n");
    EXPECT_EQ(tramaEnHexadecimal("10:32:05 ( -TX-> RESPUESTA ) \r\n"), "10:32:05 ( -TX-> RESPUESTA ) \r\n");
    EXPECT_EQ(tramaEnHexadecimal(""), "");
}
