#include "serial/Modulo_RS232.h"

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

unsigned char leerCaracter(ConfiguracionSerie& configuracion, LogSerie& log, std::string_view clave,
                           std::string_view porDefecto) {
    const std::string codigo = configuracion.leerConfiguracion(clave, porDefecto);
    try {
        return caracter(codigo, configuracion.signoDecimal());
    } catch (const ErrorEjecucion& error) {
        log.escribirLog("RS232", std::string(clave) + ": " + codigo, "", error.what());
        return caracter(porDefecto, configuracion.signoDecimal());
    }
}

} // namespace

ConfiguracionRS232 ConfiguracionRS232::leer(ConfiguracionSerie& configuracion) {
    ConfiguracionRS232 leida;
    leida.NomCOM = configuracion.leerConfiguracionRS232("NomCOM", "1");
    leida.Baudios = configuracion.leerConfiguracionRS232("Baudios", "9600");
    leida.Paridad = configuracion.leerConfiguracionRS232("Paridad", "N");
    leida.DataBits = configuracion.leerConfiguracionRS232("DataBits", "8");
    leida.StopBit = configuracion.leerConfiguracionRS232("StopBit", "1");
    leida.signoDecimal = configuracion.signoDecimal();
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

MarcaFin leerMarcaFin(ConfiguracionSerie& configuracion, LogSerie& log) {
    const unsigned char primero = leerCaracter(configuracion, log, "Caracter_Fin_TRAMA_1", "10");
    const unsigned char segundo = leerCaracter(configuracion, log, "Caracter_Fin_TRAMA_2", "13");
    return MarcaFin(primero, segundo);
}
