// Caret, selection, keys, mouse and menu of a VistaTexto.
#include "platform/window/GuardadoTexto.h"
#include "platform/window/VistaTexto.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int margen = 4;

bool esDePalabra(std::uint8_t b) {
    return b >= 0x80 || (b >= '0' && b <= '9') || (b >= 'A' && b <= 'Z') || (b >= 'a' && b <= 'z') || b == '_';
}

} // namespace

QString VistaTexto::seleccion() const {
    const auto [desde, hasta] = std::minmax(ancla_, posicion_);
    return QString::fromStdU16String(bytes().texto(desde, hasta));
}

void VistaTexto::copiar() const {
    if (haySeleccion())
        QGuiApplication::clipboard()->setMimeData(createMimeDataFromSelection());
}

void VistaTexto::mover(std::size_t posicion, bool seleccionando) {
    const bool habia = haySeleccion();
    posicion_ = posicion;
    if (!seleccionando)
        ancla_ = posicion;
    ensenar(posicion_);
    reflejarSeleccion();
    viewport()->update();
    if (habia && !haySeleccion())
        soltada();
}

// Scrolls as little as needed to have the byte on the screen.
void VistaTexto::ensenar(std::size_t posicion) {
    const FilasTexto todas = filas();
    const FilaTexto fila = todas.de(posicion);
    if (fila.desde < arriba_)
        return ponerArriba(fila.desde);
    const FilaTexto primera = todas.porEncima(fila, filasVisibles() - 1);
    if (primera.desde > arriba_)
        ponerArriba(primera.desde);
    else
        viewport()->update();
}

void VistaTexto::moverFilas(int cuantas, bool seleccionando) {
    const FilasTexto todas = filas();
    const FilaTexto esta = todas.de(posicion_);
    const int columna = todas.columna(esta, posicion_);
    FilaTexto fila = todas.porEncima(esta, -cuantas);
    for (; cuantas > 0 && !todas.esUltima(fila); --cuantas)
        fila = todas.desde(fila.hasta);
    mover(todas.enColumna(fila, columna), seleccionando);
}

bool VistaTexto::moverConTecla(const QKeyEvent& evento) {
    const bool seleccionando = (evento.modifiers() & Qt::ShiftModifier) != 0;
    const bool entero = (evento.modifiers() & Qt::ControlModifier) != 0;
    const std::size_t fin = bytes().size();
    const FilasTexto todas = filas();
    switch (evento.key()) {
    case Qt::Key_Left:
        mover(posicion_ > 0 ? posicion_ - 1 : 0, seleccionando);
        return true;
    case Qt::Key_Right:
        mover(std::min(posicion_ + 1, fin), seleccionando);
        return true;
    case Qt::Key_Up:
        moverFilas(-1, seleccionando);
        return true;
    case Qt::Key_Down:
        moverFilas(1, seleccionando);
        return true;
    case Qt::Key_PageUp:
        moverFilas(1 - filasVisibles(), seleccionando);
        return true;
    case Qt::Key_PageDown:
        moverFilas(filasVisibles() - 1, seleccionando);
        return true;
    case Qt::Key_Home:
        mover(entero ? 0 : todas.de(posicion_).desde, seleccionando);
        return true;
    case Qt::Key_End:
        mover(entero ? fin : todas.finVisible(todas.de(posicion_)), seleccionando);
        if (entero)
            ponerArriba(fin);
        return true;
    default:
        return false;
    }
}

bool VistaTexto::esTeclaDeMando(const QKeyEvent& evento) {
    return evento.matches(QKeySequence::Find) || evento.matches(QKeySequence::Save) || evento.key() == Qt::Key_F3 ||
           (evento.modifiers() == Qt::ControlModifier && evento.key() == Qt::Key_P);
}

