// The monitors of the station: a frame monitor for every slave and one writes monitor for all of them together.
//
// Frame lines are written only while "Ver TX/RX" is checked; the writes monitor is always written.
#pragma once

#include "modbus/TextoMonitor.h"
#include "modbus/Trafico.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

// What a frame line tells of: a read, a write, or anything else (functions not served, refused addresses, exceptions).
enum class ClaseTrama : std::uint8_t { lectura, escritura, otra };

// Whose and of what kind a line of todas() is.
struct MarcaTrama {
    std::size_t lugar; // where the line begins
    int esclavo;
    ClaseTrama clase;
};

class Monitores {
public:
    bool verTxRx = false; // the check box "Ver TX/RX"

    // The frame monitor of a slave (from 0), made on first use; the reference stays valid.
    TextoMonitor& tramas(int esclavo);

    TextoMonitor& escrituras() { return escrituras_; }

    // The frame lines of all slaves together, under the same limit.
    TextoMonitor& todas() { return todas_; }

    // Appends a frame line to the slave's monitor and to that of all slaves.
    void agregarTrama(int esclavo, ClaseTrama clase, std::string_view linea) {
        tramas(esclavo).agregar(linea);
        if (todas_.texto().empty())
            marcas_.clear();
        marcas_.push_back({todas_.texto().size(), esclavo, clase});
        todas_.agregar(linea);
    }

    // Of each line of todas(), in order; meaningless while that text is empty.
    std::span<const MarcaTrama> marcas() const { return marcas_; }

    // The bytes behind the lines, kept while "Ver TX/RX" is checked.
    Trafico trafico;

    // "Borrar Tx/Rx": every frame monitor, and the bytes behind them. "Borrar Escrituras": the writes monitor.
    void borrarTramas();
    void borrarEscrituras() { escrituras_.borrar(); }

private:
    std::vector<std::unique_ptr<TextoMonitor>> tramas_;
    TextoMonitor escrituras_;
    TextoMonitor todas_;
    std::vector<MarcaTrama> marcas_;
};
