// Pending events that run when the test says so, and do what the test says.
#pragma once

#include "platform/events/Eventos.h"

#include <functional>

struct EventosFalsos : Eventos {
    void dejarPasarEventos() override {
        ++veces;
        if (const auto accion = alPasarEventos) // a copy: it may put another in its place
            accion();
    }
    bool enElFondo() const override { return fondo; }

    int veces = 0; // calls so far
    bool fondo = true;
    std::function<void()> alPasarEventos;
};
