// A font of fixed width that writes glyph by glyph, each in its column: no shaping, which a row of characters of one
// column each does not need and which takes most of the time of painting one.
#pragma once

#include <QFont>
#include <QList>
#include <QPointF>
#include <QRawFont>
#include <QString>

class QPainter;

class LetraFija {
public:
    explicit LetraFija(const QFont& letra = {});

    // Pixels from one column to the next.
    qreal ancho() const { return ancho_; }

    // In the painter's pen; the first character stands at `base`. A text with a character that the font does not have
    // is left to the painter, whose font is expected to be the same.
    void escribir(QPainter& pintor, QPointF base, const QString& texto) const;

private:
    QRawFont letra_;
    qreal ancho_;
    mutable QList<QPointF> sitios_; // of the columns, as many as were needed so far
};
