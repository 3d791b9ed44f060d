// The settings in their file: "Sis_Config.ini" in the program's folder.
//
// Nothing is cached: every access opens the file again, so that an edit made meanwhile is seen. A reader whose result
// equals its default writes it to the file, so that after a first run the user finds every key there. Texts are UTF-8.
//
//     Modulo_Config config(carpetaPrograma());
//     const std::optional<double> puerto = config.leerNumero(claves::puerto);
#pragma once

#include "ajustes/Ajustes.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

class Modulo_Config final : public Ajustes {
public:
    // `signoDecimal`: the locale's, for the keys that are numbers.
    explicit Modulo_Config(std::filesystem::path carpetaPrograma, char16_t signoDecimal = u',');

    std::filesystem::path rutaArchivo() const;

    // Why the file cannot be read, or why the last value that was to be stored could not be (Spanish); empty: all is
    // well. Looks at the file.
    std::string fallo() const;

    // The file is there and cannot be read now: its keys read as their defaults.
    bool ilegible() const;

    // Ajustes. A value is cut to 254 characters; it is written back when it equals the default character for character.
    std::string leerConfiguracion(const Clave& clave) override;
    void escribirConfiguracion(const Clave& clave, std::string_view valor) override;
    char16_t signoDecimal() const override { return signoDecimal_; }

    // Size and place of a window as LugarVentanas writes them, in the section "Ventanas"; empty: none kept.
    std::string lugarDeVentana(std::string_view ventana) const;
    void guardarLugarDeVentana(std::string_view ventana, std::string_view lugar);

private:
    std::filesystem::path carpeta_;
    char16_t signoDecimal_;
    std::error_code ultimaEscritura_;
};
