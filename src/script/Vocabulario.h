// The names that may be written in a script, for completion.
#pragma once

#include <QList>
#include <QString>
#include <QStringView>

struct Sugerencia {
    QString texto; // as it is put into the text
    QString ayuda; // one line: how it is used, or what it is
    bool operator<(const Sugerencia& otra) const { return texto.compare(otra.texto, Qt::CaseInsensitive) < 0; }
};

// The operations of the station's object.
const QList<Sugerencia>& sugerenciasDeMW();

// The one of WScript.
const QList<Sugerencia>& sugerenciasDeWScript();

// Words, functions and constants of the language and the objects that are always there, in alphabetical order.
const QList<Sugerencia>& sugerenciasDelLenguaje();

// Those and the other names that stand in the text, in alphabetical order, each once; without the name that ends at
// `lugar`, the one being written. At most `maximoNombres` of the text.
QList<Sugerencia> sugerenciasPara(QStringView texto, qsizetype lugar);

inline constexpr qsizetype maximoNombres = 2000;
