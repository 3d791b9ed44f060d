#include "script/ConsolaScript.h"

#include "platform/vbscript/Language.h"
#include "platform/vbscript/Object.h"
#include "script/ResumenValor.h"

#include <algorithm>

namespace {

constexpr std::u16string_view saltos = u"\r\n\u2028\u2029";

void ponerDosCifras(std::u16string& texto, int numero) {
    texto += static_cast<char16_t>(u'0' + numero / 10);
    texto += static_cast<char16_t>(u'0' + numero % 10);
}

std::u16string hora(vbs::Host& host) {
    const vbs::LocalTime ahora = host.now();
    std::u16string texto;
    ponerDosCifras(texto, ahora.hour);
    texto += u':';
    ponerDosCifras(texto, ahora.minute);
    texto += u':';
    ponerDosCifras(texto, ahora.second);
    return texto + u"  ";
}

std::u16string tipoYMedida(vbs::Context& context, const vbs::Value& valor) {
    const ResumenValor resumen = resumirValor(context, valor);
    return resumen.valor.empty() ? resumen.tipo : resumen.tipo + u": " + resumen.valor;
}

// Whether a default member was missing, or wants arguments.
bool sinValorPropio(const vbs::ScriptError& error) {
    const auto numero = static_cast<vbs::ErrorNumber>(error.number);
    return numero == vbs::ErrorNumber::MemberNotFound || numero == vbs::ErrorNumber::WrongArgumentCount;
}

std::u16string textoDe(vbs::Context& context, const vbs::Value& argumento) {
    const vbs::Value& valor = argumento.deref();
    if (valor.isArray() || valor.isMissing() || (valor.isObject() && valor.object() == nullptr))
        return valor.isMissing() ? std::u16string() : tipoYMedida(context, valor);
    vbs::Value propio;
    try {
        propio = vbs::withoutObject(context, valor);
    } catch (const vbs::ScriptError& error) {
        if (!sinValorPropio(error))
            throw;
        return tipoYMedida(context, valor); // an object that has no value of its own
    }
    if (propio.isNull() || propio.isArray() || propio.isObject())
        return tipoYMedida(context, propio);
    return std::u16string(vbs::toString(context, propio).view().substr(0, ConsolaScript::maximo));
}

} // namespace

std::span<const ConsolaScript::Member> ConsolaScript::members() {
    static constexpr Member tabla[] = {
        {u"", nullptr, vbs::readOnly}, // no default member
        {u"Echo", &ConsolaScript::echo, vbs::readOnly, 0, 255},
    };
    return tabla;
}

// Echo a, b, ...: the values as text with a blank between them, each line of it with the time before it.
vbs::Value ConsolaScript::echo(vbs::Context& context, vbs::Access /*access*/, vbs::Arguments argumentos) {
    std::u16string todo;
    for (std::size_t i = 0; i < argumentos.size() && todo.size() <= maximo; ++i)
        todo += (i > 0 ? u" " : u"") + textoDe(context, argumentos[i]);
    const std::u16string cuando = hora(context.host);
    std::u16string_view resto = todo;
    for (;;) {
        const std::size_t fin = std::min(resto.find_first_of(saltos), resto.size());
        escribir(cuando + std::u16string(resto.substr(0, fin)));
        if (fin == resto.size())
            return {};
        resto.remove_prefix(fin + (resto.substr(fin, 2) == u"\r\n" ? 2 : 1));
    }
}

void ConsolaScript::escribir(std::u16string linea) {
    if (linea.size() > maximoLinea) {
        linea.resize(maximoLinea);
        linea.back() = u'…';
    }
    tamano_ += linea.size() + 1;
    lineas_.push_back(std::move(linea));
    while (tamano_ > maximo)
        quitarPrimera();
}

void ConsolaScript::quitarPrimera() {
    tamano_ -= lineas_.front().size() + 1;
    lineas_.pop_front();
    ++idas_;
}

void ConsolaScript::borrar() {
    while (!lineas_.empty())
        quitarPrimera();
}

UsoDeWScript usoDeWScript(std::u16string_view texto) {
    UsoDeWScript uso = UsoDeWScript::Ninguno;
    vbs::Lexer lexer(texto);
    bool trasPunto = false;
    for (vbs::Token token = lexer.next(); token.kind != vbs::Token::Kind::End;) {
        const bool nombrado =
            !trasPunto && token.kind == vbs::Token::Kind::Identifier && vbs::equalNoCase(token.text, u"WScript");
        trasPunto = token.sign == vbs::Token::Sign::Dot;
        token = lexer.next();
        if (nombrado && (token.sign != vbs::Token::Sign::Dot || token.spaceBefore))
            return UsoDeWScript::Propio;
        if (nombrado)
            uso = UsoDeWScript::Miembros;
    }
    return uso;
}
