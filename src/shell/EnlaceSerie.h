// Joins the serial link to the rest of the station: its settings are those of the configuration file, its faults go to
// the daily logs, its readings to the main window's script engine.
#pragma once

#include "platform/clock/Reloj.h"
#include "serial/EntornoSerie.h"
#include "shell/Modulo_DEBUG.h"

#include <QPointer>

#include <filesystem>
#include <string>

class Modulo_Config;
class QWidget;
class frmRS232;

namespace vbs {
class ScriptControl;
}

class EnlaceSerie final : private LogSerie, private MotorSerie, private EntornoDebug {
public:
    // All borrowed. The log lines name `ejecutable`; `depurar` shows every logged error in a message box too.
    EnlaceSerie(QWidget& principal, Modulo_Config& config, vbs::ScriptControl& motor, std::string ejecutable,
                bool depurar, const Reloj& reloj);
    ~EnlaceSerie() override;
    EnlaceSerie(const EnlaceSerie&) = delete;
    EnlaceSerie& operator=(const EnlaceSerie&) = delete;

    // The serial form, made on first use, which opens the port.
    frmRS232& formulario();

    // Takes the form from the screen, if there is one; the port goes on receiving.
    void ocultar();

private:
    // LogSerie
    void escribirLog(std::string_view origen, std::string_view mensaje, std::string_view detalle,
                     std::string_view descripcionError) override;
    // MotorSerie
    void AddCode(std::string_view codigo) override;
    // EntornoDebug
    std::tm ahora() override;
    std::filesystem::path carpetaPrograma() const override;
    std::string nombreEjecutable() const override;
    void mostrarErrorCritico(const std::string& texto, const std::string& titulo) override;

    QWidget& principal_;
    Modulo_Config& config_;
    vbs::ScriptControl& motor_;
    std::string ejecutable_;
    const Reloj& reloj_;
    Modulo_DEBUG log_;
    QPointer<frmRS232> formulario_;
};
