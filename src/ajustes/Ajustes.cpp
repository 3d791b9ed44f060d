#include "ajustes/Ajustes.h"

#include "platform/text/Numbers.h"

std::optional<double> Ajustes::leerNumero(const Clave& clave) {
    return text::readNumber(leerConfiguracion(clave), signoDecimal());
}

void Ajustes::escribirNumero(const Clave& clave, double numero) {
    escribirConfiguracion(clave, text::writeNumber(numero, signoDecimal()));
}
