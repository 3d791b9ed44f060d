#include "script/ResumenValor.h"

#include "platform/vbscript/Language.h"
#include "platform/vbscript/Object.h"

#include <algorithm>

namespace {

std::u16string numero(std::size_t n) {
    const std::string cifras = std::to_string(n);
    return {cifras.begin(), cifras.end()};
}

std::u16string tipoDe(vbs::Context& context, const vbs::Value& valor) {
    static const vbs::Builtin& typeName = *vbs::findBuiltin(u"TypeName");
    vbs::Value argumento = valor;
    return std::u16string(typeName.function(context, {&argumento, 1}).text());
}

// "10 x 5 elementos"
std::u16string medidasDe(const vbs::ArrayBlock& matriz) {
    if (matriz.dimensions() == 0)
        return u"sin dimensiones";
    std::u16string medidas;
    for (int i = 0; i < matriz.dimensions(); ++i)
        medidas += (i > 0 ? u" x " : u"") + numero(static_cast<std::size_t>(matriz.size(i)));
    return medidas + (matriz.count() == 1 ? u" elemento" : u" elementos");
}

std::u16string clavesDe(vbs::Context& context, vbs::Dictionary& diccionario) {
    const int cuenta = diccionario.resolve(u"Count");
    const auto claves = vbs::toLong(context, diccionario.invoke(context, cuenta, vbs::Access::Get, {}));
    return numero(static_cast<std::size_t>(claves)) + (claves == 1 ? u" clave" : u" claves");
}

std::u16string enUnaLinea(std::u16string_view texto) {
    std::u16string linea(texto.substr(0, ResumenValor::maximo));
    const auto rompe = [](char16_t c) { return c < u' ' || c == u'\u2028' || c == u'\u2029'; };
    std::replace_if(linea.begin(), linea.end(), rompe, u' ');
    if (texto.size() > ResumenValor::maximo)
        linea.back() = u'…';
    return linea;
}

std::u16string valorDe(vbs::Context& context, const vbs::Value& valor) {
    switch (valor.type) {
    case vbs::Type::Empty:
    case vbs::Type::Undefined:
        return {};
    case vbs::Type::Null:
        return u"Null";
    case vbs::Type::String:
        return u'"' + enUnaLinea(valor.text()) + u'"';
    case vbs::Type::Array:
        return medidasDe(*valor.array());
    case vbs::Type::Object:
        if (auto* const diccionario = dynamic_cast<vbs::Dictionary*>(valor.object()))
            return clavesDe(context, *diccionario);
        return {};
    default:
        return enUnaLinea(vbs::toString(context, valor).view());
    }
}

} // namespace

ResumenValor resumirValor(vbs::Context& context, const vbs::Value& valor) {
    const vbs::Value& propio = valor.deref();
    return {propio.type == vbs::Type::Undefined ? u"Empty" : tipoDe(context, propio), valorDe(context, propio)};
}
