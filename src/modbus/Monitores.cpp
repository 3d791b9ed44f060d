#include "modbus/Monitores.h"

TextoMonitor& Monitores::tramas(int esclavo) {
    const auto indice = static_cast<std::size_t>(esclavo);
    if (indice >= tramas_.size())
        tramas_.resize(indice + 1);
    if (!tramas_[indice])
        tramas_[indice] = std::make_unique<TextoMonitor>();
    return *tramas_[indice];
}

void Monitores::borrarTramas() {
    for (auto& monitor : tramas_)
        if (monitor)
            monitor->borrar();
    todas_.borrar();
    trafico.borrar();
}
