#include "platform/profile/Perfil.h"

#include "CarpetaTemporal.h"
#include "ProcesoHijo.h"
#include "TiempoDeProcesador.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace std::string_literals;

namespace {

const std::string dosSecciones = "[Uno]\r\na=1\r\nb=2\r\n\r\n[Dos]\r\na=3\r\n";

// --- Reading a text -----------------------------------------------------------------------------------------------

TEST(LeerValor, findsTheKeyInItsSection) {
    EXPECT_EQ(leerValor(dosSecciones, "Uno", "b"), "2");
    EXPECT_EQ(leerValor(dosSecciones, "Dos", "a"), "3");
}

TEST(LeerValor, aMissingSectionOrKeyGivesNothing) {
    EXPECT_EQ(leerValor(dosSecciones, "Dos", "b"), std::nullopt);
    EXPECT_EQ(leerValor(dosSecciones, "Tres", "a"), std::nullopt);
    EXPECT_EQ(leerValor("", "Uno", "a"), std::nullopt);
}

TEST(LeerValor, sectionAndKeyAreFoundWithoutRegardToCase) {
    EXPECT_EQ(leerValor("[TRELVANO]\nVER=0\n", "Trelvano", "ver"), "0");
    EXPECT_EQ(leerValor("[A\xD1O]\n\xC9poca=x\n", "a\xF1o", "\xE9POCA"), "x");
}

TEST(LeerValor, theValueKeepsItsCase) {
    EXPECT_EQ(leerValor("[s]\nk=AbC\n", "s", "k"), "AbC");
}

TEST(LeerValor, blanksAroundSectionKeyAndValueAreDropped) {
    EXPECT_EQ(leerValor("  [ s ]  \n \t k \t = \t a b \t \n", "s", "k"), "a b");
    EXPECT_EQ(leerValor("[s]\nk=1\n", " s ", " k "), "1");
}

TEST(LeerValor, onePairOfQuotesIsDropped) {
    EXPECT_EQ(leerValor("[s]\nk=\" a \"\n", "s", "k"), " a ");
    EXPECT_EQ(leerValor("[s]\nk='a'\n", "s", "k"), "a");
    EXPECT_EQ(leerValor("[s]\nk=\"\"a\"\"\n", "s", "k"), "\"a\"");
}

TEST(LeerValor, quotesThatAreNoPairStay) {
    EXPECT_EQ(leerValor("[s]\nk=\"a'\n", "s", "k"), "\"a'");
    EXPECT_EQ(leerValor("[s]\nk=\"\n", "s", "k"), "\"");
    EXPECT_EQ(leerValor("[s]\nk=a\"\n", "s", "k"), "a\"");
}

TEST(LeerValor, theFirstMatchWins) {
    EXPECT_EQ(leerValor("[s]\nk=1\nk=2\n[S]\nk=3\n", "s", "k"), "1");
}

TEST(LeerValor, aSectionThatStandsTwiceCountsAsOne) {
    EXPECT_EQ(leerValor("[s]\na=1\n[t]\nk=9\n[s]\nk=2\n", "s", "k"), "2");
}

TEST(LeerValor, commentsAreSkipped) {
    EXPECT_EQ(leerValor("[s]\n;k=1\n  ; k=1\nk=2\n", "s", "k"), "2");
    EXPECT_EQ(leerValor("; [s]\nk=2\n", "s", "k"), std::nullopt);
}

TEST(LeerValor, aSemicolonInsideAValueIsPartOfIt) {
    EXPECT_EQ(leerValor("[s]\nk=1;2 ; 3\n", "s", "k"), "1;2 ; 3");
}

TEST(LeerValor, theValueBeginsAtTheFirstEqualsSign) {
    EXPECT_EQ(leerValor("[s]\nk=a=b\n", "s", "k"), "a=b");
}

TEST(LeerValor, junkLinesAreSkipped) {
    EXPECT_EQ(leerValor("\x01\x02\n[s\n[]\n[s]\nk\n===\nk=1\n", "s", "k"), "1");
}

TEST(LeerValor, aHeadingWithoutItsBracketIsNoKey) {
    EXPECT_EQ(leerValor("[s]\n[k=1\n", "s", "[k"), std::nullopt);
}

TEST(LeerValor, keysBeforeTheFirstSectionBelongToNone) {
    EXPECT_EQ(leerValor("k=1\n[s]\n", "s", "k"), std::nullopt);
    EXPECT_EQ(leerValor("k=1\n[s]\n", "", "k"), std::nullopt);
}

TEST(LeerValor, everyKindOfLineEndIsKnown) {
    EXPECT_EQ(leerValor("[s]\ra=1\nb=2\r\nc=3", "s", "a"), "1");
    EXPECT_EQ(leerValor("[s]\ra=1\nb=2\r\nc=3", "s", "b"), "2");
    EXPECT_EQ(leerValor("[s]\ra=1\nb=2\r\nc=3", "s", "c"), "3");
}

TEST(LeerValor, anEmptyValueIsAValue) {
    EXPECT_EQ(leerValor("[s]\nk=\n", "s", "k"), "");
}

TEST(LeerValor, nulBytesAreOrdinaryCharacters) {
    EXPECT_EQ(leerValor("\0\0\n[s]\nk=a\0b\n"s, "s", "k"), "a\0b"s);
}

TEST(LeerValor, aByteOrderMarkIsSkipped) {
    EXPECT_EQ(leerValor("\xEF\xBB\xBF[s]\nk=1\n", "s", "k"), "1");
}

// --- Setting a key in a text --------------------------------------------------------------------------------------

TEST(ConValor, anExistingKeyIsReplacedInPlace) {
    EXPECT_EQ(conValor(dosSecciones, "Uno", "a", "99"), "[Uno]\r\na=99\r\nb=2\r\n\r\n[Dos]\r\na=3\r\n");
}

TEST(ConValor, theSpellingOfTheKeyAndTheBlanksAroundTheSignStay) {
    EXPECT_EQ(conValor("[s]\n  Puerto =  502  \n", "S", "PUERTO", "503"), "[s]\n  Puerto =  503\n");
}

TEST(ConValor, onlyTheFirstOfTwoEqualKeysChanges) {
    EXPECT_EQ(conValor("[s]\nk=1\nk=2\n", "s", "k", "3"), "[s]\nk=3\nk=2\n");
}

TEST(ConValor, aNewKeyGoesToTheEndOfItsSectionBeforeTheBlankLines) {
    EXPECT_EQ(conValor("[s]\na=1\n\n \n[t]\nb=2\n", "s", "k", "v"), "[s]\na=1\nk=v\n\n \n[t]\nb=2\n");
    EXPECT_EQ(conValor("[s]\na=1\n\n\n", "s", "k", "v"), "[s]\na=1\nk=v\n\n\n");
}

TEST(ConValor, aNewKeyGoesToTheFirstOfTwoSectionsOfTheName) {
    EXPECT_EQ(conValor("[s]\na=1\n[t]\n[s]\nb=2\n", "s", "k", "v"), "[s]\na=1\nk=v\n[t]\n[s]\nb=2\n");
}

TEST(ConValor, anEmptySectionTakesTheKeyAfterItsHeading) {
    EXPECT_EQ(conValor("[s]\n[t]\n", "s", "k", "v"), "[s]\nk=v\n[t]\n");
}

TEST(ConValor, aMissingSectionGoesToTheEnd) {
    EXPECT_EQ(conValor("[t]\na=1\n", "s", "k", "v"), "[t]\na=1\n[s]\nk=v\n");
}

TEST(ConValor, anEmptyTextTakesSectionAndKeyWithCrLf) {
    EXPECT_EQ(conValor("", "s", "k", "v"), "[s]\r\nk=v\r\n");
}

TEST(ConValor, anUnterminatedLastLineIsClosedFirst) {
    EXPECT_EQ(conValor("[s]\na=1", "s", "k", "v"), "[s]\na=1\nk=v\n");
    EXPECT_EQ(conValor("[t]\r\na=1", "s", "k", "v"), "[t]\r\na=1\r\n[s]\r\nk=v\r\n");
    EXPECT_EQ(conValor("[s]", "s", "k", "v"), "[s]\r\nk=v\r\n");
}

TEST(ConValor, anUnterminatedLastLineCanBeReplaced) {
    EXPECT_EQ(conValor("[s]\na=1", "s", "a", "2"), "[s]\na=2");
}

TEST(ConValor, mixedLineEndsStay) {
    EXPECT_EQ(conValor("[s]\r\na=1\nb=2\rc=3", "s", "b", "9"), "[s]\r\na=1\nb=9\rc=3");
}

TEST(ConValor, anEqualValueGivesBackTheSameText) {
    const std::string texto = "[s]\nk =  \"502\" \t\n";
    EXPECT_EQ(conValor(texto, "s", "k", "502"), texto);
    EXPECT_EQ(conValor(texto, "s", "k", "\"502\""), texto);
}

TEST(ConValor, foreignSectionsCommentsAndJunkSurvive) {
    const std::string antes = "\xEF\xBB\xBF; nota\r\nbasura\0\x01\n[OTRA]\rx = 'y'\r\n[s]\n; k=0\n"s;
    const std::string despues = "\n\n[PROYECTO_PREDETERMINADO]\nRutaProyecto=C:\\a b.zqp\nsin fin";
    EXPECT_EQ(conValor(antes + "k=1" + despues, "s", "k", "2"), antes + "k=2" + despues);
}

TEST(ConValor, aValueWithLineBreaksGoesOutUnchanged) {
    EXPECT_EQ(conValor("[s]\nk=1\nz=2\n", "s", "k", "a\r\nb\nc"), "[s]\nk=a\r\nb\nc\nz=2\n");
    EXPECT_EQ(conValor("", "s", "k", "a\nb"), "[s]\r\nk=a\nb\r\n");
}

TEST(ConValor, aValueWithBlanksAroundItGoesOutUnchangedAndDoesNotGrow) {
    const std::string texto = conValor("[s]\nk =  1\n", "s", "k", "  x ");
    EXPECT_EQ(texto, "[s]\nk =  x \n");
    EXPECT_EQ(conValor(texto, "s", "k", "  x "), texto);
}

TEST(ConValor, anEmptyValueEmptiesTheKey) {
    EXPECT_EQ(conValor("[s]\nk=1\n", "s", "k", ""), "[s]\nk=\n");
}

// --- Files --------------------------------------------------------------------------------------------------------

class PerfilEnDisco : public testing::Test {
protected:
    std::string leer(std::string_view clave, std::string_view porDefecto, std::size_t tamano = 255) const {
        return GetPrivateProfileStringA("s", clave, porDefecto, tamano, archivo);
    }
    std::error_code escribir(std::string_view clave, std::string_view valor) const {
        return WritePrivateProfileStringA("s", clave, valor, archivo);
    }
    std::size_t archivosEnCarpeta() const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(carpeta.ruta()), {}));
    }

    CarpetaTemporal carpeta;
    std::filesystem::path archivo = carpeta / "p.ini";
};

