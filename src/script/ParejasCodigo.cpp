#include "script/ParejasCodigo.h"

#include "platform/vbscript/Language.h"

#include <algorithm>

using vbs::Token;
using vbs::Word;

namespace {

// Words of one block, or two brackets.
struct Grupo {
    Word tipo = Word::None; // what opened it; None: a bracket
    bool cerrado = false;
    std::vector<Tramo> partes;
};

bool esDeBloque(Word palabra) {
    switch (palabra) {
    case Word::If:
    case Word::Then:
    case Word::ElseIf:
    case Word::Else:
    case Word::End:
    case Word::For:
    case Word::Next:
    case Word::Do:
    case Word::Loop:
    case Word::While:
    case Word::Wend:
    case Word::Select:
    case Word::Case:
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

Tramo tramoDe(const Token& token) {
    return {token.offset, token.length};
}

Tramo tramoDe(const Token& primero, const Token& ultimo) {
    return {primero.offset, ultimo.offset + ultimo.length - primero.offset};
}

// Reads a text statement by statement and gathers its groups.
class Lector {
public:
    explicit Lector(std::u16string_view texto) : lexer_(texto) {}

    std::vector<Grupo> grupos() {
        for (Token token = lexer_.next(); token.kind != Token::Kind::End; token = lexer_.next())
            leer(token);
        acabarSentencia();
        return std::move(grupos_);
    }

private:
    void leer(const Token& token) {
        switch (token.kind) {
        case Token::Kind::NewLine:
            acabarSentencia();
            enIfDeLinea_ = false;
            parentesis_.clear();
            break;
        case Token::Kind::Colon:
            acabarSentencia();
            break;
        case Token::Kind::Comment:
            break;
        default:
            if (token.sign == Token::Sign::Open)
                parentesis_.push_back(nuevo(Word::None, tramoDe(token)));
            else if (token.sign == Token::Sign::Close && !parentesis_.empty())
                cerrarParentesis(tramoDe(token));
            sentencia_.push_back(token);
        }
    }

    std::size_t nuevo(Word tipo, Tramo parte) {
        grupos_.push_back({tipo, false, {parte}});
        return grupos_.size() - 1;
    }

    void cerrarParentesis(Tramo parte) {
        Grupo& grupo = grupos_[parentesis_.back()];
        grupo.partes.push_back(parte);
        grupo.cerrado = true;
        parentesis_.pop_back();
    }

    void abrir(Word tipo, Tramo parte) { bloques_.push_back(nuevo(tipo, parte)); }

    // A word in the middle of the innermost block, if that is of its kind.
    void seguir(Word tipo, Tramo parte) {
        if (!bloques_.empty() && grupos_[bloques_.back()].tipo == tipo)
            grupos_[bloques_.back()].partes.push_back(parte);
    }

    // The end of the innermost block of that kind; what stands open within it was never closed.
    void cerrar(Word tipo, Tramo parte) {
        const auto suyo = std::find_if(bloques_.rbegin(), bloques_.rend(),
                                       [&](std::size_t bloque) { return grupos_[bloque].tipo == tipo; });
        if (suyo == bloques_.rend())
            return;
        Grupo& grupo = grupos_[*suyo];
        grupo.partes.push_back(parte);
        grupo.cerrado = true;
        bloques_.erase(suyo.base() - 1, bloques_.end());
    }

    void acabarSentencia() {
        if (!sentencia_.empty() && !enIfDeLinea_)
            aplicar(sentencia_);
        sentencia_.clear();
    }

    void aplicar(const std::vector<Token>& s) {
        const Token& primero = s.front();
        switch (primero.word) {
        case Word::If:
            enIfDeLinea_ = s.back().word != Word::Then;
            if (!enIfDeLinea_) {
                abrir(Word::If, tramoDe(primero));
                seguir(Word::If, tramoDe(s.back()));
            }
            break;
        case Word::ElseIf:
        case Word::Else:
            seguir(Word::If, tramoDe(primero));
            break;
        case Word::Case:
            seguir(Word::Select, tramoDe(primero));
            break;
        case Word::For:
        case Word::Do:
        case Word::While:
        case Word::With:
        case Word::Select:
            abrir(primero.word, tramoDe(primero));
            break;
        case Word::Next:
            cerrar(Word::For, tramoDe(primero));
            break;
        case Word::Loop:
            cerrar(Word::Do, tramoDe(primero));
            break;
        case Word::Wend:
            cerrar(Word::While, tramoDe(primero));
            break;
        case Word::End:
            if (s.size() > 1 && s[1].kind == Token::Kind::Keyword)
                cerrar(s[1].word, tramoDe(primero, s[1]));
            break;
        default:
            abrirProcedimiento(s);
        }
    }

    void abrirProcedimiento(const std::vector<Token>& s) {
        for (const Token& token : s) {
            switch (token.word) {
            case Word::Sub:
            case Word::Function:
            case Word::Property:
            case Word::Class:
                abrir(token.word, tramoDe(token));
                return;
            case Word::Public:
            case Word::Private:
            case Word::Default:
                break;
            default:
                return;
            }
        }
    }

    vbs::Lexer lexer_;
    std::vector<Token> sentencia_; // so far, without comments
    bool enIfDeLinea_ = false;     // If ... Then with something behind it: no block begins or ends up to the line's end
    std::vector<Grupo> grupos_;
    std::vector<std::size_t> bloques_;    // the open ones, by their index
    std::vector<std::size_t> parentesis_; // likewise
};

bool toca(const Tramo& tramo, std::size_t lugar) {
    return lugar >= tramo.inicio && lugar <= tramo.inicio + tramo.largo;
}

} // namespace

bool puedeTenerPareja(std::u16string_view linea, std::size_t columna) {
    const auto esParentesis = [&](std::size_t i) { return i < linea.size() && (linea[i] == u'(' || linea[i] == u')'); };
    if (esParentesis(columna) || (columna > 0 && esParentesis(columna - 1)))
        return true;
    std::size_t desde = std::min(columna, linea.size());
    std::size_t hasta = desde;
    while (desde > 0 && vbs::isNamePart(linea[desde - 1]))
        --desde;
    while (hasta < linea.size() && vbs::isNamePart(linea[hasta]))
        ++hasta;
    return esDeBloque(vbs::wordOf(linea.substr(desde, hasta - desde)));
}

std::vector<Tramo> parejasEn(std::u16string_view texto, std::size_t lugar) {
    std::vector<Grupo> grupos = Lector(texto).grupos();
    for (Grupo& grupo : grupos) {
        const auto tocada = [lugar](const Tramo& parte) { return toca(parte, lugar); };
        if (grupo.cerrado && std::any_of(grupo.partes.begin(), grupo.partes.end(), tocada))
            return std::move(grupo.partes);
    }
    return {};
}
