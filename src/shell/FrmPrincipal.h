// The main window: it owns the register store, the monitors, the listener and the pages, and brings them up in order.
//
// It starts hidden; the configuration key "ver" shows and hides it, read again on every tick of TimerCambioPuerto, so
// that hiding survives a restart and a second start of the program brings the running one to the front.
#pragma once

#include "modbus/Escucha.h"
#include "modbus/Monitores.h"
#include "modbus/Peticiones.h"
#include "platform/net/Reactor.h"
#include "platform/window/Eventos.h"
#include "registers/Esclavos.h"
#include "script/AutomatizacionScript.h"
#include "shell/ConfiguracionScriptIni.h"
#include "shell/EnlaceSerie.h"
#include "shell/RelojSistema.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <map>
#include <memory>
#include <string>

class FrmAbout;
class FrmConexionesPuentes;
class FrmMW;
class FrmTxRx;
class Modulo_Config;
class VistaPagina;
struct ControlesPrincipal;

// What the program was started with.
struct Arranque {
    std::string rutaPrograma;     // the executable's real path
    QString lineaDeComandos;      // the arguments as one text
    bool instanciaPrevia = false; // another copy of the same executable is running
    bool sinPantalla = false;     // nobody sees the windows
    bool depurar = false;         // show every logged error in a message box
    std::chrono::milliseconds limiteScript = AutomatizacionScript::tiempoLimite; // of one script pass
};

class FrmPrincipal final : public QWidget, private ObservadorEsclavos, private EntornoEscucha {
    Q_OBJECT

public:
    // `config` is borrowed and outlives the window. Nothing runs before cargar().
    FrmPrincipal(Modulo_Config& config, Arranque arranque);
    ~FrmPrincipal() override;

    // The load step: brings everything up in the documented order. False when the program is to end at once: it was
    // told to meanwhile, or a previous instance is running (which then has been asked to show itself).
    bool cargar();

    // Ends the program as "Cerrar Esclavo" does: unloads the windows, then leaves every event loop, that of an open
    // message box too.
    void apagar();

    // Ends the running script as soon as possible. May be called from a signal handler.
    void detenerScript() noexcept { script_->detener(); }

    // A script pass when `num` is exactly 1, and one in any case.
    void ejecucion_timers(double num) { script_->ejecucion_timers(num); }
    void ejecutarScript() { script_->ejecutarScript(); }

    const Esclavos& esclavos() const { return esclavos_; }
    const Escucha& escucha() const { return escucha_; }

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    // ObservadorEsclavos
    void esclavoCreado(Pagina& pagina) override;

    // EntornoEscucha
    double leerPuerto() override;
    void guardarPuerto(double puerto) override;
    void mostrarPuerto(const std::string& texto) override;
    void mostrarEscuchando(bool escuchando) override;
    void avisar(const std::string& motivo) override;
    void agregarFila() override;
    void mostrarFila(std::size_t fila, const std::string& ip, const std::string& estado) override;
    void dejarPasarEventos() override;

    void conectarControles();
    void conectarTeclado();
    void rechazarSegundaInstancia();
    void crearTablasIniciales();
    void comprobarPuertoYVisibilidad();
    void aplicarVisibilidad();
    void atenderLineaDeComandos();
    void cargarPuentes();
    void editarCodigo();
    void mostrarPuentes();
    void mostrarAbout();
    void mostrarSerie();
    void seleccionarPestana(int indice);
    void cambiarEsclavo(int paso);
    void abrirFrmMW(int esclavo, int direccion, const QString& texto);
    void alternarTxRx(bool ver);
    void ocultar();

    Modulo_Config& config_;
    Arranque arranque_;
    Esclavos esclavos_;
    Monitores monitores_;
    RelojSistema reloj_;
    Peticiones peticiones_{esclavos_, monitores_, reloj_};
    Reactor reactor_;
    Eventos eventos_;
    Escucha escucha_;

    std::unique_ptr<ControlesPrincipal> controles_;
    ConfiguracionScriptIni configuracionScript_{config_};
    std::unique_ptr<AutomatizacionScript> script_;
    std::unique_ptr<EnlaceSerie> enlaceSerie_;
    std::map<int, VistaPagina*> vistas_; // by slave number; owned by their parent
    QPointer<FrmAbout> frmAbout_;
    QPointer<FrmTxRx> frmTxRx_;
    QPointer<FrmMW> frmMW_;
    QPointer<FrmConexionesPuentes> frmPuentes_;
    QTimer TimerCambioPuerto_{this};
    QTimer timerAux_{this}; // the script runner's auxiliary tick; nothing starts it
    bool apagada_ = false;
};
