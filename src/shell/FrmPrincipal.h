// The main window: shows the station and its pages, and brings everything up in order.
//
// It starts hidden; the configuration key "ver" shows and hides it, read again on every tick of TimerCambioPuerto, so
// that hiding survives a restart and a second start of the program brings the running one to the front.
#pragma once

#include "registers/Esclavos.h"
#include "shell/Estacion.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <map>
#include <memory>
#include <string>

class AccionesRegistros;
class BarraEstado;
class FrmAbout;
class FrmConexionesPuentes;
class FrmEstadisticas;
class FrmMW;
class FrmTxRx;
class TeclaManual;
class VistaPagina;
struct ControlesPrincipal;

class FrmPrincipal final : public QWidget, private ObservadorEsclavos, private VentanaEstacion {
    Q_OBJECT

public:
    // The station is borrowed and outlives its window. Nothing runs before cargar().
    explicit FrmPrincipal(Estacion& estacion);
    ~FrmPrincipal() override;

    // The load step: brings everything up in the order that cargar() shows. False when the program is to end at once:
    // it was told to meanwhile, or a previous instance is running (which then has been asked to show itself).
    bool cargar();

    // Ends the program as "Cerrar Esclavo" does: unloads the windows, then leaves every event loop, that of an open
    // message box too.
    void apagar();

    // Ends the running script as soon as possible. May be called from a signal handler.
    void detenerScript() noexcept { estacion_.script().detener(); }

    // A script pass when `num` is exactly 1, and one in any case.
    void ejecucion_timers(double num) { estacion_.script().ejecucion_timers(num); }
    void ejecutarScript() { estacion_.script().ejecutarScript(); }

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    // ObservadorEsclavos
    void esclavoCreado(Pagina& pagina) override;

    // VentanaEstacion
    void mostrarPuerto(const std::string& texto) override;
    void mostrarEscuchando(bool escuchando) override;
    void mostrarAviso(const std::string& texto) override;
    void agregarFila() override;
    void mostrarFila(std::size_t fila, const std::string& ip, const std::string& estado) override;

    void conectarControles();
    void conectarTeclado();
    void crearMenus();
    void repartirPaginasDelManual();
    void crearBarraEstado();
    void irARegistro(int esclavo, int direccion);
    void rechazarSegundaInstancia();
    void crearTablasIniciales();
    void comprobarPuertoYVisibilidad();
    void aplicarVisibilidad();
    void atenderLineaDeComandos();
    void cargarPuentes();
    void editarCodigo();
    void verErrorDelScript();
    void mostrarEstadisticas();
    void mostrarPuentes();
    void mostrarAbout();
    void mostrarSerie();
    void seleccionarPestana(int indice);
    void cambiarEsclavo(int paso);
    void abrirFrmMW(int esclavo, int direccion, const QString& texto);
    void alternarTxRx(bool ver);
    void ocultar();

    Estacion& estacion_;
    std::unique_ptr<ControlesPrincipal> controles_;
    std::unique_ptr<TeclaManual> teclaManual_;
    AccionesRegistros* acciones_ = nullptr; // a child
    std::map<int, VistaPagina*> vistas_;    // by slave number; owned by their parent
    QPointer<FrmAbout> frmAbout_;
    QPointer<FrmEstadisticas> frmEstadisticas_;
    QPointer<FrmTxRx> frmTxRx_;
    QPointer<FrmMW> frmMW_;
    QPointer<FrmConexionesPuentes> frmPuentes_;
    QTimer TimerCambioPuerto_{this};
    QTimer timerAux_{this}; // the script runner's auxiliary tick; nothing starts it
    bool apagada_ = false;
    bool visibilidadAplicada_ = false;
};
