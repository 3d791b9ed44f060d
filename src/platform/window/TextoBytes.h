// A text that only grows, kept as the bytes that it came in; it becomes characters only where it is looked at.
//
// A byte is either one character of the ANSI code page or, within a block added as hexadecimal, one cell "[FF]" (upper
// case, no leading zero). A hexadecimal block ends its line. In characters CR and LF each end a line; whether CR and LF
// together end one line or two is chosen at the start.
//
//     TextoBytes texto(TextoBytes::CrLf::dosFines);
//     texto.agregar("AB\r");                        // AB ⏎
//     texto.agregarBloque(std::array{0x1, 0xFF});   // [1][FF] ⏎
//
// Positions are byte numbers from 0. A copy costs little and goes on showing what the text was: it shares the bytes,
// and only the original may grow. Memory: the bytes, and a quarter of a byte more for each where there are hexadecimal
// blocks. Finding the start of a line costs a look at each of its bytes, once.
#pragma once

#include "platform/window/TramoMemoria.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class TextoBytes {
public:
    enum class CrLf : std::uint8_t { unFin, dosFines };

    explicit TextoBytes(CrLf crLf) : crLf_(crLf) {}

    void agregar(std::string_view ansi);
    void agregarBloque(std::span<const std::uint8_t> bloque); // as hexadecimal, a line of its own end
    void borrar();

    // Memory in which the bytes added next will stand, for whoever reads them there first: adding the first of them
    // copies nothing. Empty where less than maximoSitio bytes are left; good until anything else is added or emptied.
    std::span<std::uint8_t> sitio();
    static constexpr std::size_t maximoSitio = 65536;

    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }

    std::uint8_t en(std::size_t posicion) const; // posicion < size(), here and below
    bool hexadecimal(std::size_t posicion) const;
    bool terminaLinea(std::size_t posicion) const; // the line ends with this byte
    // Characters that the byte takes in its row: 1, of a cell 3 or 4, 0 of what only ends a line.
    int ancho(std::size_t posicion) const;

    // First byte of the line that the byte belongs to; `posicion` may be size().
    std::size_t inicioLinea(std::size_t posicion) const;

    // Appends the characters of the bytes [desde, hasta), '\n' for each line end. With `dondes` also the byte of each
    // character.
    void texto(std::size_t desde, std::size_t hasta, std::u16string& destino,
               std::vector<std::size_t>* dondes = nullptr) const;
    std::u16string texto(std::size_t desde, std::size_t hasta) const;

private:
    static constexpr std::size_t porTrozo = TramoMemoria::bytes;
    static constexpr std::size_t trozosPequenos = 2; // that many do without large pages, which count as used at once

    struct Trozo {
        std::vector<char, AsignadorTramos<char>> bytes;
        // One bit a byte, empty while the piece has no hexadecimal block: is it a cell, does it end a block?
        std::vector<bool> esCelda;
        std::vector<bool> esFin;
    };

    const Trozo& trozoDe(std::size_t posicion) const { return *trozos_[posicion / porTrozo]; }
    bool finDeBloque(std::size_t posicion) const;
    std::shared_ptr<Trozo> trozoNuevo() const;
    void anexar(std::string_view bytes, bool celdas);
    std::size_t trasUltimoFin(std::size_t desde, std::size_t hasta) const;

    CrLf crLf_;
    std::size_t size_ = 0;
    std::vector<std::shared_ptr<Trozo>> trozos_; // all but the last hold porTrozo bytes
    // The last line looked for: no line ends within [sinFinDesde_, sinFinHasta_), and one does before it.
    mutable std::size_t sinFinDesde_ = 0;
    mutable std::size_t sinFinHasta_ = 0;
};

// Asked for each byte of a row, and in a block of hexadecimal for each byte of the block.

inline std::uint8_t TextoBytes::en(std::size_t posicion) const {
    return static_cast<std::uint8_t>(trozoDe(posicion).bytes[posicion % porTrozo]);
}

inline bool TextoBytes::hexadecimal(std::size_t posicion) const {
    const Trozo& trozo = trozoDe(posicion);
    return !trozo.esCelda.empty() && trozo.esCelda[posicion % porTrozo];
}

inline bool TextoBytes::finDeBloque(std::size_t posicion) const {
    const Trozo& trozo = trozoDe(posicion);
    return !trozo.esFin.empty() && trozo.esFin[posicion % porTrozo];
}

inline bool TextoBytes::terminaLinea(std::size_t posicion) const {
    if (hexadecimal(posicion))
        return finDeBloque(posicion);
    const std::uint8_t b = en(posicion);
    if (b != '\r' || crLf_ == CrLf::dosFines)
        return b == '\r' || b == '\n';
    const std::size_t otra = posicion + 1; // a CR is the end unless its LF is
    return otra == size_ || hexadecimal(otra) || en(otra) != '\n';
}

inline int TextoBytes::ancho(std::size_t posicion) const {
    const std::uint8_t b = en(posicion);
    if (hexadecimal(posicion))
        return b < 16 ? 3 : 4;
    return b == '\r' || b == '\n' ? 0 : 1;
}
