#include "platform/profile/Archivos.h"

#include "CarpetaTemporal.h"
#include "ProcesoHijo.h"
#include "platform/profile/ArchivoBytes.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace fs = std::filesystem;

namespace {

class Archivos : public testing::Test {
protected:
    std::string leido(std::string_view bytes) const {
        escribirArchivo(archivo, bytes);
        return leerArchivoTexto(archivo);
    }
    static int errorAlLeer(const fs::path& ruta) {
        try {
            leerArchivoTexto(ruta);
        } catch (const ErrorArchivo& error) {
            return error.numero();
        }
        return 0;
    }
    static int errorAlEscribir(const fs::path& ruta) {
        try {
            escribirArchivoTexto(ruta, "x");
        } catch (const ErrorArchivo& error) {
            return error.numero();
        }
        return 0;
    }

    CarpetaTemporal carpeta;
    fs::path archivo = carpeta / "guión.txt";
};

TEST_F(Archivos, aFileAndAFolderExist) {
    escribirArchivo(archivo, "");
    EXPECT_TRUE(existeArchivo(archivo));
    EXPECT_TRUE(existeArchivo(carpeta.ruta()));
}

TEST_F(Archivos, aMissingEmptyOrBadPathDoesNotExist) {
    EXPECT_FALSE(existeArchivo(archivo));
    EXPECT_FALSE(existeArchivo(""));
    EXPECT_FALSE(existeArchivo(std::string(10'000, 'x')));
    EXPECT_FALSE(existeArchivo(carpeta.ruta().string() + "\0x"s));
    escribirArchivo(archivo, "");
    EXPECT_FALSE(existeArchivo(archivo / "dentro"));
}

TEST_F(Archivos, everyLineIsFollowedByCrLf) {
    EXPECT_EQ(leido("a\nb\r\nc\rd"), "a\r\nb\r\nc\r\nd\r\n");
    EXPECT_EQ(leido("a\r\n"), "a\r\n");
}

TEST_F(Archivos, leadingEmptyLinesAreDroppedAndLaterOnesKept) {
    EXPECT_EQ(leido("\r\n\n\ra\n\n\nb\n\n"), "a\r\n\r\n\r\nb\r\n\r\n");
}

TEST_F(Archivos, aLeadingLineOfBlanksIsNotEmpty) {
    EXPECT_EQ(leido(" \n\na\n"), " \r\n\r\na\r\n");
}

TEST_F(Archivos, anEmptyFileGivesAnEmptyText) {
    EXPECT_EQ(leido(""), "");
    EXPECT_EQ(leido("\r\n\r\n"), "");
}

TEST_F(Archivos, aMissingFileRaisesError53) {
    EXPECT_EQ(errorAlLeer(archivo), 53);
    EXPECT_EQ(errorAlLeer(""), 53);
    EXPECT_STREQ(ErrorArchivo(53).what(), "No se encontró el archivo");
}

TEST_F(Archivos, aFolderRaisesError75) {
    EXPECT_EQ(errorAlLeer(carpeta.ruta()), 75);
    EXPECT_EQ(errorAlEscribir(carpeta.ruta()), 75);
}

TEST_F(Archivos, anUnreadableFileRaisesError70) {
    escribirArchivo(archivo, "a");
    fs::permissions(archivo, fs::perms(0));
    fs::permissions(carpeta.ruta(), fs::perms(0755));
    EXPECT_EQ(enProcesoHijo([&] { return soltarPrivilegios() ? errorAlLeer(archivo) : 1; }), 70);
}

TEST_F(Archivos, aHugeFileRaisesError7) {
    escribirArchivo(archivo, "");
    fs::resize_file(archivo, maximoBytesArchivo + 1);
    EXPECT_EQ(errorAlLeer(archivo), 7);
}

TEST_F(Archivos, writingIntoAMissingFolderRaisesError76) {
    EXPECT_EQ(errorAlEscribir(carpeta / "no" / "a"), 76);
}

TEST_F(Archivos, writingAReadOnlyFileRaisesError70AndKeepsIt) {
    escribirArchivo(archivo, "viejo");
    fs::permissions(archivo, fs::perms(0444));
    EXPECT_EQ(errorAlEscribir(archivo), 70);
    EXPECT_EQ(contenidoDe(archivo), "viejo");
}

TEST_F(Archivos, theTextIsWrittenFollowedByCrLf) {
    escribirArchivoTexto(archivo, "a\r\nb\r\n");
    EXPECT_EQ(contenidoDe(archivo), "a\r\nb\r\n\r\n");
}

TEST_F(Archivos, aNewFileIsUtf8) {
    escribirArchivoTexto(archivo, "año €");
    EXPECT_EQ(contenidoDe(archivo), "año €\r\n");
}

TEST_F(Archivos, aWindows1252FileIsReadAndSavedAsSuch) {
    EXPECT_EQ(leido("a\xF1o \x80\n"), "año €\r\n");
    escribirArchivoTexto(archivo, "añada €");
    EXPECT_EQ(contenidoDe(archivo), "a\xF1"
                                    "ada \x80\r\n");
}

TEST_F(Archivos, aWindows1252FileBecomesUtf8RatherThanLoseACharacter) {
    escribirArchivo(archivo, "a\xF1o\n");
    escribirArchivoTexto(archivo, "año →");
    EXPECT_EQ(contenidoDe(archivo), "año →\r\n");
}

TEST_F(Archivos, aByteOrderMarkIsDroppedOnReadingAndKeptOnSaving) {
    EXPECT_EQ(leido("\xEF\xBB\xBF\n\naño\n"), "año\r\n");
    escribirArchivoTexto(archivo, "mes");
    EXPECT_EQ(contenidoDe(archivo), "\xEF\xBB\xBFmes\r\n");
}

TEST_F(Archivos, utf16IsReadAndSavedInItsOwnOrder) {
    const std::string little = "\xFF\xFE"
                               "a\0\xF1\0\r\0\n\0"s;
    EXPECT_EQ(leido(little), "añ\r\n");
    escribirArchivoTexto(archivo, "€");
    EXPECT_EQ(contenidoDe(archivo), "\xFF\xFE\xAC\x20\r\0\n\0"s);

    EXPECT_EQ(leido("\xFE\xFF\0a\0\n\0b"s), "a\r\nb\r\n");
    escribirArchivoTexto(archivo, "€");
    EXPECT_EQ(contenidoDe(archivo), "\xFE\xFF\x20\xAC\0\r\0\n"s);
}

TEST_F(Archivos, nulBytesAndBinaryFilesAreTextLikeAnyOther) {
    EXPECT_EQ(leido("a\0b\n"s), "a\0b\r\n"s);
    EXPECT_EQ(leido("\xFF\0\x80\n"s), "ÿ\0€\r\n"s);
}

} // namespace
