// Time that passes when a test says so: moves the timers of windows on without waiting for them.
//
//     PasoDelTiempo tiempo(vista);
//     tiempo.pasar(33ms);        // each timer below the view that is due by then fires
//     QCOMPARE(vista.texto(), ...);
//
// What "is not to happen" has not happened when a minute has passed so. As long as the test runs no event loop, no
// timer fires by itself, however slow the machine is.
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QTimer>

#include <algorithm>
#include <chrono>

class PasoDelTiempo {
public:
    using Tiempo = std::chrono::milliseconds;

    // The timers of the object and of all below it; borrowed.
    explicit PasoDelTiempo(QObject& raiz) : raiz_(raiz) {}

    // The timers that are due by the end of that time fire in their order and as often as they are due, and the events
    // that they post run. A timer that was started since the last call counts as begun at that call's end.
    void pasar(Tiempo cuanto) {
        const Tiempo fin = ahora_ + cuanto;
        for (QTimer* uno = primero(); uno != nullptr && citas_[uno].vence <= fin; uno = primero()) {
            Cita& cita = citas_[uno];
            ahora_ = cita.vence;
            cita.vence += std::max(uno->intervalAsDuration(), Tiempo{1});
            if (uno->isSingleShot())
                uno->stop();
            Q_EMIT uno->timeout({});
        }
        ahora_ = fin;
    }

private:
    struct Cita {
        int inicio = -1; // another with every start
        Tiempo vence{};
    };

    QTimer* primero() {
        QCoreApplication::sendPostedEvents();
        QTimer* primero = nullptr;
        const auto todos = raiz_.findChildren<QTimer*>();
        for (QTimer* uno : todos) {
            if (!uno->isActive())
                continue;
            Cita& cita = citas_[uno];
            if (cita.inicio != uno->timerId())
                cita = {uno->timerId(), ahora_ + uno->intervalAsDuration()};
            if (primero == nullptr || cita.vence < citas_[primero].vence)
                primero = uno;
        }
        return primero;
    }

    QObject& raiz_;
    Tiempo ahora_{};
    QHash<QTimer*, Cita> citas_;
};
