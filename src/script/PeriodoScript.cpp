#include "script/PeriodoScript.h"

#include "platform/profile/Numeros.h"
#include "registers/Palabra.h"

#include <algorithm>

double periodoDeTexto(std::string_view texto) {
    const auto periodo = numeroDeTexto(texto);
    if (!periodo)
        throw ErrorEjecucion(ErrorEjecucion::tiposNoCoinciden);
    return *periodo;
}

std::chrono::milliseconds intervaloDeTimer(double periodo) {
    return std::chrono::milliseconds(std::max(entero32(periodo), static_cast<std::int32_t>(periodoMinimo)));
}