void VistaTexto::keyPressEvent(QKeyEvent* evento) {
    const bool ctrl = evento->modifiers() == Qt::ControlModifier;
    if (evento->matches(QKeySequence::SelectAll)) {
        ancla_ = 0;
        posicion_ = bytes().size();
        reflejarSeleccion();
        viewport()->update();
    } else if (evento->matches(QKeySequence::Copy)) {
        copiar();
    } else if (evento->matches(QKeySequence::Find)) {
        abrirBusqueda();
    } else if (evento->key() == Qt::Key_F3) {
        buscarOtraVez((evento->modifiers() & Qt::ShiftModifier) == 0);
    } else if (evento->matches(QKeySequence::Save)) {
        guardar();
    } else if (ctrl && evento->key() == Qt::Key_P) {
        pausar(!pausada());
    } else if (evento->key() == Qt::Key_Escape && haySeleccion()) {
        mover(posicion_, false);
    } else if (!moverConTecla(*evento)) {
        evento->ignore();
        return;
    }
    evento->accept();
}

std::size_t VistaTexto::posicionEn(QPointF punto) const {
    const FilasTexto todas = filas();
    FilaTexto fila = todas.desde(arriba_);
    int n = static_cast<int>((punto.y() - margen) / fontMetrics().height());
    if (punto.y() < margen)
        return todas.enColumna(todas.anterior(fila), static_cast<int>(punto.x() / letra_.ancho()));
    for (; n > 0 && !todas.esUltima(fila); --n)
        fila = todas.desde(fila.hasta);
    return todas.enColumna(fila, static_cast<int>(std::lround((punto.x() - margen) / letra_.ancho())));
}

void VistaTexto::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() != Qt::LeftButton)
        return;
    arrastrando_ = true;
    mover(posicionEn(evento->position()), (evento->modifiers() & Qt::ShiftModifier) != 0);
}

void VistaTexto::mouseMoveEvent(QMouseEvent* evento) {
    if (arrastrando_)
        mover(posicionEn(evento->position()), true);
}

void VistaTexto::mouseReleaseEvent(QMouseEvent* evento) {
    if (evento->button() != Qt::LeftButton)
        return;
    arrastrando_ = false;
    QClipboard* const portapapeles = QGuiApplication::clipboard();
    if (haySeleccion() && portapapeles->supportsSelection())
        portapapeles->setMimeData(createMimeDataFromSelection(), QClipboard::Selection);
}

void VistaTexto::mouseDoubleClickEvent(QMouseEvent* evento) {
    std::size_t desde = posicionEn(evento->position());
    std::size_t hasta = desde;
    while (desde > 0 && esDePalabra(bytes().en(desde - 1)))
        --desde;
    while (hasta < bytes().size() && esDePalabra(bytes().en(hasta)))
        ++hasta;
    mover(desde, false);
    mover(hasta, true);
}

void VistaTexto::contextMenuEvent(QContextMenuEvent* evento) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto accion = [&](const QString& texto, const QKeySequence& tecla, auto hacer) {
        QAction* nueva = menu->addAction(texto, this, hacer);
        nueva->setShortcut(tecla);
        return nueva;
    };
    accion(QStringLiteral("&Copiar"), QKeySequence::Copy, [this] { copiar(); })->setEnabled(haySeleccion());
    accion(QStringLiteral("Seleccionar &todo"), QKeySequence::SelectAll, [this] {
        ancla_ = 0;
        posicion_ = bytes().size();
        reflejarSeleccion();
        viewport()->update();
    });
    menu->addSeparator();
    accion(QStringLiteral("&Buscar…"), QKeySequence::Find, [this] { abrirBusqueda(); });
    accion(QStringLiteral("&Guardar…"), QKeySequence::Save, [this] { guardar(); });
    QAction* const pausa = accion(QStringLiteral("&Pausa"), Qt::CTRL | Qt::Key_P, [this] { pausar(!pausada()); });
    pausa->setCheckable(true);
    pausa->setChecked(pausada());
    menu->popup(evento->globalPos());
}

void VistaTexto::guardar() {
    GuardadoTexto::preguntarYGuardar(*this, bytes());
}
