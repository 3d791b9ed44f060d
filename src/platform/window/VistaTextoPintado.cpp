// How a VistaTexto is painted.
#include "platform/window/VistaTexto.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int margen = 4; // pixels round the text
constexpr QRgb colorHallazgo = qRgb(255, 213, 79);

QString dePantalla(const std::u16string& texto) {
    QString pintable = QString::fromStdU16String(texto);
    for (QChar& c : pintable)
        if (!c.isPrint())
            c = c == u'\n' || c == u'\t' ? QChar(u' ') : QChar(0x00B7);
    return pintable;
}

} // namespace

std::vector<BusquedaTexto::Hallazgo> VistaTexto::hallazgosVisibles(std::size_t hasta) const {
    if (resaltado_.empty())
        return {};
    // One that begins on the row above may reach into the first one.
    return resaltado_.en(bytes(), filas().anterior(filas().desde(arriba_)).desde, hasta);
}

void VistaTexto::paintEvent(QPaintEvent*) {
    QPainter pintor(viewport());
    pintor.fillRect(viewport()->rect(), palette().brush(QPalette::Base));
    pintor.setFont(font());
    const FilasTexto todas = filas();
    const auto hallazgos = hallazgosVisibles(finDePantalla());
    FilaTexto fila = todas.desde(arriba_);
    for (int y = margen; y < viewport()->height(); y += fontMetrics().height()) {
        pintarFila(pintor, fila, y, hallazgos);
        if (todas.esUltima(fila))
            break;
        fila = todas.desde(fila.hasta);
    }
    if (const QString rotulo = rotuloDeEstado(); !rotulo.isEmpty()) {
        const QRect caja = fontMetrics().boundingRect(rotulo).adjusted(-6, -3, 6, 3);
        const QRect sitio(viewport()->width() - caja.width() - margen, margen, caja.width(), caja.height());
        pintor.fillRect(sitio, palette().brush(QPalette::ToolTipBase));
        pintor.setPen(palette().color(QPalette::ToolTipText));
        pintor.drawRect(sitio.adjusted(0, 0, -1, -1));
        pintor.drawText(sitio, Qt::AlignCenter, rotulo);
    }
    if (hasFocus()) {
        pintor.setPen(palette().color(QPalette::Highlight));
        pintor.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
    }
}

void VistaTexto::pintarFila(QPainter& pintor, const FilaTexto& fila, qreal y,
                            const std::vector<BusquedaTexto::Hallazgo>& hallazgos) const {
    const FilasTexto todas = filas();
    const qreal alto = fontMetrics().height();
    const auto tramo = [&](std::size_t desde, std::size_t hasta) {
        const qreal x = margen + todas.columna(fila, desde) * letra_.ancho();
        return QRectF(x, y, margen + todas.columna(fila, hasta) * letra_.ancho() - x, alto);
    };
    const auto cruza = [&](std::size_t desde, std::size_t hasta) { return desde < fila.hasta && hasta > fila.desde; };
    const QString texto = dePantalla(bytes().texto(fila.desde, todas.finVisible(fila)));
    const QPointF base(margen, y + fontMetrics().ascent());
    const auto escribir = [&](const QColor& color) {
        pintor.setPen(color);
        letra_.escribir(pintor, base, texto);
    };
    const auto marcar = [&](const QRectF& caja, const QBrush& fondo, const QColor& color) {
        pintor.save();
        pintor.setClipRect(caja);
        pintor.fillRect(caja, fondo);
        escribir(color);
        pintor.restore();
    };

    escribir(palette().color(QPalette::Text));
    for (const auto& hallazgo : hallazgos)
        if (cruza(hallazgo.desde, hallazgo.hasta))
            marcar(tramo(std::max(hallazgo.desde, fila.desde), std::min(hallazgo.hasta, fila.hasta)),
                   QColor::fromRgb(colorHallazgo), Qt::black);
    const auto [desde, hasta] = std::minmax(ancla_, posicion_);
    if (cruza(desde, hasta)) {
        QRectF caja = tramo(std::max(desde, fila.desde), std::min(hasta, fila.hasta));
        if (hasta >= fila.hasta && todas.finVisible(fila) < fila.hasta)
            caja.setRight(caja.right() + letra_.ancho() / 2); // the line end is selected, too
        marcar(caja, palette().brush(QPalette::Highlight), palette().color(QPalette::HighlightedText));
    }
    const bool aqui = posicion_ >= fila.desde && (posicion_ < fila.hasta || todas.esUltima(fila));
    if (hasFocus() && aqui) {
        const qreal x = margen + todas.columna(fila, posicion_) * letra_.ancho();
        pintor.fillRect(QRectF(x, y, 1, alto), palette().brush(QPalette::Text));
    }
}

void VistaTexto::focusInEvent(QFocusEvent* evento) {
    QPlainTextEdit::focusInEvent(evento);
    viewport()->update();
}

void VistaTexto::focusOutEvent(QFocusEvent* evento) {
    QPlainTextEdit::focusOutEvent(evento);
    viewport()->update();
}
