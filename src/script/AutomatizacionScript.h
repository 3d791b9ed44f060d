// Script automation of the main window: the engine ScriptControl1 with "mw" in it, the script timer, the check box
// that switches it on, the label that shows its period, and the editor.
//
// A pass takes the thread until the script ends, is stopped or its time is up; while one of its boxes is open the rest
// of the station goes on, and after half a second the operator can stop it (BarraScript). The timer never piles passes
// up: after a pass that took longer than the period, the next one comes a whole period later.
#pragma once

#include "script/EjecutorScript.h"
#include "script/HostScript.h"
#include "script/ObjetoMW.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <chrono>

class Ajustes;
class Esclavos;
class Eventos;
class FrmEdicionCodigo;
class QCheckBox;
class QLabel;
class QWidget;

class AutomatizacionScript final : public QObject, private EntornoScript {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds tiempoLimite{50000}; // of one pass

    // After a pass that had the operator's attention the next one waits at least so long, however short the period: he
    // must be able to untick "Ejecutar". A script that he stopped would take no click there if it ran again.
    static constexpr std::chrono::milliseconds pausaTrasCuadro{1000};
    static constexpr std::chrono::milliseconds pausaTrasParada{5000};

    struct Ventana {
        QWidget& principal; // parent of every message box and of the editor
        QCheckBox& chScript;
        QLabel& lblBaseDeTiempo;
        bool sinPantalla; // nobody sees the windows
    };

    // All borrowed; they outlive this object.
    AutomatizacionScript(Esclavos& esclavos, Ajustes& ajustes, const std::filesystem::path& carpetaPrograma,
                         Eventos& eventos, const Reloj& reloj, const Ventana& ventana,
                         std::chrono::milliseconds limite = tiempoLimite);
    ~AutomatizacionScript() override;

    // Part of the main window's start: gives the engine "mw" and sets chScript from the configuration.
    void iniciar();

    // The timer that iniciar() may have armed runs passes from here on, not before: a script that takes long or waits
    // for an answer must not keep the station from coming up, and it finds the first tables made.
    void empezarPasadas() { puedePasar_ = true; }

    // A pass when `num` is exactly 1.
    void ejecucion_timers(double num) { ejecutor_.ejecucion_timers(num); }

    // One pass.
    void ejecutarScript() { ejecutor_.ejecutarScript(); }

    // Ends the running script as soon as possible, or the next one when none runs. May be called from a signal handler.
    void detener() noexcept { ScriptControl1_.stop(); }

    // The editor, made when there is none and not yet shown. It goes away when it is closed.
    FrmEdicionCodigo& editor();

    // The line, from 1, that the operator is told for that failure: as the open editor numbers them, which may have
    // empty lines at the head of the text that are not run.
    int lineaDe(const vbs::ScriptFailure& fallo) const;

    const Pasadas& pasadas() const { return ejecutor_.pasadas(); }

    vbs::ScriptControl& ScriptControl1() { return ScriptControl1_; }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    // EntornoScript
    bool ejecucionActiva() const override;
    void mostrarResultado(bool sinError) override;
    void aplazarPasada() override;

    void contarFallo();
    void contarPasada();
    void clicChScript();
    void prepararTimers();
    void armarTimer(double periodo);
    void alVencer();
    bool reposando() const { return reloj_.instante() < reposo_; }

    Ajustes& ajustes_;
    Eventos& eventos_;
    const Reloj& reloj_;
    Ventana ventana_;
    HostScript host_;
    Modulo_Codigo codigo_;
    vbs::Ref<ObjetoMW> mw_;
    vbs::ScriptControl ScriptControl1_;
    EjecutorScript ejecutor_;
    QTimer timerScript_{this};
    QTimer timerAplazada_{this}; // a pass that was put off
    QPointer<FrmEdicionCodigo> editor_;
    Reloj::Instante reposo_{}; // no pass before
    bool puedePasar_ = false;
    vbs::ScriptFailure fallo_; // that the tooltip of chScript tells; number 0: none
    Reloj::Hora horaDelFallo_;
};
