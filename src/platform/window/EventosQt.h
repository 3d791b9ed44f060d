// Pending events of the window system: sockets, timers, input and painting.
//
// Called after every byte of a long loop it stays cheap: within a millisecond of the last time it returns at once. A
// handler that it has started may call it again; beyond a few levels it returns at once as well, so that handlers
// cannot pile up on the stack. One instance for the program, handed to those who need it.
#pragma once

#include "platform/clock/Reloj.h"
#include "platform/events/Eventos.h"

#include <chrono>

class EventosQt final : public Eventos {
public:
    static constexpr std::chrono::milliseconds pausa{1};
    static constexpr int maxNivel = 4;

    explicit EventosQt(const Reloj& reloj = relojDelSistema()) : reloj_(reloj) {} // borrowed

    void dejarPasarEventos() override;
    bool enElFondo() const override;

private:
    const Reloj& reloj_;
    Reloj::Instante ultima_{};
    int nivel_ = 0;
    int bucle_ = 0; // event loops on the stack when the innermost level began
};
