#include "CarpetaTemporal.h"
#include "ProcesoHijo.h"
#include "shell/Modulo_DEBUG.h"

#include <deque>
#include <gtest/gtest.h>
#include <stdexcept>
#include <vector>

namespace fs = std::filesystem;

namespace {

std::tm hora(int dia, int horas, int minutos, int segundos) {
    std::tm momento{};
    momento.tm_year = 2026 - 1900;
    momento.tm_mon = 10;
    momento.tm_mday = dia;
    momento.tm_hour = horas;
    momento.tm_min = minutos;
    momento.tm_sec = segundos;
    return momento;
}

class EntornoDePrueba final : public EntornoDebug {
public:
    explicit EntornoDePrueba(fs::path carpeta) : carpeta_(std::move(carpeta)) {}

    std::tm ahora() override {
        if (proximas.empty())
            return reloj;
        const std::tm proxima = proximas.front();
        proximas.pop_front();
        return proxima;
    }
    fs::path carpetaPrograma() const override { return carpeta_; }
    std::string nombreEjecutable() const override { return "esclavo-modbus"; }
    void mostrarErrorCritico(const std::string& texto, const std::string& titulo) override {
        mensajes.push_back(titulo + "|" + texto);
        if (mensajeFalla)
            throw std::runtime_error("no screen");
    }

    std::tm reloj = hora(16, 10, 32, 5);
    std::deque<std::tm> proximas; // handed out first, one a call
    std::vector<std::string> mensajes;
    bool mensajeFalla = false;

private:
    fs::path carpeta_;
};

class Log : public testing::Test {
protected:
    bool anotar(const std::string& mensaje, const std::string& detalle = "d", const std::string& error = "e") {
        bool escrito = false;
        modulo.escribirLog(escrito, "RS232", mensaje, detalle, error);
        return escrito;
    }
    static std::string linea(const std::string& mensaje) {
        return "Log: 16/11/2026 10:32:05,esclavo-modbus,RS232>" + mensaje + ">d, DescError:e\r\n";
    }

