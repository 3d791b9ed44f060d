#include "AjustesFalsos.h"
#include "CarpetaTemporal.h"
#include "script/Modulo_Codigo.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

// A program folder and a project folder; the default project is set by each test.
class ScriptPlace : public testing::Test {
protected:
    ScriptPlace() { fs::create_directories(projects_); }

    void pathIs(const fs::path& project) {
        project_ = project;
        settings_.valores["RutaProyecto"] = project.string();
    }
    void projectIs(const std::string& name) {
        pathIs(projects_ / name);
        escribirArchivo(project_, "");
    }
    fs::path ofProgram() const { return folder_ / "codigoTrelvano.txt"; }

    CarpetaTemporal folder_;
    fs::path projects_ = folder_ / "Mis Proyectos ñ";
    fs::path project_;
    AjustesFalsos settings_;
    Modulo_Codigo code_{settings_, folder_.ruta()};
};

} // namespace

TEST_F(ScriptPlace, withoutAProjectItIsInTheProgramFolder) {
    EXPECT_EQ(code_.rutaParaLeer(), ofProgram());
    EXPECT_EQ(code_.rutaParaGuardar(), ofProgram());
}

TEST_F(ScriptPlace, aProjectThatDoesNotExistCountsForNothing) {
    pathIs(projects_ / "falta.zqp");
    escribirArchivo(projects_ / "falta.KOVAScrip", "x = 1");
    EXPECT_EQ(code_.rutaParaLeer(), ofProgram());
    EXPECT_EQ(code_.rutaParaGuardar(), ofProgram());
}

TEST_F(ScriptPlace, aProjectWithoutItsScriptReadsTheProgramsAndSavesItsOwn) {
    projectIs("planta.zqp");
    EXPECT_EQ(code_.rutaParaLeer(), ofProgram());
    EXPECT_EQ(code_.rutaParaGuardar(), projects_ / "planta.KOVAScrip");
}

TEST_F(ScriptPlace, aProjectWithItsScriptUsesIt) {
    projectIs("planta.zqp");
    escribirArchivo(projects_ / "planta.KOVAScrip", "");
    EXPECT_EQ(code_.rutaParaLeer(), projects_ / "planta.KOVAScrip");
    EXPECT_EQ(code_.rutaParaGuardar(), projects_ / "planta.KOVAScrip");
}

TEST_F(ScriptPlace, isChosenAnewAtEveryUse) {
    projectIs("planta.zqp");
    EXPECT_EQ(code_.rutaParaLeer(), ofProgram());
    escribirArchivo(projects_ / "planta.KOVAScrip", "");
    EXPECT_EQ(code_.rutaParaLeer(), projects_ / "planta.KOVAScrip");
    fs::remove(project_);
    EXPECT_EQ(code_.rutaParaLeer(), ofProgram());
}

TEST_F(ScriptPlace, blanksAndAccentsOfTheProjectPathAreKept) {
    projectIs("Depósito 1.zqp");
    escribirArchivo(projects_ / "Depósito 1.KOVAScrip", "");
    EXPECT_EQ(code_.rutaParaLeer(), projects_ / "Depósito 1.KOVAScrip");
}

TEST_F(ScriptPlace, theExtensionMayBeInCapitals) {
    projectIs("PLANTA.ZQP");
    escribirArchivo(projects_ / "PLANTA.KOVAScrip", "");
    EXPECT_EQ(code_.rutaParaLeer(), projects_ / "PLANTA.KOVAScrip");
}

TEST_F(ScriptPlace, aProjectOfAnotherExtensionIsItsOwnScript) {
    projectIs("planta.txt");
    EXPECT_EQ(code_.rutaParaLeer(), project_) << "nothing is replaced, and the file exists";
}

TEST(ScriptOfProject, everyOccurrenceIsReplacedInAnyCase) {
    EXPECT_EQ(rutaScriptDeProyecto("/a/b.zqp"), "/a/b.KOVAScrip");
    EXPECT_EQ(rutaScriptDeProyecto("/a.zqp/b.Zqp"), "/a.KOVAScrip/b.KOVAScrip");
    EXPECT_EQ(rutaScriptDeProyecto("/x.zqp.ZQP.zq"), "/x.KOVAScrip.KOVAScrip.zq");
}

TEST(ScriptOfProject, aPathWithoutTheExtensionStays) {
    EXPECT_EQ(rutaScriptDeProyecto("/a/zqp"), "/a/zqp");
    EXPECT_EQ(rutaScriptDeProyecto(""), "");
}
