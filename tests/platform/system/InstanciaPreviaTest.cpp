#include "platform/system/InstanciaPrevia.h"

#include "CarpetaTemporal.h"
#include "ProcesoHijo.h"

#include <gtest/gtest.h>
#include <optional>

namespace {

class InstanciaPreviaTest : public testing::Test {
protected:
    InstanciaPreviaTest() { escribirArchivo(ejecutable, ""); }

    CarpetaTemporal carpeta; // its name makes the executable's path, and so the address, this test's own
    std::filesystem::path ejecutable = carpeta / "programa";
};

TEST_F(InstanciaPreviaTest, theFirstCopyFindsNoOther) {
    EXPECT_FALSE(InstanciaPrevia(ejecutable).hayOtra());
}

TEST_F(InstanciaPreviaTest, aSecondCopyInAnotherProcessFindsTheFirst) {
    const InstanciaPrevia primera(ejecutable);
    EXPECT_EQ(enProcesoHijo([&] { return InstanciaPrevia(ejecutable).hayOtra() ? 1 : 0; }), 1);
}

TEST_F(InstanciaPreviaTest, aSecondCopyThatEndsDoesNotFreeTheFirst) {
    const InstanciaPrevia primera(ejecutable);
    EXPECT_TRUE(InstanciaPrevia(ejecutable).hayOtra());
    EXPECT_TRUE(InstanciaPrevia(ejecutable).hayOtra());
}

TEST_F(InstanciaPreviaTest, theSameFileThroughALinkIsTheSameProgram) {
    std::filesystem::create_symlink(ejecutable, carpeta / "enlace");
    const InstanciaPrevia primera(ejecutable);
    EXPECT_TRUE(InstanciaPrevia(carpeta / "enlace").hayOtra());
}

TEST_F(InstanciaPreviaTest, anotherFileIsAnotherProgram) {
    escribirArchivo(carpeta / "copia", "");
    const InstanciaPrevia primera(ejecutable);
    EXPECT_FALSE(InstanciaPrevia(carpeta / "copia").hayOtra());
}

TEST_F(InstanciaPreviaTest, anotherUserHasHisOwn) {
    std::filesystem::permissions(carpeta.ruta(), std::filesystem::perms(0755));
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can become another user";
    const InstanciaPrevia primera(ejecutable);
    EXPECT_EQ(enProcesoHijo([&] { return soltarPrivilegios() && !InstanciaPrevia(ejecutable).hayOtra() ? 0 : 1; }), 0);
}

TEST_F(InstanciaPreviaTest, aCopyThatEndedLeavesNothingBehind) {
    std::optional<InstanciaPrevia> primera(ejecutable);
    primera.reset();
    EXPECT_FALSE(InstanciaPrevia(ejecutable).hayOtra());
}

TEST_F(InstanciaPreviaTest, aCopyThatCrashedLeavesNothingBehind) {
    EXPECT_EQ(enProcesoHijo([&] {
                  const InstanciaPrevia primera(ejecutable);
                  return ::raise(SIGKILL);
              }),
              -1);
    EXPECT_FALSE(InstanciaPrevia(ejecutable).hayOtra());
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(carpeta.ruta()), {}), 1);
}

} // namespace
