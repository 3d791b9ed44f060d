// What happens when characters arrive, and when the line stays silent.
//
// One receive event gathers what waits, cuts frames, interprets them and lists their readings, until nothing waits any
// more. Its frame text is never emptied in between: a frame of an earlier pass is interpreted again in each later
// pass. Deliberate.
//
// However an event ends, alCallar() judges the silence from its end on: a refused reading leaves nothing behind that a
// pause would not clear.
#pragma once

#include "serial/CortadorTramas.h"
#include "serial/InterpreteTramas.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

// Where the operator sees what happens. All texts but the cause are ANSI.
class SalidaSerie {
public:
    // Appends to the raw text of everything received.
    virtual void agregarRecibido(std::string_view trozo) = 0;

    // Appends the readings of one frame text, each followed by CR LF, to the list of frames.
    virtual void agregarListado(std::string_view listado) = 0;

    // A reading was refused, or (with an empty one) the port could not be read; the event ends with it.
    virtual void rechazar(std::string_view lectura, std::string_view causa) = 0;

protected:
    ~SalidaSerie() = default;
};

class RecepcionSerie {
public:
    // The characters waiting at the port (ANSI bytes), taken; empty without any. May raise a std::exception.
    using Entrada = std::function<std::string()>;

    // All but the mark and the input are borrowed.
    RecepcionSerie(const MarcaFin& marca, Ajustes& ajustes, MotorSerie& motor, Entrada Input, SalidaSerie& salida)
        : cortador_(marca), interprete_(marca, ajustes, motor), Input_(std::move(Input)), salida_(salida) {}

    // The receive event, of whatever kind. Faults go to the output, none passes through.
    void alRecibir();

    // Every tick of the silence timer: forgets an unfinished frame when nothing came since the last event.
    void alCallar();

    std::string_view buffer() const { return cortador_.buffer(); }

private:
    void recibir();

    CortadorTramas cortador_;
    InterpreteTramas interprete_;
    Entrada Input_;
    SalidaSerie& salida_;
    std::uint64_t instantanea_ = 0; // version of the buffer at the end of the last event
};
