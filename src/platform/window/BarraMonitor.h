// The small buttons beside a monitor: search, save, pause. What they do, VistaTexto does by itself with Ctrl+F, Ctrl+S
// and Ctrl+P; they make it seen. They take no
// focus: who works with keys has those.
#pragma once

#include <QWidget>

class VistaTexto;

class BarraMonitor final : public QWidget {
    Q_OBJECT

public:
    // They belong to the monitor, which gives them their place.
    explicit BarraMonitor(VistaTexto& monitor);
};
