#include "platform/window/FilasTexto.h"

FilaTexto FilasTexto::desde(std::size_t inicio) const {
    int columna = 0;
    std::size_t i = inicio;
    while (i < texto_.size()) {
        columna += texto_.ancho(i);
        if (columna > columnas_)
            break;
        if (texto_.terminaLinea(i++))
            break;
    }
    return {inicio, i};
}

// A line is characters, one column each, and then at most one hexadecimal block. Rows of the characters are counted,
// those of the block walked.
FilaTexto FilasTexto::de(std::size_t posicion) const {
    const std::size_t inicio = texto_.inicioLinea(posicion);
    std::size_t caracter = posicion; // the character from whose row on the rows are walked
    if (caracter == texto_.size() && caracter > inicio)
        --caracter;
    if (caracter < texto_.size() && texto_.hexadecimal(caracter))
        while (caracter > inicio && texto_.hexadecimal(caracter))
            --caracter;
    while (caracter > inicio && texto_.ancho(caracter) == 0)
        --caracter;
    const auto ancho = static_cast<std::size_t>(columnas_);
    FilaTexto fila = desde(inicio + (caracter - inicio) / ancho * ancho);
    while (fila.hasta <= posicion && fila.hasta < texto_.size())
        fila = desde(fila.hasta);
    return fila;
}

bool FilasTexto::esUltima(const FilaTexto& fila) const {
    const std::size_t fin = texto_.size();
    return fila.hasta == fin && (fila.desde == fin || !texto_.terminaLinea(fin - 1));
}

int FilasTexto::columna(const FilaTexto& fila, std::size_t posicion) const {
    int columna = 0;
    for (std::size_t i = fila.desde; i < std::min(posicion, fila.hasta); ++i)
        columna += texto_.ancho(i);
    return columna;
}

std::size_t FilasTexto::enColumna(const FilaTexto& fila, int columna) const {
    std::size_t i = fila.desde;
    for (int c = 0; i < finVisible(fila); ++i) {
        const int ancho = texto_.ancho(i);
        if (c + (ancho + 1) / 2 > columna)
            break;
        c += ancho;
    }
    return i;
}

std::size_t FilasTexto::finVisible(const FilaTexto& fila) const {
    std::size_t fin = fila.hasta;
    while (fin > fila.desde && texto_.ancho(fin - 1) == 0)
        --fin;
    return fin;
}
