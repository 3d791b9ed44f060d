#include "platform/window/LetraFija.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>

#include <algorithm>

namespace {

// As wide as it is painted: in a row, where widths are rounded.
qreal anchoEnFila(const QFont& letra) {
    constexpr int muchas = 64;
    return std::max(1.0, QFontMetricsF(letra).horizontalAdvance(QString(muchas, u'0')) / muchas);
}

} // namespace

LetraFija::LetraFija(const QFont& letra) : letra_(QRawFont::fromFont(letra)), ancho_(anchoEnFila(letra)) {}

void LetraFija::escribir(QPainter& pintor, QPointF base, const QString& texto) const {
    if (texto.isEmpty())
        return;
    const QList<quint32> glifos = letra_.glyphIndexesForString(texto);
    if (glifos.size() != texto.size() || glifos.contains(0)) {
        pintor.drawText(base, texto);
        return;
    }
    while (sitios_.size() < glifos.size())
        sitios_.append({static_cast<qreal>(sitios_.size()) * ancho_, 0});
    QGlyphRun fila;
    fila.setRawFont(letra_);
    fila.setRawData(glifos.constData(), sitios_.constData(), static_cast<int>(glifos.size()));
    pintor.drawGlyphRun(base, fila);
}
