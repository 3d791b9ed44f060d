// The clocks: the one place where the station reads the time.
//
// Who needs to know the time borrows a Reloj; tests hand over one that they move (tests/RelojDePrueba.h). Timers are no
// part of it: the windows' are QTimers, the sockets' the kernel's.
//
//     const Reloj::Instante comienzo = reloj_.instante();
//     trabajar();
//     duracion_ = reloj_.instante() - comienzo;
#pragma once

#include <chrono>
#include <ctime>

class Reloj {
public:
    using Instante = std::chrono::steady_clock::time_point;
    using Hora = std::chrono::system_clock::time_point;

    // Goes on evenly, whatever is done to the wall clock: what lasts is measured with it.
    virtual Instante instante() const = 0;

    // The wall clock.
    virtual Hora hora() const = 0;

    // The wall clock's second, since 1970 in UTC; costs a tenth of hora().
    virtual std::time_t segundo() const = 0;

protected:
    ~Reloj() = default;
};

// The system's clocks.
const Reloj& relojDelSistema();
