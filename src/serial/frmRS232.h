// The window of the serial link: it owns the port, shows what arrives, and hands frames to the script engine.
//
// It opens the port when it is made. Hiding or closing it leaves the port open and receiving; destroying it closes the
// port. It tells why the port is closed, and which reading was refused last and why; both go to the log as well.
#pragma once

#include "platform/clock/Reloj.h"
#include "platform/serial/MSComm.h"
#include "serial/EntornoSerie.h"
#include "serial/FallosRepetidos.h"
#include "serial/Modulo_RS232.h"
#include "serial/RecepcionSerie.h"

#include <QTimer>
#include <QWidget>

#include <optional>

class QLabel;
class QLineEdit;
class VistaTexto;

class frmRS232 final : public QWidget, private SalidaSerie {
    Q_OBJECT

public:
    // `carpeta` is the program's folder, where the links com<n> stand. The others are borrowed.
    frmRS232(const QString& carpeta, Ajustes& ajustes, LogSerie& log, MotorSerie& motor,
             const Reloj& reloj = relojDelSistema(), QWidget* parent = nullptr);

    // Reads the settings, sets the port up and opens it. A step that fails goes to the log and the next one follows.
    void SetearConfig();

private:
    void crearControles();
    void MSComm_OnComm();
    void timerEstado_Timer();
    void abrirPuerto();
    void cerradoPor(std::string_view causa);
    QString conHora(const QString& texto) const;
    std::string conAjustes(std::string_view operacion) const;
    void escribirFallo(std::string_view operacion, std::string_view detalle, std::string_view descripcion);

    // SalidaSerie
    void agregarRecibido(std::string_view trozo) override;
    void agregarListado(std::string_view listado) override;
    void rechazar(std::string_view lectura, std::string_view causa) override;

    Ajustes& ajustes_;
    LogSerie& log_;
    MotorSerie& motor_;
    const Reloj& reloj_;
    MSComm comm_;
    ConfiguracionRS232 configuracion_;
    FallosRepetidos fallosRecepcion_{log_};
    std::optional<RecepcionSerie> recepcion_; // empty until the end mark is read, after the port was opened
    bool llegoAntes_ = false;                 // characters arrived by then
    QString causaCierre_;                     // why the port was not opened or closed by itself

    QLineEdit* txtConfigRS232_ = nullptr;
    QLabel* lblEstado_ = nullptr;
    QLabel* lblCausaCierre_ = nullptr;
    QLabel* lblRechazo_ = nullptr;
    VistaTexto* txtInputCom_ = nullptr;
    VistaTexto* txtTramas_ = nullptr;
    QTimer timerEstado_{this};
    QTimer timerLimpiarBuffer_{this};
};
