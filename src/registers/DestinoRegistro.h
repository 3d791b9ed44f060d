// What the operator types to go to a register: "120" (of the slave in front), "3:120", or a register's name.
#pragma once

#include "registers/Etiquetas.h"

#include <QString>

#include <optional>

struct DestinoRegistro {
    int esclavo;
    int direccion;
};

// Empty when the text is none of these. A name counts without regard to case, whole first, then by its beginning.
std::optional<DestinoRegistro> leerDestino(const QString& texto, int esclavoActual, const Etiquetas& etiquetas);
