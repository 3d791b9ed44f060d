// Turns a frame text into readings, and each reading into assignments for the script engine.
//
//     240517123   ->   AA =24 / MM =05 / DD = 17 / ID = 123 / VALIDEZ = 2
//
// Nothing is validated: the values stand unquoted and the engine judges them as expressions.
#pragma once

#include "serial/EntornoSerie.h"
#include "serial/MarcaFin.h"

#include <string>
#include <string_view>

class SalidaTramas {
public:
    // The assignments of one reading (UTF-8). Raises a std::exception when the engine rejects them.
    virtual void darValor_A_Variable(std::string_view texto) = 0;

    // Appends the readings of one frame text (ANSI), each followed by CR LF, to the list of frames.
    virtual void agregarListado(std::string_view listado) = 0;

protected:
    ~SalidaTramas() = default;
};

class InterpreteTramas {
public:
    // Both are borrowed.
    InterpreteTramas(const MarcaFin& marca, ConfiguracionSerie& configuracion, SalidaTramas& salida)
        : marca_(marca), configuracion_(configuracion), salida_(salida) {}

    // The frame text is ANSI. A fault passes through: the readings after the failing one are not interpreted and
    // nothing is listed. Raises ErrorEjecucion (tiposNoCoinciden) when the configured validity is not a number.
    void interpretarTrama(std::string_view trama);

    // The five lines for one reading (ANSI): positions 1-2, 3-4, 5-6 and 7 to the end, as far as it reaches.
    static std::string asignaciones(std::string_view lectura, std::string_view validez);

private:
    std::string leerValidez();

    MarcaFin marca_;
    ConfiguracionSerie& configuracion_;
    SalidaTramas& salida_;
};
