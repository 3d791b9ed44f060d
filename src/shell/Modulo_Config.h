// The station's settings: file "Sis_Config.ini" in the program's folder, section "Trelvano".
//
// Nothing is cached: every access opens the file again, so that an edit made meanwhile is seen. A reader whose result
// equals its default writes it to the file, so that after a first run the user finds every key there. Texts are UTF-8.
//
//     Modulo_Config config(carpetaPrograma());
//     const std::optional<double> puerto = config.leerNumero("PUERTO_VALOR", "502");
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

class Modulo_Config {
public:
    // `signoDecimal`: the locale's, for the keys that are numbers.
    explicit Modulo_Config(std::filesystem::path carpetaPrograma, char16_t signoDecimal = u',');

    std::filesystem::path rutaArchivo() const;

    // Why the file cannot be read, or why the last value that was to be stored could not be (Spanish); empty: all is
    // well. Looks at the file.
    std::string fallo() const;

    // The value of a key, or the default, written back when the value read equals it character for character.
    std::string leerConfiguracion(std::string_view clave, std::string_view porDefecto) const;

    // leerConfiguracion with "RS232_" before the key.
    std::string leerConfiguracionRS232(std::string_view clave, std::string_view porDefecto) const;

    void escribirConfiguracion(std::string_view clave, std::string_view valor) const;

    // leerConfiguracion as a number; nothing when the text is not numeric (a type mismatch to its reader).
    std::optional<double> leerNumero(std::string_view clave, std::string_view porDefecto) const;

    // The number in the form that leerNumero reads.
    void escribirNumero(std::string_view clave, double numero) const;

    // The file is there and cannot be read now: its keys read as their defaults.
    bool ilegible() const;

    char16_t signoDecimal() const { return signoDecimal_; }

    // Full path of the default project file, empty without one. Belongs to other programs: read, never written.
    std::string rutaProyecto() const;

    // Size and place of a window as LugarVentanas writes them, in the section "Ventanas"; empty: none kept.
    std::string lugarDeVentana(std::string_view ventana) const;
    void guardarLugarDeVentana(std::string_view ventana, std::string_view lugar) const;

private:
    void escribir(std::string_view clave, std::string_view valor) const;

    std::filesystem::path carpeta_;
    char16_t signoDecimal_;
    mutable std::error_code ultimaEscritura_;
};
