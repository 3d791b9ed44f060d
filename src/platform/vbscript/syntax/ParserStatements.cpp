// Statements.
#include "platform/vbscript/syntax/Parser.h"

#include <algorithm>

namespace vbs {

namespace {

// Raises a counter while a construct is open.
class Within {
public:
    explicit Within(int& counter) noexcept : m_counter(counter) { ++m_counter; }
    ~Within() { --m_counter; }
    Within(const Within&) = delete;
    Within& operator=(const Within&) = delete;

private:
    int& m_counter;
};

} // namespace

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
        if (Stmt* statement = parseStatement(); statement != nullptr) {
            block.push_back(statement);
        }
        endStatement();
    }
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

void Parser::noteAssigned(const Expr* target) {
    if (target->kind == Expr::Kind::Name) {
        m_procedure->assigned.push_back(target->symbol);
    } else if (target->kind == Expr::Kind::Call) {
        for (const Expr* base = target; base != nullptr; base = base->a) {
            if (base->kind == Expr::Kind::Name) {
                m_procedure->changed.push_back(base->symbol);
            }
        }
    }
}

// assignment: target = expr        call: target [expr] { , [expr] }
Stmt* Parser::parseAssignOrCall() {
    const Position at = here();
    bool complete = false;
    Expr* head = parseStatementHead(complete);
    if (complete) {
        Stmt* statement = m_ast->stmt(Stmt::Kind::Call, at);
        statement->target = head;
        return statement;
    }
    if (accept(Sign::Equal)) {
        Stmt* statement = m_ast->stmt(Stmt::Kind::Assign, at);
        statement->target = head;
        if (head->kind == Expr::Kind::Me) {
            fail(ErrorNumber::InvalidMe, at);
        }
        noteAssigned(head);
        statement->value = parseExpr();
        return statement;
    }
    return finishCall(head, at);
}

// The name, members and brackets at the start of a statement. `complete` is set when it is a whole call already.
Expr* Parser::parseStatementHead(bool& complete) {
    Expr* e = parseAtom();
    while (true) {
        const Position at = here();
        if (is(Sign::Dot)) {
            if (m_withs > 0 && m_token.spaceBefore && !m_token.spaceAfter) {
                return e; // `p .x` inside With: .x is the first argument
            }
            advance();
            e = member(e, at);
        } else if (is(Sign::Open)) {
            const Lexer lexer = m_lexer;
            const Token token = m_token;
            std::vector<Expr*> arguments = parseArguments();
            if (isEndOfStatement()) {
                if (arguments.size() > 1) {
                    fail(ErrorNumber::ParenthesesInSub, at);
                }
                if (arguments.size() == 1 && arguments[0]->kind != Expr::Kind::Missing) {
                    arguments[0] = unary(Expr::Kind::Parentheses, at, arguments[0]);
                }
                complete = true;
                return call(e, std::move(arguments), at);
            }
            if (!is(Sign::Equal) && !is(Sign::Dot) && !is(Sign::Open)) {
                m_lexer = lexer; // the bracket opens the first argument: `S (2)*8, 7`
                m_token = token;
                return e;
            }
            if (is(Sign::Dot) && token.spaceBefore) {
                Expr* chain = parsePostfix(call(e, std::move(arguments), at));
                if (is(Sign::Equal)) {
                    return chain;
                }
                m_lexer = lexer; // `S (New K).Total`
                m_token = token;
                return e;
            }
            e = call(e, std::move(arguments), at);
        } else {
            return e;
        }
    }
}

Stmt* Parser::finishCall(Expr* callee, Position at) {
    Stmt* statement = m_ast->stmt(Stmt::Kind::Call, at);
    std::vector<Expr*> arguments;
    if (!isEndOfStatement()) {
        do {
            const bool missing = is(Sign::Comma) || isEndOfStatement();
            arguments.push_back(missing ? m_ast->expr(Expr::Kind::Missing, here()) : parseExpr());
        } while (accept(Sign::Comma));
    }
    if (callee->kind == Expr::Kind::Me) {
        fail(ErrorNumber::SyntaxError, at);
    }
    statement->target =
        callee->kind == Expr::Kind::Call && arguments.empty() ? callee : call(callee, std::move(arguments), at);
    return statement;
}