TEST_F(PerfilEnDisco, aMissingFileGivesTheDefault) {
    EXPECT_EQ(leer("k", "502"), "502");
}

TEST_F(PerfilEnDisco, aMissingFileAndSectionAreCreated) {
    EXPECT_FALSE(escribir("k", "v"));
    EXPECT_EQ(contenidoDe(archivo), "[s]\r\nk=v\r\n");
    EXPECT_EQ(archivosEnCarpeta(), 1U);
}

TEST_F(PerfilEnDisco, aValueIsCutTo254Characters) {
    escribirArchivo(archivo, "[s]\nk=" + std::string(300, 'x') + "\n");
    EXPECT_EQ(leer("k", ""), std::string(254, 'x'));
}

TEST_F(PerfilEnDisco, aDefaultIsCutTo254CharactersAndLosesItsTrailingBlanks) {
    EXPECT_EQ(leer("k", std::string(300, 'x')), std::string(254, 'x'));
    EXPECT_EQ(leer("k", "  a  "), "  a");
}

TEST_F(PerfilEnDisco, aBufferWithoutRoomGivesAnEmptyText) {
    EXPECT_EQ(leer("k", "abc", 1), "");
    EXPECT_EQ(leer("k", "abc", 0), "");
}

TEST_F(PerfilEnDisco, anEqualValueIsNotRewrittenToDisk) {
    escribirArchivo(archivo, "[s]\nk = 'v'\n");
    struct stat antes {};
    struct stat despues {};
    ASSERT_EQ(::stat(archivo.c_str(), &antes), 0);
    EXPECT_FALSE(escribir("k", "v"));
    ASSERT_EQ(::stat(archivo.c_str(), &despues), 0);
    EXPECT_EQ(antes.st_ino, despues.st_ino);
    EXPECT_EQ(contenidoDe(archivo), "[s]\nk = 'v'\n");
}

