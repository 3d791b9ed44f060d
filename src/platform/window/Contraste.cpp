#include "platform/window/Contraste.h"

#include <QPainter>
#include <QStyleOption>

namespace {
constexpr int mitad = 128; // lightness
} // namespace

bool esOscura(const QPalette& paleta) {
    return paleta.color(QPalette::Base).lightness() < mitad;
}

QColor fondoDeEstado(const QPalette& paleta) {
    return esOscura(paleta) ? QColor(225, 225, 225) : QColor();
}

void EstiloLegible::drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pintor,
                                  const QWidget* control) const {
    QProxyStyle::drawPrimitive(elemento, opcion, pintor, control);
    if (elemento != PE_IndicatorCheckBox || !esOscura(opcion->palette))
        return;
    QColor borde = opcion->palette.color(QPalette::WindowText);
    borde.setAlphaF(0.5F);
    pintor->save();
    pintor->setPen(borde);
    pintor->setBrush(Qt::NoBrush);
    pintor->drawRect(opcion->rect.adjusted(0, 0, -1, -1));
    pintor->restore();
}
