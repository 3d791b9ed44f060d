#include "modbus/FiltroTramas.h"

#include <algorithm>
#include <charconv>

namespace {

bool separa(char c) {
    return c == ' ' || c == ',' || c == ';';
}

// A number from 0 to 255 at the beginning of the list, which it takes away.
std::optional<std::size_t> tomarNumero(std::string_view& lista) {
    std::size_t numero = 0;
    const auto [fin, error] = std::from_chars(lista.data(), lista.data() + lista.size(), numero);
    if (error != std::errc() || numero >= FiltroTramas::maximoEsclavos)
        return std::nullopt;
    lista.remove_prefix(static_cast<std::size_t>(fin - lista.data()));
    return numero;
}

void agregarHexadecimal(std::string& texto, std::string_view decimal) {
    static constexpr std::string_view cifras = "0123456789ABCDEF";
    unsigned byte = 0;
    std::from_chars(decimal.data(), decimal.data() + decimal.size(), byte);
    texto += cifras[byte >> 4 & 0xF];
    texto += cifras[byte & 0xF];
}

bool esByte(std::string_view palabra) {
    return !palabra.empty() && palabra.size() <= 3 &&
           std::all_of(palabra.begin(), palabra.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Where the bytes begin: behind the last word that is none.
std::size_t inicioDeBytes(std::string_view linea) {
    std::size_t fin = linea.find_last_not_of(" \r\n") + 1;
    while (fin > 0) {
        const std::size_t blanco = linea.rfind(' ', fin - 1);
        const std::size_t desde = blanco == std::string_view::npos ? 0 : blanco + 1;
        if (desde < fin && !esByte(linea.substr(desde, fin - desde)))
            return fin;
        fin = blanco == std::string_view::npos ? 0 : blanco;
    }
    return 0;
}

} // namespace

std::optional<std::bitset<FiltroTramas::maximoEsclavos>> leerEsclavos(std::string_view lista) {
    std::bitset<FiltroTramas::maximoEsclavos> esclavos;
    while (!lista.empty() && separa(lista.front()))
        lista.remove_prefix(1);
    if (lista.empty())
        return esclavos.set();
    while (!lista.empty()) {
        const auto primero = tomarNumero(lista);
        if (!primero)
            return std::nullopt;
        auto ultimo = primero;
        if (!lista.empty() && lista.front() == '-') {
            lista.remove_prefix(1);
            ultimo = tomarNumero(lista);
        }
        if (!ultimo || *ultimo < *primero || (!lista.empty() && !separa(lista.front())))
            return std::nullopt;
        for (std::size_t n = *primero; n <= *ultimo; ++n)
            esclavos.set(n);
        while (!lista.empty() && separa(lista.front()))
            lista.remove_prefix(1);
    }
    return esclavos;
}

std::string tramaEnHexadecimal(std::string_view linea) {
    const std::size_t desde = inicioDeBytes(linea);
    std::string texto(linea.substr(0, desde));
    for (std::size_t i = desde; i < linea.size();) {
        const std::size_t fin = std::min(linea.find_first_not_of("0123456789", i), linea.size());
        if (fin > i)
            agregarHexadecimal(texto, linea.substr(i, fin - i));
        if (fin < linea.size())
            texto += linea[fin];
        i = fin + 1;
    }
    return texto;
}
