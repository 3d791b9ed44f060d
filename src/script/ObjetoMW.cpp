#include "script/ObjetoMW.h"

#include "platform/vbscript/Object.h"
#include "registers/ErrorEjecucion.h"
#include "registers/Esclavos.h"
#include "registers/Palabra.h"

#include <new>

using vbs::Access;
using vbs::Arguments;
using vbs::Context;
using vbs::Value;

namespace {

double numero(Context& context, const Value& argumento) {
    return vbs::toDouble(context, argumento.deref());
}

std::int16_t entero(Context& context, const Value& argumento) {
    return vbs::toInteger(context, argumento.deref());
}

// Runs an operation of the store; what it raises is raised in the script.
template <typename Operacion>
auto comoError(Operacion operacion) {
    try {
        return operacion();
    } catch (const ErrorEjecucion& error) {
        vbs::raise(static_cast<vbs::ErrorNumber>(error.numero()));
    } catch (const std::bad_alloc&) {
        vbs::raise(vbs::ErrorNumber::OutOfMemory);
    }
}

} // namespace

ObjetoMW::ObjetoMW(Esclavos& esclavos, std::function<void(double)> ejecucionTimers)
    : esclavos_(esclavos), ejecucionTimers_(std::move(ejecucionTimers)) {}

std::span<const ObjetoMW::Member> ObjetoMW::members() {
    static constexpr Member tabla[] = {
        {u"", nullptr, vbs::readOnly}, // no default member
        {u"leer", &ObjetoMW::leer, vbs::readOnly, 2, 3, &ObjetoMW::leerPronto},
        {u"escribir", &ObjetoMW::escribir, vbs::readOnly, 3, 3, &ObjetoMW::escribirPronto},
        {u"escribir_C2", &ObjetoMW::escribir_C2, vbs::readOnly, 3, 3},
        {u"escribir_bit", &ObjetoMW::escribir_bit, vbs::readOnly, 4, 4},
        {u"darValorEsclavoLogico", &ObjetoMW::escribir, vbs::readOnly, 3, 3},
        {u"SINGLEINT", &ObjetoMW::singleInt, vbs::readOnly, 1, 1},
        {u"NBit", &ObjetoMW::nBit, vbs::readOnly, 2, 2},
        {u"SetearBIT_YDevolverPalabra", &ObjetoMW::setearBit, vbs::readOnly, 3, 3},
        {u"ejecucion_timers", &ObjetoMW::ejecucionTimers, vbs::readOnly, 1, 1},
    };
    return tabla;
}

// The usual calls: whole slave and address, a register that exists, a plain number to write.
bool ObjetoMW::leerPronto(vbs::Object& mw, Value& resultado, std::span<Value> a) noexcept {
    if (a.size() != 2 || !a[0].isWhole() || !a[1].isWhole())
        return false;
    const double* valor = static_cast<ObjetoMW&>(mw).esclavos_.valorSiExiste(a[0].n, a[1].n);
    if (valor == nullptr)
        return false;
    resultado = Value::ofDouble(*valor);
    return true;
}

bool ObjetoMW::escribirPronto(vbs::Object& mw, Value& /*resultado*/, std::span<Value> a) noexcept {
    if (a.size() != 3 || !a[0].isWhole() || !a[1].isWhole() || !(a[2].isWhole() || a[2].type == vbs::Type::Double))
        return false;
    const double valor = a[2].isWhole() ? static_cast<double>(a[2].n) : a[2].d;
    return static_cast<ObjetoMW&>(mw).esclavos_.escribirSiExiste(a[0].n, a[1].n, valor);
}

Value ObjetoMW::leer(Context& context, Access, Arguments a) {
    const double sclavo = numero(context, a[0]);
    const double direccion = numero(context, a[1]);
    const double numBit = a.size() > 2 && !a[2].isMissing() ? numero(context, a[2]) : -1;
    return Value::ofDouble(comoError([&] { return esclavos_.leer(sclavo, direccion, numBit); }));
}

Value ObjetoMW::escribir(Context& context, Access, Arguments a) {
    const double sclavo = numero(context, a[0]);
    const double direccion = numero(context, a[1]);
    const double valor = numero(context, a[2]);
    comoError([&] { esclavos_.escribir(sclavo, direccion, valor); });
    return Value::empty();
}

Value ObjetoMW::escribir_C2(Context& context, Access, Arguments a) {
    const double sclavo = numero(context, a[0]);
    const double direccion = numero(context, a[1]);
    const double valor = numero(context, a[2]);
    comoError([&] { esclavos_.escribir_C2(sclavo, direccion, valor); });
    return Value::empty();
}

Value ObjetoMW::escribir_bit(Context& context, Access, Arguments a) {
    const double sclavo = numero(context, a[0]);
    const double direccion = numero(context, a[1]);
    const double bit = numero(context, a[2]);
    const double valorBit = numero(context, a[3]);
    comoError([&] { esclavos_.escribir_bit(sclavo, direccion, bit, valorBit); });
    return Value::empty();
}

Value ObjetoMW::singleInt(Context& context, Access, Arguments a) {
    return Value::ofDouble(SINGLEINT(numero(context, a[0])));
}

Value ObjetoMW::nBit(Context& context, Access, Arguments a) {
    const double palabra = numero(context, a[0]);
    const std::int16_t bit = entero(context, a[1]);
    return Value::ofInteger(comoError([&] { return NBit(palabra, bit); }));
}

Value ObjetoMW::setearBit(Context& context, Access, Arguments a) {
    const double palabra = numero(context, a[0]);
    const std::int16_t bit = entero(context, a[1]);
    const std::int16_t valor = entero(context, a[2]);
    return Value::ofDouble(comoError([&] { return SetearBIT_YDevolverPalabra(palabra, bit, valor); }));
}

Value ObjetoMW::ejecucionTimers(Context& context, Access, Arguments a) {
    ejecucionTimers_(numero(context, a[0]));
    return Value::empty();
}
