#include "platform/window/Eventos.h"

#include <QCoreApplication>
#include <QScopeGuard>

void Eventos::dejarPasarEventos() {
    using Reloj = std::chrono::steady_clock;
    if (nivel_ >= maxNivel || Reloj::now() - ultima_ < pausa)
        return;
    ++nivel_;
    const auto salida = qScopeGuard([this] {
        --nivel_;
        ultima_ = Reloj::now();
    });
    QCoreApplication::processEvents();
}
