// Finding a pattern in what a TextoBytes shows, with regard to case or without.
//
// A text is searched piece by piece, so that the caller may pause between two pieces of a large one.
#pragma once

#include "platform/window/TextoBytes.h"

#include <string_view>

class BusquedaTexto {
public:
    static constexpr std::size_t pieza = 32768; // bytes that are well searched at once

    struct Hallazgo {
        std::size_t desde = 0; // first byte
        std::size_t hasta = 0; // past the last one
    };

    BusquedaTexto() = default;
    explicit BusquedaTexto(std::u16string_view patron, bool conCaja = false);

    bool empty() const { return patron_.empty(); }

    // Every occurrence that begins in the bytes [desde, hasta), overlapping ones too, in order.
    std::vector<Hallazgo> en(const TextoBytes& texto, std::size_t desde, std::size_t hasta) const;

private:
    void doblar(std::u16string& texto) const;

    std::u16string patron_; // in small letters, unless the case counts
    bool conCaja_ = false;
};
