#include "script/PeriodoScript.h"

#include "platform/text/Numbers.h"
#include "registers/ErrorEjecucion.h"
#include "registers/Palabra.h"

#include <algorithm>

double periodoDeTexto(std::string_view texto, char16_t signoDecimal) {
    const auto periodo = text::readNumber(texto, signoDecimal);
    if (!periodo)
        throw ErrorEjecucion(ErrorEjecucion::tiposNoCoinciden);
    return *periodo;
}

std::chrono::milliseconds intervaloDeTimer(double periodo) {
    return std::chrono::milliseconds(std::max(entero32(periodo), static_cast<std::int32_t>(periodoMinimo)));
}
