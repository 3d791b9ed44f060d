#include "shell/Modulo_Config.h"

#include "platform/profile/Numeros.h"
#include "shell/Modulo_modINI.h"

#include <utility>

namespace {

constexpr std::string_view seccionPrincipal = "Trelvano";

} // namespace

Modulo_Config::Modulo_Config(std::filesystem::path carpetaPrograma, char signoDecimal)
    : carpeta_(std::move(carpetaPrograma)), signoDecimal_(signoDecimal) {}

std::filesystem::path Modulo_Config::rutaArchivo() const {
    return carpeta_ / "Sis_Config.ini";
}

std::string Modulo_Config::leerConfiguracion(std::string_view clave, std::string_view porDefecto) const {
    std::string valor = sGetINI(rutaArchivo(), seccionPrincipal, clave, porDefecto);
    if (valor == porDefecto)
        WriteINI(rutaArchivo(), seccionPrincipal, clave, valor);
    return valor;
}

std::string Modulo_Config::leerConfiguracionRS232(std::string_view clave, std::string_view porDefecto) const {
    return leerConfiguracion("RS232_" + std::string(clave), porDefecto);
}

void Modulo_Config::escribirConfiguracion(std::string_view clave, std::string_view valor) const {
    WriteINI(rutaArchivo(), seccionPrincipal, clave, valor);
}

std::optional<double> Modulo_Config::leerNumero(std::string_view clave, std::string_view porDefecto) const {
    return numeroDeTexto(leerConfiguracion(clave, porDefecto), signoDecimal_);
}

std::string Modulo_Config::rutaProyecto() const {
    return sGetINI(rutaArchivo(), "PROYECTO_PREDETERMINADO", "RutaProyecto", "");
}
