#include "platform/system/Procesos.h"

#include "CarpetaTemporal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace std::string_literals;
using testing::Contains;
using testing::UnorderedElementsAre;

namespace {

class Procesos : public testing::Test {
protected:
    void agregar(const std::string& numero, std::string_view comm, std::string_view cmdline = "") {
        std::filesystem::create_directory(raiz / numero);
        escribirArchivo(raiz / numero / "comm", comm);
        escribirArchivo(raiz / numero / "cmdline", cmdline);
    }

    CarpetaTemporal carpeta;
    std::filesystem::path raiz = carpeta.ruta();
};

TEST_F(Procesos, everyNumberedFolderIsAProcess) {
    agregar("1", "systemd\n");
    agregar("4711", "esclavo-modbus\n");
    EXPECT_THAT(nombresDeProcesos(raiz).value(), UnorderedElementsAre("systemd", "esclavo-modbus"));
}

TEST_F(Procesos, otherFoldersAndFilesAreNone) {
    agregar("sys", "no\n");
    agregar("12a", "no\n");
    escribirArchivo(raiz / "77", "no");
    EXPECT_THAT(nombresDeProcesos(raiz).value(), testing::IsEmpty());
}

TEST_F(Procesos, aProcessThatEndsMeanwhileIsLeftOut) {
    std::filesystem::create_directory(raiz / "5");
    agregar("6", "vivo\n");
    EXPECT_THAT(nombresDeProcesos(raiz).value(), UnorderedElementsAre("vivo"));
}

TEST_F(Procesos, aNameThatTheKernelCutIsWhole) {
    agregar("1", "un-nombre-muy-l\n", "/opt/un-nombre-muy-largo\0--view\0"s);
    agregar("2", "otro-nombre-lar\n", "un titulo\0"s);
    EXPECT_THAT(nombresDeProcesos(raiz).value(), UnorderedElementsAre("un-nombre-muy-largo", "otro-nombre-lar"));
}

TEST_F(Procesos, aFolderThatCannotBeReadGivesNothing) {
    EXPECT_EQ(nombresDeProcesos(raiz / "no"), std::nullopt);
    escribirArchivo(raiz / "archivo", "");
    EXPECT_EQ(nombresDeProcesos(raiz / "archivo"), std::nullopt);
}

TEST_F(Procesos, theRealListHoldsThisProgram) {
    EXPECT_THAT(nombresDeProcesos().value(), Contains("test_system_procesos"));
}

} // namespace
