#include "serial/Modulo_RS232.h"

#include "ajustes/Claves.h"
#include "platform/text/Numbers.h"
#include "registers/ErrorEjecucion.h"
#include "registers/Palabra.h"

namespace {

// The character of a code. Raises ErrorEjecucion.
unsigned char caracter(std::string_view codigo, char16_t signoDecimal) {
    const std::int32_t numero = entero32(numeroDeAjuste(codigo, signoDecimal));
    if (numero < 0 || numero > 255)
        throw ErrorEjecucion(ErrorEjecucion::argumentoNoValido);
    return static_cast<unsigned char>(numero);
}

unsigned char leerCaracter(Ajustes& ajustes, LogSerie& log, const Clave& clave) {
    const std::string codigo = ajustes.leerConfiguracion(clave);
    try {
        return caracter(codigo, ajustes.signoDecimal());
    } catch (const ErrorEjecucion& error) {
        log.escribirLog("RS232", std::string(clave.nombre) + ": " + codigo, "", error.what());
        return caracter(clave.porDefecto, ajustes.signoDecimal());
    }
}

} // namespace

ConfiguracionRS232 ConfiguracionRS232::leer(Ajustes& ajustes) {
    ConfiguracionRS232 leida;
    leida.NomCOM = ajustes.leerConfiguracion(claves::puertoSerie);
    leida.Baudios = ajustes.leerConfiguracion(claves::baudios);
    leida.Paridad = ajustes.leerConfiguracion(claves::paridad);
    leida.DataBits = ajustes.leerConfiguracion(claves::bitsDeDatos);
    leida.StopBit = ajustes.leerConfiguracion(claves::bitsDeParada);
    leida.signoDecimal = ajustes.signoDecimal();
    return leida;
}

std::int16_t ConfiguracionRS232::CommPort() const {
    return entero16(numeroDeAjuste(NomCOM, signoDecimal));
}

std::string ConfiguracionRS232::Settings() const {
    return Baudios + "," + Paridad + "," + DataBits + "," + StopBit;
}

double numeroDeAjuste(std::string_view texto, char16_t signoDecimal) {
    const std::optional<double> numero = text::readNumber(texto, signoDecimal);
    if (!numero)
        throw ErrorEjecucion(ErrorEjecucion::tiposNoCoinciden);
    return *numero;
}

MarcaFin leerMarcaFin(Ajustes& ajustes, LogSerie& log) {
    const unsigned char primero = leerCaracter(ajustes, log, claves::finDeTrama1);
    const unsigned char segundo = leerCaracter(ajustes, log, claves::finDeTrama2);
    return MarcaFin(primero, segundo);
}
