#include "shell/Modulo_Config.h"

#include "platform/profile/ArchivoBytes.h"
#include "platform/profile/Archivos.h"
#include "platform/text/Numbers.h"
#include "shell/Modulo_modINI.h"

#include <utility>

namespace {

constexpr std::string_view seccionPrincipal = "Trelvano";
constexpr std::string_view seccionVentanas = "Ventanas";

} // namespace

Modulo_Config::Modulo_Config(std::filesystem::path carpetaPrograma, char16_t signoDecimal)
    : carpeta_(std::move(carpetaPrograma)), signoDecimal_(signoDecimal) {}

std::filesystem::path Modulo_Config::rutaArchivo() const {
    return carpeta_ / "Sis_Config.ini";
}

std::string Modulo_Config::leerConfiguracion(std::string_view clave, std::string_view porDefecto) const {
    std::string valor = sGetINI(rutaArchivo(), seccionPrincipal, clave, porDefecto);
    if (valor == porDefecto)
        escribir(clave, valor);
    return valor;
}

std::string Modulo_Config::leerConfiguracionRS232(std::string_view clave, std::string_view porDefecto) const {
    return leerConfiguracion("RS232_" + std::string(clave), porDefecto);
}

void Modulo_Config::escribirConfiguracion(std::string_view clave, std::string_view valor) const {
    escribir(clave, valor);
}

void Modulo_Config::escribir(std::string_view clave, std::string_view valor) const {
    const std::string_view ausente = "\n"; // no value has a line end
    if (sGetINI(rutaArchivo(), seccionPrincipal, clave, ausente) != valor)
        ultimaEscritura_ = WriteINI(rutaArchivo(), seccionPrincipal, clave, valor);
}

bool Modulo_Config::ilegible() const {
    std::string bytes;
    const std::error_code lectura = leerBytes(rutaArchivo(), bytes);
    return lectura && lectura != std::errc::no_such_file_or_directory;
}

std::string Modulo_Config::fallo() const {
    std::string bytes;
    const std::error_code lectura = leerBytes(rutaArchivo(), bytes);
    if (lectura && lectura != std::errc::no_such_file_or_directory)
        return "No se puede leer " + rutaArchivo().string() + ": " + textoDeError(lectura) +
               ". Valen los valores por defecto.";
    if (ultimaEscritura_)
        return "No se puede escribir " + rutaArchivo().string() + ": " + textoDeError(ultimaEscritura_) +
               ". Los cambios no se guardan.";
    return {};
}

std::optional<double> Modulo_Config::leerNumero(std::string_view clave, std::string_view porDefecto) const {
    return text::readNumber(leerConfiguracion(clave, porDefecto), signoDecimal_);
}

void Modulo_Config::escribirNumero(std::string_view clave, double numero) const {
    escribirConfiguracion(clave, text::writeNumber(numero, signoDecimal_));
}

std::string Modulo_Config::rutaProyecto() const {
    return sGetINI(rutaArchivo(), "PROYECTO_PREDETERMINADO", "RutaProyecto", "");
}

std::string Modulo_Config::lugarDeVentana(std::string_view ventana) const {
    return sGetINI(rutaArchivo(), seccionVentanas, ventana, "");
}

void Modulo_Config::guardarLugarDeVentana(std::string_view ventana, std::string_view lugar) const {
    ultimaEscritura_ = WriteINI(rutaArchivo(), seccionVentanas, ventana, lugar);
}
