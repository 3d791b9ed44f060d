// What happens when characters arrive, and when the line stays silent.
//
// One receive event gathers what waits, cuts frames and hands them on, until nothing waits any more. Its frame text is
// never emptied in between: a frame of an earlier pass is handed on again in each later pass. Deliberate.
#pragma once

#include "serial/CortadorTramas.h"

#include <cstdint>
#include <string>
#include <string_view>

// The window around the port. Input and interpretarTrama may raise a std::exception, which ends the event.
class VentanaRecepcion {
public:
    // The characters waiting (ANSI bytes), taken; empty without any.
    virtual std::string Input() = 0;

    // Appends to the raw text of everything received.
    virtual void agregarRecibido(std::string_view trozo) = 0;

    virtual void interpretarTrama(std::string_view trama) = 0;

    // Starts the timer that calls alCallar anew, or stops it.
    virtual void vigilarSilencio(bool activo) = 0;

protected:
    ~VentanaRecepcion() = default;
};

class RecepcionSerie {
public:
    // The window is borrowed.
    RecepcionSerie(const MarcaFin& marca, VentanaRecepcion& ventana) : cortador_(marca), ventana_(ventana) {}

    // The receive event, of whatever kind. A fault passes through: the silence timer then stays off until the next
    // event, and what was gathered stays in the buffer.
    void alRecibir();

    // Every tick of the silence timer: forgets an unfinished frame when nothing came since the last event.
    void alCallar();

    std::string_view buffer() const { return cortador_.buffer(); }

private:
    CortadorTramas cortador_;
    VentanaRecepcion& ventana_;
    std::uint64_t instantanea_ = 0; // version of the buffer at the end of the last event
};
