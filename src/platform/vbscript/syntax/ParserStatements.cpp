// Statements.
#include "platform/vbscript/syntax/Parser.h"

namespace vbs {

// A word that closes or divides the block around; what may stand there is for the owner of the block to say.
bool Parser::startsBlockEnd() const noexcept {
    if (token_.kind != Kind::Keyword) {
        return false;
    }
    switch (token_.word) {
    case Word::End:
    case Word::Else:
    case Word::ElseIf:
    case Word::Loop:
    case Word::Wend:
    case Word::Next:
    case Word::Case:
        return true;
    default:
        return false;
    }
}

// block: { statement separator }, up to a closing word or the end of the text
void Parser::parseBlock(Block& block) {
    const Nesting nesting(*this);
    for (skipSeparators(); token_.kind != Kind::End && !startsBlockEnd(); skipSeparators()) {
        parseItem(block);
    }
}

// A statement or, outside procedures, a declaration. `End Sub x = 1` needs no separator.
void Parser::parseItem(Block& block) {
    if (procedure_ == &ast_->main && parseDeclaration(block)) {
        return;
    }
    block.push_back(parseStatement());
    endStatement();
}

Stmt* Parser::parseStatement() {
    const Nesting nesting(*this);
    const bool softWord = token_.kind == Kind::Keyword && token_.word >= Word::Default && !is(Word::Erase);
    if (token_.kind == Kind::Keyword && !softWord && !is(Word::Me)) {
        return parseKeywordStatement();
    }
    if (isName() || is(Word::Me) || is(Sign::Dot)) {
        return parseAssignOrCall();
    }
    fail(ErrorNumber::ExpectedStatement);
}

Stmt* Parser::parseKeywordStatement() {
    const Position at = here();
    switch (token_.word) {
    case Word::Set:
        return parseSet();
    case Word::Let:
        advance();
        return parseAssignOrCall();
    case Word::Call:
        return parseCall();
    case Word::If:
        return parseIf();
    case Word::Select:
        return parseSelect();
    case Word::For:
        return parseFor();
    case Word::While:
        return parseWhile();
    case Word::Do:
        return parseDo();
    case Word::With:
        return parseWith();
    case Word::Exit:
        return parseExit();
    case Word::Redim:
        return parseReDim();
    case Word::Erase:
        return parseErase();
    case Word::On:
        return parseOnError();
    case Word::Dim:
        advance();
        return parseDim(false);
    case Word::Const:
        advance();
        return parseConst();
    case Word::Stop:
        advance();
        return ast_->stmt(Stmt::Kind::Dim, at);
    default:
        fail(token_.word == Word::Sub || token_.word == Word::Function || token_.word == Word::Class
                 ? ErrorNumber::SyntaxError
                 : ErrorNumber::ExpectedStatement);
    }
}

// Exit Do|For|Sub|Function|Property
Stmt* Parser::parseExit() {
    Stmt* statement = ast_->stmt(Stmt::Kind::Exit, here());
    advance();
    using PK = ProcedureDecl::Kind;
    const PK kind = procedure_->kind;
    bool allowed = false;
    if (is(Word::Do)) {
        statement->exit = ExitKind::Do;
        allowed = doLoops_ > 0;
    } else if (is(Word::For)) {
        statement->exit = ExitKind::For;
        allowed = forLoops_ > 0;
    } else if (is(Word::Sub)) {
        statement->exit = ExitKind::Sub;
        allowed = kind == PK::Sub;
    } else if (is(Word::Function)) {
        statement->exit = ExitKind::Function;
        allowed = kind == PK::Function;
    } else if (is(Word::Property)) {
        statement->exit = ExitKind::Property;
        allowed = kind == PK::PropertyGet || kind == PK::PropertyLet || kind == PK::PropertySet;
    }
    if (!allowed) {
        fail(ErrorNumber::InvalidExit);
    }
    advance();
    return statement;
}

// ReDim [Preserve] name ( expr {, expr} ) {, ...}
Stmt* Parser::parseReDim() {
    Stmt* statement = ast_->stmt(Stmt::Kind::ReDim, here());
    advance();
    statement->preserve = accept(Word::Preserve);
    do {
        if (!isName() && !is(Sign::Dot) && !is(Word::Me)) {
            fail(ErrorNumber::ExpectedIdentifier);
        }
        Expr* target = parsePrimary();
        if (target->kind != Expr::Kind::Call || target->args.empty()) {
            fail(ErrorNumber::ExpectedLeftParenthesis);
        }
        if (target->args.size() > 60) {
            fail(ErrorNumber::TooManyArguments);
        }
        noteAssigned(target->a);
        if (target->a->kind == Expr::Kind::Name) {
            procedure_->redimmed.push_back(target->a->symbol);
        }
        statement->targets.push_back(target);
    } while (accept(Sign::Comma));
    return statement;
}

// Erase name {, name}
Stmt* Parser::parseErase() {
    Stmt* statement = ast_->stmt(Stmt::Kind::Erase, here());
    advance();
    do {
        statement->targets.push_back(parsePrimary());
        for (const Expr* base = statement->targets.back(); base != nullptr; base = base->a) {
            if (base->kind == Expr::Kind::Name) {
                procedure_->changed.push_back(base->symbol);
            }
        }
    } while (accept(Sign::Comma));
    return statement;
}

// On Error Resume Next | On Error GoTo 0
Stmt* Parser::parseOnError() {
    const Position at = here();
    advance();
    expect(Word::Error, ErrorNumber::SyntaxError);
    if (accept(Word::Resume)) {
        expect(Word::Next, ErrorNumber::ExpectedNext);
        procedure_->resumesNext = true;
        return ast_->stmt(Stmt::Kind::OnErrorResumeNext, at);
    }
    expect(Word::GoTo, ErrorNumber::SyntaxError);
    if (token_.kind != Kind::Number || token_.value.type != Type::Integer || token_.value.n != 0) {
        fail(ErrorNumber::SyntaxError);
    }
    advance();
    return ast_->stmt(Stmt::Kind::OnErrorGoTo0, at);
}

} // namespace vbs
