// The script runner: one pass reads the script file again and hands its text to the engine.
//
// Errors are swallowed; the pass is coloured by its outcome, and the last error is kept for the editor. A pass that is
// still running when another is asked for is finished first: the other is dropped, so that slow passes never pile up.
#pragma once

#include "platform/vbscript/ScriptControl.h"
#include "script/Modulo_Codigo.h"

class EntornoScript {
public:
    virtual bool ejecucionActiva() const = 0;         // chScript is ticked
    virtual void mostrarResultado(bool sinError) = 0; // the colour of chScript: green or red
    virtual void dejarPasarEventos() = 0;

protected:
    ~EntornoScript() = default;
};

class EjecutorScript {
public:
    static constexpr double TIMER_SCRIPT = 1; // id of the script timer

    // All borrowed.
    EjecutorScript(vbs::ScriptControl& motor, const Modulo_Codigo& codigo, EntornoScript& entorno);

    // What the program's timer callback does with every timer: a pass when `num` is exactly TIMER_SCRIPT.
    void ejecucion_timers(double num);

    // One pass.
    void ejecutarScript();

    // Error of the last pass; number 0 after a good one.
    const vbs::ScriptFailure& ultimoError() const { return ultimoError_; }

private:
    vbs::ScriptControl& motor_;
    const Modulo_Codigo& codigo_;
    EntornoScript& entorno_;
    vbs::ScriptFailure ultimoError_;
    bool enPasada_ = false;
};