    CarpetaTemporal carpeta;
    fs::path logs = carpeta / "LOGS_Trelvano";
    fs::path global = logs / "261116 Archivo_Log_Global.txt";
    fs::path propio = logs / "261116 esclavo-modbus ArchivoLog.txt";
    EntornoDePrueba entorno{carpeta.ruta()};
    Modulo_DEBUG modulo{entorno};
};

TEST_F(Log, theFirstFaultOfADayCreatesFolderAndBothFiles) {
    EXPECT_TRUE(anotar("m"));
    EXPECT_EQ(contenidoDe(global), linea("m"));
    EXPECT_EQ(contenidoDe(propio), linea("m"));
    EXPECT_EQ(std::distance(fs::directory_iterator(logs), {}), 2);
}

TEST_F(Log, laterFaultsOfTheDayAreAppended) {
    anotar("uno");
    anotar("dos");
    EXPECT_EQ(contenidoDe(global), linea("uno") + linea("dos"));
    EXPECT_EQ(contenidoDe(propio), linea("uno") + linea("dos"));
}

TEST_F(Log, aFaultAfterMidnightStartsTwoNewFiles) {
    entorno.reloj = hora(16, 23, 59, 59);
    anotar("m");
    entorno.reloj = hora(17, 0, 0, 0);
    anotar("m");
    EXPECT_EQ(std::distance(fs::directory_iterator(logs), {}), 4);
    EXPECT_EQ(contenidoDe(logs / "261117 Archivo_Log_Global.txt"),
              "Log: 17/11/2026 00:00:00,esclavo-modbus,RS232>m>d, DescError:e\r\n");
}

TEST_F(Log, eachFileNameAsksTheClockAnew) {
    entorno.proximas = {hora(16, 23, 59, 59), hora(17, 0, 0, 0), hora(17, 0, 0, 0)};
    anotar("m");
    EXPECT_TRUE(fs::exists(global));
    EXPECT_TRUE(fs::exists(logs / "261117 esclavo-modbus ArchivoLog.txt"));
}

TEST_F(Log, aCarriageReturnWithLineFeedBecomesOneBlank) {
    anotar("a\r\nb");
    EXPECT_EQ(contenidoDe(global), linea("a b"));
}

TEST_F(Log, messageDetailAndDescriptionBecomeOneLine) {
    anotar("a\rb\nc", "d\n\re\r\r\nf", "\r\ng\n");
    EXPECT_EQ(contenidoDe(global), "Log: 16/11/2026 10:32:05,esclavo-modbus,RS232>a b c>d  e  f, DescError: g \r\n");
}

TEST_F(Log, theOriginIsLeftAsItIs) {
    bool escrito = false;
    modulo.escribirLog(escrito, "a\r\nb", "m", "d", "e");
    EXPECT_EQ(contenidoDe(global), "Log: 16/11/2026 10:32:05,esclavo-modbus,a\r\nb>m>d, DescError:e\r\n");
}

TEST_F(Log, theLineOfASerialFaultIsAsTheManualShowsIt) {
    anotar("SetearConfig: Com:3/9600,N,8,1", "Puerto", "No existe");
    EXPECT_EQ(contenidoDe(propio),
              "Log: 16/11/2026 10:32:05,esclavo-modbus,RS232>SetearConfig: Com:3/9600,N,8,1>Puerto, "
              "DescError:No existe\r\n");
}

TEST_F(Log, theFilesAreWindows1252) {
    anotar("año → €");
    EXPECT_EQ(contenidoDe(global), linea("a\xF1o ? \x80"));
}

TEST_F(Log, aFolderDeletedMeanwhileIsCreatedAgain) {
    anotar("uno");
    fs::remove_all(logs);
    EXPECT_TRUE(anotar("dos"));
    EXPECT_EQ(contenidoDe(global), linea("dos"));
}

TEST_F(Log, aFileInTheFoldersPlaceIsLeftAlone) {
    escribirArchivo(logs, "no soy una carpeta");
    EXPECT_FALSE(anotar("m"));
    EXPECT_EQ(contenidoDe(logs), "no soy una carpeta");
}

TEST_F(Log, aMissingProgramFolderEndsQuietly) {
    EntornoDePrueba sinCarpeta(carpeta / "no" / "existe");
    bool escrito = true;
    Modulo_DEBUG(sinCarpeta).escribirLog(escrito, "o", "m", "d", "e");
    EXPECT_FALSE(escrito);
}

TEST_F(Log, aReadOnlyFolderEndsQuietly) {
    fs::create_directory(logs);
    fs::permissions(logs, fs::perms(0555));
    fs::permissions(carpeta.ruta(), fs::perms(0755));
    EXPECT_EQ(enProcesoHijo([&] { return soltarPrivilegios() && !anotar("m") ? 0 : 1; }), 0);
    EXPECT_TRUE(fs::is_empty(logs));
}

TEST_F(Log, whenOneFileCannotBeOpenedTheOtherStillTakesTheLine) {
    fs::create_directories(global);
    EXPECT_FALSE(anotar("m"));
    EXPECT_EQ(contenidoDe(propio), linea("m"));
}

TEST_F(Log, aFullDiskEndsQuietlyAndTheLogGoesOnWhenThereIsRoom) {
    const std::string largo(3000, 'x');
    EXPECT_EQ(enProcesoHijo([&] { return limitarArchivos(1000) && !anotar(largo) ? 0 : 1; }), 0);
    EXPECT_LE(fs::file_size(global), 1000U);
    EXPECT_TRUE(anotar("m"));
    EXPECT_TRUE(contenidoDe(global).ends_with(linea("m")));
    EXPECT_TRUE(contenidoDe(propio).ends_with(linea("m")));
}

TEST_F(Log, withoutTheDebugSwitchNoMessageIsShown) {
    anotar("m", "d", "fallo");
    EXPECT_TRUE(entorno.mensajes.empty());
}

TEST_F(Log, theDebugSwitchShowsTheDescriptionFlattened) {
    Modulo_DEBUG depurador(entorno, true);
    bool escrito = false;
    depurador.escribirLog(escrito, "o", "m", "d", "fallo\r\ngrave");
    EXPECT_EQ(entorno.mensajes, std::vector<std::string>{"Debug|fallo grave"});
}

TEST_F(Log, theDebugSwitchShowsNothingForAnEmptyDescription) {
    Modulo_DEBUG depurador(entorno, true);
    bool escrito = false;
    depurador.escribirLog(escrito, "o", "m", "d", "");
    EXPECT_TRUE(entorno.mensajes.empty());
}

TEST_F(Log, theMessageIsShownEvenWhenNothingCouldBeWritten) {
    escribirArchivo(logs, "");
    Modulo_DEBUG depurador(entorno, true);
    bool escrito = true;
    depurador.escribirLog(escrito, "o", "m", "d", "fallo");
    EXPECT_FALSE(escrito);
    EXPECT_EQ(entorno.mensajes.size(), 1U);
}

TEST_F(Log, aMessageThatFailsIsNoMatterToTheCaller) {
    entorno.mensajeFalla = true;
    Modulo_DEBUG depurador(entorno, true);
    bool escrito = false;
    depurador.escribirLog(escrito, "o", "m", "d", "fallo");
    EXPECT_TRUE(escrito);
}

} // namespace
