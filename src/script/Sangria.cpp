#include "script/Sangria.h"

#include "platform/vbscript/Language.h"

#include <vector>

using vbs::Token;
using vbs::Word;

namespace {

using Sentencia = std::vector<Token>; // without colons and comments

void aplicarApertura(EfectoLinea& efecto) {
    ++efecto.abre;
}

void aplicarCierre(EfectoLinea& efecto) {
    if (efecto.abre > 0)
        --efecto.abre;
    else
        ++efecto.cierra;
}

bool abreProcedimiento(const Sentencia& sentencia) {
    for (const Token& token : sentencia) {
        switch (token.word) {
        case Word::Sub:
        case Word::Function:
        case Word::Property:
        case Word::Class:
            return true;
        case Word::Public:
        case Word::Private:
        case Word::Default:
            break;
        default:
            return false;
        }
    }
    return false;
}

bool acabaBloque(Word trasEnd) {
    switch (trasEnd) {
    case Word::If:
    case Word::Select:
    case Word::With:
    case Word::Sub:
    case Word::Function:
    case Word::Property:
    case Word::Class:
        return true;
    default:
        return false;
    }
}

void aplicar(EfectoLinea& efecto, const Sentencia& sentencia) {
    if (sentencia.empty())
        return;
    switch (sentencia.front().word) {
    case Word::If:
        if (sentencia.back().word == Word::Then)
            aplicarApertura(efecto);
        break;
    case Word::For:
    case Word::Do:
    case Word::While:
    case Word::With:
        aplicarApertura(efecto);
        break;
    case Word::Select: // the list of cases and the first case in it
        aplicarApertura(efecto);
        aplicarApertura(efecto);
        break;
    case Word::Else:
    case Word::ElseIf:
    case Word::Case:
        aplicarCierre(efecto);
        aplicarApertura(efecto);
        break;
    case Word::Next:
    case Word::Loop:
    case Word::Wend:
        aplicarCierre(efecto);
        break;
    case Word::End:
        if (sentencia.size() > 1 && acabaBloque(sentencia[1].word))
            aplicarCierre(efecto);
        if (sentencia.size() > 1 && sentencia[1].word == Word::Select)
            aplicarCierre(efecto);
        break;
    default:
        if (abreProcedimiento(sentencia))
            aplicarApertura(efecto);
        break;
    }
}

} // namespace

EfectoLinea efectoDeLinea(std::u16string_view linea) {
    EfectoLinea efecto;
    Sentencia sentencia;
    vbs::Lexer lexer(linea);
    for (Token token = lexer.next(); token.kind != Token::Kind::End; token = lexer.next()) {
        if (token.kind == Token::Kind::Colon) {
            aplicar(efecto, sentencia);
            sentencia.clear();
        } else if (token.kind != Token::Kind::Comment) {
            sentencia.push_back(token);
        }
    }
    aplicar(efecto, sentencia);
    return efecto;
}
