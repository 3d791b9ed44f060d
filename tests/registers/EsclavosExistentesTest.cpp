// Reading and writing only what exists: nothing is created, nothing grows, nothing is raised.
#include "registers/Cambios.h"
#include "registers/Esclavos.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Testigo final : public ObservadorCambios {
public:
    void registroEscrito(int esclavo, int direccion, double antes, double ahora, Autor autor) override {
        vistos.emplace_back(esclavo, direccion, antes, ahora, autor);
    }
    std::vector<std::tuple<int, int, double, double, Autor>> vistos;
};

class StoreWithSlave3 : public testing::Test {
protected:
    StoreWithSlave3() {
        esclavos.crearEsclavo(3, 0, 99);
        esclavos.observarCambios(&testigo);
    }

    Testigo testigo;
    Esclavos esclavos;
};

TEST_F(StoreWithSlave3, aWriteToAnExistingRegisterStoresTheValueAsItIs) {
    EXPECT_TRUE(esclavos.escribirSiExiste(3, 0, 65535));
    EXPECT_TRUE(esclavos.escribirSiExiste(3, 99, 12.5));
    EXPECT_EQ(esclavos.valores(3)[0], 65535);
    EXPECT_EQ(esclavos.valores(3)[99], 12.5);
}

TEST_F(StoreWithSlave3, aWriteIsReportedAsTheScriptsWithTheOldValue) {
    esclavos.escribirSiExiste(3, 7, 20);
    esclavos.escribirSiExiste(3, 7, 21);
    EXPECT_THAT(testigo.vistos,
                ElementsAre(std::tuple(3, 7, 0.0, 20.0, Autor::script), std::tuple(3, 7, 20.0, 21.0, Autor::script)));
}

TEST_F(StoreWithSlave3, aWriteMarksThePageAndTheRegistersOwnCellShowsItAgain) {
    esclavos.escribir(3, 9.6, 77); // shown in the cell of register 9, kept in register 10
    ASSERT_TRUE(esclavos.pagina(3)->ajena(10).has_value());
    esclavos.pagina(3)->desmarcar();
    EXPECT_TRUE(esclavos.escribirSiExiste(3, 10, 1234));
    EXPECT_FALSE(esclavos.pagina(3)->ajena(10).has_value());
    EXPECT_TRUE(esclavos.pagina(3)->marcada());
}

TEST_F(StoreWithSlave3, whatDoesNotExistIsLeftAloneAndNothingGrows) {
    for (const auto& [esclavo, direccion] :
         std::vector<std::pair<std::int64_t, std::int64_t>>{{-1, 0},
                                                            {2, 0},
                                                            {4, 0},
                                                            {std::numeric_limits<std::int64_t>::max(), 0},
                                                            {3, -1},
                                                            {3, 100},
                                                            {3, std::numeric_limits<std::int64_t>::max()},
                                                            {3, std::numeric_limits<std::int64_t>::min()}}) {
        EXPECT_FALSE(esclavos.escribirSiExiste(esclavo, direccion, 5)) << esclavo << ' ' << direccion;
        EXPECT_EQ(esclavos.valorSiExiste(esclavo, direccion), nullptr) << esclavo << ' ' << direccion;
    }
    EXPECT_EQ(esclavos.limite(), 3);
    EXPECT_EQ(esclavos.valores(3).size(), 100U);
    EXPECT_THAT(testigo.vistos, IsEmpty());
}

TEST_F(StoreWithSlave3, aValueThatNoRegisterHoldsIsLeftToTheLongWay) {
    esclavos.escribirSiExiste(3, 5, 8);
    for (const double valor : {-1.0, -0.25, 65535.5, 65536.0, std::numeric_limits<double>::quiet_NaN(),
                               std::numeric_limits<double>::infinity()}) {
        EXPECT_FALSE(esclavos.escribirSiExiste(3, 5, valor)) << valor;
    }
    EXPECT_EQ(*esclavos.valorSiExiste(3, 5), 8);
}

} // namespace
