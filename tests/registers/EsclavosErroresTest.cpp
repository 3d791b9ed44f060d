// What the store refuses: indices outside, numbers that are none, and its ceilings.
#include "ProcesoHijo.h"
#include "errores.h"
#include "registers/Esclavos.h"

#include <array>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinito = std::numeric_limits<double>::infinity();

class StoreErrors : public testing::Test {
protected:
    StoreErrors() {
        esclavos.crearEsclavo(1, 0, 99);
        esclavos.crearEsclavo(5, 0, 99);
    }

    int alEscribir(double esclavo, double direccion, double valor) {
        return numeroDeError([&] { esclavos.escribir(esclavo, direccion, valor); });
    }

    int alLeer(double esclavo, double direccion, double bit = -1) {
        return numeroDeError([&] { esclavos.leer(esclavo, direccion, bit); });
    }

    int alAmpliar(double esclavo, double direccion, double margen) {
        return numeroDeError([&] { esclavos.ampliarTablaMW(esclavo, direccion, margen); });
    }

    int alCrear(double numero, double primera, double ultima) {
        return numeroDeError([&] { esclavos.crearEsclavo(numero, primera, ultima); });
    }

    int alLeerBytes(double esclavo, double inicio, double cantidad) {
        std::array<std::uint8_t, 252> bytes{};
        return numeroDeError([&] { esclavos.leerRegistrosComoBytes(esclavo, inicio, cantidad, bytes); });
    }

    Esclavos esclavos;
};

// A sanitizer takes terabytes of addresses before the program starts.
#ifndef __SANITIZE_ADDRESS__
// In a child: the program may take that many bytes more.
bool limitarMemoria(std::size_t masBytes) {
    std::size_t paginas = 0;
    std::ifstream("/proc/self/statm") >> paginas;
    const rlim_t tope = paginas * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)) + masBytes;
    const rlimit limite{tope, tope};
    return ::setrlimit(RLIMIT_AS, &limite) == 0;
}

TEST_F(StoreErrors, whenMemoryRunsShortTablesGrowNoMoreAndTheProgramKeepsSome) {
    EXPECT_EQ(enProcesoHijo([&] {
                  if (!limitarMemoria(std::size_t{64} << 20))
                      return 1;
                  int error = 0;
                  int creados = 0;
                  for (; error == 0 && creados < 256; ++creados)
                      error = alCrear(10 + creados, 0, 65535); // half a megabyte each
                  if (error != 7 || creados < 10 || esclavos.existe(10 + creados - 1))
                      return 2;
                  const std::size_t cuantos = esclavos.valores(1).size();
                  if (alAmpliar(1, 1'000'000, 0) != 7 || esclavos.valores(1).size() != cuantos)
                      return 3;
                  const std::vector<char> resto(16 << 20);
                  return resto.empty() || alEscribir(10, 65535, 7) != 0 ? 4 : 0;
              }),
              0);
}
#endif

TEST_F(StoreErrors, writeToAMissingSlaveRaisesNineAndCreatesNothing) {
    EXPECT_EQ(alEscribir(6, 0, 1), 9) << "above the highest";
    EXPECT_EQ(alEscribir(3, 0, 1), 9) << "in a gap";
    EXPECT_EQ(alEscribir(-1, 0, 1), 9);
    EXPECT_EQ(esclavos.limite(), 5);
    EXPECT_FALSE(esclavos.existe(3));
}

TEST_F(StoreErrors, writeBeyondTheTableRaisesNineAndGrowsNothing) {
    EXPECT_EQ(alEscribir(1, 99, 1), 0);
    EXPECT_EQ(alEscribir(1, 100, 1), 9);
    EXPECT_EQ(alEscribir(1, 99.5, 1), 9) << "rounds to 100";
    EXPECT_EQ(alEscribir(1, -1, 1), 9);
    EXPECT_EQ(esclavos.valores(1).size(), 100U);
}

TEST_F(StoreErrors, droppedValueIsDroppedBeforeTheIndicesAreLookedAt) {
    EXPECT_EQ(alEscribir(77, 1000, 65536), 0);
    EXPECT_EQ(alEscribir(-5, -5, -1), 0);
    EXPECT_EQ(alEscribir(nan, nan, 70000), 0);
}

TEST_F(StoreErrors, valueThatIsNoNumberIsDropped) {
    EXPECT_EQ(alEscribir(1, 5, nan), 0);
    EXPECT_EQ(alEscribir(1, 5, infinito), 0);
    EXPECT_EQ(numeroDeError([&] { esclavos.escribir_C2(1, 5, nan); }), 0);
    EXPECT_EQ(esclavos.valores(1)[5], 0);
}

TEST_F(StoreErrors, indicesThatFitNoWholeNumberRaiseSix) {
    for (const double x : {nan, infinito, -infinito, 1e10, -1e10}) {
        EXPECT_EQ(alEscribir(x, 0, 1), 6) << x;
        EXPECT_EQ(alEscribir(1, x, 1), 6) << x;
    }
    EXPECT_EQ(alLeer(nan, 0), 6);
    EXPECT_EQ(alLeer(1, nan), 6);
    EXPECT_EQ(alLeer(1e10, 0), 6);
    EXPECT_EQ(alLeer(1, 1e10), 6);
}

