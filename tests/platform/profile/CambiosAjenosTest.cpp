// What another program saves while a key is being written. This program's own fsync, which is called between reading
// the text and giving the new one its name, stands in for the other program.
#include "CarpetaTemporal.h"
#include "platform/profile/Perfil.h"

#include <functional>
#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace {

std::function<void()> alAsentar; // what happens at every fsync

class CambiosAjenos : public testing::Test {
protected:
    ~CambiosAjenos() override { alAsentar = nullptr; }

    std::error_code escribir(std::string_view clave, std::string_view valor) const {
        return WritePrivateProfileStringA("s", clave, valor, archivo);
    }
    // Like an editor that writes a new file and gives it the name.
    void guardarEnOtroPrograma(const std::string& texto) const {
        escribirArchivo(carpeta / "editor", texto);
        std::filesystem::rename(carpeta / "editor", archivo);
    }

    // What another program does once, while the new text goes down to the disk.
    static void alPrimerAsiento(std::function<void()> accion) {
        alAsentar = [accion = std::move(accion)] {
            alAsentar = nullptr; // fsync calls a copy
            accion();
        };
    }

    CarpetaTemporal carpeta;
    std::filesystem::path archivo = carpeta / "p.ini";
};

TEST_F(CambiosAjenos, aFileReplacedWhileAKeyIsWrittenKeepsBothChanges) {
    escribirArchivo(archivo, "[s]\nk=1\nsuya=1\n");
    alPrimerAsiento([this] { guardarEnOtroPrograma("[s]\nk=1\nsuya=2\n"); });
    EXPECT_FALSE(escribir("k", "9"));
    EXPECT_EQ(contenidoDe(archivo), "[s]\nk=9\nsuya=2\n");
}

TEST_F(CambiosAjenos, aFileWrittenInPlaceWhileAKeyIsWrittenKeepsBothChanges) {
    escribirArchivo(archivo, "[s]\nk=1\nsuya=1\n");
    alPrimerAsiento([this] { escribirArchivo(archivo, "[s]\nk=1\nsuya=2\n"); });
    EXPECT_FALSE(escribir("k", "9"));
    EXPECT_EQ(contenidoDe(archivo), "[s]\nk=9\nsuya=2\n");
}

TEST_F(CambiosAjenos, aFileThatAppearsMeanwhileTakesTheKey) {
    alPrimerAsiento([this] { guardarEnOtroPrograma("[s]\nsuya=2\n"); });
    EXPECT_FALSE(escribir("k", "9"));
    EXPECT_EQ(contenidoDe(archivo), "[s]\nsuya=2\nk=9\n");
}

TEST_F(CambiosAjenos, aFileThatChangesWithoutEndTakesTheKeyAllTheSame) {
    escribirArchivo(archivo, "[s]\nk=1\n");
    int veces = 0;
    bool escrita = false;
    alAsentar = [&] {
        escrita = escrita || contenidoDe(archivo) == "[s]\nk=9\nvez=" + std::to_string(veces - 1) + "\n";
        guardarEnOtroPrograma("[s]\nk=1\nvez=" + std::to_string(++veces) + "\n");
    };
    EXPECT_FALSE(escribir("k", "9"));
    EXPECT_TRUE(escrita) << veces;
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(carpeta.ruta()), {}), 1);
}

} // namespace

extern "C" int fsync(int descriptor) {
    if (const std::function<void()> hecho = alAsentar)
        hecho();
    return static_cast<int>(::syscall(SYS_fsync, descriptor));
}
