// For tests in which nothing is to happen.
#pragma once

#include <QCoreApplication>

// Runs all that is due: events, those that they cause, and timers without an interval.
inline void correrLoPendiente() {
    constexpr int rondas = 5; // more than one event causes another
    for (int ronda = 0; ronda < rondas; ++ronda)
        QCoreApplication::processEvents();
}
