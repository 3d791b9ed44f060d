// What a register's value was over the last hour, sampled where it changes: a line of the chart.
//
// Changes closer together than `grano` are kept as the least, the greatest and the last value of that time, so memory
// has a bound however often a register changes, and no peak is lost. Times are milliseconds since 1970 and never go
// back.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <span>

class HistoriaRegistro {
public:
    static constexpr std::int64_t maxEdad = 3'600'000; // ms
    static constexpr std::int64_t grano = 20;          // ms

    struct Tramo {
        std::int64_t desde; // first change in it
        double minimo;
        double maximo;
        double ultimo; // holds until the next one begins
    };

    // The register has this value from then on. A clock that was set back counts as standing still.
    void anotar(std::int64_t cuando, double valor);

    void vaciar() { tramos_.clear(); }

    // In order of time; the first may begin before the last hour, since its value still held in it.
    const std::deque<Tramo>& tramos() const { return tramos_; }

    // The value at a time, empty before the first one.
    std::optional<double> valorEn(std::int64_t cuando) const;

    // Least and greatest value within [desde, hasta), the one that held at `desde` included. Empty before the first.
    struct Extremos {
        double minimo;
        double maximo;
    };
    std::optional<Extremos> extremos(std::int64_t desde, std::int64_t hasta) const;

private:
    std::deque<Tramo>::const_iterator alcanzado(std::int64_t cuando) const; // first one that begins after it

    std::deque<Tramo> tramos_;
};
