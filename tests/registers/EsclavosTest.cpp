// The store: creation, reads, writes, bits, growth and the block read. Its errors and ceilings: EsclavosErrores_test.
#include "registers/Esclavos.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace {

using testing::Each;
using testing::ElementsAre;

class Store : public testing::Test {
protected:
    std::vector<int> leerBytes(double esclavo, double inicio, double cantidad) {
        std::array<std::uint8_t, 252> bytes{};
        const std::size_t n = esclavos.leerRegistrosComoBytes(esclavo, inicio, cantidad, bytes);
        return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(n)};
    }

    std::size_t registros(int esclavo) const { return esclavos.valores(esclavo).size(); }

    Esclavos esclavos;
};

class StoreWithSlave1 : public Store {
protected:
    StoreWithSlave1() { esclavos.crearEsclavo(1, 0, 99); }

    double registro5() const { return esclavos.valores(1)[5]; }
};

TEST_F(Store, isEmptyAtStart) {
    EXPECT_EQ(esclavos.limite(), -1);
    EXPECT_FALSE(esclavos.existe(0));
    EXPECT_EQ(esclavos.pagina(0), nullptr);
    EXPECT_TRUE(esclavos.valores(0).empty());
}

TEST_F(Store, numbersThatAreNoSlaveHaveNoPage) {
    esclavos.crearEsclavo(2, 0, 99);
    EXPECT_FALSE(esclavos.existe(-1));
    EXPECT_FALSE(esclavos.existe(3));
    EXPECT_TRUE(esclavos.valores(-1).empty());
}

TEST_F(Store, createdSlaveHasZerosUpToItsLastAddress) {
    esclavos.crearEsclavo(3, 0, 99);
    EXPECT_EQ(registros(3), 100U);
    EXPECT_THAT(esclavos.valores(3), Each(0.0));
    EXPECT_EQ(esclavos.pagina(3)->numero(), 3);
    EXPECT_EQ(esclavos.pagina(3)->filas(), 11) << "the heading and rows 0 to 90";
}

TEST_F(Store, slaveCreatedWithoutRegistersHasItsFirstOne) {
    esclavos.crearEsclavo(3, 0, 0);
    EXPECT_EQ(registros(3), 1U);
    EXPECT_EQ(esclavos.pagina(3)->filas(), 7);
    esclavos.crearEsclavo(4, -50, 10);
    EXPECT_EQ(registros(4), 1U);
}

TEST_F(Store, creatingASlaveTwiceDoesNothingFurther) {
    esclavos.crearEsclavo(3, 0, 99);
    esclavos.escribir(3, 5, 7);
    const Pagina* pagina = esclavos.pagina(3);
    esclavos.crearEsclavo(3, 0, 500);
    EXPECT_EQ(esclavos.pagina(3), pagina);
    EXPECT_EQ(registros(3), 100U);
    EXPECT_EQ(esclavos.valores(3)[5], 7);
}

TEST_F(Store, slavesBelowACreatedOneStayMissing) {
    for (int n = 0; n <= 11; ++n)
        esclavos.crearEsclavo(n, 0, 499);
    esclavos.crearEsclavo(50, 0, 99);
    EXPECT_EQ(esclavos.limite(), 50);
    for (int n = 12; n < 50; ++n)
        EXPECT_FALSE(esclavos.existe(n)) << n;
    EXPECT_EQ(registros(11), 500U);
}

TEST_F(Store, slaveInAGapIsCreatedAsAnyOther) {
    esclavos.crearEsclavo(50, 0, 99);
    esclavos.crearEsclavo(20, 0, 99);
    esclavos.escribir(20, 99, 4);
    EXPECT_EQ(esclavos.limite(), 50);
    EXPECT_EQ(esclavos.leer(20, 99), 4);
    EXPECT_FALSE(esclavos.existe(21));
}

TEST_F(Store, readOfASlaveInAGapCreatesIt) {
    esclavos.crearEsclavo(50, 0, 99);
    EXPECT_EQ(esclavos.leer(20, 5), 0);
    EXPECT_EQ(registros(20), 100U);
}

