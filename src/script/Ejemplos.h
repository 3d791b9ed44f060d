// The sample scripts, compiled into the program.
#pragma once

#include <QList>
#include <QString>

struct Ejemplo {
    QString titulo;      // "Rampa"
    QString descripcion; // the first line of its comment
    QString texto;       // with '\n' as line end
};

// In the order of their titles.
QList<Ejemplo> ejemplos();
