#include "CarpetaTemporal.h"
#include "ProcesoHijo.h"
#include "ajustes/Claves.h"
#include "shell/Modulo_Config.h"
#include "shell/Modulo_modINI.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace std::string_literals;

namespace {

Clave clave(std::string_view nombre, std::string_view porDefecto = "") {
    return {.nombre = nombre, .porDefecto = porDefecto};
}

class Configuracion : public testing::Test {
protected:
    CarpetaTemporal carpeta;
    Modulo_Config config{carpeta.ruta()};
    std::filesystem::path archivo = carpeta / "Sis_Config.ini";
};

TEST_F(Configuracion, theFileIsSisConfigInTheProgramFolder) {
    EXPECT_EQ(config.rutaArchivo(), archivo);
}

TEST_F(Configuracion, withoutAFileTheFirstReadsCreateItWithEveryDefault) {
    EXPECT_EQ(config.leerConfiguracion(clave("PUERTO_VALOR", "502")), "502");
    EXPECT_EQ(config.leerConfiguracion(clave("ver", "1")), "1");
    EXPECT_EQ(config.leerConfiguracion(clave("RS232_NomCOM", "1")), "1");
    EXPECT_EQ(contenidoDe(archivo), "[Trelvano]\r\nPUERTO_VALOR=502\r\nver=1\r\nRS232_NomCOM=1\r\n");
}

TEST_F(Configuracion, aKeyEqualToItsDefaultStaysAsItIs) {
    escribirArchivo(archivo, "[Trelvano]\nver=1\n");
    EXPECT_EQ(config.leerConfiguracion(clave("ver", "1")), "1");
    EXPECT_EQ(contenidoDe(archivo), "[Trelvano]\nver=1\n");
}

TEST_F(Configuracion, aKeyWithAnyOtherValueIsLeftUntouched) {
    const std::string texto = "; mia\n[trelvano]\nVER = \"0\"\n";
    escribirArchivo(archivo, texto);
    EXPECT_EQ(config.leerConfiguracion(clave("ver", "1")), "0");
    EXPECT_EQ(contenidoDe(archivo), texto);
}

TEST_F(Configuracion, aDefaultThatDiffersInCaseIsNotWrittenBack) {
    escribirArchivo(archivo, "[Trelvano]\nRS232_Paridad=n\n");
    EXPECT_EQ(config.leerConfiguracion(clave("RS232_Paridad", "N")), "n");
    EXPECT_EQ(contenidoDe(archivo), "[Trelvano]\nRS232_Paridad=n\n");
}

TEST_F(Configuracion, ofTwoReadersWithDifferentDefaultsTheFirstStoresItsOwn) {
    EXPECT_EQ(config.leerConfiguracion(clave("Ejecucion_Codigo_Milisegundos", "500")), "500");
    EXPECT_EQ(config.leerConfiguracion(clave("Ejecucion_Codigo_Milisegundos", "0")), "500");
    std::filesystem::remove(archivo);
    EXPECT_EQ(config.leerConfiguracion(clave("Ejecucion_Codigo_Milisegundos", "0")), "0");
    EXPECT_EQ(config.leerConfiguracion(clave("Ejecucion_Codigo_Milisegundos", "500")), "0");
}

TEST_F(Configuracion, aMissingProjectPathIsEmptyAndNotWritten) {
    EXPECT_EQ(config.leerConfiguracion(claves::rutaProyecto), "");
    EXPECT_FALSE(std::filesystem::exists(archivo));
    escribirArchivo(archivo, "[Trelvano]\nver=1\n");
    EXPECT_EQ(config.leerConfiguracion(claves::rutaProyecto), "");
    EXPECT_EQ(contenidoDe(archivo), "[Trelvano]\nver=1\n");
}

TEST_F(Configuracion, theProjectPathIsReadFromItsOwnSection) {
    escribirArchivo(archivo, "[Trelvano]\nRutaProyecto=no\n[PROYECTO_PREDETERMINADO]\nRutaProyecto=/p/a\xF1o.zqp\n");
    EXPECT_EQ(config.leerConfiguracion(claves::rutaProyecto), "/p/año.zqp");
}

TEST_F(Configuracion, aValueLongerThan254CharactersIsCut) {
    config.escribirConfiguracion(clave("largo"), std::string(300, 'x'));
    EXPECT_EQ(config.leerConfiguracion(clave("largo", "")), std::string(254, 'x'));
}

TEST_F(Configuracion, theCutCountsCharactersAndNotTheBytesOfUtf8) {
    std::string enes;
    for (int i = 0; i < 300; ++i)
        enes += "ñ";
    config.escribirConfiguracion(clave("largo"), enes);
    EXPECT_EQ(config.leerConfiguracion(clave("largo", "")).size(), 2U * 254);
}

TEST_F(Configuracion, aDefaultLongerThan254CharactersIsCutAndSoNotWrittenBack) {
    EXPECT_EQ(config.leerConfiguracion(clave("largo", std::string(300, 'x'))), std::string(254, 'x'));
    EXPECT_FALSE(std::filesystem::exists(archivo));
}

TEST_F(Configuracion, aValueWithLineBreaksIsWrittenAsItStands) {
    WriteINI(archivo, "Trelvano", "a", "uno\r\ndos\ntres\rcuatro");
    EXPECT_EQ(contenidoDe(archivo), "[Trelvano]\r\na=uno\r\ndos\ntres\rcuatro\r\n");
}

TEST_F(Configuracion, textsAreWindows1252OnDisk) {
    config.escribirConfiguracion(clave("Año"), "€ → ñ");
    EXPECT_EQ(contenidoDe(archivo), "[Trelvano]\r\nA\xF1o=\x80 ? \xF1\r\n");
    EXPECT_EQ(config.leerConfiguracion(clave("AÑO", "")), "€ ? ñ");
}

TEST_F(Configuracion, verAndVERAreOneKey) {
    config.escribirConfiguracion(clave("ver"), "0");
    config.escribirConfiguracion(clave("VER"), "1");
    EXPECT_EQ(contenidoDe(archivo), "[Trelvano]\r\nver=1\r\n");
}

TEST_F(Configuracion, anEditByAnotherProgramIsSeenOnTheNextRead) {
    EXPECT_EQ(config.leerConfiguracion(clave("ver", "1")), "1");
    escribirArchivo(archivo, "[Trelvano]\nver=0\n");
    EXPECT_EQ(config.leerConfiguracion(clave("ver", "1")), "0");
}

TEST_F(Configuracion, numbersAreReadFromTheirText) {
    EXPECT_EQ(config.leerNumero(clave("PUERTO_VALOR", "502")), 502.0);
    config.escribirConfiguracion(clave("PUERTO_VALOR"), "1e9");
    EXPECT_EQ(config.leerNumero(clave("PUERTO_VALOR", "502")), 1e9);
    config.escribirConfiguracion(clave("PUERTO_VALOR"), "-1");
    EXPECT_EQ(config.leerNumero(clave("PUERTO_VALOR", "502")), -1.0);
}

TEST_F(Configuracion, aTextThatIsNoNumberIsReportedAsSuch) {
    config.escribirConfiguracion(clave("PUERTO_VALOR"), "quinientos");
    EXPECT_EQ(config.leerNumero(clave("PUERTO_VALOR", "502")), std::nullopt);
    config.escribirConfiguracion(clave("PUERTO_VALOR"), "");
    EXPECT_EQ(config.leerNumero(clave("PUERTO_VALOR", "502")), std::nullopt);
}

TEST_F(Configuracion, numbersBearTheLocalesDecimalSign) {
    config.escribirConfiguracion(clave("RS232_Cant_Intervalos_Validez"), "2,5");
    EXPECT_EQ(config.leerNumero(clave("RS232_Cant_Intervalos_Validez", "2")), 2.5);
    EXPECT_EQ(Modulo_Config(carpeta.ruta(), u'.').leerNumero(clave("RS232_Cant_Intervalos_Validez", "2")),
              std::nullopt);
}

TEST_F(Configuracion, aNumberIsWrittenAsItIsRead) {
    config.escribirNumero(clave("PUERTO_VALOR"), 502.5);
    EXPECT_EQ(config.leerConfiguracion(clave("PUERTO_VALOR", "")), "502,5");
    EXPECT_EQ(config.leerNumero(clave("PUERTO_VALOR", "502")), 502.5);
}

TEST_F(Configuracion, junkAndNulBytesGiveDefaultsAndSurvive) {
    const std::string basura = "\0\xFF[[[=;\r\rTrelvano]\n==\n"s;
    escribirArchivo(archivo, basura);
    EXPECT_EQ(config.leerNumero(clave("PUERTO_VALOR", "502")), 502.0);
    EXPECT_EQ(contenidoDe(archivo), basura + "[Trelvano]\rPUERTO_VALOR=502\r");
}

TEST_F(Configuracion, aFolderInTheFilesPlaceGivesDefaults) {
    std::filesystem::create_directory(archivo);
    EXPECT_EQ(config.leerConfiguracion(clave("ver", "1")), "1");
    config.escribirConfiguracion(clave("ver"), "0");
    EXPECT_TRUE(std::filesystem::is_directory(archivo));
}

TEST_F(Configuracion, aFileThatCannotBeReadIsTold) {
    EXPECT_EQ(config.fallo(), "");
    std::filesystem::create_directory(archivo);
    EXPECT_EQ(config.fallo(), "No se puede leer " + archivo.string() +
                                  ": Error de acceso a la ruta o al archivo. Valen los valores por defecto.");
    std::filesystem::remove(archivo);
    EXPECT_EQ(config.fallo(), "");
}

TEST_F(Configuracion, aValueThatCouldNotBeStoredIsToldUntilOneIs) {
    escribirArchivo(archivo, "[Trelvano]\nver=1\n");
    std::filesystem::permissions(archivo, std::filesystem::perms(0444));
    config.escribirConfiguracion(clave("ver"), "1"); // nothing to store
    EXPECT_EQ(config.fallo(), "");
    config.escribirConfiguracion(clave("ver"), "0");
    const std::string fallo =
        "No se puede escribir " + archivo.string() + ": Permiso denegado. Los cambios no se guardan.";
    EXPECT_EQ(config.fallo(), fallo);
    config.escribirConfiguracion(clave("ver"), "1");
    EXPECT_EQ(config.fallo(), fallo);
    std::filesystem::permissions(archivo, std::filesystem::perms(0644));
    config.escribirConfiguracion(clave("ver"), "0");
    EXPECT_EQ(config.fallo(), "");
}

TEST_F(Configuracion, placesOfWindowsHaveASectionOfTheirOwn) {
    EXPECT_EQ(config.lugarDeVentana("FrmMW"), "");
    EXPECT_FALSE(std::filesystem::exists(archivo));
    config.guardarLugarDeVentana("FrmMW", "1,2,3,4");
    EXPECT_EQ(contenidoDe(archivo), "[Ventanas]\r\nFrmMW=1,2,3,4\r\n");
    EXPECT_EQ(config.lugarDeVentana("FrmMW"), "1,2,3,4");
}

TEST_F(Configuracion, aReadOnlyFolderGivesDefaultsAndStaysEmpty) {
    std::filesystem::permissions(carpeta.ruta(), std::filesystem::perms(0555));
    EXPECT_EQ(enProcesoHijo([&] {
                  if (!soltarPrivilegios() || config.leerConfiguracion(clave("ver", "1")) != "1")
                      return 1;
                  config.escribirConfiguracion(clave("ver"), "0");
                  return 0;
              }),
              0);
    EXPECT_TRUE(std::filesystem::is_empty(carpeta.ruta()));
}

} // namespace
