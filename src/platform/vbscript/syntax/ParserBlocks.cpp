// Statements with blocks: If, Select, With and the loops.
#include "platform/vbscript/syntax/Parser.h"

namespace vbs {

namespace {

// Raises a counter while a construct is open.
class Within {
public:
    explicit Within(int& counter) noexcept : counter_(counter) { ++counter_; }
    ~Within() { --counter_; }
    Within(const Within&) = delete;
    Within& operator=(const Within&) = delete;

private:
    int& counter_;
};

} // namespace

// If expr Then (line | block); `Then :` and nothing more is a line
Stmt* Parser::parseIf() {
    Stmt* statement = ast_->stmt(Stmt::Kind::If, here());
    advance();
    parseCondition(*statement, statement->at);
    if (isEndOfLine()) {
        parseBranches(*statement, &Parser::parseBlock);
        expect(Word::End, ErrorNumber::ExpectedEnd);
        expect(Word::If, ErrorNumber::ExpectedIf);
    } else {
        parseBranches(*statement, &Parser::parseLineStatements);
        if (nextIs({Word::If}) && is(Word::End)) {
            advance();
            advance();
        }
    }
    return statement;
}

void Parser::parseCondition(Stmt& statement, Position at) {
    IfBranch& branch = statement.branches.emplace_back();
    branch.at = at;
    branch.condition = parseExpr();
    expect(Word::Then, ErrorNumber::ExpectedThen);
}

// body { ElseIf expr Then body } [Else body]
void Parser::parseBranches(Stmt& statement, void (Parser::*body)(Block&)) {
    (this->*body)(statement.branches.back().body);
    while (is(Word::ElseIf)) {
        const Position at = here();
        advance();
        parseCondition(statement, at);
        (this->*body)(statement.branches.back().body);
    }
    if (accept(Word::Else)) {
        statement.hasOtherwise = true;
        (this->*body)(statement.otherwise);
    }
}

void Parser::parseLineStatements(Block& block) {
    while (true) {
        while (token_.kind == Kind::Colon) {
            advance();
        }
        if (isEndOfLine() || startsBlockEnd()) {
            return;
        }
        parseItem(block);
    }
}

// Select Case expr { Case expr {, expr} block } [Case Else block] End Select
Stmt* Parser::parseSelect() {
    Stmt* statement = ast_->stmt(Stmt::Kind::Select, here());
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
    Stmt* statement = ast_->stmt(Stmt::Kind::For, at);
    statement->target = ast_->expr(Expr::Kind::Name, here());
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
    const Hidden hidden(*this, 3);
    const Within loop(forLoops_);
    parseBlock(statement->body);
    statement->closing = here();
    expect(Word::Next, ErrorNumber::ExpectedNext);
    return statement;
}

// For Each name In expr block Next
Stmt* Parser::parseForEach(Position at) {
    Stmt* statement = ast_->stmt(Stmt::Kind::ForEach, at);
    statement->target = ast_->expr(Expr::Kind::Name, here());
    statement->target->symbol = takeName();
    const Counter counter(*this, *statement->target);
    noteAssigned(statement->target);
    noteObject(statement->target);
    expect(Word::In, ErrorNumber::ExpectedIn);
    statement->value = parseExpr();
    endStatement();
    const Hidden hidden(*this, 1);
    const Within loop(forLoops_);
    parseBlock(statement->body);
    statement->closing = here();
    expect(Word::Next, ErrorNumber::ExpectedNext);
    return statement;
}

// While expr block Wend
Stmt* Parser::parseWhile() {
    Stmt* statement = ast_->stmt(Stmt::Kind::While, here());
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
    Stmt* statement = ast_->stmt(Stmt::Kind::Do, here());
    advance();
    if (is(Word::While) || is(Word::Until)) {
        statement->test = is(Word::While) ? LoopTest::WhileBefore : LoopTest::UntilBefore;
        advance();
        statement->value = parseExpr();
    }
    if (!isEndOfStatement()) {
        fail(statement->value != nullptr ? ErrorNumber::ExpectedEndOfStatement : ErrorNumber::ExpectedWhileUntilOrEnd);
    }
    const Within loop(doLoops_);
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
    Stmt* statement = ast_->stmt(Stmt::Kind::With, here());
    advance();
    statement->value = parseExpr();
    endStatement();
    const Hidden hidden(*this, 1);
    const Within with(withs_);
    parseBlock(statement->body);
    expect(Word::End, ErrorNumber::ExpectedEnd);
    expect(Word::With, ErrorNumber::ExpectedWith);
    return statement;
}

} // namespace vbs
