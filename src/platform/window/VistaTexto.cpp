#include "platform/window/VistaTexto.h"

#include <QElapsedTimer>
#include <QFontDatabase>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto entreTurnos = 30ms; // after the first piece of new text
constexpr auto maximoTurno = 4ms;  // of work
constexpr int pausaPorTrabajo = 3; // a backlog takes a quarter of the time at most
constexpr qsizetype trozo = 1024;  // characters between two looks at the clock: short lines take longest

constexpr int continuacion = 1; // user state of a block that goes on with the line of the block before

// The text with every line end as one LF; `trasCR` carries a CR LF that was cut in two over to the next call.
QString conLF(QStringView texto, bool& trasCR) {
    QString lineas;
    lineas.reserve(texto.size());
    for (const QChar c : texto) {
        if (c != u'\n' || !trasCR)
            lineas.append(c == u'\r' ? QChar(u'\n') : c);
        trasCR = c == u'\r';
    }
    return lineas;
}

} // namespace

VistaTexto::VistaTexto(QWidget* parent) : QPlainTextEdit(parent) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAnywhere);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    turno_.setSingleShot(true);
    connect(&turno_, &QTimer::timeout, this, [this] { mostrar(QDeadlineTimer(maximoTurno)); });
}

void VistaTexto::agregar(QStringView texto) {
    pendiente_.append(texto);
    if (!alDia() && !turno_.isActive())
        turno_.start(entreTurnos);
}

void VistaTexto::borrar() {
    turno_.stop();
    pendiente_.clear();
    mostrados_ = 0;
    trasCR_ = false;
    clear();
}

void VistaTexto::ponerAlDia() {
    mostrar(QDeadlineTimer(QDeadlineTimer::Forever));
}

void VistaTexto::mostrar(QDeadlineTimer plazo) {
    QElapsedTimer reloj;
    reloj.start();
    const int fila = verticalScrollBar()->value();
    const bool enElFinal = fila == verticalScrollBar()->maximum();
    const int ancla = textCursor().anchor();
    const int posicion = textCursor().position();
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.beginEditBlock();
    do {
        const QStringView siguiente = QStringView(pendiente_).mid(mostrados_, trozo);
        insertar(cursor, conLF(siguiente, trasCR_));
        mostrados_ += siguiente.size();
    } while (mostrados_ < pendiente_.size() && !plazo.hasExpired());
    cursor.endEditBlock();
    seleccionar(ancla, posicion);
    verticalScrollBar()->setValue(enElFinal ? verticalScrollBar()->maximum() : fila);
    if (mostrados_ < pendiente_.size()) {
        turno_.start(std::chrono::milliseconds(reloj.elapsed() * pausaPorTrabajo));
    } else {
        turno_.stop();
        pendiente_.clear();
        mostrados_ = 0;
    }
}

// Caret and selection stay where they were; those at the end would go along with the text inserted there.
void VistaTexto::seleccionar(int ancla, int posicion) {
    QTextCursor cursor = textCursor();
    if (cursor.anchor() == ancla && cursor.position() == posicion)
        return;
    cursor.setPosition(ancla);
    cursor.setPosition(posicion, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

// Inserts the text; where a line would pass maximoLinea it goes on in a block marked as continuation.
void VistaTexto::insertar(QTextCursor& cursor, QStringView lineas) {
    while (!lineas.isEmpty()) {
        const qsizetype sitio = maximoLinea - cursor.positionInBlock();
        const qsizetype fin = lineas.left(sitio + 1).lastIndexOf(u'\n');
        if (fin < 0 && lineas.size() > sitio) {
            cursor.insertText(lineas.left(sitio).toString());
            cursor.insertBlock();
            cursor.block().setUserState(continuacion);
            lineas = lineas.mid(sitio);
        } else {
            const qsizetype cuantos = lineas.size() <= sitio ? lineas.size() : fin + 1;
            cursor.insertText(lineas.left(cuantos).toString());
            lineas = lineas.mid(cuantos);
        }
    }
}

QString VistaTexto::texto() const {
    bool trasCR = trasCR_;
    return textoEntre(0, document()->characterCount() - 1) + conLF(QStringView(pendiente_).mid(mostrados_), trasCR);
}

QMimeData* VistaTexto::createMimeDataFromSelection() const {
    const QTextCursor cursor = textCursor();
    auto* datos = new QMimeData;
    datos->setText(textoEntre(cursor.selectionStart(), cursor.selectionEnd()));
    return datos;
}

// The characters of the document from one position up to another, without the ends of rows that go on.
QString VistaTexto::textoEntre(int desde, int hasta) const {
    QString texto;
    texto.reserve(hasta - desde);
    for (QTextBlock bloque = document()->findBlock(desde); bloque.isValid() && bloque.position() <= hasta;
         bloque = bloque.next()) {
        if (bloque.position() > desde && bloque.userState() != continuacion)
            texto.append(u'\n');
        const int primero = std::max(desde - bloque.position(), 0);
        texto.append(bloque.text().mid(primero, hasta - bloque.position() - primero));
    }
    return texto;
}