// Set target = expr
Stmt* Parser::parseSet() {
    Stmt* statement = m_ast->stmt(Stmt::Kind::Set, here());
    advance();
    if (!isName() && !is(Word::Me) && !is(Sign::Dot)) {
        fail(ErrorNumber::ExpectedIdentifier);
    }
    statement->target = parsePrimary();
    if (statement->target->kind == Expr::Kind::Me) {
        fail(ErrorNumber::InvalidMe, statement->target->at);
    }
    noteAssigned(statement->target);
    expect(Sign::Equal, ErrorNumber::ExpectedEqual);
    statement->value = parseExpr();
    return statement;
}

// Call target [( arguments )]
Stmt* Parser::parseCall() {
    const Position at = here();
    advance();
    if (!isName() && !is(Word::Me) && !is(Sign::Dot)) {
        fail(ErrorNumber::ExpectedIdentifier);
    }
    Expr* target = parsePrimary();
    Stmt* statement = m_ast->stmt(Stmt::Kind::Call, at);
    statement->target = target->kind == Expr::Kind::Call ? target : call(target, {}, at);
    return statement;
}

// If expr Then (line | block)
Stmt* Parser::parseIf() {
    Stmt* statement = m_ast->stmt(Stmt::Kind::If, here());
    advance();
    IfBranch& branch = statement->branches.emplace_back();
    branch.at = statement->at;
    branch.condition = parseExpr();
    expect(Word::Then, ErrorNumber::ExpectedThen);
    while (m_token.kind == Kind::Colon) {
        advance();
    }
    if (isEndOfLine()) {
        parseIfBlock(*statement);
    } else {
        parseIfLine(*statement);
    }
    return statement;
}

// block { ElseIf expr Then block } [Else block] End If
void Parser::parseIfBlock(Stmt& statement) {
    parseBlock(statement.branches.back().body);
    while (is(Word::ElseIf)) {
        IfBranch& branch = statement.branches.emplace_back();
        branch.at = here();
        advance();
        branch.condition = parseExpr();
        expect(Word::Then, ErrorNumber::ExpectedThen);
        parseBlock(statement.branches.back().body);
    }
    if (accept(Word::Else)) {
        statement.hasOtherwise = true;
        parseBlock(statement.otherwise);
    }
    expect(Word::End, ErrorNumber::ExpectedEnd);
    expect(Word::If, ErrorNumber::ExpectedIf);
}

// statements { ElseIf expr Then statements } [Else statements] [End If], all on one line
void Parser::parseIfLine(Stmt& statement) {
    parseLineStatements(statement.branches.back().body);
    while (is(Word::ElseIf)) {
        IfBranch& branch = statement.branches.emplace_back();
        branch.at = here();
        advance();
        branch.condition = parseExpr();
        expect(Word::Then, ErrorNumber::ExpectedThen);
        parseLineStatements(statement.branches.back().body);
    }
    if (accept(Word::Else)) {
        statement.hasOtherwise = true;
        parseLineStatements(statement.otherwise);
    }
    if (is(Word::End)) {
        const Lexer lexer = m_lexer;
        const Token token = m_token;
        advance();
        if (!accept(Word::If)) {
            m_lexer = lexer;
            m_token = token;
        }
    }
}

void Parser::parseLineStatements(Block& block) {
    while (true) {
        while (m_token.kind == Kind::Colon) {
            advance();
        }
        if (isEndOfLine() || startsBlockEnd()) {
            return;
        }
        if (Stmt* statement = parseStatement(); statement != nullptr) {
            block.push_back(statement);
        }
        if (!isEndOfStatement()) {
            fail(ErrorNumber::ExpectedEndOfStatement);
        }
    }
}

// Select Case expr { Case expr {, expr} block } [Case Else block] End Select
Stmt* Parser::parseSelect() {
    Stmt* statement = m_ast->stmt(Stmt::Kind::Select, here());
    advance();
    expect(Word::Case, ErrorNumber::ExpectedCase);
    statement->value = parseExpr();
    endStatement();
    skipSeparators();
    const Hidden hidden(*this, 1);
    while (is(Word::Case)) {
        const Position at = here();
        advance();
        if (accept(Word::Else)) {
            statement->hasOtherwise = true;
            parseBlock(statement->otherwise);
            break;
        }
        CaseBranch& branch = statement->cases.emplace_back();
        branch.at = at;
        do {
            branch.values.push_back(parseExpr());
        } while (accept(Sign::Comma));
        parseBlock(branch.body);
    }
    expect(Word::End, is(Word::Case) ? ErrorNumber::SyntaxError : ErrorNumber::ExpectedEnd);
    expect(Word::Select, ErrorNumber::ExpectedSelect);
    return statement;
}

