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
    // that they post run. A timer that was started since the last call counts as begun at that call's end; one that is
    // started anew while it runs is due as it was.
    void pasar(Tiempo cuanto) {
        const Tiempo fin = ahora_ + cuanto;
        for (QTimer* uno = primero(); uno != nullptr && vencen_[uno] <= fin; uno = primero()) {
            ahora_ = vencen_[uno];
            if (uno->isSingleShot()) {
                vencen_.remove(uno);
                uno->stop();
            } else {
                vencen_[uno] += std::max(uno->intervalAsDuration(), Tiempo{1});
            }
            Q_EMIT uno->timeout({});
        }
        ahora_ = fin;
    }

private:
    QTimer* primero() {
        QCoreApplication::sendPostedEvents();
        QTimer* primero = nullptr;
        const auto todos = raiz_.findChildren<QTimer*>();
        for (QTimer* uno : todos) {
            if (!uno->isActive()) {
                vencen_.remove(uno);
                continue;
            }
            if (!vencen_.contains(uno))
                vencen_[uno] = ahora_ + uno->intervalAsDuration();
            if (primero == nullptr || vencen_[uno] < vencen_[primero])
                primero = uno;
        }
        return primero;
    }

    QObject& raiz_;
    Tiempo ahora_{};
    QHash<QTimer*, Tiempo> vencen_;
};
