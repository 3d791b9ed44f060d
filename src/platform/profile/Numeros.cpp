#include "platform/profile/Numeros.h"

#include "platform/profile/LineaTexto.h"

#include <charconv>
#include <cstdint>
#include <string>

namespace {

bool esDigito(char c) {
    return c >= '0' && c <= '9';
}

// Digits after "&H" or "&O": up to four hexadecimal ones (16 bits) stand for a 16-bit integer, more for a 32-bit one.
std::optional<double> numeroEnBase(std::string_view digitos, int base) {
    std::uint32_t valor = 0;
    const char* const final = digitos.data() + digitos.size();
    const auto [parada, error] = std::from_chars(digitos.data(), final, valor, base);
    if (error != std::errc{} || parada != final)
        return std::nullopt;
    return valor <= 0xFFFF ? static_cast<std::int16_t>(valor) : static_cast<std::int32_t>(valor);
}

// Copies digits from `texto` to `limpio`, skipping thousands separators after the first digit.
void tomarDigitos(std::string_view& texto, std::string& limpio, char separador = '\0') {
    bool primero = true;
    while (!texto.empty() && (esDigito(texto[0]) || (!primero && separador != '\0' && texto[0] == separador))) {
        if (esDigito(texto[0]))
            limpio += texto[0];
        primero = false;
        texto.remove_prefix(1);
    }
}

void tomarSigno(std::string_view& texto, std::string& limpio) {
    if (texto.empty() || (texto[0] != '-' && texto[0] != '+'))
        return;
    if (texto[0] == '-')
        limpio += '-';
    texto.remove_prefix(1);
}

// Copies "e", a sign and digits; takes nothing when what stands there is no exponent.
void tomarExponente(std::string_view& texto, std::string& limpio) {
    if (texto.empty() || std::string_view("eEdD").find(texto[0]) == std::string_view::npos)
        return;
    std::string_view resto = texto.substr(1);
    std::string exponente = "e";
    tomarSigno(resto, exponente);
    const std::size_t antes = exponente.size();
    tomarDigitos(resto, exponente);
    if (exponente.size() == antes)
        return;
    limpio += exponente;
    texto = resto;
}

} // namespace

std::optional<double> numeroDeTexto(std::string_view texto, char signoDecimal) {
    texto = sinBlancos(texto);
    if (texto.starts_with("&H") || texto.starts_with("&h"))
        return numeroEnBase(texto.substr(2), 16);
    if (texto.starts_with("&O") || texto.starts_with("&o"))
        return numeroEnBase(texto.substr(2), 8);
    std::string limpio; // the same number as std::from_chars reads it
    tomarSigno(texto, limpio);
    const std::size_t sinDigitos = limpio.size();
    tomarDigitos(texto, limpio, signoDecimal == ',' ? '.' : ',');
    if (texto.starts_with(signoDecimal)) {
        texto.remove_prefix(1);
        const std::size_t punto = limpio.size();
        limpio += '.';
        tomarDigitos(texto, limpio);
        if (limpio.size() == punto + 1)
            limpio.pop_back();
    }
    if (limpio.size() == sinDigitos)
        return std::nullopt;
    tomarExponente(texto, limpio);
    double numero = 0;
    const auto [parada, error] = std::from_chars(limpio.data(), limpio.data() + limpio.size(), numero);
    if (!texto.empty() || error != std::errc{} || parada != limpio.data() + limpio.size())
        return std::nullopt;
    return numero;
}
