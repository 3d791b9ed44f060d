// What of the frame lines the TX/RX window shows, and how.
#pragma once

#include "modbus/Monitores.h"

#include <array>
#include <bitset>
#include <optional>
#include <string>
#include <string_view>

struct FiltroTramas {
    static constexpr std::size_t maximoEsclavos = 256; // that a frame can name

    std::bitset<maximoEsclavos> esclavos = std::bitset<maximoEsclavos>().set();
    std::array<bool, 3> clases{true, true, true}; // by ClaseTrama
    bool hexadecimal = false;

    bool todo() const { return esclavos.all() && clases[0] && clases[1] && clases[2] && !hexadecimal; }
    bool pasa(const MarcaTrama& marca) const {
        return clases[static_cast<std::size_t>(marca.clase)] && marca.esclavo >= 0 &&
               static_cast<std::size_t>(marca.esclavo) < maximoEsclavos &&
               esclavos[static_cast<std::size_t>(marca.esclavo)];
    }
};

// "1, 3-5 8": those slaves; empty: all of them. Nothing when it is no such list.
std::optional<std::bitset<FiltroTramas::maximoEsclavos>> leerEsclavos(std::string_view lista);

// A frame line with its bytes as two hexadecimal digits each; all else stays as it is.
std::string tramaEnHexadecimal(std::string_view linea);