// For name = expr To expr [Step expr] block Next
Stmt* Parser::parseFor() {
    const Position at = here();
    advance();
    if (accept(Word::Each)) {
        return parseForEach(at);
    }
    Stmt* statement = m_ast->stmt(Stmt::Kind::For, at);
    statement->target = m_ast->expr(Expr::Kind::Name, here());
    statement->target->symbol = takeName();
    if (is(Sign::Dot) || is(Sign::Open)) {
        fail(ErrorNumber::InvalidForVariable);
    }
    const Counter counter(*this, *statement->target);
    noteAssigned(statement->target);
    expect(Sign::Equal, ErrorNumber::ExpectedEqual);
    statement->value = parseExpr();
    expect(Word::To, ErrorNumber::ExpectedTo);
    statement->limit = parseExpr();
    if (accept(Word::Step)) {
        statement->step = parseExpr();
    }
    endStatement();
    const Hidden hidden(*this, 2);
    const Within loop(m_forLoops);
    parseBlock(statement->body);
    statement->closing = here();
    expect(Word::Next, ErrorNumber::ExpectedNext);
    return statement;
}

// For Each name In expr block Next
Stmt* Parser::parseForEach(Position at) {
    Stmt* statement = m_ast->stmt(Stmt::Kind::ForEach, at);
    statement->target = m_ast->expr(Expr::Kind::Name, here());
    statement->target->symbol = takeName();
    const Counter counter(*this, *statement->target);
    noteAssigned(statement->target);
    expect(Word::In, ErrorNumber::ExpectedIn);
    statement->value = parseExpr();
    endStatement();
    const Hidden hidden(*this, 1);
    const Within loop(m_forLoops);
    parseBlock(statement->body);
    statement->closing = here();
    expect(Word::Next, ErrorNumber::ExpectedNext);
    return statement;
}

// While expr block Wend
Stmt* Parser::parseWhile() {
    Stmt* statement = m_ast->stmt(Stmt::Kind::While, here());
    advance();
    statement->value = parseExpr();
    endStatement();
    parseBlock(statement->body);
    statement->closing = here();
    expect(Word::Wend, ErrorNumber::ExpectedWend);
    return statement;
}

// Do [While|Until expr] block Loop [While|Until expr]
Stmt* Parser::parseDo() {
    Stmt* statement = m_ast->stmt(Stmt::Kind::Do, here());
    advance();
    if (is(Word::While) || is(Word::Until)) {
        statement->test = is(Word::While) ? LoopTest::WhileBefore : LoopTest::UntilBefore;
        advance();
        statement->value = parseExpr();
    }
    if (!isEndOfStatement()) {
        fail(statement->value != nullptr ? ErrorNumber::ExpectedEndOfStatement : ErrorNumber::ExpectedWhileUntilOrEnd);
    }
    const Within loop(m_doLoops);
    parseBlock(statement->body);
    statement->closing = here();
    expect(Word::Loop, ErrorNumber::ExpectedLoop);
    if (is(Word::While) || is(Word::Until)) {
        if (statement->test != LoopTest::None) {
            fail(ErrorNumber::ExpectedEndOfStatement);
        }
        statement->test = is(Word::While) ? LoopTest::WhileAfter : LoopTest::UntilAfter;
        advance();
        statement->value = parseExpr();
    }
    return statement;
}

// With expr block End With
Stmt* Parser::parseWith() {
    Stmt* statement = m_ast->stmt(Stmt::Kind::With, here());
    advance();
    statement->value = parseExpr();
    endStatement();
    const Hidden hidden(*this, 1);
    const Within with(m_withs);
    parseBlock(statement->body);
    expect(Word::End, ErrorNumber::ExpectedEnd);
    expect(Word::With, ErrorNumber::ExpectedWith);
    return statement;
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
            fail(ErrorNumber::OutOfMemoryCompiling);
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
