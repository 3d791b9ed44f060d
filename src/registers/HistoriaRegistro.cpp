#include "registers/HistoriaRegistro.h"

#include <algorithm>
#include <iterator>

void HistoriaRegistro::anotar(std::int64_t cuando, double valor) {
    if (!tramos_.empty()) {
        Tramo& ultimo = tramos_.back();
        cuando = std::max(cuando, ultimo.desde);
        if (cuando - ultimo.desde < grano) {
            ultimo.minimo = std::min(ultimo.minimo, valor);
            ultimo.maximo = std::max(ultimo.maximo, valor);
            ultimo.ultimo = valor;
            return;
        }
    }
    tramos_.push_back({cuando, valor, valor, valor});
    while (tramos_.size() > 1 && tramos_[1].desde < cuando - maxEdad)
        tramos_.pop_front();
}

std::deque<HistoriaRegistro::Tramo>::const_iterator HistoriaRegistro::alcanzado(std::int64_t cuando) const {
    return std::upper_bound(tramos_.begin(), tramos_.end(), cuando,
                            [](std::int64_t t, const Tramo& tramo) { return t < tramo.desde; });
}

std::optional<double> HistoriaRegistro::valorEn(std::int64_t cuando) const {
    const auto siguiente = alcanzado(cuando);
    return siguiente == tramos_.begin() ? std::nullopt : std::optional(std::prev(siguiente)->ultimo);
}

std::optional<HistoriaRegistro::Extremos> HistoriaRegistro::extremos(std::int64_t desde, std::int64_t hasta) const {
    std::optional<Extremos> hallados;
    if (const auto antes = valorEn(desde - 1))
        hallados = {*antes, *antes};
    for (auto tramo = alcanzado(desde - 1); tramo != tramos_.end() && tramo->desde < hasta; ++tramo) {
        if (!hallados)
            hallados = {tramo->minimo, tramo->maximo};
        hallados->minimo = std::min(hallados->minimo, tramo->minimo);
        hallados->maximo = std::max(hallados->maximo, tramo->maximo);
    }
    return hallados;
}
