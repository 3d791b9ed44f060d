// Letting pending events run in the middle of a piece of work: the one interface for it.
//
// Whoever calls dejarPasarEventos() has finished what it had in hand, and expects that any window, socket or page may
// be gone when it returns. Work that may last or wait for a person starts only where enElFondo() holds, and asks again
// later otherwise; so nothing that lasts ever stands above a handler that is not through.
#pragma once

class Eventos {
public:
    // Runs what is pending now, without waiting. May return at once, having run nothing.
    virtual void dejarPasarEventos() = 0;

    // Whether the caller runs straight from an event loop (the program's, or that of a box that waits for an answer)
    // and not from inside a dejarPasarEventos().
    virtual bool enElFondo() const = 0;

protected:
    ~Eventos() = default;
};
