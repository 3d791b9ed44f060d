// A clock that goes when the test says so. It begins at 12:34:56 local time.
//
//     RelojDePrueba reloj;
//     reloj.pasar(3h + 5s);
#pragma once

#include "platform/clock/Reloj.h"

class RelojDePrueba final : public Reloj {
public:
    using Tiempo = std::chrono::nanoseconds;

    Instante instante() const override { return instante_ += porMirada; }
    Hora hora() const override { return hora_; }
    std::time_t segundo() const override { return std::chrono::system_clock::to_time_t(hora_); }

    void pasar(Tiempo cuanto) {
        instante_ += cuanto;
        hora_ += cuanto;
    }
    // Somebody sets the wall clock.
    void cambiarHora(Tiempo cuanto) { hora_ += cuanto; }

    // How much later each look at instante() is than the last: work that looks twice has lasted so long.
    Tiempo porMirada{0};

private:
    static Hora mediodia() {
        std::tm local{};
        local.tm_year = 126;
        local.tm_mday = 15;
        local.tm_hour = 12;
        local.tm_min = 34;
        local.tm_sec = 56;
        return std::chrono::system_clock::from_time_t(std::mktime(&local));
    }

    mutable Instante instante_{std::chrono::hours(1)};
    Hora hora_ = mediodia();
};
