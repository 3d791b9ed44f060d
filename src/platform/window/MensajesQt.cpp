#include "platform/window/MensajesQt.h"

#include <QString>

#include <cstdio>

namespace {

// A run-time folder that is missing or not to its liking is replaced by one of its own, and a screen that nobody sees
// has no window sizes to keep.
bool sobra(const QString& texto) {
    return texto.startsWith(QLatin1String("QStandardPaths: ")) ||
           texto == QLatin1String("This plugin does not support propagateSizeHints()");
}

// What the window system says right before it ends the program, with 1: it knows no way on without its screen.
bool pantallaPerdida(const QString& texto) {
    return texto.startsWith(QLatin1String("The X11 connection broke")) ||
           texto.startsWith(QLatin1String("The Wayland connection broke")) ||
           texto.startsWith(QLatin1String("The Wayland connection experienced a fatal error"));
}

void escribir(QtMsgType tipo, const QMessageLogContext& contexto, const QString& texto) {
    if (pantallaPerdida(texto))
        std::fputs(
            "esclavo-modbus: la pantalla ha dejado de responder y la estación termina; los ajustes están guardados.\n"
            "Arrancada otra vez, atiende aunque no haya pantalla.\n",
            stderr);
    else if (!sobra(texto))
        std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(tipo, contexto, texto)));
}

} // namespace

void filtrarMensajesQt() {
    qInstallMessageHandler(escribir);
}
