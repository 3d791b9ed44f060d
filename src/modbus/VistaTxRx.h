// The frame lines of all slaves, as they stand or in hexadecimal, all of them or some.
#pragma once

#include "modbus/FiltroTramas.h"
#include "modbus/VistaMonitor.h"

class VistaTxRx final : public VistaMonitor {
    Q_OBJECT

public:
    // The monitors are borrowed and outlive the box.
    VistaTxRx(Monitores& monitores, QWidget* padre);

    // From now on for what comes, and for what the monitor still holds.
    void filtrar(const FiltroTramas& filtro);

private:
    std::string mostrable(std::string_view lineas, std::size_t lugar) override;

    Monitores& monitores_;
    FiltroTramas filtro_;
};
