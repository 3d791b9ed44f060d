#include "registers/Palabra.h"

#include "registers/ErrorEjecucion.h"

#include <cmath>
#include <limits>

namespace {

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
