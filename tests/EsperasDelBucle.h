// Counts how often the event loop waits, having nothing to do: what happens at once happens before the first time,
// however slow the machine is.
#pragma once

#include <QAbstractEventDispatcher>

class EsperasDelBucle : public QObject {
public:
    EsperasDelBucle() {
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
                [this] { ++veces; });
    }

    int veces = 0;
};
