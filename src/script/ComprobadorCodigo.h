// Compiles the text of the editor while one types, on an engine of its own, and tells the first error.
//
// It waits for a pause in the typing, and longer the longer the last compilation took, so that typing never waits for
// it. Beyond `maximo` characters it compiles only when told to.
#pragma once

#include "platform/clock/Reloj.h"
#include "platform/vbscript/ScriptControl.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>

class ComprobadorCodigo final : public QObject {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds pausa{300};
    static constexpr qsizetype maximo = 1'000'000;

    // `texto` gives the text to compile; `cuantos` its length, without the cost of making it. The clock is
    // borrowed.
    ComprobadorCodigo(std::function<QString()> texto, std::function<qsizetype()> cuantos, const Reloj& reloj,
                      QObject* padre);

    // The text has changed: compile it after a pause.
    void pedir();

    // Compiles now, whatever the length.
    void comprobar();

    // What the last compilation took.
    std::chrono::nanoseconds duracion() const { return ultima_; }

Q_SIGNALS:
    // The first error; number 0: it compiles. The columns count as the text box does.
    void comprobado(const vbs::ScriptFailure& resultado);
    // The text is too long to be compiled while one types.
    void demasiadoLargo();

private:
    std::function<QString()> texto_;
    std::function<qsizetype()> cuantos_;
    const Reloj& tiempo_;
    vbs::Host host_;
    vbs::ScriptControl motor_{host_};
    QTimer reloj_{this};
    std::chrono::nanoseconds ultima_{0};
};
