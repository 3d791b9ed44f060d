#include "registers/Cambios.h"

#include <algorithm>

void Cambios::registroEscrito(int esclavo, int direccion, double antes, double ahora, Autor autor) {
    if (escrituras_.empty())
        escrituras_.resize(lugares);
    Escritura& e = escrituras_[lugar(esclavo, direccion)];
    if (e.esclavo != esclavo || e.direccion != direccion)
        e = {.direccion = direccion, .esclavo = static_cast<std::int16_t>(esclavo)};
    e.escrito = hora();
    e.autor = autor;
    if (antes != ahora)
        e.cambiado = e.escrito;
    for (ObservadorCambios* observador : observadores_)
        observador->registroEscrito(esclavo, direccion, antes, ahora, autor);
}

std::optional<Escritura> Cambios::ultima(int esclavo, int direccion) const {
    if (escrituras_.empty() || esclavo < 0 || direccion < 0)
        return {};
    const Escritura& e = escrituras_[lugar(esclavo, direccion)];
    return e.esclavo == esclavo && e.direccion == direccion ? std::optional(e) : std::nullopt;
}

std::optional<std::int64_t> Cambios::desdeElCambio(int esclavo, int direccion) const {
    const auto e = ultima(esclavo, direccion);
    return e && e->cambiado != 0 ? std::optional(hora() - e->cambiado) : std::nullopt;
}

void Cambios::agregar(ObservadorCambios* observador) {
    observadores_.push_back(observador);
}

void Cambios::quitar(ObservadorCambios* observador) {
    std::erase(observadores_, observador);
}
