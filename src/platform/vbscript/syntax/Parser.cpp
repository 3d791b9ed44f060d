// Tokens and the top of the grammar; expressions, statements and declarations stand in files of their own.
#include "platform/vbscript/syntax/Parser.h"

#include <algorithm>

namespace vbs {

Parser::Parser(std::u16string_view text, SymbolTable& symbols)
    : m_lexer(text), m_symbols(symbols), m_execute(symbols.intern(u"execute")), m_eval(symbols.intern(u"eval")) {
    m_procedure = &m_ast->main;
    m_procedure->kind = ProcedureDecl::Kind::Main;
}

Parser::Nesting::Nesting(Parser& parser) : m_parser(parser) {
    if (++parser.m_nesting > maxNesting) {
        --parser.m_nesting;
        parser.fail(ErrorNumber::NestedTooDeep);
    }
}

Parser::Hidden::Hidden(Parser& parser, std::uint32_t slots) : m_parser(parser), m_slots(slots) {
    parser.m_hidden += slots;
    parser.m_procedure->hiddenSlots = std::max(parser.m_procedure->hiddenSlots, parser.m_hidden);
}

Parser::Counter::Counter(Parser& parser, const Expr& variable) : m_parser(parser) {
    const auto& open = parser.m_counters;
    if (std::find(open.begin(), open.end(), variable.symbol) != open.end()) {
        Parser::fail(ErrorNumber::InvalidForVariable, variable.at);
    }
    parser.m_counters.push_back(variable.symbol);
}

std::unique_ptr<Ast> Parser::parse() {
    advance();
    parseTopLevel();
    return std::move(m_ast);
}

std::unique_ptr<Ast> Parser::parseExpression(Symbol result) {
    advance();
    skipSeparators();
    Stmt* statement = m_ast->stmt(Stmt::Kind::Assign, here());
    statement->target = m_ast->expr(Expr::Kind::Name, here());
    statement->target->symbol = result;
    statement->value = parseExpr();
    skipSeparators();
    if (m_token.kind != Kind::End) {
        fail(ErrorNumber::ExpectedEndOfStatement);
    }
    m_procedure->body.push_back(statement);
    return std::move(m_ast);
}

void Parser::advance() {
    do {
        m_token = m_lexer.next();
    } while (m_token.kind == Kind::Comment);
    if (m_token.kind == Kind::Bad) {
        fail(m_token.error);
    }
}

void Parser::fail(ErrorNumber error) const {
    fail(error, here());
}

void Parser::fail(ErrorNumber error, Position at) {
    throw CompileError{error, at};
}

// A few words are names wherever the grammar does not ask for them.
bool Parser::isName(const Token& token) noexcept {
    return token.kind == Kind::Identifier || (token.kind == Kind::Keyword && token.word >= Word::Default);
}

// The token after this one.
Token Parser::peek() const {
    return Lexer(m_lexer).next();
}

bool Parser::nextIs(std::initializer_list<Word> words) const {
    const Token token = peek();
    return token.kind == Kind::Keyword && std::find(words.begin(), words.end(), token.word) != words.end();
}

bool Parser::nextIsName() const {
    return isName(peek());
}

// The line's end, a colon, or a word that closes a block: `x = 1 End If` needs no separator.
bool Parser::isEndOfStatement() const noexcept {
    return isEndOfLine() || m_token.kind == Kind::Colon || startsBlockEnd();
}

bool Parser::accept(Word word) {
    if (!is(word)) {
        return false;
    }
    advance();
    return true;
}

bool Parser::accept(Sign sign) {
    if (!is(sign)) {
        return false;
    }
    advance();
    return true;
}

void Parser::expect(Word word, ErrorNumber error) {
    if (!accept(word)) {
        fail(error);
    }
}

void Parser::expect(Sign sign, ErrorNumber error) {
    if (!accept(sign)) {
        fail(error);
    }
}

Symbol Parser::takeName() {
    if (!isName()) {
        fail(ErrorNumber::ExpectedIdentifier);
    }
    const Symbol symbol = m_symbols.intern(m_token.text);
    advance();
    return symbol;
}

void Parser::endStatement() {
    if (!isEndOfStatement()) {
        fail(ErrorNumber::ExpectedEndOfStatement);
    }
}

void Parser::skipSeparators() {
    while (m_token.kind == Kind::NewLine || m_token.kind == Kind::Colon) {
        advance();
    }
}

} // namespace vbs