TEST_F(PerfilEnDisco, aReaderThatHasTheFileOpenNeverSeesHalfOfIt) {
    escribirArchivo(archivo, "[s]\nk=1\n");
    std::ifstream lector(archivo);
    EXPECT_FALSE(escribir("k", "2"));
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(lector), {}), "[s]\nk=1\n");
}

TEST_F(PerfilEnDisco, tenMegabytesAreReadAndChangedInTime) {
    std::string texto;
    while (texto.size() < 10'000'000)
        texto += "[otra" + std::to_string(texto.size()) + "]\r\nuna clave = un valor\r\nbasura\r\n";
    escribirArchivo(archivo, texto + "[s]\r\nk=1\r\n");
    const std::int64_t antes = msDeProcesador();
    EXPECT_EQ(leer("k", "0"), "1");
    EXPECT_FALSE(escribir("k", "2"));
    EXPECT_LT(msDeProcesador() - antes, 10'000);
    EXPECT_EQ(contenidoDe(archivo), texto + "[s]\r\nk=2\r\n");
}

TEST_F(PerfilEnDisco, aFileOfNulBytesGivesTheDefaultAndTakesAKey) {
    const std::string nulos(5000, '\0');
    escribirArchivo(archivo, nulos);
    EXPECT_EQ(leer("k", "502"), "502");
    EXPECT_FALSE(escribir("k", "1"));
    EXPECT_EQ(contenidoDe(archivo), nulos + "\r\n[s]\r\nk=1\r\n");
    EXPECT_EQ(leer("k", "502"), "1");
}

TEST_F(PerfilEnDisco, aFolderInItsPlaceGivesTheDefaultAndAnError) {
    std::filesystem::create_directory(archivo);
    EXPECT_EQ(leer("k", "502"), "502");
    EXPECT_EQ(escribir("k", "1"), std::errc::is_a_directory);
    EXPECT_TRUE(std::filesystem::is_directory(archivo));
    EXPECT_EQ(archivosEnCarpeta(), 1U);
}

TEST_F(PerfilEnDisco, aReadOnlyFileIsReadAndNotWritten) {
    escribirArchivo(archivo, "[s]\nk=1\n");
    std::filesystem::permissions(archivo, std::filesystem::perms(0444));
    EXPECT_EQ(leer("k", "0"), "1");
    EXPECT_EQ(escribir("k", "2"), std::errc::permission_denied);
    EXPECT_EQ(contenidoDe(archivo), "[s]\nk=1\n");
    EXPECT_EQ(archivosEnCarpeta(), 1U);
}

TEST_F(PerfilEnDisco, anUnreadableFileGivesTheDefaultAndIsNeverOverwritten) {
    escribirArchivo(archivo, "[s]\nk=1\n");
    std::filesystem::permissions(archivo, std::filesystem::perms(0200));
    std::filesystem::permissions(carpeta.ruta(), std::filesystem::perms(0777));
    EXPECT_EQ(enProcesoHijo([&] {
                  if (!soltarPrivilegios())
                      return 1;
                  if (leer("k", "502") != "502")
                      return 2;
                  return escribir("k", "2") == std::errc::permission_denied ? 0 : 3;
              }),
              0);
    std::filesystem::permissions(archivo, std::filesystem::perms(0600));
    EXPECT_EQ(contenidoDe(archivo), "[s]\nk=1\n");
}

} // namespace
