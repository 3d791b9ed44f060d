// Keeps a fault that comes again and again from filling the log: the first is written, of its repetitions only the
// 10th, the 100th, the 1000th …, each with the count.
//
// A fault is known by its operation and its description, however much its detail changes. A day after its first line it
// counts as new, so that each day's log tells of it. Of more than `maximo` different faults a day the others count
// together, so that a device that sends noise is bounded as well.
#pragma once

#include "serial/EntornoSerie.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

class FallosRepetidos {
public:
    using Hora = std::chrono::steady_clock::time_point;

    static constexpr std::size_t maximo = 32;
    static constexpr std::chrono::hours vigencia{24};

    // The log is borrowed.
    explicit FallosRepetidos(LogSerie& log) : log_(log) {}

    // Counts the fault, and writes it if it is its turn. All texts are UTF-8. Gives back how often it has come.
    std::uint64_t anotar(std::string_view operacion, std::string_view detalle, std::string_view descripcion,
                         Hora ahora);

private:
    struct Cuenta {
        Hora primera;
        std::uint64_t veces = 0;
        std::uint64_t proxima = 1; // count that is written next
    };

    Cuenta& cuentaDe(const std::string& clave, Hora ahora);

    LogSerie& log_;
    std::map<std::string, Cuenta> cuentas_; // by operation and description; "" counts those beyond the maximum
};
