// Operands are read from left to right, and an operator asks for default members before what stands right of it is
// read. But a variable is read in place, by the instruction that needs it, and a row of & is joined at once. What
// stands here tells where that would show, and does it step by step there: while no text has brought an object whose
// default member is code of a script, only calls count.
#include "platform/vbscript/compile/CodeGen.h"

#include <algorithm>

namespace vbs {

// The left operand; a variable that the right side may change is copied first. `store` tells what becomes of the right
// side: Let asks for its default member.
Operand CodeGen::leftOperand(const Expr* left, const Expr* right, Store store) {
    const Expr* plain = withoutParentheses(left);
    const bool isName = plain->kind == Expr::Kind::Name;
    if (isName && (mayChange(plain, right) || (store == Store::Let && mayChangeAsValue(plain, right)))) {
        const Operand copy = newTemporary();
        exprTo(plain, copy, Store::Raw);
        return copy;
    }
    return expr(left);
}

// Whether only this call can reach the variable, and calls that get it.
bool CodeGen::standsApart(const Resolved& r) const {
    return r.kind == Resolved::Kind::Variable && placeOf(r.operand) == Place::Frame && !r.mayRefer && !r.late &&
           !decl_.dynamicScope;
}

// Whether evaluating `by` may change the variable.
bool CodeGen::mayChange(const Expr* variable, const Expr* by) {
    if (!by->calls || variable->kind != Expr::Kind::Name) {
        return false;
    }
    const Resolved r = resolve(variable->symbol);
    if (r.kind == Resolved::Kind::Constant) {
        return false;
    }
    return standsApart(r) ? passesName(by, variable->symbol) : runsUserCode(by);
}

// Whether it may be changed by the default member of what `value` gives.
bool CodeGen::mayChangeAsValue(const Expr* variable, const Expr* value) {
    const Resolved r = resolve(variable->symbol);
    return r.kind != Resolved::Kind::Constant && !standsApart(r) && mayBeObject(value);
}

// Whether code of the script may run while `e` is evaluated: in a call, or as the default member of an operand, an
// index or an argument.
bool CodeGen::runsUserCode(const Expr* e) {
    if (e == nullptr || !e->calls) {
        return false;
    }
    const auto asValue = [this](const Expr* part) { return runsUserCode(part) || mayBeObject(part); };
    switch (e->kind) {
    case Expr::Kind::Name: {
        const Resolved r = resolve(e->symbol);
        return r.kind != Resolved::Kind::Variable && r.kind != Resolved::Kind::Constant &&
               r.kind != Resolved::Kind::Intrinsic;
    }
    case Expr::Kind::Call:
        return asValue(e->a) || std::any_of(e->args.begin(), e->args.end(), asValue);
    case Expr::Kind::Binary:
        return e->op == BinaryOp::Is ? runsUserCode(e->a) || runsUserCode(e->b) : asValue(e->a) || asValue(e->b);
    case Expr::Kind::Negate:
    case Expr::Kind::Not:
        return asValue(e->a);
    case Expr::Kind::Parentheses:
        return runsUserCode(e->a);
    default:
        return e->kind != Expr::Kind::Me;
    }
}

// Whether `e` may give an object whose default member is code of the script.
bool CodeGen::mayBeObject(const Expr* e) {
    e = withoutParentheses(e);
    if (!scope_.valuesRunCode || isPlainValue(e)) {
        return false;
    }
    if (e->kind == Expr::Kind::Call && e->a->kind == Expr::Kind::Name) {
        return resolveCallee(e->a->symbol).kind != Resolved::Kind::Intrinsic;
    }
    if (e->kind != Expr::Kind::Name) {
        return true;
    }
    const Resolved r = resolve(e->symbol);
    if (!standsApart(r)) {
        return r.kind != Resolved::Kind::Intrinsic;
    }
    const auto passes = [e](const Passed& passed) { return passed.name == e->symbol; };
    return std::find(decl_.objects.begin(), decl_.objects.end(), e->symbol) != decl_.objects.end() ||
           std::any_of(decl_.passed.begin(), decl_.passed.end(), passes);
}

// Whether `e` is sure to be neither object nor array: a literal, a constant or what an operator gives.
bool CodeGen::isPlainValue(const Expr* e) {
    e = withoutParentheses(e);
    switch (e->kind) {
    case Expr::Kind::Literal:
    case Expr::Kind::Missing:
    case Expr::Kind::Binary:
    case Expr::Kind::Negate:
    case Expr::Kind::Not:
        return true;
    case Expr::Kind::Name:
        return resolve(e->symbol).kind == Resolved::Kind::Constant;
    default:
        return false;
    }
}

// Whether `e` hands the variable itself, or an element of it, to a call.
bool CodeGen::passesName(const Expr* e, Symbol symbol) {
    if (e == nullptr || !e->calls) {
        return false;
    }
    const auto passes = [this, symbol](const Expr* part) { return passesName(part, symbol); };
    const auto isIt = [symbol](const Expr* part) { return part->kind == Expr::Kind::Name && part->symbol == symbol; };
    for (const Expr* argument : e->args) {
        if ((isIt(argument) || (argument->kind == Expr::Kind::Call && isIt(argument->a))) &&
            (runsUserCode(e->a) || mayBeObject(e->a))) {
            return true;
        }
    }
    return passes(e->a) || passes(e->b) || std::any_of(e->args.begin(), e->args.end(), passes);
}

// Whether it shows in the part of a row of & if the parts before it become texts only afterwards.
bool CodeGen::seesConversions(const Expr* part) {
    part = withoutParentheses(part);
    if (runsUserCode(part)) {
        return true;
    }
    const bool reads = scope_.valuesRunCode && part->calls;
    return reads && !(part->kind == Expr::Kind::Name && (isPlainValue(part) || standsApart(resolve(part->symbol))));
}

// The parts of a row of & into neighbouring temporaries. `before` stand in front of them elsewhere. The first two
// parts of the row become texts together, each other one when it is reached.
void CodeGen::rowTo(std::span<const Expr* const> parts, std::size_t before) {
    const std::size_t first = temporary_;
    std::size_t settled = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const auto waiting = parts.subspan(settled, i - settled);
        const auto isPlain = [this](const Expr* part) { return isPlainValue(part); };
        if (i + before >= 2 && !std::all_of(waiting.begin(), waiting.end(), isPlain) && seesConversions(parts[i])) {
            emit(encode(Opcode::Settle, operandOf(Place::Frame, first + settled), 0, 0,
                        packed(i - settled, Store::Raw)));
            settled = i;
        }
        exprTo(parts[i], newTemporary(), Store::Raw);
    }
}

} // namespace vbs
