// Expressions, by precedence climbing. From tightest to loosest: unary -, ^, * and /, \, Mod, + and -, &, comparisons
// and Is, Not, And, Or, Xor, Eqv, Imp.
#include "platform/vbscript/syntax/Parser.h"

#include <algorithm>

namespace vbs {

namespace {

struct OperatorInfo {
    int precedence; // 0: no binary operator
    BinaryOp op;
};

constexpr int comparisonPrecedence = 7;
constexpr int powerPrecedence = 13;

OperatorInfo signOperator(Token::Sign sign) noexcept {
    using enum Token::Sign;
    switch (sign) {
    case Caret:
        return {powerPrecedence, BinaryOp::Power};
    case Times:
        return {12, BinaryOp::Multiply};
    case Slash:
        return {12, BinaryOp::Divide};
    case Backslash:
        return {11, BinaryOp::IntegerDivide};
    case Plus:
        return {9, BinaryOp::Add};
    case Minus:
        return {9, BinaryOp::Subtract};
    case Ampersand:
        return {8, BinaryOp::Concatenate};
    case Equal:
        return {comparisonPrecedence, BinaryOp::Equal};
    case NotEqual:
        return {comparisonPrecedence, BinaryOp::NotEqual};
    case Less:
        return {comparisonPrecedence, BinaryOp::Less};
    case Greater:
        return {comparisonPrecedence, BinaryOp::Greater};
    case LessEqual:
        return {comparisonPrecedence, BinaryOp::LessEqual};
    case GreaterEqual:
        return {comparisonPrecedence, BinaryOp::GreaterEqual};
    default:
        return {0, BinaryOp::Add};
    }
}

OperatorInfo wordOperator(Word word) noexcept {
    switch (word) {
    case Word::Mod:
        return {10, BinaryOp::Modulo};
    case Word::Is:
        return {comparisonPrecedence, BinaryOp::Is};
    case Word::And:
        return {5, BinaryOp::And};
    case Word::Or:
        return {4, BinaryOp::Or};
    case Word::Xor:
        return {3, BinaryOp::Xor};
    case Word::Eqv:
        return {2, BinaryOp::Eqv};
    case Word::Imp:
        return {1, BinaryOp::Imp};
    default:
        return {0, BinaryOp::Add};
    }
}

OperatorInfo operatorOf(const Token& token) noexcept {
    return token.kind == Token::Kind::Operator  ? signOperator(token.sign)
           : token.kind == Token::Kind::Keyword ? wordOperator(token.word)
                                                : OperatorInfo{0, BinaryOp::Add};
}

} // namespace

// expr: unary { operator unary }
Expr* Parser::parseBinary(int least) {
    Expr* left = parseUnary();
    while (true) {
        const OperatorInfo info = operatorOf(token_);
        if (info.precedence == 0 || info.precedence < least) {
            return left;
        }
        const Position at = here();
        advance();
        left = binary(info.op, at, left, parseBinary(info.precedence + 1));
    }
}

// unary: Not comparison | signed
Expr* Parser::parseUnary() {
    const Nesting nesting(*this);
    const Position at = here();
    if (accept(Word::Not)) {
        return unary(Expr::Kind::Not, at, parseBinary(comparisonPrecedence));
    }
    return parseSigned();
}

// signed: { - | + } primary; a plus is worth no more than parentheses
Expr* Parser::parseSigned() {
    const Position at = here();
    if (is(Sign::Minus) || is(Sign::Plus)) {
        const Nesting nesting(*this);
        const Expr::Kind kind = is(Sign::Minus) ? Expr::Kind::Negate : Expr::Kind::Parentheses;
        advance();
        return unary(kind, at, parseSigned());
    }
    return parsePrimary();
}

Expr* Parser::parsePrimary() {
    return parsePostfix(parseAtom());
}

// atom: literal | name | ( expr ) | .name | Me | New name
Expr* Parser::parseAtom() {
    const Position at = here();
    switch (token_.kind) {
    case Kind::Number:
    case Kind::Text:
    case Kind::Date: {
        Expr* e = literal(token_.value);
        advance();
        return e;
    }
    case Kind::Operator:
        if (accept(Sign::Open)) {
            Expr* inner = parseExpr();
            expect(Sign::Close, ErrorNumber::ExpectedRightParenthesis);
            return unary(Expr::Kind::Parentheses, at, inner);
        }
        if (accept(Sign::Dot)) {
            return member(nullptr, at); // outside With it fails when it is executed
        }
        fail(ErrorNumber::SyntaxError);
    case Kind::Keyword:
        break;
    case Kind::Identifier:
        return nameExpr(at);
    default:
        fail(ErrorNumber::SyntaxError);
    }
    const Word word = token_.word;
    if (isName()) {
        return nameExpr(at);
    }
    advance();
    switch (word) {
    case Word::True:
        return literal(Value::ofBoolean(true));
    case Word::False:
        return literal(Value::ofBoolean(false));
    case Word::Empty:
        return literal(Value::empty());
    case Word::Null:
        return literal(Value::null());
    case Word::Nothing:
        return literal(Value::nothing());
    case Word::Me:
        return me(at);
    case Word::New: {
        Expr* e = ast_->expr(Expr::Kind::New, at);
        e->symbol = takeName();
        e->calls = true;
        return e;
    }
    default:
        fail(ErrorNumber::SyntaxError, at);
    }
}

// postfix: { ( arguments ) | .name }
Expr* Parser::parsePostfix(Expr* e) {
    using EK = Expr::Kind; // `(New K)(1)` calls the default member
    const bool indexable =
        e->kind == EK::Name || e->kind == EK::Member || e->kind == EK::Me || e->kind == EK::Parentheses;
    for (bool first = true;; first = false) {
        const Position at = here();
        if (is(Sign::Dot) &&
            !(withs_ > 0 && token_.spaceBefore && !token_.spaceAfter && e->kind == Expr::Kind::Literal)) {
            advance();
            e = member(e, at);
        } else if (is(Sign::Open) && (indexable || !first)) {
            e = call(e, parseArguments(), at);
        } else {
            return e;
        }
    }
}

// arguments: ( [expr] { , [expr] } )
std::vector<Expr*> Parser::parseArguments() {
    const Nesting nesting(*this);
    std::vector<Expr*> arguments;
    expect(Sign::Open, ErrorNumber::ExpectedLeftParenthesis);
    if (accept(Sign::Close)) {
        return arguments;
    }
    while (true) {
        const bool missing = is(Sign::Comma) || is(Sign::Close);
        arguments.push_back(missing ? ast_->expr(Expr::Kind::Missing, here()) : parseExpr());
        if (accept(Sign::Close)) {
            return arguments;
        }
        expect(Sign::Comma, ErrorNumber::ExpectedRightParenthesis);
    }
}

Expr* Parser::literal(Value value) {
    Expr* e = ast_->expr(Expr::Kind::Literal, here());
    e->value = std::move(value);
    return e;
}

Expr* Parser::me(Position at) {
    Expr* e = ast_->expr(Expr::Kind::Me, at);
    e->calls = true; // its default member, where a value is wanted
    return e;
}

Expr* Parser::nameExpr(Position at) {
    Expr* e = ast_->expr(Expr::Kind::Name, at);
    e->symbol = takeName();
    e->calls = true; // it may turn out to be a function
    procedure_->mentioned.push_back(e->symbol);
    if (e->symbol == execute_ || e->symbol == eval_) {
        procedure_->dynamicScope = true;
    }
    if (procedure_->dynamicScope || e->symbol == executeGlobal_ || e->symbol == getRef_) {
        ast_->valuesRunCode = true;
        ast_->runsTexts = ast_->runsTexts || e->symbol == execute_ || e->symbol == executeGlobal_;
    }
    return e;
}

// The name after a dot; any word will do.
Expr* Parser::member(Expr* object, Position at) {
    if (token_.kind != Kind::Identifier && token_.kind != Kind::Keyword) {
        fail(ErrorNumber::ExpectedIdentifier);
    }
    Expr* e = ast_->expr(Expr::Kind::Member, at);
    e->symbol = symbols_.intern(token_.text);
    e->a = object;
    e->calls = true;
    advance();
    setHeight(*e);
    return e;
}

// Parentheses around a name do not call it.
Expr* Parser::grouped(Expr* e) noexcept {
    while (e->kind == Expr::Kind::Parentheses) {
        e = e->a;
    }
    return e;
}

Expr* Parser::call(Expr* callee, std::vector<Expr*> arguments, Position at) {
    if (Expr* inner = grouped(callee); inner->kind == Expr::Kind::Name) {
        callee = inner;
    }
    Expr* e = ast_->expr(Expr::Kind::Call, at);
    e->a = callee;
    e->args = std::move(arguments);
    e->calls = true;
    const Symbol name = callee->kind == Expr::Kind::Name ? callee->symbol : noSymbol;
    if (name != noSymbol) {
        procedure_->called.push_back(name);
    }
    for (std::size_t i = 0; i < e->args.size(); ++i) {
        const Expr* argument = e->args[i];
        if (argument->kind == Expr::Kind::Name) {
            procedure_->passed.push_back({argument->symbol, name, i, argument->at});
            continue;
        }
        const Expr* base = argument;
        while (base->kind == Expr::Kind::Call) {
            base = base->a;
        }
        if (base != argument && base->kind == Expr::Kind::Name) {
            procedure_->elements.push_back({base->symbol, name, i, argument->at});
        }
    }
    setHeight(*e);
    return e;
}

Expr* Parser::unary(Expr::Kind kind, Position at, Expr* operand) {
    Expr* e = ast_->expr(kind, at);
    e->a = operand;
    e->calls = operand->calls;
    setHeight(*e);
    return e;
}

Expr* Parser::binary(BinaryOp op, Position at, Expr* left, Expr* right) {
    Expr* e = ast_->expr(Expr::Kind::Binary, at);
    e->op = op;
    e->a = left;
    e->b = right;
    e->calls = left->calls || right->calls;
    setHeight(*e);
    return e;
}

// Trees grow in height without nesting in the source (1+1+1...); the compiler walks them recursively.
void Parser::setHeight(Expr& e) {
    int height = 0;
    for (const Expr* part : {e.a, e.b}) {
        height = std::max(height, part != nullptr ? int{part->height} : 0);
    }
    if (++height > (e.kind == Expr::Kind::Binary ? maxHeight : maxChain)) {
        fail(ErrorNumber::NestedTooDeep, e.at);
    }
    e.height = static_cast<std::uint16_t>(height);
}

} // namespace vbs
