// The colours of the code editor, derived from a palette so that every one can be read on its background.
#pragma once

#include <QColor>
#include <QPalette>

// Contrast of two colours as accessibility guidelines define it, 1 (none) to 21 (black on white).
double contraste(const QColor& a, const QColor& b);

struct ColoresCodigo {
    explicit ColoresCodigo(const QPalette& paleta);

    QColor palabra;     // reserved words
    QColor incorporada; // functions and constants of the language
    QColor mw;          // the station's object
    QColor literal;     // texts
    QColor numero;      // numbers and dates
    QColor comentario;
    QColor error;       // underlines and messages
    QColor lineaActual; // background
    QColor lineaError;  // background of the line where the running script failed
    QColor pareja;      // background of words and brackets that belong together
    QColor hallazgo;    // veil over what was found
    QColor margen;      // background of the line numbers
    QColor numeroLinea;
};
