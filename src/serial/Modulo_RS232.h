// The settings of the serial link in the configuration file. A setting that is missing is read as its default, which
// the accessor writes back.
#pragma once

#include "serial/EntornoSerie.h"
#include "serial/MarcaFin.h"

#include <cstdint>
#include <string>
#include <string_view>

class Ajustes;

// The five port settings as they stand in the file, unchecked.
struct ConfiguracionRS232 {
    std::string NomCOM;  // port number
    std::string Baudios; // bits a second
    std::string Paridad; // letter
    std::string DataBits;
    std::string StopBit;
    char16_t signoDecimal = u','; // of the numbers above

    static ConfiguracionRS232 leer(Ajustes& ajustes);

    // The port number as a whole number. Raises ErrorEjecucion: tiposNoCoinciden, desbordamiento.
    std::int16_t CommPort() const;

    // "9600,N,8,1"
    std::string Settings() const;
};

// The number that a setting stands for. Raises ErrorEjecucion (tiposNoCoinciden).
double numeroDeAjuste(std::string_view texto, char16_t signoDecimal);

// The configured end mark. A value that is no character code 0 to
// 255 goes to the log and its default (10, 13) takes its place.
MarcaFin leerMarcaFin(Ajustes& ajustes, LogSerie& log);
