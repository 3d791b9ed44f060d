// Assignments and calls.
#include "platform/vbscript/syntax/Parser.h"

namespace vbs {

void Parser::noteAssigned(const Expr* target) {
    if (target->kind == Expr::Kind::Name) {
        procedure_->assigned.push_back(target->symbol);
        procedure_->assignedAt.push_back(target->at);
    } else if (target->kind == Expr::Kind::Call) {
        for (const Expr* base = target; base != nullptr; base = base->a) {
            if (base->kind == Expr::Kind::Name) {
                procedure_->changed.push_back(base->symbol);
            }
        }
    }
}

// A variable that may hold an object from here on.
void Parser::noteObject(const Expr* target) {
    if (target->kind == Expr::Kind::Name) {
        procedure_->objects.push_back(target->symbol);
    }
}

// assignment: target = expr        call: target [expr] { , [expr] }
Stmt* Parser::parseAssignOrCall() {
    const Position at = here();
    bool complete = false;
    Expr* head = parseStatementHead(complete);
    if (complete) {
        Stmt* statement = ast_->stmt(Stmt::Kind::Call, at);
        statement->target = head;
        return statement;
    }
    if (accept(Sign::Equal)) {
        Stmt* statement = ast_->stmt(Stmt::Kind::Assign, at);
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

// The name, members and brackets at the start of a statement. `complete` is set when it is a whole call already. In a
// row of brackets that no member and no `=` follows, the first with a blank before it, or else the last, opens an
// argument: `S (2)*8, 7`.
Expr* Parser::parseStatementHead(bool& complete) {
    Expr* e = parseAtom();
    std::optional<Bracket> bracket; // where an argument would begin
    while (true) {
        const Position at = here();
        if (is(Sign::Dot)) {
            if (withs_ > 0 && token_.spaceBefore && !token_.spaceAfter) {
                return e; // `p .x` inside With: .x is the first argument
            }
            bracket.reset();
            advance();
            e = member(e, at);
        } else if (is(Sign::Open)) {
            if (!bracket || !bracket->token.spaceBefore) {
                bracket = Bracket{lexer_, token_, e};
            }
            std::vector<Expr*> arguments = parseArguments();
            const bool inner = bracket->callee != e && bracket->token.spaceBefore;
            if (isEndOfStatement() && !inner) {
                complete = true;
                return wholeCall(e, std::move(arguments), at);
            }
            if (startsOperand()) {
                return call(e, std::move(arguments), at); // `a(0) 5`
            }
            if (!is(Sign::Equal) && !is(Sign::Dot) && !is(Sign::Open)) {
                lexer_ = bracket->lexer;
                token_ = bracket->token;
                return bracket->callee;
            }
            e = call(e, std::move(arguments), at);
        } else {
            return e;
        }
    }
}

// Whether the token can only begin an expression.
bool Parser::startsOperand() const noexcept {
    switch (token_.kind) {
    case Kind::Number:
    case Kind::Text:
    case Kind::Date:
    case Kind::Identifier:
        return true;
    default:
        return is(Word::New) || is(Word::Not) || is(Word::Me) || is(Word::Nothing) || is(Word::True) ||
               is(Word::False) || is(Word::Empty) || is(Word::Null);
    }
}

// `S (x)`: a statement that ends with its bracket passes a value.
Expr* Parser::wholeCall(Expr* callee, std::vector<Expr*> arguments, Position at) {
    if (arguments.size() > 1) {
        fail(ErrorNumber::ParenthesesInSub, at);
    }
    if (arguments.size() == 1 && arguments[0]->kind != Expr::Kind::Missing) {
        arguments[0] = unary(Expr::Kind::Parentheses, at, arguments[0]);
    }
    return call(callee, std::move(arguments), at);
}

Stmt* Parser::finishCall(Expr* callee, Position at) {
    Stmt* statement = ast_->stmt(Stmt::Kind::Call, at);
    std::vector<Expr*> arguments;
    if (!isEndOfStatement()) {
        do {
            const bool missing = is(Sign::Comma) || isEndOfStatement();
            arguments.push_back(missing ? ast_->expr(Expr::Kind::Missing, here()) : parseExpr());
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
    Stmt* statement = ast_->stmt(Stmt::Kind::Set, here());
    advance();
    if (!isName() && !is(Word::Me) && !is(Sign::Dot)) {
        fail(ErrorNumber::ExpectedIdentifier);
    }
    statement->target = parsePrimary();
    if (statement->target->kind == Expr::Kind::Me) {
        fail(ErrorNumber::InvalidMe, statement->target->at);
    }
    noteAssigned(statement->target);
    noteObject(statement->target);
    expect(Sign::Equal, ErrorNumber::ExpectedEqual);
    statement->value = parseExpr();
    return statement;
}

// Call target [( arguments )]; the target may begin with an expression in parentheses
Stmt* Parser::parseCall() {
    const Position at = here();
    advance();
    if (!isName() && !is(Word::Me) && !is(Sign::Dot) && !is(Sign::Open)) {
        fail(ErrorNumber::ExpectedIdentifier);
    }
    Expr* target = grouped(parsePrimary());
    Stmt* statement = ast_->stmt(Stmt::Kind::Call, at);
    statement->target = target->kind == Expr::Kind::Call ? target : call(target, {}, at);
    return statement;
}

} // namespace vbs
