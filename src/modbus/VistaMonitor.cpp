#include "modbus/VistaMonitor.h"

#include <QElapsedTimer>
#include <QFontDatabase>
#include <QScrollBar>
#include <QTextCursor>

#include <algorithm>

namespace {

constexpr std::chrono::milliseconds intervaloMinimo{33};
constexpr std::chrono::milliseconds intervaloMaximo{200};
constexpr std::chrono::milliseconds intervaloOculto{100};
constexpr int parteDelTiempo = 20;             // an update may take one part of so many
constexpr std::size_t pocosCaracteres = 4'000; // of which a hidden box takes its share at once

} // namespace

VistaMonitor::VistaMonitor(TextoMonitor& monitor, QWidget* padre)
    : QPlainTextEdit(padre), monitor_(monitor), intervalo_(intervaloMinimo) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    espera_.setSingleShot(true);
    connect(&espera_, &QTimer::timeout, this, &VistaMonitor::alVencer);
    monitor_.observar(this);
    ponerAlDia();
}

VistaMonitor::~VistaMonitor() {
    monitor_.observar(nullptr);
}

void VistaMonitor::textoCambiado() {
    espera_.start(isVisible() ? intervalo_ : intervaloOculto);
}

void VistaMonitor::alVencer() {
    if (isVisible() || conviene())
        ponerAlDia();
    else
        espera_.start(intervaloOculto);
}

// A hidden box takes little text at once and much text only when nothing has come since the last look.
bool VistaMonitor::conviene() {
    const std::size_t largo = monitor_.texto().size();
    const bool siguio = monitor_.generacion() == generacion_;
    const bool quieto = monitor_.generacion() == generacionVista_ && largo == largoVisto_;
    generacionVista_ = monitor_.generacion();
    largoVisto_ = largo;
    return quieto || largo - (siguio ? mostrados_ : 0) <= pocosCaracteres;
}

void VistaMonitor::ponerAlDia() {
    QElapsedTimer reloj;
    reloj.start();
    espera_.stop();
    monitor_.visto();
    std::string_view texto = monitor_.texto();
    // Half a line end waits for its other half, or it would count as a line end of its own.
    if (!texto.empty() && texto.back() == '\r')
        texto.remove_suffix(1);
    if (monitor_.generacion() == generacion_ && texto.size() >= mostrados_) {
        QTextCursor fin(document());
        fin.movePosition(QTextCursor::End);
        fin.insertText(
            QString::fromLatin1(texto.substr(mostrados_)).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    } else {
        setPlainText(QString::fromLatin1(texto));
    }
    generacion_ = monitor_.generacion();
    mostrados_ = texto.size();
    mostrarFinal();
    const std::chrono::milliseconds gasto{reloj.elapsed()};
    intervalo_ = std::clamp(gasto * parteDelTiempo, intervaloMinimo, intervaloMaximo);
}

void VistaMonitor::showEvent(QShowEvent* evento) {
    QPlainTextEdit::showEvent(evento);
    if (espera_.isActive())
        ponerAlDia();
}

// The lines wrap anew; the newest one must not slip out of view.
void VistaMonitor::resizeEvent(QResizeEvent* evento) {
    QPlainTextEdit::resizeEvent(evento);
    if (textCursor().atEnd())
        mostrarFinal();
}

// The caret's own rules stop where its line is in view; with some fonts that is a line short of the end.
void VistaMonitor::mostrarFinal() {
    moveCursor(QTextCursor::End);
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}
