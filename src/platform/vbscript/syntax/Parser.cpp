// Tokens and the top of the grammar; expressions, statements and declarations stand in files of their own.
#include "platform/vbscript/syntax/Parser.h"

#include <algorithm>

namespace vbs {

Parser::Parser(std::u16string_view text, SymbolTable& symbols, int thisYear)
    : lexer_(text, thisYear), symbols_(symbols), execute_(symbols.intern(u"execute")),
      executeGlobal_(symbols.intern(u"executeglobal")), eval_(symbols.intern(u"eval")),
      getRef_(symbols.intern(u"getref")) {
    procedure_ = &ast_->main;
    procedure_->kind = ProcedureDecl::Kind::Main;
}

Parser::Nesting::Nesting(Parser& parser) : parser_(parser) {
    if (++parser.nesting_ > maxNesting) {
        --parser.nesting_;
        parser.fail(ErrorNumber::NestedTooDeep);
    }
}

Parser::Hidden::Hidden(Parser& parser, std::uint32_t slots) : parser_(parser), slots_(slots) {
    parser.hidden_ += slots;
    parser.procedure_->hiddenSlots = std::max(parser.procedure_->hiddenSlots, parser.hidden_);
}

Parser::Counter::Counter(Parser& parser, const Expr& variable) : parser_(parser) {
    const auto& open = parser.counters_;
    if (std::find(open.begin(), open.end(), variable.symbol) != open.end()) {
        Parser::fail(ErrorNumber::InvalidForVariable, variable.at);
    }
    parser.counters_.push_back(variable.symbol);
}

std::unique_ptr<Ast> Parser::parse() {
    advance();
    parseTopLevel();
    return std::move(ast_);
}

std::unique_ptr<Ast> Parser::parseExpression(Symbol result) {
    advance();
    skipSeparators();
    Stmt* statement = ast_->stmt(Stmt::Kind::Assign, here());
    statement->target = ast_->expr(Expr::Kind::Name, here());
    statement->target->symbol = result;
    statement->value = parseExpr();
    skipSeparators();
    if (token_.kind != Kind::End) {
        fail(ErrorNumber::ExpectedEndOfStatement);
    }
    procedure_->body.push_back(statement);
    return std::move(ast_);
}

void Parser::advance() {
    do {
        token_ = lexer_.next();
    } while (token_.kind == Kind::Comment);
    if (token_.kind == Kind::Bad) {
        fail(token_.error);
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
    return Lexer(lexer_).next();
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
    return isEndOfLine() || token_.kind == Kind::Colon || startsBlockEnd();
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
    const Symbol symbol = symbols_.intern(token_.text);
    advance();
    return symbol;
}

void Parser::endStatement() {
    if (!isEndOfStatement()) {
        fail(ErrorNumber::ExpectedEndOfStatement);
    }
}

void Parser::skipSeparators() {
    while (token_.kind == Kind::NewLine || token_.kind == Kind::Colon) {
        advance();
    }
}

} // namespace vbs
