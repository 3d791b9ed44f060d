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
// those of the block walked. Here walks begin that reach the row of `posicion`: as far above it as asked if there are
// characters, or else at the first row of the line.
std::size_t FilasTexto::principio(std::size_t posicion, std::size_t porEncima) const {
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
    const std::size_t numero = (caracter - inicio) / ancho;
    return inicio + (numero - std::min(numero, porEncima)) * ancho;
}

FilaTexto FilasTexto::de(std::size_t posicion) const {
    FilaTexto fila = desde(principio(posicion, 0));
    while (fila.hasta <= posicion && fila.hasta < texto_.size())
        fila = desde(fila.hasta);
    return fila;
}

// Line by line, each walked once: a row of a block is found only from the block's first one on.
FilaTexto FilasTexto::porEncima(FilaTexto fila, int cuantas) const {
    std::vector<FilaTexto> ultimas; // a ring of the rows walked last
    for (auto faltan = static_cast<std::size_t>(std::max(cuantas, 0)); faltan > 0 && fila.desde > 0;) {
        ultimas.resize(faltan);
        std::size_t andadas = 0;
        for (FilaTexto una{0, principio(fila.desde - 1, faltan)}; una.hasta < fila.desde; ++andadas) {
            una = desde(una.hasta);
            ultimas[andadas % faltan] = una;
        }
        fila = ultimas[andadas < faltan ? 0 : andadas % faltan];
        faltan -= std::min(faltan, andadas);
    }
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
