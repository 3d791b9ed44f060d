#include "platform/window/GuardadoTexto.h"

#include "platform/window/DialogoGuardar.h"
#include "platform/window/MsgBox.h"

#include <QDeadlineTimer>
#include <QFileDialog>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {
constexpr auto maximoTurno = 8ms;
constexpr std::size_t pieza = 32768; // bytes between two looks at the clock
} // namespace

void GuardadoTexto::preguntarYGuardar(QWidget& ventana, const TextoBytes& texto) {
    auto* dialogo =
        crearDialogoGuardar(ventana, QStringLiteral("Guardar el texto"),
                            QStringLiteral("Texto (*.txt);;Todos los archivos (*)"), QStringLiteral("texto.txt"));
    connect(dialogo, &QFileDialog::fileSelected, &ventana,
            [&ventana, texto](const QString& ruta) { new GuardadoTexto(ventana, texto, ruta); });
    dialogo->open();
}

GuardadoTexto::GuardadoTexto(QWidget& ventana, const TextoBytes& texto, const QString& ruta)
    : QObject(&ventana), ventana_(ventana), texto_(texto), archivo_(ruta) {
    connect(&turno_, &QTimer::timeout, this, &GuardadoTexto::seguir);
    archivo_.open(QIODevice::WriteOnly); // a failure shows at the end, as one of writing does
    turno_.start(0);
}

void GuardadoTexto::seguir() {
    const QDeadlineTimer plazo(maximoTurno);
    while (archivo_.isOpen() && escritos_ < texto_.size() && !plazo.hasExpired()) {
        const std::size_t hasta = std::min(texto_.size(), escritos_ + pieza);
        const QString parte = QString::fromStdU16String(texto_.texto(escritos_, hasta));
        archivo_.write(QString(parte).replace(u'\n', QLatin1String("\r\n")).toUtf8());
        escritos_ = hasta;
    }
    if (!archivo_.isOpen() || escritos_ == texto_.size())
        acabar();
}

void GuardadoTexto::acabar() {
    turno_.stop();
    const bool bien = archivo_.isOpen() && archivo_.commit();
    if (!bien)
        avisarMsgBox(&ventana_,
                     QStringLiteral("No se pudo guardar %1: %2").arg(archivo_.fileName(), archivo_.errorString()),
                     vbCritical);
    Q_EMIT terminado(bien);
    deleteLater();
}
