// Numbers pasted into a page: rows of tab-separated numbers, written from a cell on, with the checks of writing by
// hand.
#pragma once

#include "registers/Esclavos.h"

#include <QString>

// Writes the text's rows from the cell of register `direccion` on, each row below the last. Either all of it is
// written, or nothing: then the answer says in Spanish why. Empty fields leave their registers as they are.
QString pegarRegistros(Esclavos& esclavos, int esclavo, int direccion, const QString& texto);
