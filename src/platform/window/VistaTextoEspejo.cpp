// The document of a VistaTexto: what others read through the base class.
#include "platform/window/VistaTexto.h"

#include <QElapsedTimer>
#include <QMimeData>
#include <QScopeGuard>
#include <QTextCursor>

#include <algorithm>

namespace {
constexpr int menorEspera = 30; // ms between two updates of the document
constexpr int mayorEspera = 100;
constexpr int parteDelTiempo = 20; // an update may take one part of so many
} // namespace

void VistaTexto::reflejar() {
    QElapsedTimer reloj;
    reloj.start();
    reflejarTodo();
    espera_ = std::clamp(static_cast<int>(reloj.elapsed()) * parteDelTiempo, menorEspera, mayorEspera);
}

void VistaTexto::reflejarTodo() {
    espejo_.stop();
    sincronizando_ = true;
    const auto fin = qScopeGuard([this] {
        sincronizando_ = false;
        ponerBarra(); // the base class has set it for its document
    });
    const TextoBytes& texto = bytes();
    if (texto.size() > maximoEspejo) {
        setPlainText(QString::fromStdU16String(texto.texto(arriba_, finDePantalla())));
        espejoEntero_ = false;
        return;
    }
    // Half a line end waits for its other half, or it would count as a line end of its own.
    std::size_t hasta = texto.size();
    if (hasta > 0 && !texto.hexadecimal(hasta - 1) && texto.en(hasta - 1) == '\r')
        --hasta;
    if (espejoEntero_ && hasta >= reflejados_) {
        QTextCursor cursor(document());
        cursor.movePosition(QTextCursor::End);
        if (hasta > reflejados_)
            cursor.insertText(QString::fromStdU16String(texto.texto(reflejados_, hasta)));
    } else {
        setPlainText(QString::fromStdU16String(texto.texto(0, hasta)));
    }
    reflejados_ = hasta;
    espejoEntero_ = true;
    reflejarSeleccion();
}

void VistaTexto::reflejarSeleccion() {
    if (!espejoEntero_)
        return;
    const auto caracter = [this](std::size_t posicion) {
        return static_cast<int>(bytes().texto(0, std::min(posicion, reflejados_)).size());
    };
    const bool antes = std::exchange(sincronizando_, true);
    QTextCursor cursor(document());
    cursor.setPosition(caracter(ancla_));
    cursor.setPosition(caracter(posicion_), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    sincronizando_ = antes;
    ponerBarra(); // the base class has moved it to the line of its document
}

// Someone else has moved the document's caret or selection: the box follows.
void VistaTexto::alMoverCursorDelDocumento() {
    if (sincronizando_ || !espejoEntero_)
        return;
    std::u16string texto;
    std::vector<std::size_t> dondes;
    bytes().texto(0, reflejados_, texto, &dondes);
    dondes.push_back(reflejados_);
    const auto donde = [&](int caracter) {
        return dondes[std::min(static_cast<std::size_t>(caracter), dondes.size() - 1)];
    };
    const QTextCursor cursor = textCursor();
    ancla_ = donde(cursor.anchor());
    posicion_ = donde(cursor.position());
    ensenar(posicion_);
}

QMimeData* VistaTexto::createMimeDataFromSelection() const {
    auto* datos = new QMimeData;
    datos->setText(seleccion());
    return datos;
}
