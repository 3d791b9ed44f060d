// Letting pending window events run in the middle of a piece of work.
//
// Called after every byte of a long loop it stays cheap: within a millisecond of the last time it returns at once.
// It may be called again by a handler that it has started; beyond a few levels it returns at once as well, so that
// handlers cannot pile up on the stack. One instance for the program, handed to those who need it.
#pragma once

#include <chrono>

class Eventos {
public:
    static constexpr std::chrono::milliseconds pausa{1};
    static constexpr int maxNivel = 4;

    // Runs what is pending now: one turn of the event loop without waiting.
    void dejarPasarEventos();

private:
    std::chrono::steady_clock::time_point ultima_{};
    int nivel_ = 0;
};
