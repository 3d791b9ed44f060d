// The script automation's view of the configuration file.
#pragma once

#include "script/ConfiguracionScript.h"
#include "shell/Modulo_Config.h"

class ConfiguracionScriptIni final : public ConfiguracionScript {
public:
    // Borrowed.
    explicit ConfiguracionScriptIni(const Modulo_Config& config) : config_(config) {}

    std::filesystem::path rutaProyecto() const override { return config_.rutaProyecto(); }
    std::string leerConfiguracion(std::string_view clave, std::string_view porDefecto) override {
        return config_.leerConfiguracion(clave, porDefecto);
    }
    void escribirConfiguracion(std::string_view clave, std::string_view valor) override {
        config_.escribirConfiguracion(clave, valor);
    }

    char16_t signoDecimal() const override { return config_.signoDecimal(); }

private:
    const Modulo_Config& config_;
};
