#include "platform/system/CarpetaDatos.h"

#include "CarpetaTemporal.h"
#include "ProcesoHijo.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

class DatosDelPrograma : public testing::Test {
protected:
    DatosDelPrograma() { fs::create_directory(programa); }

    CarpetaDatos elegir(const PuedeEscribir& puede) const { return elegirCarpetaDatos(programa, usuario, puede); }
    CarpetaDatos elegirSinPermiso() const {
        return elegir([this](const fs::path& ruta) { return ruta == usuario; });
    }

    CarpetaTemporal carpeta;
    fs::path programa = carpeta / "programa";
    fs::path usuario = carpeta / "casa" / "esclavo-modbus";
};

TEST_F(DatosDelPrograma, aFolderThatCanBeWrittenIsTakenWithoutAWord) {
    const CarpetaDatos datos = elegir(puedeEscribir);
    EXPECT_EQ(datos.ruta, programa);
    EXPECT_EQ(datos.aviso, "");
    EXPECT_FALSE(fs::exists(usuario));
}

TEST_F(DatosDelPrograma, aSettingsFileThatCanBeWrittenKeepsThemThere) {
    escribirArchivo(programa / "Sis_Config.ini", "");
    const CarpetaDatos datos =
        elegir([this](const fs::path& ruta) { return ruta == programa / "Sis_Config.ini" || ruta == usuario; });
    EXPECT_EQ(datos.ruta, programa);
    EXPECT_EQ(datos.aviso, "");
}

TEST_F(DatosDelPrograma, otherwiseTheUsersFolderBeginsAsACopy) {
    escribirArchivo(programa / "Sis_Config.ini", "[Trelvano]\r\nver=0\r\n");
    escribirArchivo(programa / "codigoTrelvano.txt", "a = 1");
    escribirArchivo(programa / "esclavo-modbus", "programa");
    escribirArchivo(programa / "comx", "");
    fs::create_symlink("/dev/ttyUSB3", programa / "com2");
    fs::create_directory(programa / "LOGS_Trelvano");
    escribirArchivo(programa / "LOGS_Trelvano" / "log.txt", "x");
    fs::permissions(programa / "Sis_Config.ini", fs::perms::owner_read);

    const CarpetaDatos datos = elegirSinPermiso();
    EXPECT_EQ(datos.ruta, usuario);
    EXPECT_NE(datos.aviso.find(programa.string()), std::string::npos);
    EXPECT_NE(datos.aviso.find(usuario.string()), std::string::npos);
    EXPECT_EQ(contenidoDe(usuario / "Sis_Config.ini"), "[Trelvano]\r\nver=0\r\n");
    EXPECT_NE(fs::status(usuario / "Sis_Config.ini").permissions() & fs::perms::owner_write, fs::perms::none);
    EXPECT_EQ(contenidoDe(usuario / "codigoTrelvano.txt"), "a = 1");
    EXPECT_EQ(contenidoDe(usuario / "LOGS_Trelvano" / "log.txt"), "x");
    EXPECT_EQ(fs::read_symlink(usuario / "com2"), "/dev/ttyUSB3");
    EXPECT_FALSE(fs::exists(usuario / "esclavo-modbus"));
    EXPECT_FALSE(fs::exists(usuario / "comx"));
}

TEST_F(DatosDelPrograma, whatTheUserHasThereIsNotReplaced) {
    escribirArchivo(programa / "Sis_Config.ini", "[Trelvano]\r\nver=0\r\n");
    fs::create_directories(usuario);
    escribirArchivo(usuario / "Sis_Config.ini", "[Trelvano]\r\nver=1\r\n");
    escribirArchivo(programa / "codigoTrelvano.txt", "a = 1");
    EXPECT_EQ(elegirSinPermiso().ruta, usuario);
    EXPECT_EQ(contenidoDe(usuario / "Sis_Config.ini"), "[Trelvano]\r\nver=1\r\n");
    EXPECT_FALSE(fs::exists(usuario / "codigoTrelvano.txt")); // it has begun before
}

TEST_F(DatosDelPrograma, withoutAnyFolderTheProgramsStaysAndTheUserIsTold) {
    const CarpetaDatos datos = elegir([](const fs::path&) { return false; });
    EXPECT_EQ(datos.ruta, programa);
    EXPECT_NE(datos.aviso.find("no se guardan"), std::string::npos);
    EXPECT_EQ(elegirCarpetaDatos(programa, "", [](const fs::path&) { return false; }).ruta, programa);
}

TEST_F(DatosDelPrograma, anOrdinaryUserIsToldByTheSystem) {
    fs::permissions(carpeta.ruta(), fs::perms::all);
    fs::permissions(programa, fs::perms(0555));
    EXPECT_EQ(enProcesoHijo([&] {
                  return soltarPrivilegios() && elegir(puedeEscribir).ruta == usuario && fs::exists(usuario) ? 0 : 1;
              }),
              0);
}

TEST_F(DatosDelPrograma, theUsersFolderFollowsTheEnvironment) {
    EXPECT_EQ(enProcesoHijo([] {
                  setenv("XDG_CONFIG_HOME", "/x", 1);
                  setenv("HOME", "/h", 1);
                  if (carpetaDelUsuario() != "/x/esclavo-modbus")
                      return 1;
                  setenv("XDG_CONFIG_HOME", "relativa", 1);
                  return carpetaDelUsuario() == "/h/.config/esclavo-modbus" ? 0 : 2;
              }),
              0);
}

} // namespace
