// What scripts see under the name "mw": the public operations of the main window on the register tables.
//
//     mw.escribir 1, 5, mw.leer(1, 4) + 1
//     If mw.leer(1, 0, 3) = 1 Then mw.escribir_bit 1, 0, 3, 0
//
// Slave numbers, addresses and values are converted to doubles as the language does it. Errors of the store become
// script errors with their numbers.
#pragma once

#include "platform/vbscript/Object.h"

#include <functional>

class Esclavos;

class ObjetoMW final : public vbs::NativeObject<ObjetoMW> {
public:
    // The store is borrowed and outlives the object. `ejecucionTimers` is what the operation ejecucion_timers does.
    ObjetoMW(Esclavos& esclavos, std::function<void(double)> ejecucionTimers);

    static std::span<const Member> members();
    std::u16string_view typeName() const override { return u"FrmPrincipal"; }

private:
    static bool leerPronto(vbs::Object& mw, vbs::Value& resultado, std::span<vbs::Value> a) noexcept;
    static bool escribirPronto(vbs::Object& mw, vbs::Value& resultado, std::span<vbs::Value> a) noexcept;
    vbs::Value leer(vbs::Context& context, vbs::Access, vbs::Arguments a);
    vbs::Value escribir(vbs::Context& context, vbs::Access, vbs::Arguments a);
    vbs::Value escribir_C2(vbs::Context& context, vbs::Access, vbs::Arguments a);
    vbs::Value escribir_bit(vbs::Context& context, vbs::Access, vbs::Arguments a);
    vbs::Value singleInt(vbs::Context& context, vbs::Access, vbs::Arguments a);
    vbs::Value nBit(vbs::Context& context, vbs::Access, vbs::Arguments a);
    vbs::Value setearBit(vbs::Context& context, vbs::Access, vbs::Arguments a);
    vbs::Value ejecucionTimers(vbs::Context& context, vbs::Access, vbs::Arguments a);

    Esclavos& esclavos_;
    std::function<void(double)> ejecucionTimers_;
};
