#include "modbus/TextoMonitor.h"

void TextoMonitor::borrar() {
    if (texto_.empty())
        return;
    texto_.clear();
    ++generacion_;
    ++borrados_;
    avisar();
}
