// The rest of the program as the serial link sees it, for tests: settings in memory, the lines of the log, the texts
// that the script engine was given.
#pragma once

#include "AjustesFalsos.h"
#include "serial/EntornoSerie.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

class LogFalso final : public LogSerie {
public:
    virtual ~LogFalso() = default;

    std::vector<std::string> lineas;  // origin>message>detail>description
    std::function<void()> alEscribir; // runs with each line, as the box of the debug switch does

    void escribirLog(std::string_view origen, std::string_view mensaje, std::string_view detalle,
                     std::string_view descripcionError) override {
        std::string linea;
        linea.append(origen).append(">").append(mensaje).append(">").append(detalle).append(">").append(
            descripcionError);
        lineas.push_back(linea);
        if (alEscribir)
            alEscribir();
    }
};

class MotorFalso final : public MotorSerie {
public:
    virtual ~MotorFalso() = default;

    std::vector<std::string> textos;
    std::string rechaza;            // a text that contains this is an error; empty rejects nothing
    std::function<void()> mientras; // what happens while a text runs

    void AddCode(std::string_view codigo) override {
        if (mientras)
            mientras();
        if (!rechaza.empty() && codigo.find(rechaza) != std::string_view::npos)
            throw std::runtime_error("Error de sintaxis");
        textos.emplace_back(codigo);
    }
};
