// The entry of esclavo-modbus: finds out how it was started, builds the station and its main window, and runs it.

#include "platform/system/CarpetaPrograma.h"
#include "platform/system/InstanciaPrevia.h"
#include "platform/window/Contraste.h"
#include "platform/window/TextosQt.h"
#include "shell/Estacion.h"
#include "shell/FrmPrincipal.h"
#include "shell/SenalesTermino.h"

#include <QApplication>
#include <QIcon>

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <sys/resource.h>

namespace {

// Without a screen the station serves all the same. Returns whether there is none.
bool elegirPlataforma() {
    if (qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
        qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return false;
    std::fputs("esclavo-modbus: no hay pantalla; la estación atiende sin ventana.\n", stderr);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return true;
}

// Every master takes a descriptor: use all that the system grants.
void ampliarDescriptores() {
    rlimit limite{};
    if (getrlimit(RLIMIT_NOFILE, &limite) == 0 && limite.rlim_cur < limite.rlim_max) {
        limite.rlim_cur = limite.rlim_max;
        setrlimit(RLIMIT_NOFILE, &limite);
    }
}

QIcon iconoPrograma() {
    QIcon icono;
    for (const int lado : {16, 32, 64, 256})
        icono.addFile(QStringLiteral(":/icono-%1.png").arg(lado));
    return icono;
}

} // namespace

int main(int argc, char** argv) {
    std::signal(SIGPIPE, SIG_IGN);
    SenalesTermino::retener();
    ampliarDescriptores();
    const bool sinPantalla = elegirPlataforma();

    QApplication aplicacion(argc, argv);
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns its style
    QApplication::setStyle(new EstiloLegible);
    QApplication::setApplicationName(QStringLiteral("esclavo-modbus"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(iconoPrograma());
    TextosQt textosDeQt;
    QApplication::installTranslator(&textosDeQt);

    const std::filesystem::path ruta = rutaEjecutable();
    const InstanciaPrevia instancia(ruta);
    Estacion estacion(carpetaPrograma(),
                      Arranque{.rutaPrograma = ruta.string(),
                               .lineaDeComandos = QApplication::arguments().mid(1).join(QLatin1Char(' ')),
                               .instanciaPrevia = instancia.hayOtra(),
                               .sinPantalla = sinPantalla,
                               .depurar = qEnvironmentVariable("ESCLAVO_DEBUG") == QLatin1String("1")});
    FrmPrincipal principal(estacion);
    const SenalesTermino senales([&principal] { principal.detenerScript(); }, [&principal] { principal.apagar(); });
    return principal.cargar() ? QApplication::exec() : 0;
}
