// The script runner: one pass reads the script file again and hands its text to the engine.
//
// Errors are swallowed; the pass is coloured by its outcome, and the last error is kept for the editor. A pass that is
// asked for while one runs is dropped, so that slow passes never pile up. One that is asked for from inside a handler
// is put off until the handler is through: the script may last, or wait for a person in a box.
#pragma once

#include "platform/clock/Reloj.h"
#include "platform/events/Eventos.h"
#include "platform/vbscript/ScriptControl.h"
#include "script/ConsolaScript.h"
#include "script/Modulo_Codigo.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

// How often and how long the script has run, and how it failed last.
struct Pasadas {
    std::uint64_t cuantas = 0;
    std::chrono::nanoseconds ultima{0};
    std::chrono::nanoseconds maxima{0};
    vbs::ScriptFailure error;         // the last one, good passes since then or not; number 0: none yet
    std::uint64_t pasadaConError = 0; // which pass that was, from 1

    bool fallaAhora() const { return cuantas > 0 && pasadaConError == cuantas; } // the last pass failed
};

class EntornoScript {
public:
    virtual bool ejecucionActiva() const = 0;         // chScript is ticked
    virtual void mostrarResultado(bool sinError) = 0; // the colour of chScript: green or red
    virtual void aplazarPasada() = 0;                 // call ejecutarScript() again from the event loop

protected:
    ~EntornoScript() = default;
};

class EjecutorScript {
public:
    static constexpr double TIMER_SCRIPT = 1; // id of the script timer

    // All borrowed.
    EjecutorScript(vbs::ScriptControl& motor, const Modulo_Codigo& codigo, EntornoScript& entorno, Eventos& eventos,
                   const Reloj& reloj = relojDelSistema());

    // What the program's timer callback does with every timer: a pass when `num` is exactly TIMER_SCRIPT.
    void ejecucion_timers(double num);

    // The same, asked for by a script, so the engine is busy: a pass follows when it is not, but none follows a pass.
    void ejecucionPedidaPorScript(double num);

    // One pass.
    void ejecutarScript();

    // Error of the last pass; number 0 after a good one.
    const vbs::ScriptFailure& ultimoError() const { return ultimoError_; }

    // Since the start; a pass with "Ejecutar" unticked does not count.
    const Pasadas& pasadas() const { return pasadas_; }

    const Reloj& reloj() const { return reloj_; }

    // What the script wrote with WScript.Echo. The name is there for every text that has nothing of its own under it.
    ConsolaScript& consola() { return *consola_; }
    const ConsolaScript& consola() const { return *consola_; }

    // Shows the global variables of the scripts that ran; see ScriptControl::globals().
    void globales(const std::function<void(std::u16string_view, const vbs::Value&, vbs::Context&)>& visitante) {
        motor_.globals(visitante);
    }

private:
    void pasar();
    void ejecutar(const std::string& texto);
    void ponerConsola(const std::string& texto);

    vbs::ScriptControl& motor_;
    const Modulo_Codigo& codigo_;
    EntornoScript& entorno_;
    Eventos& eventos_;
    const Reloj& reloj_;
    vbs::ScriptFailure ultimoError_;
    bool enPasada_ = false;
    Pasadas pasadas_;
    vbs::Ref<ConsolaScript> consola_ = vbs::makeObject<ConsolaScript>();
    bool consolaPuesta_ = false; // the engine knows it
    std::string textoVisto_;     // by ponerConsola()
};
