// Keeps the colours of states, and the frames of check boxes, legible on dark desktops, and shows where the focus is.
#pragma once

#include <QColor>
#include <QPalette>
#include <QProxyStyle>

// Whether the desktop's theme is dark.
bool esOscura(const QPalette& paleta);

// What to put behind a text in a dark, saturated colour: a light tint on dark themes, invalid (nothing) on light ones.
QColor fondoDeEstado(const QPalette& paleta);

// The desktop's style with an outline round check boxes and fields where the theme is dark: the common style draws
// theirs darker than the window, so that an empty one can hardly be seen. Links and the texts of empty fields get a
// colour that can be read, where the theme names none. A list or a text that has the focus is framed in the colour of
// selections: an empty one has nothing else to show it with.
class EstiloLegible : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::polish;
    void polish(QPalette& paleta) override;
    void drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pintor,
                       const QWidget* control) const override;
};
