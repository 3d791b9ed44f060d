// The window of the serial link: it owns the port, shows what arrives, and hands frames to the script engine.
//
// It opens the port when it is made. Hiding or closing it leaves the port open and receiving; destroying it closes the
// port. A fault within a receive event ends that event and goes to the log.
#pragma once

#include "platform/serial/MSComm.h"
#include "serial/EntornoSerie.h"
#include "serial/InterpreteTramas.h"
#include "serial/Modulo_RS232.h"
#include "serial/RecepcionSerie.h"

#include <QTimer>
#include <QWidget>

#include <optional>

class QLabel;
class QLineEdit;
class VistaTexto;

class frmRS232 final : public QWidget, private VentanaRecepcion, private SalidaTramas {
    Q_OBJECT

public:
    // `carpeta` is the program's folder, where the links com<n> stand. The others are borrowed.
    frmRS232(const QString& carpeta, ConfiguracionSerie& configuracion, LogSerie& log, MotorSerie& motor,
             QWidget* parent = nullptr);

    // Reads the settings, sets the port up and opens it. A step that fails goes to the log and the next one follows.
    void SetearConfig();

    // Interprets a frame text (ANSI): each reading goes to the script engine and to `txtTramas`. Raises what the engine
    // raises.
    void interpretarTrama(std::string_view trama) override;

    // Hands assignments (UTF-8) to the script engine, which executes them at once. Raises what the engine raises.
    void darValor_A_Variable(std::string_view texto) override;

private:
    void crearControles();
    void MSComm_OnComm();
    void timerEstado_Timer();
    void escribirFallo(std::string_view operacion, std::string_view detalle, std::string_view descripcion);

    std::string Input() override;
    void agregarRecibido(std::string_view trozo) override;
    void vigilarSilencio(bool activo) override;
    void agregarListado(std::string_view listado) override;

    ConfiguracionSerie& configuracion_;
    LogSerie& log_;
    MotorSerie& motor_;
    MSComm comm_;
    ConfiguracionRS232 ajustes_;
    std::optional<RecepcionSerie> recepcion_;
    std::optional<InterpreteTramas> interprete_;

    QLineEdit* txtConfigRS232_ = nullptr;
    QLabel* lblEstado_ = nullptr;
    VistaTexto* txtInputCom_ = nullptr;
    VistaTexto* txtTramas_ = nullptr;
    QTimer timerEstado_{this};
    QTimer timerLimpiarBuffer_{this};
};
