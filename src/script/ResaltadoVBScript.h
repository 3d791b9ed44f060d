// Colours the words of a script in a text box, as the engine's own lexer cuts them.
//
// Only what is asked for is coloured (the lines in sight), so that a text of many megabytes costs no more than a page.
// No token of the language spans lines: each line stands for itself.
#pragma once

#include "script/ColoresCodigo.h"

#include <QList>
#include <QTextBlock>
#include <QTextLayout>

class ResaltadoVBScript {
public:
    explicit ResaltadoVBScript(const QPalette& paleta) : colores_(paleta) {}

    const ColoresCodigo& colores() const { return colores_; }

    // Other colours; every line of the document is to be coloured again.
    void cambiarPaleta(const QPalette& paleta, QTextDocument& documento);

    // The lines that hold the characters from `posicion` on have changed.
    static void olvidar(QTextDocument& documento, int posicion, int caracteres);

    // Colours a line unless it is coloured already.
    void colorear(QTextBlock& linea) const;

    // Longer lines stay without colours.
    static constexpr int maximoLinea = 5000;

private:
    QList<QTextLayout::FormatRange> formatos(const QString& linea) const;

    ColoresCodigo colores_;
};
