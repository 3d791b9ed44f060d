#include "script/ResaltadoVBScript.h"

#include "platform/vbscript/Language.h"

#include <QTextDocument>

#include <algorithm>
#include <string>
#include <unordered_set>

using vbs::Token;

namespace {

// User state of a line: what it shows is up to date.
constexpr int sinColorear = -1;
constexpr int coloreada = 1;

std::u16string minusculas(std::u16string_view nombre) {
    std::u16string resultado(nombre);
    std::transform(resultado.begin(), resultado.end(), resultado.begin(), vbs::toLower);
    return resultado;
}

// Names that the language itself brings along: functions, constants, Err.
bool esIncorporada(std::u16string_view nombre) {
    static const std::unordered_set<std::u16string> nombres = [] {
        std::unordered_set<std::u16string> todos{u"err", u"regexp"};
        for (const vbs::Builtin& funcion : vbs::builtins())
            todos.insert(minusculas(funcion.name));
        for (const vbs::NamedConstant& constante : vbs::constants())
            todos.insert(minusculas(constante.name));
        return todos;
    }();
    return nombres.contains(minusculas(nombre));
}

bool esMw(std::u16string_view nombre) {
    return vbs::equalNoCase(nombre, u"mw");
}

// Invalid for what has the colour of the text.
QColor colorDe(const Token& token, const ColoresCodigo& colores, bool trasPunto) {
    switch (token.kind) {
    case Token::Kind::Keyword:
        return colores.palabra;
    case Token::Kind::Comment:
        return colores.comentario;
    case Token::Kind::Text:
        return colores.literal;
    case Token::Kind::Number:
    case Token::Kind::Date:
        return colores.numero;
    case Token::Kind::Identifier:
        if (trasPunto)
            return {};
        if (esMw(token.text))
            return colores.mw;
        return esIncorporada(token.text) ? colores.incorporada : QColor();
    case Token::Kind::Bad:
        return token.error == vbs::ErrorNumber::UnterminatedString ? colores.literal : QColor();
    default:
        return {};
    }
}

} // namespace

void ResaltadoVBScript::cambiarPaleta(const QPalette& paleta, QTextDocument& documento) {
    colores_ = ColoresCodigo(paleta);
    olvidar(documento, 0, documento.characterCount());
}

void ResaltadoVBScript::olvidar(QTextDocument& documento, int posicion, int caracteres) {
    for (QTextBlock linea = documento.findBlock(posicion); linea.isValid() && linea.position() <= posicion + caracteres;
         linea = linea.next())
        linea.setUserState(sinColorear);
}

void ResaltadoVBScript::colorear(QTextBlock& linea) const {
    if (linea.userState() == coloreada)
        return;
    linea.setUserState(coloreada);
    const QString texto = linea.text();
    const auto nuevos = texto.size() <= maximoLinea ? formatos(texto) : QList<QTextLayout::FormatRange>();
    if (linea.layout()->formats() == nuevos)
        return;
    linea.layout()->setFormats(nuevos);
    const_cast<QTextDocument*>(linea.document())->markContentsDirty(linea.position(), linea.length());
}

QList<QTextLayout::FormatRange> ResaltadoVBScript::formatos(const QString& linea) const {
    QList<QTextLayout::FormatRange> rangos;
    vbs::Lexer lexer(
        std::u16string_view(reinterpret_cast<const char16_t*>(linea.utf16()), static_cast<std::size_t>(linea.size())));
    bool trasPunto = false;
    for (Token token = lexer.next(); token.kind != Token::Kind::End; token = lexer.next()) {
        if (const QColor color = colorDe(token, colores_, trasPunto); color.isValid()) {
            QTextLayout::FormatRange rango;
            rango.start = static_cast<int>(token.offset);
            rango.length = static_cast<int>(token.length);
            rango.format.setForeground(color);
            rangos.append(rango);
        }
        trasPunto = token.sign == Token::Sign::Dot;
    }
    return rangos;
}
