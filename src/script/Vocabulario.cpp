#include "script/Vocabulario.h"

#include "platform/vbscript/Language.h"
#include "platform/window/Controles.h"
#include "script/OperacionesMW.h"

#include <QSet>

#include <algorithm>

namespace {

QString argumentosDe(const vbs::Builtin& funcion) {
    if (funcion.most == vbs::anyNumber)
        return funcion.least == 0 ? QStringLiteral("con los argumentos que se quiera")
                                  : QStringLiteral("con %1 argumentos o más").arg(funcion.least);
    if (funcion.least != funcion.most)
        return QStringLiteral("con %1 a %2 argumentos").arg(funcion.least).arg(funcion.most);
    return funcion.most == 0   ? QStringLiteral("sin argumentos")
           : funcion.most == 1 ? QStringLiteral("con 1 argumento")
                               : QStringLiteral("con %1 argumentos").arg(funcion.most);
}

QList<Sugerencia> lenguaje() {
    QList<Sugerencia> todas{{QStringLiteral("mw"), QStringLiteral("mw: los registros de la estación")},
                            {QStringLiteral("WScript"), QStringLiteral("WScript.Echo escribe en la consola")},
                            {QStringLiteral("Err"), QStringLiteral("Err: el último error")}};
    for (const vbs::WordEntry& palabra : vbs::reservedWords())
        todas.append({deUtf16(palabra.name), deUtf16(palabra.name) + QStringLiteral(": palabra de VBScript")});
    for (const vbs::Builtin& funcion : vbs::builtins())
        todas.append({deUtf16(funcion.name),
                      QStringLiteral("%1: función, %2").arg(deUtf16(funcion.name), argumentosDe(funcion))});
    for (const vbs::NamedConstant& constante : vbs::constants())
        todas.append({deUtf16(constante.name), deUtf16(constante.name) + QStringLiteral(": constante")});
    for (const vbs::ObjectFactory& clase : vbs::objectFactories())
        if (clase.name.find(u'.') == std::u16string_view::npos)
            todas.append({deUtf16(clase.name), QStringLiteral("New %1: un objeto").arg(deUtf16(clase.name))});
    std::sort(todas.begin(), todas.end());
    return todas;
}

} // namespace

const QList<Sugerencia>& sugerenciasDeMW() {
    static const QList<Sugerencia> todas = [] {
        QList<Sugerencia> operaciones;
        for (const OperacionMW& operacion : operacionesMW()) {
            const std::string_view nombre = operacion.nombre();
            operaciones.append({deUtf8(nombre), QString::fromUtf8(operacion.firma)});
        }
        std::sort(operaciones.begin(), operaciones.end());
        return operaciones;
    }();
    return todas;
}

const QList<Sugerencia>& sugerenciasDeWScript() {
    static const QList<Sugerencia> todas{
        {QStringLiteral("Echo"), QStringLiteral("WScript.Echo valor [, valor…]: una línea en la consola")}};
    return todas;
}

const QList<Sugerencia>& sugerenciasDelLenguaje() {
    static const QList<Sugerencia> todas = lenguaje();
    return todas;
}

QList<Sugerencia> sugerenciasPara(QStringView texto, qsizetype lugar) {
    QSet<QString> vistos;
    for (const Sugerencia& sugerencia : sugerenciasDelLenguaje())
        vistos.insert(sugerencia.texto.toLower());
    QList<Sugerencia> nombres;
    vbs::Lexer lexer(
        std::u16string_view(reinterpret_cast<const char16_t*>(texto.utf16()), static_cast<std::size_t>(texto.size())));
    bool trasPunto = false;
    for (vbs::Token token = lexer.next(); token.kind != vbs::Token::Kind::End && nombres.size() < maximoNombres;
         token = lexer.next()) {
        const bool nombre = token.kind == vbs::Token::Kind::Identifier && !trasPunto && token.text.size() > 1 &&
                            token.text.size() == token.length; // not in [brackets]
        trasPunto = token.sign == vbs::Token::Sign::Dot;
        if (!nombre || static_cast<qsizetype>(token.offset) + static_cast<qsizetype>(token.length) == lugar)
            continue;
        const QString escrito = deUtf16(token.text);
        if (const QString clave = escrito.toLower(); !vistos.contains(clave)) {
            vistos.insert(clave);
            nombres.append({escrito, escrito + QStringLiteral(": nombre de este texto")});
        }
    }
    nombres += sugerenciasDelLenguaje();
    std::sort(nombres.begin(), nombres.end());
    return nombres;
}
