#include "platform/system/CarpetaPrograma.h"

#include "CarpetaTemporal.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

const fs::path imprimeCarpeta = IMPRIME_CARPETA;

// What the little program says when it is started as `programa`.
std::string salidaDe(const fs::path& programa) {
    const CarpetaTemporal carpeta;
    const std::string orden = "'" + programa.string() + "' >'" + (carpeta / "salida").string() + "'";
    return std::system(orden.c_str()) == 0 ? contenidoDe(carpeta / "salida") : "failed";
}

std::string lugar(const fs::path& programa) {
    return programa.string() + "|" + programa.parent_path().string();
}

} // namespace

TEST(CarpetaPrograma, isTheFolderOfTheExecutableWithoutASeparatorAtTheEnd) {
    EXPECT_EQ(rutaEjecutable().filename(), "test_system_carpeta_programa");
    EXPECT_EQ(salidaDe(imprimeCarpeta), lugar(imprimeCarpeta));
}

TEST(CarpetaPrograma, aLinkLeadsToTheRealFolder) {
    const CarpetaTemporal carpeta;
    fs::create_symlink(imprimeCarpeta, carpeta / "enlace");
    EXPECT_EQ(salidaDe(carpeta / "enlace"), lugar(imprimeCarpeta));
}

TEST(CarpetaPrograma, aCopyInAFolderWithBlanksKnowsItsOwnPlace) {
    const CarpetaTemporal carpeta;
    const fs::path copia = carpeta / "mi carpeta" / "año (deleted)";
    fs::create_directory(copia.parent_path());
    fs::copy_file(imprimeCarpeta, copia);
    EXPECT_EQ(salidaDe(copia), lugar(copia));
}

// As after an update, which puts a new file in its place.
TEST(CarpetaPrograma, anExecutableThatIsGoneMeanwhileKeepsItsName) {
    const CarpetaTemporal carpeta;
    const fs::path copia = carpeta / "estación";
    fs::copy_file(imprimeCarpeta, copia);
    const std::string nombre = "'" + copia.string() + "'";
    const std::string orden =
        "exec 3<" + nombre + "; rm " + nombre + "; /proc/self/fd/3 >'" + (carpeta / "salida").string() + "'";
    ASSERT_EQ(std::system(orden.c_str()), 0);
    EXPECT_EQ(contenidoDe(carpeta / "salida"), lugar(copia));
}