TEST_F(Store, pagesStayWhereTheyAreWhenSlavesAreAdded) {
    esclavos.crearEsclavo(0, 0, 99);
    const Pagina* primera = esclavos.pagina(0);
    esclavos.crearEsclavo(255, 0, 99);
    EXPECT_EQ(esclavos.pagina(0), primera);
}

TEST_F(Store, observerHearsOfEverySlaveOnceWithItsTableReady) {
    struct Observador final : ObservadorEsclavos {
        void esclavoCreado(Pagina& pagina) override {
            numeros.push_back(pagina.numero());
            filas.push_back(pagina.filas());
        }
        std::vector<int> numeros;
        std::vector<int> filas;
    } observador;
    esclavos.observar(&observador);
    esclavos.crearEsclavo(3, 0, 99);
    esclavos.crearEsclavo(3, 0, 99);
    esclavos.leer(7, 0);
    esclavos.leer(7, 0);
    EXPECT_THAT(observador.numeros, ElementsAre(3, 7));
    EXPECT_THAT(observador.filas, ElementsAre(11, 11));
    esclavos.observar(nullptr);
    esclavos.leer(8, 0);
    EXPECT_EQ(observador.numeros.size(), 2U);
}

TEST_F(StoreWithSlave1, writeOf65535IsStored) {
    esclavos.escribir(1, 5, 65535);
    EXPECT_EQ(registro5(), 65535);
    esclavos.escribir(1, 5, 0);
    EXPECT_EQ(registro5(), 0);
}

TEST_F(StoreWithSlave1, writesOutsideTheWordChangeNothing) {
    esclavos.escribir(1, 5, 8);
    esclavos.pagina(1)->desmarcar();
    for (const double valor : {65536.0, -1.0, 65535.0001, -0.0001, 1e300, -1e300})
        esclavos.escribir(1, 5, valor);
    EXPECT_EQ(registro5(), 8);
    EXPECT_FALSE(esclavos.pagina(1)->marcada());
}

TEST_F(StoreWithSlave1, signedWritesAreStoredInTwosComplement) {
    esclavos.escribir_C2(1, 5, -1);
    EXPECT_EQ(registro5(), 65535);
    esclavos.escribir_C2(1, 5, -32768);
    EXPECT_EQ(registro5(), 32768);
    esclavos.escribir_C2(1, 5, 40000);
    EXPECT_EQ(registro5(), 40000);
}

TEST_F(StoreWithSlave1, signedWritesFarOutsideAreDropped) {
    esclavos.escribir_C2(1, 5, 8);
    esclavos.escribir_C2(1, 5, -70000);
    esclavos.escribir_C2(1, 5, 70000);
    EXPECT_EQ(registro5(), 8);
}

TEST_F(StoreWithSlave1, fractionIsKept) {
    esclavos.escribir(1, 5, 12.5);
    EXPECT_EQ(registro5(), 12.5);
    EXPECT_EQ(esclavos.leer(1, 5), 12.5);
}

TEST_F(StoreWithSlave1, writeMarksThePage) {
    esclavos.pagina(1)->desmarcar();
    esclavos.escribir(1, 5, 8);
    EXPECT_TRUE(esclavos.pagina(1)->marcada());
}

TEST_F(StoreWithSlave1, fractionalSlaveAndAddressGoToTheNearestHalvesToEven) {
    esclavos.crearEsclavo(2, 0, 99);
    esclavos.escribir(1.5, 4.5, 7);
    EXPECT_EQ(esclavos.valores(2)[4], 7);
    esclavos.escribir(0.6, 5.5, 9);
    EXPECT_EQ(esclavos.valores(1)[6], 9);
    EXPECT_EQ(esclavos.leer(1.4, 6.3), 9);
    esclavos.escribir(1, -0.5, 3);
    EXPECT_EQ(esclavos.valores(1)[0], 3);
}

TEST_F(Store, readOfANeverUsedSlaveCreatesItWith100Registers) {
    EXPECT_EQ(esclavos.leer(7, 0), 0);
    EXPECT_TRUE(esclavos.existe(7));
    EXPECT_EQ(registros(7), 100U);
}

TEST_F(StoreWithSlave1, readBeyondTheTableGrowsItByTenMore) {
    EXPECT_EQ(esclavos.leer(1, 250), 0);
    EXPECT_EQ(registros(1), 261U);
    EXPECT_EQ(esclavos.pagina(1)->filas(), 28);
    EXPECT_EQ(esclavos.leer(1, 250), 0);
    EXPECT_EQ(registros(1), 261U);
}

