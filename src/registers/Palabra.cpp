#include "registers/Palabra.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

const char* textoDeError(int numero) {
    switch (numero) {
    case ErrorEjecucion::argumentoNoValido:
        return "Argumento o llamada a procedimiento no válida";
    case ErrorEjecucion::desbordamiento:
        return "Desbordamiento";
    case ErrorEjecucion::memoriaAgotada:
        return "Memoria agotada";
    case ErrorEjecucion::indiceFueraDeIntervalo:
        return "El subíndice está fuera del intervalo";
    case ErrorEjecucion::tiposNoCoinciden:
        return "No coinciden los tipos";
    default:
        return "Error en tiempo de ejecución";
    }
}

template <typename Entero>
Entero redondear(double x) {
    const double redondo = std::nearbyint(x); // the default rounding mode: halves to even
    if (!(redondo >= std::numeric_limits<Entero>::min() && redondo <= std::numeric_limits<Entero>::max()))
        throw ErrorEjecucion(ErrorEjecucion::desbordamiento);
    return static_cast<Entero>(redondo);
}

double peso(std::int16_t bit) {
    return std::ldexp(1.0, bit);
}

} // namespace

ErrorEjecucion::ErrorEjecucion(int numero) : std::runtime_error(textoDeError(numero)), numero_(numero) {}

std::int32_t redondear32(double x) {
    return redondear<std::int32_t>(x);
}

std::int16_t entero16(double x) {
    return redondear<std::int16_t>(x);
}

double SINGLEINT(double numeroAComb) {
    return numeroAComb < 0 ? numeroAComb + 65536 : numeroAComb;
}

double SIGNINT(double numeroAComb) {
    return (entero32(numeroAComb) & 32767) - 32768.0 * NBit(numeroAComb, 15);
}

std::int16_t NBit(double palabraDecimal, std::int16_t bit) {
    return (entero32(palabraDecimal) & entero32(peso(bit))) >= 1 ? 1 : 0;
}

double SetearBIT_YDevolverPalabra(double palabra, std::int16_t bit, std::int16_t valor) {
    if (valor == 1)
        return entero32(peso(bit)) | entero32(palabra);
    return entero32(65535 - peso(bit)) & entero32(palabra);
}

std::string textoDeNumero(double x, char separadorDecimal) {
    constexpr int cifras = 15;
    std::array<char, 64> buffer{};
    x += 0.0; // negative zero is shown as 0
    // Small numbers stay in positional notation as long as all their digits fit behind the separator.
    auto fin = std::to_chars(buffer.data(), buffer.data() + buffer.size(), x, std::chars_format::general, cifras).ptr;
    if (const auto exponente = std::find(buffer.data(), fin, 'e'); exponente != fin) {
        const auto mantisa = std::count_if(buffer.data(), exponente, [](char c) { return c >= '0' && c <= '9'; });
        const int potencia = std::atoi(exponente + 1);
        if (potencia < 0 && mantisa - 1 - potencia <= cifras)
            fin = std::to_chars(buffer.data(), buffer.data() + buffer.size(), x, std::chars_format::fixed,
                                static_cast<int>(mantisa) - 1 - potencia)
                      .ptr;
    }
    std::string texto(buffer.data(), fin);
    std::replace(texto.begin(), texto.end(), '.', separadorDecimal);
    std::replace(texto.begin(), texto.end(), 'e', 'E');
    return texto;
}
