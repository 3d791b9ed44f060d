#include "registers/FormatoRegistro.h"

#include "platform/text/Numbers.h"
#include "platform/text/Utf.h"
#include "registers/Palabra.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace {

constexpr std::string_view cifras = "0123456789ABCDEF";

// `base` is 16 or 2.
std::string enBase(std::uint32_t palabra, unsigned base, std::size_t ancho) {
    std::string texto(ancho, '0');
    for (std::size_t i = ancho; i > 0; --i, palabra /= base)
        texto[i - 1] = cifras[palabra % base];
    return texto;
}

std::uint32_t palabraDe(double valor) {
    return static_cast<std::uint32_t>(entero32(valor));
}

std::string flotante(std::uint32_t bits, char16_t separadorDecimal) {
    const float x = std::bit_cast<float>(bits);
    if (std::isnan(x))
        return "NaN";
    if (std::isinf(x))
        return x > 0 ? "+Inf" : "-Inf";
    // The shortest text that stands for this very single: "0.1", not "0.100000001490116".
    std::array<char, 32> cifrasDeX{};
    const auto fin = std::to_chars(cifrasDeX.data(), cifrasDeX.data() + cifrasDeX.size(), x).ptr;
    std::string texto(cifrasDeX.data(), fin);
    if (const std::size_t punto = texto.find('.'); punto != std::string::npos)
        texto.replace(punto, 1, text::toUtf8(std::u16string_view(&separadorDecimal, 1)));
    return texto;
}

} // namespace

std::string textoDeRegistro(std::span<const double> valores, std::size_t direccion, FormatoRegistro formato,
                            char16_t separadorDecimal) {
    if (direccion >= valores.size())
        return {};
    const double valor = valores[direccion];
    switch (formato) {
    case FormatoRegistro::decimal:
        return text::writeNumber(valor, separadorDecimal);
    case FormatoRegistro::conSigno:
        return text::writeNumber(SIGNINT(valor), separadorDecimal);
    case FormatoRegistro::hexadecimal:
        return enBase(palabraDe(valor), 16, 4);
    case FormatoRegistro::binario:
        return enBase(palabraDe(valor), 2, 16);
    default:
        break;
    }
    if (direccion % 2 != 0 || direccion + 1 >= valores.size())
        return {};
    const std::uint32_t primera = palabraDe(valor);
    const std::uint32_t segunda = palabraDe(valores[direccion + 1]);
    const bool altaPrimero = formato == FormatoRegistro::entero32 || formato == FormatoRegistro::flotante;
    const std::uint32_t bits = altaPrimero ? primera << 16 | segunda : segunda << 16 | primera;
    if (formato == FormatoRegistro::entero32 || formato == FormatoRegistro::entero32Invertido)
        return std::to_string(static_cast<std::int32_t>(bits));
    return flotante(bits, separadorDecimal);
}