TEST_F(StoreWithSlave1, readOfTheLastRegisterGrowsNothing) {
    esclavos.leer(1, 99);
    EXPECT_EQ(registros(1), 100U);
}

TEST_F(StoreWithSlave1, readJustBeyondTheLastAddressGrowsEvenIfItWouldRoundToIt) {
    esclavos.escribir(1, 99, 8);
    EXPECT_EQ(esclavos.leer(1, 99.4), 0);
    EXPECT_EQ(registros(1), 110U);
    EXPECT_EQ(esclavos.leer(1, 99.4), 8);
}

TEST_F(StoreWithSlave1, bitsOfARegisterAreRead) {
    esclavos.escribir(1, 5, 8);
    EXPECT_EQ(esclavos.leer(1, 5, 3), 1);
    EXPECT_EQ(esclavos.leer(1, 5, 2), 0);
    EXPECT_EQ(esclavos.leer(1, 5, -1), 8);
    EXPECT_EQ(esclavos.leer(1, 5), 8);
    EXPECT_EQ(esclavos.leer(1, 5, 2.5), 0) << "halves to even: bit 2";
    EXPECT_EQ(esclavos.leer(1, 5, 3.5), 0) << "halves to even: bit 4";
}

TEST_F(StoreWithSlave1, bitNumberJustAboveMinusOneIsABit) {
    esclavos.escribir(1, 5, 9);
    EXPECT_EQ(esclavos.leer(1, 5, -0.5), 1) << "bit 0";
    EXPECT_EQ(esclavos.leer(1, 5, -0.9), 0) << "bit -1 weighs nothing";
    EXPECT_EQ(esclavos.leer(1, 5, -7), 9);
}

TEST_F(Store, bitOfAMissingSlaveIsZero) {
    EXPECT_EQ(esclavos.leer(4, 5, 0), 0);
    EXPECT_TRUE(esclavos.existe(4));
}

TEST_F(StoreWithSlave1, bitsAreSetAndCleared) {
    esclavos.escribir(1, 5, 8);
    esclavos.escribir_bit(1, 5, 0, 1);
    EXPECT_EQ(registro5(), 9);
    esclavos.escribir_bit(1, 5, 3, 0);
    EXPECT_EQ(registro5(), 1);
}

TEST_F(StoreWithSlave1, bitWritesThatMakeNoSenseChangeNothing) {
    esclavos.escribir(1, 5, 9);
    esclavos.escribir_bit(1, 5, 16, 1);
    esclavos.escribir_bit(1, 5, 16, 0);
    esclavos.escribir_bit(1, 5, 2, 2);
    esclavos.escribir_bit(1, 5, 2, 1.2);
    esclavos.escribir_bit(1, 5, 3, 2); // a bit that is set
    esclavos.escribir_bit(1, 5, 0, -1);
    esclavos.escribir_bit(1, 5, -1, 1);
    EXPECT_EQ(registro5(), 9);
    esclavos.escribir_bit(6, 5, -1, 1);
    EXPECT_FALSE(esclavos.existe(6)) << "refused before the register is looked at";
}

TEST_F(StoreWithSlave1, fractionalBitValueIsRounded) {
    esclavos.escribir(1, 5, 8);
    esclavos.escribir_bit(1, 5, 3, 0.5);
    EXPECT_EQ(registro5(), 0);
    esclavos.escribir_bit(1, 5, 3, 0.6);
    EXPECT_EQ(registro5(), 8);
}

TEST_F(Store, bitWriteCreatesTheSlaveAndGrowsTheTable) {
    esclavos.escribir_bit(4, 5, 3, 1);
    EXPECT_EQ(esclavos.leer(4, 5), 8);
    esclavos.escribir_bit(4, 200, 0, 1);
    EXPECT_EQ(registros(4), 211U);
    EXPECT_EQ(esclavos.leer(4, 200), 1);
}

