// Settings in memory, with the write-back of the real ones.
#pragma once

#include "ajustes/Ajustes.h"

#include <map>
#include <string>
#include <vector>

class AjustesFalsos : public Ajustes {
public:
    virtual ~AjustesFalsos() = default;

    std::map<std::string, std::string, std::less<>> valores; // by key, the defaults written back included
    std::vector<std::string> leidas;                         // keys, in the order of reading
    std::vector<std::string> escritas;                       // keys, in order; write-backs do not count

    std::string leerConfiguracion(const Clave& clave) override {
        leidas.emplace_back(clave.nombre);
        if (const auto valor = valores.find(clave.nombre); valor != valores.end())
            return valor->second;
        if (!clave.ajena)
            valores.emplace(clave.nombre, clave.porDefecto);
        return std::string(clave.porDefecto);
    }
    void escribirConfiguracion(const Clave& clave, std::string_view valor) override {
        valores[std::string(clave.nombre)] = valor;
        escritas.emplace_back(clave.nombre);
    }
    char16_t signoDecimal() const override { return u','; }
};
