// Turns a frame text into readings, and each reading into assignments for the script engine.
//
//     240517123   ->   AA =24 / MM =05 / DD = 17 / ID = 123 / VALIDEZ = 2
//
// Nothing is validated: the values stand unquoted and the engine judges them as expressions.
#pragma once

#include "serial/EntornoSerie.h"
#include "serial/MarcaFin.h"

#include <stdexcept>
#include <string>
#include <string_view>

class Ajustes;

// A reading that could not become assignments; what() is the cause (UTF-8).
class LecturaRechazada : public std::runtime_error {
public:
    LecturaRechazada(std::string_view lectura, const char* causa) : std::runtime_error(causa), lectura_(lectura) {}
    const std::string& lectura() const { return lectura_; } // ANSI, without its end mark

private:
    std::string lectura_;
};

class InterpreteTramas {
public:
    // Settings and engine are borrowed.
    InterpreteTramas(const MarcaFin& marca, Ajustes& ajustes, MotorSerie& motor)
        : marca_(marca), ajustes_(ajustes), motor_(motor) {}

    // Hands the readings of a frame text (ANSI) to the engine in order and gives the list of them back, each followed
    // by CR LF. Raises LecturaRechazada for the first one that fails; those after it are not interpreted. A configured
    // validity that is not a number fails the first reading.
    std::string interpretarTrama(std::string_view trama);

    // The five lines for one reading (ANSI): positions 1-2, 3-4, 5-6 and 7 to the end, as far as it reaches.
    static std::string asignaciones(std::string_view lectura, std::string_view validez);

private:
    std::string leerValidez();
    void darValor_A_Variable(std::string_view lectura, std::string_view validez);

    MarcaFin marca_;
    Ajustes& ajustes_;
    MotorSerie& motor_;
};