TEST_F(StoreWithSlave1, growthKeepsContentsAndReachesAddressPlusMargin) {
    esclavos.escribir(1, 99, 7);
    esclavos.ampliarTablaMW(1, 120, 30);
    EXPECT_EQ(registros(1), 151U);
    EXPECT_EQ(esclavos.valores(1)[99], 7);
    EXPECT_EQ(esclavos.valores(1)[150], 0);
    EXPECT_EQ(esclavos.pagina(1)->filas(), 17);
}

TEST_F(StoreWithSlave1, tableIsNeverShrunk) {
    esclavos.ampliarTablaMW(1, 40, 10);
    esclavos.ampliarTablaMW(1, -40, 10);
    EXPECT_EQ(registros(1), 100U);
}

TEST_F(StoreWithSlave1, blockReadGivesHighByteFirst) {
    esclavos.escribir(1, 0, 1234);
    esclavos.escribir(1, 1, 65535);
    esclavos.escribir(1, 2, 1);
    EXPECT_THAT(leerBytes(1, 0, 3), ElementsAre(4, 210, 255, 255, 0, 1));
}

TEST_F(StoreWithSlave1, blockReadTruncatesTheHighByteAndRoundsTheLowOne) {
    esclavos.escribir(1, 0, 255.5);
    esclavos.escribir(1, 1, 12.5);
    esclavos.escribir(1, 2, 13.5);
    esclavos.escribir(1, 3, 65534.7);
    EXPECT_THAT(leerBytes(1, 0, 4), ElementsAre(0, 0, 0, 12, 0, 14, 255, 255));
}

TEST_F(StoreWithSlave1, blockReadThatTouchesTheBoundGrowsToStartPlusQuantity) {
    EXPECT_EQ(leerBytes(1, 89, 9).size(), 18U);
    EXPECT_EQ(registros(1), 100U) << "98 is below the bound 99";
    EXPECT_EQ(leerBytes(1, 89, 10).size(), 20U);
    EXPECT_EQ(registros(1), 100U) << "99 is the bound: grown to itself";
    EXPECT_EQ(leerBytes(1, 90, 10).size(), 20U);
    EXPECT_EQ(registros(1), 101U);
}

TEST_F(StoreWithSlave1, blockReadBeyondTheTableAnswersZeros) {
    EXPECT_THAT(leerBytes(1, 400, 2), ElementsAre(0, 0, 0, 0));
    EXPECT_EQ(registros(1), 403U);
}

TEST_F(StoreWithSlave1, blockReadOfNothingGivesNothingButGrows) {
    EXPECT_TRUE(leerBytes(1, 10, 0).empty());
    EXPECT_EQ(registros(1), 100U);
    EXPECT_TRUE(leerBytes(1, 300, 0).empty());
    EXPECT_EQ(registros(1), 301U);
}

TEST_F(StoreWithSlave1, blockReadAtTheLastAddressReaches65661) {
    EXPECT_EQ(leerBytes(1, 65535, 126).size(), 252U);
    EXPECT_EQ(registros(1), 65662U);
    EXPECT_EQ(esclavos.pagina(1)->filas(), 6568);
}

TEST_F(Store, blockReadOfAMissingSlaveCreatesItAndStaysWithinItsTable) {
    EXPECT_EQ(leerBytes(9, 0, 2).size(), 4U);
    EXPECT_EQ(registros(9), 100U);
    EXPECT_EQ(leerBytes(10, 98, 10).size(), 4U) << "a table just created is not grown";
    EXPECT_TRUE(leerBytes(11, 200, 10).empty());
}

TEST_F(StoreWithSlave1, blockReadNeverWritesPastItsDestination) {
    std::array<std::uint8_t, 5> bytes{9, 9, 9, 9, 9};
    EXPECT_EQ(esclavos.leerRegistrosComoBytes(1, 0, 10, bytes), 4U);
    EXPECT_THAT(bytes, ElementsAre(0, 0, 0, 0, 9));
}

TEST_F(Store, holds256SlavesOf65536Registers) {
    for (int n = 0; n < 256; ++n) {
        esclavos.crearEsclavo(n, 0, 65535);
        esclavos.escribir(n, 65535, n);
    }
    for (int n = 0; n < 256; ++n) {
        ASSERT_EQ(registros(n), 65536U);
        ASSERT_EQ(esclavos.leer(n, 65535), n);
    }
}

} // namespace
