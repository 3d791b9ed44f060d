// The rows that a text takes in a box of so many columns: its lines, broken where a character or a cell would pass the
// last column. Nothing is kept about rows: each is found from a position near it, so a text of any size can be walked
// through from anywhere, whatever the width.
#pragma once

#include "platform/window/TextoBytes.h"

#include <algorithm>
#include <vector>

struct FilaTexto {
    std::size_t desde = 0; // first byte
    std::size_t hasta = 0; // past the last one, its line end included
    bool operator==(const FilaTexto&) const = default;
};

class FilasTexto {
public:
    // The text is borrowed. At least 4 columns: the widest cell.
    FilasTexto(const TextoBytes& texto, int columnas) : texto_(texto), columnas_(std::max(columnas, 4)) {}

    // The row that begins at the byte. At size() the empty one after the last line end.
    FilaTexto desde(std::size_t inicio) const;
    // The row that holds the byte; for size() the last one.
    FilaTexto de(std::size_t posicion) const;
    // The row above; the same one for the first.
    FilaTexto anterior(const FilaTexto& fila) const { return fila.desde == 0 ? fila : de(fila.desde - 1); }
    // The row so many above; the first one if there are not as many.
    FilaTexto porEncima(FilaTexto fila, int cuantas) const;
    bool esUltima(const FilaTexto& fila) const;

    // Column of a byte in its row, from 0; for the row's end the column after its last character.
    int columna(const FilaTexto& fila, std::size_t posicion) const;
    // The byte before which a caret at that column stands. At most the position after the row's last character.
    std::size_t enColumna(const FilaTexto& fila, int columna) const;
    // Past the row's last visible byte: its line end left out.
    std::size_t finVisible(const FilaTexto& fila) const;

private:
    std::size_t principio(std::size_t posicion, std::size_t porEncima) const;

    const TextoBytes& texto_;
    int columnas_;
};
