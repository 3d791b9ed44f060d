// The entry of esclavo-modbus: finds out how it was started, builds the station and its main window, and runs it.

#include "platform/locale/SystemLocale.h"
#include "platform/system/CarpetaDatos.h"
#include "platform/system/CarpetaPrograma.h"
#include "platform/system/InstanciaPrevia.h"
#include "platform/system/Pantalla.h"
#include "platform/window/Contraste.h"
#include "platform/window/LugarVentanas.h"
#include "platform/window/MensajesQt.h"
#include "platform/window/TextosQt.h"
#include "shell/Estacion.h"
#include "shell/FrmPrincipal.h"
#include "shell/LineaDeComandos.h"
#include "shell/SenalesTermino.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QThreadPool>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <sys/resource.h>
#include <vector>

namespace {

// Prints what was asked for instead of a start, and returns the program's result then; -1: a start.
int responder(const LineaDeComandos& linea) {
    switch (linea.pedido) {
    case Pedido::ayuda:
        std::fputs(textoDeUso().c_str(), stdout);
        return 0;
    case Pedido::version:
        std::puts("esclavo-modbus " ESCLAVO_VERSION);
        return 0;
    case Pedido::opcionDesconocida:
        std::fprintf(stderr, "esclavo-modbus: opción desconocida: %s\n%s", linea.opcion.c_str(), textoDeUso().c_str());
        return 2;
    case Pedido::arrancar:
        break;
    }
    return -1;
}

// Without a screen the station serves all the same.
EleccionPantalla elegirPlataforma(const LineaDeComandos& linea, const Pantallas& pantallas) {
    const char* const delEntorno = std::getenv("QT_QPA_PLATFORM");
    const std::string pedida = linea.plataforma.empty() && delEntorno != nullptr ? delEntorno : linea.plataforma;
    EleccionPantalla eleccion = elegirPantalla(pedida, pantallas);
    if (!eleccion.motivo.empty())
        std::fprintf(stderr, "esclavo-modbus: %s; la estación atiende sin ventana.\n", eleccion.motivo.c_str());
    return eleccion;
}

// Every master takes a descriptor: use all that the system grants.
void ampliarDescriptores() {
    rlimit limite{};
    if (getrlimit(RLIMIT_NOFILE, &limite) == 0 && limite.rlim_cur < limite.rlim_max) {
        limite.rlim_cur = limite.rlim_max;
        setrlimit(RLIMIT_NOFILE, &limite);
    }
}

// Qt paints large areas in a thread of this pool, which it makes when it needs it and ends when it is idle; one that
// cannot be made for want of memory is waited for without end. So there is one from the start, and it stays.
void conservarHiloDePintura() {
    QThreadPool& hilos = *QThreadPool::globalInstance();
    hilos.setMaxThreadCount(1);
    hilos.setExpiryTimeout(-1);
    hilos.start([] {});
}

QIcon iconoPrograma() {
    QIcon icono;
    for (const int lado : {16, 32, 64, 256})
        icono.addFile(QStringLiteral(":/icono-%1.png").arg(lado));
    return icono;
}

} // namespace

int main(int argc, char** argv) {
    const LineaDeComandos linea =
        leerLineaDeComandos(std::span<const char* const>(argv, static_cast<std::size_t>(argc)).subspan(1));
    if (const int resultado = responder(linea); resultado >= 0)
        return resultado;
    std::signal(SIGPIPE, SIG_IGN);
    SenalesTermino::retener();
    ampliarDescriptores();
    std::optional<PantallasDelEntorno> pantallas(QLibraryInfo::path(QLibraryInfo::PluginsPath).toStdString());
    EleccionPantalla pantalla = elegirPlataforma(linea, *pantallas);

    useSystemLocale();
    // The last option of a name holds, so that this one stands above what the user asked for.
    std::vector<char*> palabras(argv, argv + argc);
    std::string opcion = "-platform";
    if (!pantalla.plataforma.empty())
        palabras.insert(palabras.end(), {opcion.data(), pantalla.plataforma.data()});
    int cuantas = static_cast<int>(palabras.size());
    palabras.push_back(nullptr);
    filtrarMensajesQt();
    QApplication aplicacion(cuantas, palabras.data());
    pantallas.reset();
    conservarHiloDePintura();
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns its style
    QApplication::setStyle(new EstiloLegible);
    QApplication::setApplicationName(QStringLiteral("esclavo-modbus"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(iconoPrograma());
    TextosQt textosDeQt;
    QApplication::installTranslator(&textosDeQt);

    const std::filesystem::path ruta = rutaEjecutable();
    const InstanciaPrevia instancia(ruta);
    const CarpetaDatos datos = elegirCarpetaDatos(carpetaPrograma(), carpetaDelUsuario());
    Estacion estacion(datos.ruta, Arranque{.rutaPrograma = ruta.string(),
                                           .lineaDeComandos = QString::fromUtf8(linea.texto),
                                           .avisoCarpeta = datos.aviso,
                                           .instanciaPrevia = instancia.hayOtra(),
                                           .sinPantalla = !pantalla.motivo.empty(),
                                           .depurar = qEnvironmentVariable("ESCLAVO_DEBUG") == QLatin1String("1")});
    LugarVentanas lugares(
        [&](const QString& ventana) {
            return QString::fromStdString(estacion.config.lugarDeVentana(ventana.toStdString()));
        },
        [&](const QString& ventana, const QString& lugar) {
            estacion.config.guardarLugarDeVentana(ventana.toStdString(), lugar.toStdString());
        });
    if (pantalla.motivo.empty())
        QApplication::instance()->installEventFilter(&lugares);
    FrmPrincipal principal(estacion);
    const SenalesTermino senales([&principal] { principal.detenerScript(); }, [&principal] { principal.apagar(); });
    return principal.cargar() ? QApplication::exec() : 0;
}
