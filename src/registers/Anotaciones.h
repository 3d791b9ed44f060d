// What is known about registers besides their values: who wrote them, their names, and whether changes are coloured.
// One for the station; pages, charts and dialogs read it.
#pragma once

#include "registers/Cambios.h"
#include "registers/Etiquetas.h"

#include <cstdint>

struct Anotaciones {
    static constexpr std::int64_t tiempoResaltado = 3000; // ms that a changed cell takes to fade out

    explicit Anotaciones(const Reloj& reloj = relojDelSistema()) : cambios(reloj) {} // borrowed

    Cambios cambios;
    Etiquetas etiquetas;
    bool resaltarCambios = true;
};