TEST_F(StoreErrors, readWithANegativeIndexRaisesNine) {
    EXPECT_EQ(alLeer(-1, 0), 9);
    EXPECT_EQ(alLeer(1, -1), 9);
    EXPECT_EQ(alLeer(1, -0.5), 0) << "rounds to 0";
}

TEST_F(StoreErrors, bitNumbersBeyond30RaiseSixOnRead) {
    EXPECT_EQ(alLeer(1, 5, 30), 0);
    EXPECT_EQ(alLeer(1, 5, 31), 6);
    EXPECT_EQ(alLeer(1, 5, 40000), 6) << "no 16-bit integer";
    EXPECT_EQ(alLeer(8, 5, 31), 6);
    EXPECT_TRUE(esclavos.existe(8)) << "created before the bit was looked at";
}

TEST_F(StoreErrors, bitNumbersBeyond32BitsRaiseSixOnWrite) {
    const auto alEscribirBit = [&](double bit, double valor) {
        return numeroDeError([&] { esclavos.escribir_bit(1, 5, bit, valor); });
    };
    EXPECT_EQ(alEscribirBit(30, 1), 0);
    EXPECT_EQ(alEscribirBit(31, 1), 6);
    EXPECT_EQ(alEscribirBit(31, 0), 0);
    EXPECT_EQ(alEscribirBit(32, 0), 6);
    EXPECT_EQ(alEscribirBit(40000, 0), 6);
    EXPECT_EQ(alEscribirBit(nan, 1), 6);
    EXPECT_EQ(esclavos.valores(1)[5], 0);
}

TEST_F(StoreErrors, growthOfAMissingSlaveRaisesNine) {
    EXPECT_EQ(alAmpliar(3, 10, 10), 9);
    EXPECT_EQ(alAmpliar(6, 10, 10), 9);
    EXPECT_EQ(alAmpliar(-1, 10, 10), 9);
}

TEST_F(StoreErrors, blockReadOfASlaveInAGapRaisesNine) {
    EXPECT_EQ(alLeerBytes(3, 0, 2), 9);
    EXPECT_EQ(alLeerBytes(-1, 0, 2), 9);
    EXPECT_FALSE(esclavos.existe(3));
}

TEST_F(StoreErrors, blockReadFromANegativeAddressRaisesNine) {
    EXPECT_EQ(alLeerBytes(1, -1, 2), 9);
    EXPECT_EQ(alLeerBytes(1, -50, 2), 9);
}

TEST_F(StoreErrors, slaveNumbersThatAreNoneAreNotCreated) {
    EXPECT_EQ(alCrear(-1, 0, 99), 9);
    EXPECT_EQ(alCrear(nan, 0, 99), 6);
    EXPECT_EQ(alCrear(1e10, 0, 99), 6);
}

TEST_F(StoreErrors, slaveNumberCeilingRaisesSeven) {
    EXPECT_EQ(alCrear(Esclavos::maxNumero, 0, 99), 0);
    EXPECT_EQ(alCrear(Esclavos::maxNumero + 1, 0, 99), 7);
    EXPECT_EQ(alLeer(Esclavos::maxNumero + 1, 0), 7);
}

TEST_F(StoreErrors, pageCeilingRaisesSeven) {
    for (int n = 6; n < Esclavos::maxPaginas + 4; ++n)
        ASSERT_EQ(alCrear(n, 0, 0), 0) << n;
    EXPECT_EQ(alCrear(3000, 0, 0), 7);
    EXPECT_EQ(alCrear(1, 0, 0), 0) << "a slave that exists is no new page";
    EXPECT_EQ(alEscribir(1, 5, 7), 0);
}

TEST_F(StoreErrors, registerCeilingRaisesSevenAndKeepsTheTable) {
    EXPECT_EQ(alLeer(1, 2e9), 7);
    EXPECT_EQ(alAmpliar(1, 2147483647, 0), 7);
    EXPECT_EQ(alAmpliar(1, 2147483647, 1), 6);
    EXPECT_EQ(alLeerBytes(1, 2e9, 2), 7);
    EXPECT_EQ(esclavos.valores(1).size(), 100U);
    EXPECT_EQ(alEscribir(1, 5, 7), 0);
}

TEST_F(StoreErrors, registerCeilingCountsAllTablesTogether) {
    constexpr double mitad = static_cast<double>(Esclavos::maxRegistros) / 2;
    EXPECT_EQ(alAmpliar(1, mitad, 0), 0);
    EXPECT_EQ(alAmpliar(5, mitad, 0), 7);
    EXPECT_EQ(alAmpliar(5, 1000, 0), 0);
}

TEST_F(StoreErrors, slaveWhoseTableIsRefusedDoesNotExist) {
    EXPECT_EQ(alCrear(7, 0, 1e9), 7);
    EXPECT_FALSE(esclavos.existe(7));
    EXPECT_EQ(alCrear(7, 0, 99), 0);
    EXPECT_EQ(esclavos.valores(7).size(), 100U);
}

} // namespace
