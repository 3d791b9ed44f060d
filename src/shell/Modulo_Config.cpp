#include "shell/Modulo_Config.h"

#include "platform/profile/ArchivoBytes.h"
#include "platform/profile/Archivos.h"
#include "shell/Modulo_modINI.h"

#include <utility>

namespace {

constexpr std::string_view seccionVentanas = "Ventanas";

} // namespace

Modulo_Config::Modulo_Config(std::filesystem::path carpetaPrograma, char16_t signoDecimal)
    : carpeta_(std::move(carpetaPrograma)), signoDecimal_(signoDecimal) {}

std::filesystem::path Modulo_Config::rutaArchivo() const {
    return carpeta_ / "Sis_Config.ini";
}

std::string Modulo_Config::leerConfiguracion(const Clave& clave) {
    std::string valor = sGetINI(rutaArchivo(), clave.seccion, clave.nombre, clave.porDefecto);
    if (!clave.ajena && valor == clave.porDefecto)
        escribirConfiguracion(clave, valor);
    return valor;
}

void Modulo_Config::escribirConfiguracion(const Clave& clave, std::string_view valor) {
    const std::string_view ausente = "\n"; // no value has a line end
    if (sGetINI(rutaArchivo(), clave.seccion, clave.nombre, ausente) != valor)
        ultimaEscritura_ = WriteINI(rutaArchivo(), clave.seccion, clave.nombre, valor);
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

std::string Modulo_Config::lugarDeVentana(std::string_view ventana) const {
    return sGetINI(rutaArchivo(), seccionVentanas, ventana, "");
}

void Modulo_Config::guardarLugarDeVentana(std::string_view ventana, std::string_view lugar) {
    ultimaEscritura_ = WriteINI(rutaArchivo(), seccionVentanas, ventana, lugar);
}
