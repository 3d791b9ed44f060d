// What a grid shows: whoever owns the data answers for the cells when they are painted; the grid keeps none of them.
//
// Rows and columns count from 0 with the headings: row 0 holds the column headings, column 0 the row headings, and
// (0, 0) is the corner. Rows only ever grow in number; the number of columns is fixed.
#pragma once

#include <QColor>
#include <QString>

class QPalette;

class FuenteCuadricula {
public:
    virtual int filas() const = 0;    // at least 1
    virtual int columnas() const = 0; // at least 1

    // Empty for a cell that has nothing to show.
    virtual QString texto(int fila, int columna) const = 0;
    virtual QString sugerencia(int fila, int columna) const = 0; // the tooltip, empty for none

    // The widest text that a cell below the headings is made for.
    virtual QString textoMasAncho() const { return QStringLiteral("65535"); }

    // The ground of a cell below the headings; invalid: the view's own.
    virtual QColor fondo(int /*fila*/, int /*columna*/, const QPalette& /*paleta*/) const { return {}; }

protected:
    ~FuenteCuadricula() = default;
};
