#include "platform/vbscript/compile/ConstantFolding.h"

#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Operators.h"

namespace vbs {

namespace {

constexpr int maxDepth = 1000; // of operators, and of constants that need a later one

// No objects can occur.
class FoldingContext : public Context {
public:
    explicit FoldingContext(Host& theHost) : Context(theHost) {}
    Value defaultValue(const Value& /*object*/) override { raise(ErrorNumber::TypeMismatch); }
    Value call(const Value& /*procedure*/, Arguments /*arguments*/) override { raise(ErrorNumber::TypeMismatch); }
    void adopt(Object& /*object*/) override {}
    void abandon(Object& /*object*/) noexcept override {}
    void poll() override {}
    void spend(std::size_t /*work*/) override {}
};

Value foldBinary(Context& context, BinaryOp op, const Value& a, const Value& b) {
    switch (op) {
    case BinaryOp::Add:
        return add(context, a, b);
    case BinaryOp::Subtract:
        return subtract(context, a, b);
    case BinaryOp::Multiply:
        return multiply(context, a, b);
    case BinaryOp::Divide:
        return divide(context, a, b);
    case BinaryOp::IntegerDivide:
        return integerDivide(context, a, b);
    case BinaryOp::Modulo:
        return modulo(context, a, b);
    case BinaryOp::Power:
        return power(context, a, b);
    case BinaryOp::Concatenate:
        return concatenate(context, a, b);
    case BinaryOp::And:
        return logicalAnd(context, a, b);
    case BinaryOp::Or:
        return logicalOr(context, a, b);
    case BinaryOp::Xor:
        return logicalXor(context, a, b);
    default:
        raise(ErrorNumber::ExpectedLiteral);
    }
}

// Folds one expression; names are looked up in `expressions` and what they come to is kept in `values`.
class Folder {
public:
    using Expressions = std::unordered_map<Symbol, const Expr*>;
    using Values = std::unordered_map<Symbol, Value>;

    Folder(const Expressions& expressions, Values& values)
        : m_context(m_host), m_expressions(expressions), m_values(values) {}

    Value named(Symbol name, int depth) {
        if (const auto value = m_values.find(name); value != m_values.end()) {
            return value->second;
        }
        const auto expression = m_expressions.find(name);
        if (expression == m_expressions.end()) {
            raise(ErrorNumber::ExpectedLiteral);
        }
        Value value = fold(*expression->second, depth);
        m_values.emplace(name, value);
        return value;
    }

    Value fold(const Expr& e, int depth) {
        if (depth > maxDepth) {
            raise(ErrorNumber::ExpectedLiteral);
        }
        switch (e.kind) {
        case Expr::Kind::Literal:
            return e.value;
        case Expr::Kind::Parentheses:
        case Expr::Kind::Plus:
            return fold(*e.a, depth + 1);
        case Expr::Kind::Negate:
            return negate(m_context, fold(*e.a, depth + 1));
        case Expr::Kind::Not:
            return logicalNot(m_context, fold(*e.a, depth + 1));
        case Expr::Kind::Binary:
            return foldBinary(m_context, e.op, fold(*e.a, depth + 1), fold(*e.b, depth + 1));
        case Expr::Kind::Name:
            return named(e.symbol, depth + 1);
        default:
            raise(ErrorNumber::ExpectedLiteral);
        }
    }

private:
    Host m_host;
    FoldingContext m_context;
    const Expressions& m_expressions;
    Values& m_values;
};

Value foldWith(const Expr& e, const Folder::Expressions& expressions, Folder::Values& values) {
    try {
        return Folder(expressions, values).fold(e, 0);
    } catch (const ScriptError&) {
        throw CompileError{ErrorNumber::ExpectedLiteral, e.at};
    }
}

} // namespace

Value foldConstant(const Expr& e) {
    Folder::Values none;
    return foldWith(e, {}, none);
}

ConstantTable::ConstantTable(const std::vector<ConstDecl>& declarations) {
    for (const ConstDecl& declaration : declarations) {
        m_expressions[declaration.name] = declaration.value;
    }
}

Value ConstantTable::valueOf(Symbol name) {
    if (const auto value = m_values.find(name); value != m_values.end()) {
        return value->second;
    }
    Value value = foldWith(*m_expressions.at(name), m_expressions, m_values);
    m_values.emplace(name, value);
    return value;
}

} // namespace vbs
