// Code for assignments.
#include "platform/vbscript/compile/CodeGen.h"

#include <algorithm>

namespace vbs {

void CodeGen::assign(const Expr* target, const Expr* value, Store store) {
    const std::size_t mark = temporary_;
    switch (target->kind) {
    case Expr::Kind::Name:
        assignName(target, value, store);
        break;
    case Expr::Kind::Call:
        assignCall(target, value, store);
        break;
    case Expr::Kind::Member:
        if (const ClassMember* own = ownMember(target)) {
            assignOwn(*own, {}, value, store);
        } else {
            assignMember(target->a, target->symbol, {}, value, store);
        }
        break;
    default:
        throw CompileError{ErrorNumber::SyntaxError, target->at};
    }
    temporary_ = mark;
}

void CodeGen::assignName(const Expr* target, const Expr* value, Store store) {
    const Resolved r = resolve(target->symbol);
    switch (r.kind) {
    case Resolved::Kind::Variable:
        if (isFixedArray(target->symbol)) {
            raiseAtRun(ErrorNumber::TypeMismatch, noSymbol);
            return;
        }
        if (decl_.kind == ProcedureDecl::Kind::Main && isOwnResult(target->symbol)) {
            store = Store::Raw; // Eval answers objects as they are
        }
        if (r.mayRefer) {
            const Operand from = expr(value);
            emit(encode(store == Store::Set ? Opcode::StoreSet : Opcode::StoreLet, r.operand, from));
        } else {
            exprTo(value, r.operand, store);
        }
        return;
    case Resolved::Kind::OwnMember:
        assignOwn(*r.member, {}, value, store);
        return;
    case Resolved::Kind::Unknown:
        if (const Operand variable = unresolved(r, Use::Assigned); isTemporary(variable)) {
            emit(encode(store == Store::Set ? Opcode::StoreSet : Opcode::StoreLet, variable, expr(value)));
        } else {
            exprTo(value, variable, store);
        }
        return;
    default:
        if (store == Store::Let && isErr(r)) {
            const Operand from = expr(value);
            emit(encode(Opcode::SetMember, r.operand, from, site(scope_.symbols.intern(u"Number")), packed(0, store)));
        } else {
            raiseAtRun(ErrorNumber::IllegalAssignment, target->symbol);
        }
    }
}

// Err is the one object of the language; its default property can be assigned.
bool CodeGen::isErr(const Resolved& r) const {
    if (r.kind != Resolved::Kind::Constant || placeOf(r.operand) != Place::Global) {
        return false;
    }
    const auto slot = static_cast<std::uint32_t>(indexOf(r.operand));
    return scope_.globals.predefined(slot) && scope_.globals.kind(slot) == GlobalKind::Object;
}

// Whether the name was declared with bounds: here, in the main text if it is a global, or by a text that has run.
bool CodeGen::isFixedArray(Symbol symbol) {
    const auto fixed = [symbol](const Variable& v) { return v.name == symbol && !v.sizes.empty(); };
    const auto local = locals_.find(symbol);
    if (local == locals_.end() && isMember(symbol)) {
        return std::any_of(owner_->fields.begin(), owner_->fields.end(), fixed);
    }
    const bool isLocal = local != locals_.end();
    const std::vector<Variable>& variables = isLocal ? decl_.variables : scope_.ast.main.variables;
    if (std::any_of(variables.begin(), variables.end(), fixed)) {
        return true;
    }
    const std::uint32_t slot = isLocal ? Globals::none : scope_.globals.find(symbol);
    return isLocal ? local->second.fixedArray : slot != Globals::none && scope_.globals.holdsFixedArray(slot);
}

// name(args) = value, object.name(args) = value, or something deeper
void CodeGen::assignCall(const Expr* target, const Expr* value, Store store) {
    const Expr* callee = target->a;
    if (callee->kind == Expr::Kind::Member) {
        if (const ClassMember* own = ownIndexed(callee)) {
            assignOwn(*own, target->args, value, store);
        } else {
            assignMember(callee->a, callee->symbol, target->args, value, store);
        }
        return;
    }
    if (callee->kind != Expr::Kind::Name) {
        const Road road = roadTo(target);
        if (road.levels.size() == 1) {
            storeElement(road.base, target->args, value, store);
        } else {
            const Operand first = indexesOf(road);
            storeDeep(road, first, expr(value), store);
        }
        return;
    }
    const Resolved r = resolve(callee->symbol);
    switch (r.kind) {
    case Resolved::Kind::Variable:
    case Resolved::Kind::Constant:
    case Resolved::Kind::Unknown:
        storeElement(r.kind == Resolved::Kind::Unknown ? unresolved(r) : r.operand, target->args, value, store);
        return;
    case Resolved::Kind::OwnMember:
        assignOwn(*r.member, target->args, value, store);
        return;
    case Resolved::Kind::Callable:
        storeElement(expr(callee), target->args, value, store);
        return;
    default:
        raiseAtRun(ErrorNumber::TypeMismatch, callee->symbol);
    }
}

// The variable behind a(1)(2)(3), or the value that something else gives, and the indexes that lead on from it. The
// elements on the way are looked up when the right side is known, which may change them.
CodeGen::Road CodeGen::roadTo(const Expr* target) {
    Road road;
    road.levels.push_back(&target->args);
    const Expr* base = target->a;
    while (base->kind == Expr::Kind::Call && base->a->kind == Expr::Kind::Call && !base->args.empty()) {
        road.levels.push_back(&base->args);
        base = base->a;
    }
    const bool element = base->kind == Expr::Kind::Call && base->a->kind == Expr::Kind::Name && !base->args.empty();
    if (const auto variable = element ? resolve(base->a->symbol) : Resolved{};
        variable.kind == Resolved::Kind::Variable) {
        road.levels.push_back(&base->args);
        road.base = variable.operand;
    } else {
        road.base = expr(base);
    }
    std::reverse(road.levels.begin(), road.levels.end());
    return road;
}

// The indexes of all levels in one row.
Operand CodeGen::indexesOf(const Road& road) {
    std::vector<Expr*> all;
    for (const std::vector<Expr*>* level : road.levels) {
        all.insert(all.end(), level->begin(), level->end());
    }
    return contiguous(all);
}

void CodeGen::storeDeep(const Road& road, Operand indexes, Operand from, Store store) {
    std::vector<std::int32_t> counts;
    for (const std::vector<Expr*>* level : road.levels) {
        if (level->size() > 60) {
            refuse(ErrorNumber::TooManyArguments);
        }
        counts.push_back(static_cast<std::int32_t>(level->size()));
    }
    procedure_.shapes.push_back(std::move(counts));
    emit(encode(Opcode::SetDeep, road.base, indexes, from, packed(0, store)));
    emit(procedure_.shapes.size() - 1);
}

void CodeGen::storeElement(Operand base, const std::vector<Expr*>& args, const Expr* value, Store store) {
    const bool missing =
        std::any_of(args.begin(), args.end(), [](const Expr* e) { return e->kind == Expr::Kind::Missing; });
    if (args.size() == 1 && !missing) {
        const Operand index = leftOperand(args[0], value, store);
        const Operand from = expr(value);
        emit(encode(Opcode::SetIndex, base, index, from, packed(0, store)));
    } else if (args.size() == 2 && !missing) {
        const Operand i = leftOperand(args[0], mayChange(args[0], args[1]) ? args[1] : value, store);
        const Operand j = leftOperand(args[1], value, store);
        const Operand from = expr(value);
        emit(encode(Opcode::SetIndex2, base, i, j, packed(0, store)));
        emit(from);
    } else {
        if (args.size() > 60) {
            refuse(ErrorNumber::TooManyArguments);
        }
        const Operand first = contiguous(args);
        const Operand from = expr(value);
        emit(encode(Opcode::SetIndexN, base, first, from, packed(args.size(), store)));
    }
}

void CodeGen::assignMember(const Expr* object, Symbol symbol, const std::vector<Expr*>& args, const Expr* value,
                           Store store) {
    const Operand base = object != nullptr ? expr(object) : withObject();
    if (args.empty()) {
        const Operand from = expr(value);
        emit(encode(Opcode::SetMember, base, from, site(symbol), packed(isTemporary(base) ? 1 : 0, store)));
        return;
    }
    if (args.size() > 60) {
        refuse(ErrorNumber::TooManyArguments);
    }
    std::vector<Expr*> all(args);
    all.push_back(const_cast<Expr*>(value));
    const Operand first = contiguous(all);
    emit(encode(Opcode::SetMemberN, base, first, site(symbol), packed(args.size(), store)));
}

void CodeGen::assignOwn(const ClassMember& member, const std::vector<Expr*>& args, const Expr* value, Store store) {
    if (member.field >= 0) {
        const Operand field = operandOf(Place::Field, static_cast<std::size_t>(member.field));
        if (args.empty() && !owner_->fields[static_cast<std::size_t>(member.field)].sizes.empty()) {
            raiseAtRun(ErrorNumber::TypeMismatch, noSymbol);
        } else if (args.empty()) {
            exprTo(value, field, store);
        } else {
            storeElement(field, args, value, store);
        }
        return;
    }
    const Procedure* procedure = store == Store::Set ? member.set : member.let;
    if (procedure == nullptr && store == Store::Set && member.let != nullptr) {
        raiseAtRun(ErrorNumber::MemberNotFound, noSymbol);
        return;
    }
    if (procedure == nullptr) {
        raiseAtRun(member.set != nullptr ? ErrorNumber::ObjectRequired : ErrorNumber::IllegalAssignment, noSymbol);
        return;
    }
    std::vector<Expr*> all(args);
    all.push_back(const_cast<Expr*>(value));
    callSelfTo(procedure, all, Passing::Values, 0, Store::Discard);
}

} // namespace vbs
