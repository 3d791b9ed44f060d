// Assignments and calls.
#include "platform/vbscript/syntax/Parser.h"

namespace vbs {

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

} // namespace vbs
