// A slave's table as CSV: a line a register, with its name where it has one.
#pragma once

#include "registers/Esclavos.h"
#include "registers/Etiquetas.h"

#include <string>

// UTF-8, fields separated by semicolons, lines by CR LF, a heading first. Empty for a slave that does not exist.
std::string tablaComoCsv(const Esclavos& esclavos, int esclavo, const Etiquetas& etiquetas, char16_t separadorDecimal);
