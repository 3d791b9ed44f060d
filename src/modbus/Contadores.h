// How many requests there were and how they ended, each counted once.
#pragma once

#include <cstdint>

struct Contadores {
    std::uint64_t peticiones = 0;  // all, however they ended; an arrival too short to be a request is one too
    std::uint64_t lecturas = 0;    // answered
    std::uint64_t escrituras = 0;  // answered
    std::uint64_t excepciones = 0; // answered with an exception

    // Ignored because of a check box, faulty, or the answer could not be sent.
    std::uint64_t sinRespuesta() const { return peticiones - lecturas - escrituras - excepciones; }

    Contadores& operator+=(const Contadores& otros) {
        peticiones += otros.peticiones;
        lecturas += otros.lecturas;
        escrituras += otros.escrituras;
        excepciones += otros.excepciones;
        return *this;
    }
};
