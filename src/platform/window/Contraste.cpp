#include "platform/window/Contraste.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>

namespace {

constexpr int mitad = 128; // lightness

void marco(QPainter& pintor, const QRect& caja, const QColor& color) {
    pintor.save();
    pintor.setPen(color);
    pintor.setBrush(Qt::NoBrush);
    pintor.drawRect(caja.adjusted(0, 0, -1, -1));
    pintor.restore();
}

} // namespace

bool esOscura(const QPalette& paleta) {
    return paleta.color(QPalette::Base).lightness() < mitad;
}

QColor fondoDeEstado(const QPalette& paleta) {
    return esOscura(paleta) ? QColor(225, 225, 225) : QColor();
}

void EstiloLegible::polish(QPalette& paleta) {
    QProxyStyle::polish(paleta);
    QColor palido = paleta.color(QPalette::Text);
    palido.setAlphaF(0.6F);
    paleta.setColor(QPalette::PlaceholderText, palido);
    if (!esOscura(paleta) || paleta.color(QPalette::Link).lightness() > mitad)
        return;
    paleta.setColor(QPalette::Link, QColor(130, 180, 255));
    paleta.setColor(QPalette::LinkVisited, QColor(205, 165, 255));
}

void EstiloLegible::drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pintor,
                                  const QWidget* control) const {
    QProxyStyle::drawPrimitive(elemento, opcion, pintor, control);
    const bool conFoco = opcion->state.testFlag(State_HasFocus);
    if (elemento == PE_Frame && conFoco && qobject_cast<const QAbstractScrollArea*>(control) != nullptr)
        marco(*pintor, opcion->rect, opcion->palette.color(QPalette::Highlight));
    const bool campo = elemento == PE_FrameLineEdit && !conFoco;
    if ((elemento != PE_IndicatorCheckBox && !campo) || !esOscura(opcion->palette))
        return;
    QColor borde = opcion->palette.color(QPalette::WindowText);
    borde.setAlphaF(campo ? 0.3F : 0.5F);
    marco(*pintor, opcion->rect, borde);
}
