// What the script runner and its editor need of the configuration file. Texts are UTF-8.
#pragma once

#include "script/Modulo_Codigo.h"

#include <string>
#include <string_view>

class ConfiguracionScript : public AjustesCodigo {
public:
    static constexpr std::string_view claveEjecutar = "Codigo_Ejecutar";
    static constexpr std::string_view clavePeriodo = "Ejecucion_Codigo_Milisegundos"; // decimal text

    // Writes the default back when the value read equals it.
    virtual std::string leerConfiguracion(std::string_view clave, std::string_view porDefecto) = 0;
    virtual void escribirConfiguracion(std::string_view clave, std::string_view valor) = 0;

    // The decimal sign of the numbers in the file and in what the operator types.
    virtual char16_t signoDecimal() const = 0;

protected:
    ~ConfiguracionScript() = default;
};
