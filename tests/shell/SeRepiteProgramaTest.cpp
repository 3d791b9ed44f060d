#include "CarpetaTemporal.h"
#include "shell/SeRepiteProgramaEnRunTime.h"

#include <gtest/gtest.h>

namespace {

class SeRepitePrograma : public testing::Test {
protected:
    void correr(const std::string& nombre) {
        const std::filesystem::path proceso = carpeta / std::to_string(++ultimo_);
        std::filesystem::create_directory(proceso);
        escribirArchivo(proceso / "comm", nombre + "\n");
    }
    bool seRepite(std::string_view nombre) const { return SeRepiteProgramaEnRunTime(nombre, carpeta.ruta()); }

    CarpetaTemporal carpeta;

private:
    int ultimo_ = 0;
};

TEST_F(SeRepitePrograma, oneProcessIsNoRepetition) {
    correr("bash");
    correr("esclavo-modbus");
    EXPECT_FALSE(seRepite("esclavo-modbus"));
}

TEST_F(SeRepitePrograma, theSecondMatchIs) {
    correr("esclavo-modbus");
    correr("esclavo-modbus");
    EXPECT_TRUE(seRepite("esclavo-modbus"));
}

TEST_F(SeRepitePrograma, aNameInsideANameCountsInAnyCase) {
    correr("Esclavo.exe");
    correr("el-ESCLAVO-2");
    EXPECT_TRUE(seRepite("esclavo"));
}

TEST_F(SeRepitePrograma, aProcessListThatCannotBeReadIsNoRepetition) {
    EXPECT_FALSE(SeRepiteProgramaEnRunTime("a", carpeta / "no"));
}

} // namespace
