#include "platform/window/MensajesQt.h"

#include <QString>

#include <cstdio>

namespace {

// A missing run-time folder is replaced by one of its own, and a screen that nobody sees has no window sizes to keep.
bool sobra(const QString& texto) {
    return texto.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")) ||
           texto == QLatin1String("This plugin does not support propagateSizeHints()");
}

void escribir(QtMsgType tipo, const QMessageLogContext& contexto, const QString& texto) {
    if (!sobra(texto))
        std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(tipo, contexto, texto)));
}

} // namespace

void filtrarMensajesQt() {
    qInstallMessageHandler(escribir);
}
