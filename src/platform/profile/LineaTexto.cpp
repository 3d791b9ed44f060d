#include "platform/profile/LineaTexto.h"

#include <algorithm>

LineaTexto tomarLinea(std::string_view& resto) {
    const auto final = std::find_if(resto.begin(), resto.end(), [](char c) { return c == '\r' || c == '\n'; });
    const auto largo = static_cast<std::size_t>(final - resto.begin());
    LineaTexto linea{resto.substr(0, largo), resto.substr(largo)};
    linea.fin = linea.fin.substr(0, linea.fin.starts_with("\r\n") ? 2 : 1);
    resto.remove_prefix(largo + linea.fin.size());
    return linea;
}

std::string_view sinBlancos(std::string_view texto) {
    const std::size_t primero = texto.find_first_not_of(" \t");
    if (primero == std::string_view::npos)
        return {};
    return texto.substr(primero, texto.find_last_not_of(" \t") - primero + 1);
}
