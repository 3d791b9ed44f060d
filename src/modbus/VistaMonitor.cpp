#include "modbus/VistaMonitor.h"

#include <chrono>

namespace {
constexpr std::chrono::milliseconds intervalo{33};
} // namespace

VistaMonitor::VistaMonitor(TextoMonitor& monitor, QWidget* padre, Seguimiento seguimiento)
    : VistaTexto(padre), monitor_(monitor), seguimiento_(seguimiento) {
    espera_.setSingleShot(true);
    connect(&espera_, &QTimer::timeout, this, &VistaMonitor::tomar);
    monitor_.observar(this);
    tomar();
    ponerAlDia();
}

VistaMonitor::~VistaMonitor() {
    monitor_.observar(nullptr);
}

void VistaMonitor::textoCambiado() {
    espera_.start(intervalo);
}

bool VistaMonitor::sujeta() const {
    return haySeleccion() || (seguimiento_ == Seguimiento::siEstaAlFinal && !sigueElFinal());
}

QString VistaMonitor::rotuloDeEstado() const {
    return atrasada_ && !pausada() ? QStringLiteral("RETENIDO (Ctrl+Fin: seguir)") : VistaTexto::rotuloDeEstado();
}

void VistaMonitor::tomar() {
    espera_.stop();
    monitor_.visto();
    if (borrados_ != monitor_.borrados()) {
        borrados_ = monitor_.borrados();
        generacion_ = monitor_.generacion();
        tomados_ = 0;
        borrar();
    }
    const bool empezo = generacion_ != monitor_.generacion();
    atrasada_ = pausada() || (empezo && sujeta());
    if (atrasada_) {
        viewport()->update();
        return;
    }
    if (empezo) {
        empezarDeNuevo();
        generacion_ = monitor_.generacion();
        tomados_ = 0;
    }
    if (tomados_ == monitor_.texto().size())
        return;
    const bool alFinal = seguimiento_ == Seguimiento::siempre && !haySeleccion();
    // NOLINTNEXTLINE(clang-analyzer-optin.cplusplus.VirtualCall): a box shows all until it is told what to leave out
    agregar(mostrable(monitor_.texto().substr(tomados_), tomados_));
    tomados_ = monitor_.texto().size();
    if (alFinal)
        moverAlFinal();
}

std::string VistaMonitor::mostrable(std::string_view lineas, std::size_t) {
    return std::string(lineas);
}

void VistaMonitor::empezarOtraVez() {
    generacion_ = monitor_.generacion() - 1; // any other than that of the text
    if (!pausada())
        borrar();
    tomar();
}

void VistaMonitor::pausar(bool pausa) {
    if (pausa)
        tomar();
    VistaTexto::pausar(pausa);
    if (!pausa)
        tomar();
}

void VistaMonitor::soltada() {
    if (atrasada_)
        tomar();
}

void VistaMonitor::showEvent(QShowEvent* evento) {
    tomar();
    VistaTexto::showEvent(evento);
}
