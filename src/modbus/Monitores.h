// The monitors of the station: a frame monitor for every slave and one writes monitor for all of them together.
//
// Frame lines are written only while "Ver TX/RX" is checked; the writes monitor is always written.
#pragma once

#include "modbus/TextoMonitor.h"

#include <memory>
#include <vector>

class Monitores {
public:
    bool verTxRx = false; // the check box "Ver TX/RX"

    // The frame monitor of a slave (from 0), made on first use; the reference stays valid.
    TextoMonitor& tramas(int esclavo);

    TextoMonitor& escrituras() { return escrituras_; }

    // The frame lines of all slaves together, under the same limit.
    TextoMonitor& todas() { return todas_; }

    // Appends a frame line to the slave's monitor and to that of all slaves.
    void agregarTrama(int esclavo, std::string_view linea) {
        tramas(esclavo).agregar(linea);
        todas_.agregar(linea);
    }

    // "Borrar Tx/Rx": every frame monitor. "Borrar Escrituras": the writes monitor.
    void borrarTramas();
    void borrarEscrituras() { escrituras_.borrar(); }

private:
    std::vector<std::unique_ptr<TextoMonitor>> tramas_;
    TextoMonitor escrituras_;
    TextoMonitor todas_;
};
