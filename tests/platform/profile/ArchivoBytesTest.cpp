#include "platform/profile/ArchivoBytes.h"

#include "CarpetaTemporal.h"
#include "ProcesoHijo.h"

#include <atomic>
#include <gtest/gtest.h>
#include <random>
#include <sys/mman.h>
#include <sys/stat.h>
#include <thread>

namespace fs = std::filesystem;

namespace {

class ArchivoBytes : public testing::Test {
protected:
    std::size_t archivosEnCarpeta() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(carpeta.ruta()), {}));
    }

    CarpetaTemporal carpeta;
    fs::path archivo = carpeta / "datos";
    std::string bytes = "lo de antes";
};

TEST_F(ArchivoBytes, readingGivesEveryByte) {
    std::string todos;
    for (int i = 0; i < 200'000; ++i)
        todos += static_cast<char>(i);
    escribirArchivo(archivo, todos);
    EXPECT_FALSE(leerBytes(archivo, bytes));
    EXPECT_EQ(bytes, todos);
}

TEST_F(ArchivoBytes, aMissingFileIsAnErrorAndEmptiesTheResult) {
    EXPECT_EQ(leerBytes(archivo, bytes), std::errc::no_such_file_or_directory);
    EXPECT_EQ(bytes, "");
}

TEST_F(ArchivoBytes, foldersPipesAndDevicesAreRefusedAtOnce) {
    EXPECT_EQ(leerBytes(carpeta.ruta(), bytes), std::errc::is_a_directory);
    ASSERT_EQ(::mkfifo(archivo.c_str(), 0600), 0);
    EXPECT_EQ(leerBytes(archivo, bytes), std::errc::not_supported);
    EXPECT_EQ(leerBytes("/dev/zero", bytes), std::errc::not_supported);
    EXPECT_EQ(reemplazarBytes(archivo, "x"), std::errc::not_supported);
    EXPECT_TRUE(anexarBytes(archivo, "x"));
}

TEST_F(ArchivoBytes, aFileAboveTheLimitIsRefused) {
    escribirArchivo(archivo, "");
    fs::resize_file(archivo, maximoBytesArchivo + 1);
    EXPECT_EQ(leerBytes(archivo, bytes), std::errc::file_too_large);
    EXPECT_EQ(bytes, "");
}

TEST_F(ArchivoBytes, replacingKeepsThePermissions) {
    escribirArchivo(archivo, "viejo");
    fs::permissions(archivo, fs::perms(0640));
    EXPECT_FALSE(reemplazarBytes(archivo, "nuevo"));
    EXPECT_EQ(contenidoDe(archivo), "nuevo");
    EXPECT_EQ(fs::status(archivo).permissions(), fs::perms(0640));
    EXPECT_EQ(archivosEnCarpeta(), 1U);
}

TEST_F(ArchivoBytes, replacingThroughALinkKeepsTheLink) {
    escribirArchivo(carpeta / "real", "viejo");
    fs::create_symlink("real", archivo);
    EXPECT_FALSE(reemplazarBytes(archivo, "nuevo"));
    EXPECT_TRUE(fs::is_symlink(archivo));
    EXPECT_EQ(contenidoDe(carpeta / "real"), "nuevo");
}

TEST_F(ArchivoBytes, aFileThatMayBeWrittenInAFolderThatMayNotIsWrittenInPlace) {
    escribirArchivo(archivo, "un texto más largo");
    fs::permissions(archivo, fs::perms(0666));
    fs::permissions(carpeta.ruta(), fs::perms(0555));
    EXPECT_EQ(enProcesoHijo([&] {
                  if (!soltarPrivilegios())
                      return 1;
                  return reemplazarBytes(archivo, "nuevo") ? 2 : 0;
              }),
              0);
    EXPECT_EQ(contenidoDe(archivo), "nuevo");
    EXPECT_EQ(archivosEnCarpeta(), 1U);
}

TEST_F(ArchivoBytes, aFullDiskLeavesAFileThatIsWrittenInPlaceAlone) {
    escribirArchivo(archivo, "viejo");
    fs::permissions(archivo, fs::perms(0666));
    fs::permissions(carpeta.ruta(), fs::perms(0555));
    EXPECT_EQ(enProcesoHijo([&] {
                  if (!soltarPrivilegios() || !limitarArchivos(1000))
                      return 1;
                  return reemplazarBytes(archivo, std::string(5000, 'x')) ? 0 : 2;
              }),
              0);
    EXPECT_EQ(contenidoDe(archivo), "viejo");
}

TEST_F(ArchivoBytes, aReadOnlyFileIsAnErrorAndStays) {
    escribirArchivo(archivo, "viejo");
    fs::permissions(archivo, fs::perms(0444));
    fs::permissions(carpeta.ruta(), fs::perms(0555));
    EXPECT_EQ(enProcesoHijo([&] {
                  if (!soltarPrivilegios())
                      return 1;
                  return reemplazarBytes(archivo, "nuevo") == std::errc::permission_denied ? 0 : 2;
              }),
              0);
    EXPECT_EQ(contenidoDe(archivo), "viejo");
    EXPECT_EQ(archivosEnCarpeta(), 1U);
}

TEST_F(ArchivoBytes, aFullDiskIsAnErrorAndLeavesTheFileAlone) {
    escribirArchivo(archivo, "viejo");
    EXPECT_EQ(enProcesoHijo([&] {
                  if (!limitarArchivos(1000))
                      return 1;
                  return reemplazarBytes(archivo, std::string(5000, 'x')) ? 0 : 2;
              }),
              0);
    EXPECT_EQ(contenidoDe(archivo), "viejo");
    EXPECT_EQ(archivosEnCarpeta(), 1U);
}

// A process that replaces the file for ever, with texts of every length, and counts what it has done.
pid_t escritorSinFin(const fs::path& archivo, std::atomic<int>& escritos) {
    const pid_t proceso = ::fork();
    for (; proceso == 0; ++escritos) {
        const auto letra = static_cast<char>('a' + escritos % 26);
        reemplazarBytes(archivo, std::string(1000 + 997 * static_cast<std::size_t>(escritos % 31), letra));
    }
    return proceso;
}

TEST_F(ArchivoBytes, aProcessKilledInTheMiddleOfAThousandWritesNeverLeavesHalfAFile) {
    void* const memoria =
        ::mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(memoria, MAP_FAILED);
    std::atomic<int>& escritos = *new (memoria) std::atomic<int>(0);
    escribirArchivo(archivo, std::string(1000, 'a'));
    std::minstd_rand azar(1);
    while (escritos < 1000) {
        const int antes = escritos;
        const pid_t escritor = escritorSinFin(archivo, escritos);
        while (escritos < antes + 5)
            std::this_thread::yield();
        for (auto vueltas = azar() % 20'000; vueltas > 0; --vueltas)
            std::atomic_signal_fence(std::memory_order_seq_cst); // any moment of a write
        ::kill(escritor, SIGKILL);
        ASSERT_EQ(::waitpid(escritor, nullptr, 0), escritor);

        const std::string entero = contenidoDe(archivo);
        ASSERT_GE(entero.size(), 1000U);
        ASSERT_EQ((entero.size() - 1000) % 997, 0U);
        ASSERT_EQ(entero.find_first_not_of(entero[0]), std::string::npos);
    }
    EXPECT_FALSE(reemplazarBytes(archivo, "el último"));
    EXPECT_EQ(archivosEnCarpeta(), 1U) << "what the dead left";
    ::munmap(memoria, sizeof(std::atomic<int>));
}

TEST_F(ArchivoBytes, aMissingFolderIsAnError) {
    EXPECT_EQ(reemplazarBytes(carpeta / "no" / "datos", "x"), std::errc::no_such_file_or_directory);
}

TEST_F(ArchivoBytes, appendingCreatesAndThenExtends) {
    EXPECT_FALSE(anexarBytes(archivo, "uno\r\n"));
    EXPECT_FALSE(anexarBytes(archivo, "dos\r\n"));
    EXPECT_EQ(contenidoDe(archivo), "uno\r\ndos\r\n");
}

TEST_F(ArchivoBytes, appendingToAFolderIsAnError) {
    EXPECT_TRUE(anexarBytes(carpeta.ruta(), "x"));
}

} // namespace
