// Code for expressions. expr() answers where a value can be read (a variable itself, a constant, or a temporary);
// exprTo() puts it into a given place.
#include "platform/vbscript/compile/CodeGen.h"
#include "platform/vbscript/compile/ConstantFolding.h"
#include "platform/vbscript/value/Operators.h"

#include <algorithm>

namespace vbs {

namespace {

Opcode opcodeOf(BinaryOp op) noexcept {
    switch (op) {
    case BinaryOp::Add:
        return Opcode::Add;
    case BinaryOp::Subtract:
        return Opcode::Subtract;
    case BinaryOp::Multiply:
        return Opcode::Multiply;
    case BinaryOp::Divide:
        return Opcode::Divide;
    case BinaryOp::IntegerDivide:
        return Opcode::IntegerDivide;
    case BinaryOp::Modulo:
        return Opcode::Modulo;
    case BinaryOp::Power:
        return Opcode::Power;
    case BinaryOp::Concatenate:
        return Opcode::Concatenate;
    case BinaryOp::Equal:
        return Opcode::Equal;
    case BinaryOp::NotEqual:
        return Opcode::NotEqual;
    case BinaryOp::Less:
        return Opcode::Less;
    case BinaryOp::Greater:
        return Opcode::Greater;
    case BinaryOp::LessEqual:
        return Opcode::LessEqual;
    case BinaryOp::GreaterEqual:
        return Opcode::GreaterEqual;
    case BinaryOp::Is:
        return Opcode::Is;
    case BinaryOp::And:
        return Opcode::And;
    case BinaryOp::Or:
        return Opcode::Or;
    case BinaryOp::Xor:
        return Opcode::Xor;
    case BinaryOp::Eqv:
        return Opcode::Eqv;
    default:
        return Opcode::Imp;
    }
}

// The jump on an operator, counted from the jump on Equal: of a comparison, Is or And; else nothing.
std::optional<Opcode> jumpOf(const Expr& e, Opcode equal) noexcept {
    const auto counted = [equal](Opcode op) {
        return static_cast<Opcode>(static_cast<int>(equal) + static_cast<int>(op) -
                                   static_cast<int>(Opcode::JumpEqual));
    };
    if (e.kind != Expr::Kind::Binary) {
        return std::nullopt;
    }
    if (e.op == BinaryOp::Is || e.op == BinaryOp::And) {
        return counted(e.op == BinaryOp::Is ? Opcode::JumpIs : Opcode::JumpBoth);
    }
    if (e.op < BinaryOp::Equal || e.op > BinaryOp::GreaterEqual) {
        return std::nullopt;
    }
    const auto index = static_cast<std::uint8_t>(e.op) - static_cast<std::uint8_t>(BinaryOp::Equal);
    return static_cast<Opcode>(static_cast<int>(equal) + index);
}

} // namespace

// The operand of a variable or constant that can be read in place.
std::optional<Operand> CodeGen::plainVariable(const Expr* e) {
    if (e->kind != Expr::Kind::Name) {
        return std::nullopt;
    }
    const Resolved r = resolve(e->symbol);
    if ((r.kind != Resolved::Kind::Variable && r.kind != Resolved::Kind::Constant) || r.late) {
        return std::nullopt;
    }
    return r.operand;
}

// A reference to the variable that a name without declaration means by now, or the result of the function.
void CodeGen::lateTo(const Resolved& name, Operand to) {
    emit(encode(Opcode::FindName, to, name.operand, operandOf(Place::Global, name.slot), 2));
    emit(encode(Opcode::GetName, to, newTemporary(), to, packed(1, Store::Raw)));
}

Operand CodeGen::expr(const Expr* e) {
    e = withoutParentheses(e);
    if (e->kind == Expr::Kind::Literal) {
        return constant(e->value);
    }
    if (e->kind == Expr::Kind::Negate && e->a->kind == Expr::Kind::Literal && e->a->value.type <= Type::Single) {
        return constantOf(*e);
    }
    if (const auto variable = plainVariable(e)) {
        return *variable;
    }
    const Operand to = newTemporary();
    exprTo(e, to, Store::Raw);
    return to;
}

void CodeGen::exprTo(const Expr* e, Operand to, Store store) {
    const std::size_t mark = temporary_;
    switch (e->kind) {
    case Expr::Kind::Literal:
    case Expr::Kind::Missing:
        literalTo(e, to, store);
        break;
    case Expr::Kind::Name:
        nameTo(e, to, store);
        break;
    case Expr::Kind::Me:
        emit(encode(Opcode::Me, to, 0, 0, packed(0, store)));
        break;
    case Expr::Kind::Member:
        memberTo(e, to, store);
        break;
    case Expr::Kind::Call:
        callTo(e, to, store);
        break;
    case Expr::Kind::New:
        newTo(e, to, store);
        break;
    case Expr::Kind::Parentheses:
        exprTo(e->a, to, store);
        break;
    default:
        if (store == Store::Set) {
            const Operand value = newTemporary();
            exprTo(e, value, Store::Raw);
            deliver(value, to, store);
        } else if (e->kind == Expr::Kind::Binary) {
            binaryTo(e, to);
        } else {
            const Operand operand = expr(e->a);
            emit(encode(e->kind == Expr::Kind::Negate ? Opcode::Negate : Opcode::Not, to, operand));
        }
    }
    temporary_ = mark;
}

void CodeGen::literalTo(const Expr* e, Operand to, Store store) {
    deliver(constant(e->kind == Expr::Kind::Missing ? Value::missing() : e->value), to, store);
}

void CodeGen::nameTo(const Expr* e, Operand to, Store store) {
    const Resolved r = resolve(e->symbol);
    if (r.late) {
        const Operand found = newTemporary();
        lateTo(r, found);
        deliver(found, to, store);
    } else if (r.kind == Resolved::Kind::Variable || r.kind == Resolved::Kind::Constant) {
        deliver(r.operand, to, store);
    } else if (r.kind == Resolved::Kind::Unknown) {
        const Operand name = unresolved(r);
        emit(encode(Opcode::GetName, to, newTemporary(), name, packed(0, store)));
    } else {
        Expr call;
        call.kind = Expr::Kind::Call;
        callNameTo(&call, r, to, store);
    }
}

Operand CodeGen::withObject() {
    if (withs_.empty()) {
        raiseAtRun(ErrorNumber::InvalidReference, noSymbol);
        return newTemporary();
    }
    return withs_.back();
}

void CodeGen::memberTo(const Expr* e, Operand to, Store store) {
    if (const ClassMember* own = ownMember(e)) {
        ownMemberTo(*own, {}, to, store);
        return;
    }
    const Operand object = e->a != nullptr ? expr(e->a) : withObject();
    emit(encode(Opcode::GetMember, to, object, site(e->symbol), packed(isTemporary(object) ? 1 : 0, store)));
}

void CodeGen::newTo(const Expr* e, Operand to, Store store) {
    const std::u16string& name = scope_.symbols.folded(e->symbol);
    const auto local = locals_.find(e->symbol);
    const bool captured = local != locals_.end() && local->second.kind == LocalName::Kind::Callable;
    const Resolved r = captured ? resolve(e->symbol) : resolveOutside(e->symbol);
    if (name == u"regexp") { // a class of that name in the script does not hide it
        emit(encode(Opcode::NewNamed, to, 0, textConstant(e->symbol), packed(0, store)));
    } else if (r.kind == Resolved::Kind::Callable || r.kind == Resolved::Kind::Unknown) {
        const Operand cls = r.kind == Resolved::Kind::Unknown ? unresolved(r) : r.operand;
        emit(encode(Opcode::New, to, 0, cls, packed(0, store)));
    } else {
        raiseAtRun(ErrorNumber::ClassUndefined, e->symbol);
    }
}

void CodeGen::binaryTo(const Expr* e, Operand to) {
    if (e->op == BinaryOp::Concatenate && joinTo(e, to)) {
        return;
    }
    // Rows like a + b + c lean to the left; they are walked here, not by recursion.
    std::vector<const Expr*> row{e};
    for (const Expr* left = e->a;
         left->kind == Expr::Kind::Binary && (left->op != BinaryOp::Concatenate || row.back()->op == left->op);
         left = left->a) {
        row.push_back(left);
    }
    const std::size_t mark = temporary_;
    Operand left = leftOperand(row.back()->a, row.back()->b);
    for (std::size_t i = row.size(); i-- > 0;) {
        const Operand right = expr(row[i]->b);
        if (i > 0) {
            temporary_ = mark;
        }
        const Operand result = i > 0 ? newTemporary() : to;
        emit(encode(opcodeOf(row[i]->op), result, left, right));
        left = result;
    }
}

// a & b & c ...: one instruction for the row; `x = x & ...` grows x in place.
bool CodeGen::joinTo(const Expr* e, Operand to) {
    std::vector<const Expr*> parts;
    const Expr* first = e;
    for (; first->kind == Expr::Kind::Binary && first->op == BinaryOp::Concatenate; first = first->a) {
        parts.push_back(first->b);
    }
    parts.push_back(first);
    std::reverse(parts.begin(), parts.end());
    constexpr std::size_t most = 60;
    if (parts.size() < 3 || parts.size() > most) {
        return false;
    }
    const auto target = plainVariable(parts[0]);
    const bool grows = target == to && std::none_of(parts.begin() + 1, parts.end(), [&](const Expr* part) {
                           return mayChange(parts[0], part) || mayChangeAsValue(parts[0], part);
                       });
    const Operand start = operandOf(Place::Frame, temporary_);
    const std::size_t count = parts.size() - (grows ? 1 : 0);
    rowTo(std::span(parts).last(count), parts.size() - count);
    emit(encode(grows ? Opcode::Append : Opcode::Join, to, start, 0, packed(count, Store::Raw)));
    return true;
}

void CodeGen::jumpUnless(const Expr* condition, Label& label) {
    const std::size_t mark = temporary_;
    condition = withoutParentheses(condition);
    if (const auto op = jumpOf(*condition, Opcode::UnlessEqual)) {
        const Operand left = leftOperand(condition->a, condition->b);
        const Operand right = expr(condition->b);
        emitJump(*op, left, right, label);
    } else {
        const Operand value = expr(condition);
        emitJump(Opcode::JumpUnless, value, 0, label);
    }
    temporary_ = mark;
}

void CodeGen::jumpIfTo(const Expr* condition, std::size_t target) {
    const std::size_t mark = temporary_;
    condition = withoutParentheses(condition);
    if (const auto op = jumpOf(*condition, Opcode::JumpEqual)) {
        const Operand left = leftOperand(condition->a, condition->b);
        const Operand right = expr(condition->b);
        emitJumpTo(*op, left, right, target);
    } else {
        emitJumpTo(Opcode::JumpIf, expr(condition), 0, target);
    }
    temporary_ = mark;
}

void CodeGen::jumpUnlessTo(const Expr* condition, std::size_t target) {
    Label label;
    jumpUnless(condition, label);
    for (const std::size_t at : label) {
        patch(at, target);
    }
}

} // namespace vbs
