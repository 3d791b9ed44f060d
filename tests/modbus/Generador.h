// Random arrivals, mostly of well-formed frames: several in one arrival, with odd lengths, cut short, damaged, or junk.
// The same start value gives the same arrivals on every machine.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

class Generador {
public:
    explicit Generador(std::uint64_t semilla) : motor_(semilla) {}

    std::vector<std::uint8_t> llegada();

    int hasta(int tope) { return static_cast<int>(motor_() % (static_cast<std::uint64_t>(tope) + 1)); } // 0..tope
    bool unoDe(int n) { return hasta(n - 1) == 0; }

    int unidad();    // few slaves get most of the traffic
    int direccion(); // mostly about the ends of the tables

private:
    int funcion();
    int cantidad();
    void agregarTrama(std::vector<std::uint8_t>& llegada);
    std::uint8_t byte() { return static_cast<std::uint8_t>(hasta(255)); }

    std::mt19937_64 motor_;
};
