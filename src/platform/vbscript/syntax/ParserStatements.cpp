// Statements.
#include "platform/vbscript/syntax/Parser.h"

namespace vbs {

// A word that closes or divides the block around; what may stand there is for the owner of the block to say.
bool Parser::startsBlockEnd() const noexcept {
    if (m_token.kind != Kind::Keyword) {
        return false;
    }
    switch (m_token.word) {
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
    for (skipSeparators(); m_token.kind != Kind::End && !startsBlockEnd(); skipSeparators()) {
        parseItem(block);
    }
}

// A statement or, outside procedures, a declaration. `End Sub x = 1` needs no separator.
void Parser::parseItem(Block& block) {
    if (m_procedure == &m_ast->main && parseDeclaration(block)) {
        return;
    }
    block.push_back(parseStatement());
    endStatement();
}

Stmt* Parser::parseStatement() {
    const Nesting nesting(*this);
    const bool softWord = m_token.kind == Kind::Keyword && m_token.word >= Word::Default && !is(Word::Erase);
    if (m_token.kind == Kind::Keyword && !softWord && !is(Word::Me)) {
        return parseKeywordStatement();
    }
    if (isName() || is(Word::Me) || is(Sign::Dot)) {
        return parseAssignOrCall();
    }
    fail(ErrorNumber::ExpectedStatement);
}

Stmt* Parser::parseKeywordStatement() {
    const Position at = here();
    switch (m_token.word) {
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
        return m_ast->stmt(Stmt::Kind::Dim, at);
    default:
        fail(m_token.word == Word::Sub || m_token.word == Word::Function || m_token.word == Word::Class
                 ? ErrorNumber::SyntaxError
                 : ErrorNumber::ExpectedStatement);
    }
}

// Exit Do|For|Sub|Function|Property
Stmt* Parser::parseExit() {
    Stmt* statement = m_ast->stmt(Stmt::Kind::Exit, here());
    advance();
    using PK = ProcedureDecl::Kind;
    const PK kind = m_procedure->kind;
    bool allowed = false;
    if (is(Word::Do)) {
        statement->exit = ExitKind::Do;
        allowed = m_doLoops > 0;
    } else if (is(Word::For)) {
        statement->exit = ExitKind::For;
        allowed = m_forLoops > 0;
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
    Stmt* statement = m_ast->stmt(Stmt::Kind::ReDim, here());
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
            m_procedure->redimmed.push_back(target->a->symbol);
        }
        statement->targets.push_back(target);
    } while (accept(Sign::Comma));
    return statement;
}

// Erase name {, name}
Stmt* Parser::parseErase() {
    Stmt* statement = m_ast->stmt(Stmt::Kind::Erase, here());
    advance();
    do {
        statement->targets.push_back(parsePrimary());
        if (statement->targets.back()->kind == Expr::Kind::Name) {
            m_procedure->changed.push_back(statement->targets.back()->symbol);
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
        m_procedure->resumesNext = true;
        return m_ast->stmt(Stmt::Kind::OnErrorResumeNext, at);
    }
    expect(Word::GoTo, ErrorNumber::SyntaxError);
    if (m_token.kind != Kind::Number || m_token.value.type != Type::Integer || m_token.value.n != 0) {
        fail(ErrorNumber::SyntaxError);
    }
    advance();
    return m_ast->stmt(Stmt::Kind::OnErrorGoTo0, at);
}

} // namespace vbs
