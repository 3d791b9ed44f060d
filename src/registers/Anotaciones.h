// What is known about registers besides their values: who wrote them, their names, and whether changes are coloured.
// One for the station; pages, charts and dialogs read it.
#pragma once

#include "registers/Cambios.h"
#include "registers/Etiquetas.h"

#include <chrono>

struct Anotaciones {
    static constexpr std::int64_t tiempoResaltado = 3000; // ms that a changed cell takes to fade out

    Cambios cambios{[] {
        const auto ahora = std::chrono::system_clock::now().time_since_epoch();
        return std::int64_t{std::chrono::duration_cast<std::chrono::milliseconds>(ahora).count()};
    }};
    Etiquetas etiquetas;
    bool resaltarCambios = true;
};
