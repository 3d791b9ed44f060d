#include "shell/EnlaceSerie.h"

#include "platform/vbscript/ScriptControl.h"
#include "platform/window/MsgBox.h"
#include "serial/frmRS232.h"
#include "shell/AyudaContextual.h"
#include "shell/Modulo_Config.h"

#include <ctime>
#include <stdexcept>

EnlaceSerie::EnlaceSerie(QWidget& principal, Modulo_Config& config, vbs::ScriptControl& motor, std::string ejecutable,
                         bool depurar, const Reloj& reloj)
    : principal_(principal), config_(config), motor_(motor), ejecutable_(std::move(ejecutable)), reloj_(reloj),
      log_(*this, depurar) {}

EnlaceSerie::~EnlaceSerie() {
    delete formulario_;
}

frmRS232& EnlaceSerie::formulario() {
    if (!formulario_) {
        formulario_ = new frmRS232(QString::fromStdString(carpetaPrograma().string()), config_, *this, *this, reloj_,
                                   &principal_);
        ponerAyudaContextual(*formulario_);
    }
    return *formulario_;
}

void EnlaceSerie::ocultar() {
    if (formulario_)
        formulario_->hide();
}

void EnlaceSerie::escribirLog(std::string_view origen, std::string_view mensaje, std::string_view detalle,
                              std::string_view descripcionError) {
    bool escrito = false; // a log that cannot be written troubles nobody
    log_.escribirLog(escrito, std::string(origen), std::string(mensaje), std::string(detalle),
                     std::string(descripcionError));
}

void EnlaceSerie::AddCode(std::string_view codigo) {
    if (motor_.addCode(codigo))
        return;
    const vbs::ScriptFailure& fallo = motor_.error();
    throw std::runtime_error("error " + std::to_string(fallo.number) + ": " +
                             QString::fromStdU16String(fallo.description).toStdString());
}

std::tm EnlaceSerie::ahora() {
    const std::time_t segundos = reloj_.segundo();
    std::tm local{};
    localtime_r(&segundos, &local);
    return local;
}

std::filesystem::path EnlaceSerie::carpetaPrograma() const {
    return config_.rutaArchivo().parent_path();
}

std::string EnlaceSerie::nombreEjecutable() const {
    return ejecutable_;
}

void EnlaceSerie::mostrarErrorCritico(const std::string& texto, const std::string& titulo) {
    MsgBox(&principal_, QString::fromStdString(texto), vbCritical, QString::fromStdString(titulo));
}
