#include "registers/ErrorEjecucion.h"

namespace {

const char* textoDeError(int numero) {
    switch (numero) {
    case ErrorEjecucion::argumentoNoValido:
        return "Argumento o llamada a procedimiento no válida";
    case ErrorEjecucion::desbordamiento:
        return "Desbordamiento";
    case ErrorEjecucion::memoriaAgotada:
        return "Memoria agotada";
    case ErrorEjecucion::indiceFueraDeIntervalo:
        return "El subíndice está fuera del intervalo";
    case ErrorEjecucion::tiposNoCoinciden:
        return "No coinciden los tipos";
    default:
        return "Error en tiempo de ejecución";
    }
}

} // namespace

ErrorEjecucion::ErrorEjecucion(int numero) : std::runtime_error(textoDeError(numero)), numero_(numero) {}
