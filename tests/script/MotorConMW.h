// A script engine that knows "mw" on a store of its own, as the station makes it.
#pragma once

#include "platform/vbscript/ScriptControl.h"
#include "registers/Esclavos.h"
#include "script/ObjetoMW.h"

#include <string_view>
#include <vector>

struct MotorConMW {
    vbs::Host host;
    Esclavos esclavos;
    std::vector<double> timers; // what ejecucion_timers was called with
    vbs::Ref<ObjetoMW> mw = vbs::makeObject<ObjetoMW>(esclavos, [this](double num) { timers.push_back(num); });
    vbs::ScriptControl motor{host};

    MotorConMW() { motor.addObject(u"mw", vbs::Ref<vbs::Object>(mw.get())); }

    // Runs the text; the number of its error, 0 for none.
    int ejecutar(std::string_view texto) {
        motor.addCode(texto);
        return motor.error().number;
    }

    // What is in the table; -1 where there is no register.
    double registro(int esclavo, std::size_t direccion) const {
        const auto valores = esclavos.valores(esclavo);
        return direccion < valores.size() ? valores[direccion] : -1;
    }
};
