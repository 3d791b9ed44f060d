// Settings in memory, with the write-back of the real ones.
#pragma once

#include "script/ConfiguracionScript.h"

#include <map>
#include <string>
#include <vector>

class ConfiguracionFalsa final : public ConfiguracionScript {
public:
    std::filesystem::path rutaProyecto() const override { return proyecto; }
    std::string leerConfiguracion(std::string_view clave, std::string_view porDefecto) override {
        return claves.try_emplace(std::string(clave), porDefecto).first->second;
    }
    void escribirConfiguracion(std::string_view clave, std::string_view valor) override {
        claves[std::string(clave)] = valor;
        escritas.emplace_back(clave);
    }
    char16_t signoDecimal() const override { return u','; }

    std::filesystem::path proyecto;
    std::map<std::string, std::string> claves;
    std::vector<std::string> escritas; // keys, in order; write-backs do not count
};
