#include "platform/window/EventosQt.h"

#include <QCoreApplication>
#include <QScopeGuard>
#include <QThread>

#include <utility>

void EventosQt::dejarPasarEventos() {
    if (nivel_ >= maxNivel || reloj_.instante() - ultima_ < pausa)
        return;
    const int anterior = std::exchange(bucle_, QThread::currentThread()->loopLevel());
    ++nivel_;
    const auto salida = qScopeGuard([this, anterior] {
        --nivel_;
        bucle_ = anterior;
        ultima_ = reloj_.instante();
    });
    QCoreApplication::processEvents();
}

// A box that was opened inside runs a loop of its own.
bool EventosQt::enElFondo() const {
    return nivel_ == 0 || QThread::currentThread()->loopLevel() > bucle_;
}
