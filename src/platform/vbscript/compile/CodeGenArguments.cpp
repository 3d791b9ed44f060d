// Code for the arguments of calls. They lie in neighbouring temporaries, which become the first registers of the
// callee.
#include "platform/vbscript/compile/CodeGen.h"

#include <algorithm>

namespace vbs {

namespace {

Operand nextTo(Operand o, std::size_t by) noexcept {
    return operandOf(placeOf(o), indexOf(o) + by);
}

} // namespace

// Evaluates arguments into neighbouring temporaries. A variable goes by reference; an element of an array goes through
// a holder that is written back after the call.
CodeGen::Prepared CodeGen::arguments(const std::vector<Expr*>& args, const Resolved* callee, Passing passing) {
    Prepared prepared;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (needsCopyBack(args[i], i, callee, passing)) {
            const Operand holder = newTemporary();
            const Operand first = operandOf(Place::Frame, temporary_);
            Label end;
            const int made = callInsteadTo(args[i], resolveCallee(args[i]->a->symbol), holder, Store::Raw, end);
            callsInArguments_ += made;
            contiguous(args[i]->args);
            callsInArguments_ -= made;
            prepared.copyBacks.push_back({args[i], holder, first});
            const std::size_t mark = temporary_;
            const Operand indexes = operandOf(Place::Frame, temporary_);
            for (std::size_t k = 0; k < args[i]->args.size(); ++k) {
                emit(encode(Opcode::Copy, newTemporary(), nextTo(first, k))); // the originals wait for the way home
            }
            emit(encode(Opcode::IndexN, holder, *plainVariable(args[i]->a), indexes,
                        packed(args[i]->args.size(), Store::Raw)));
            bind(end);
            temporary_ = mark;
        }
    }
    prepared.first = operandOf(Place::Frame, temporary_);
    std::size_t next = 0;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const Operand place = newTemporary();
        if (next < prepared.copyBacks.size() && prepared.copyBacks[next].element == args[i]) {
            emit(encode(Opcode::Reference, place, prepared.copyBacks[next].holder));
            ++next;
        } else {
            argumentTo(args[i], place, passing == Passing::Values || passedByValue(args, i, callee));
        }
    }
    if (args.empty()) {
        newTemporary();
    }
    return prepared;
}

void CodeGen::argumentTo(const Expr* e, Operand to, bool byValue) {
    if (!byValue && e->kind == Expr::Kind::Name) {
        const Resolved r = resolve(e->symbol);
        if (r.late) {
            const std::size_t mark = temporary_;
            lateTo(r, to);
            temporary_ = mark;
            return;
        }
        if (r.kind == Resolved::Kind::Variable || r.passed) {
            emit(encode(Opcode::Reference, to, r.operand));
            if (r.passed) {
                const std::size_t mark = temporary_;
                emit(encode(Opcode::GetName, to, newTemporary(), to, packed(1, Store::Raw)));
                temporary_ = mark;
            }
            return;
        }
    }
    exprTo(e, to, Store::Raw);
}

// A known callee tells which parameters it never assigns: a plain local variable may then go as a value, unless a later
// argument may change it.
bool CodeGen::passedByValue(const std::vector<Expr*>& args, std::size_t i, const Resolved* callee) {
    const Expr* argument = args[i];
    if (argument->kind != Expr::Kind::Name || callee == nullptr || callee->kind != Resolved::Kind::Callable ||
        callee->procedure == nullptr || i >= callee->procedure->parameters.size()) {
        return false;
    }
    if (callee->procedure->parameters[i].byValue) {
        return true;
    }
    const Resolved r = resolve(argument->symbol);
    const bool local = r.kind == Resolved::Kind::Variable && placeOf(r.operand) == Place::Frame;
    const auto same = std::count_if(args.begin(), args.end(), [argument](const Expr* other) {
        return other->kind == Expr::Kind::Name && other->symbol == argument->symbol;
    });
    const bool changes = std::any_of(args.begin() + static_cast<std::ptrdiff_t>(i) + 1, args.end(),
                                     [&](const Expr* later) { return passesName(later, argument->symbol); });
    return local && !r.mayRefer && same == 1 && !changes && !decl_.dynamicScope &&
           !scope_.writesParameter(*callee->procedure, i);
}

bool CodeGen::needsCopyBack(const Expr* e, std::size_t i, const Resolved* callee, Passing passing) {
    if (passing == Passing::Values || e->kind != Expr::Kind::Call || e->a->kind != Expr::Kind::Name ||
        e->args.empty()) {
        return false;
    }
    const Resolved base = resolveCallee(e->a->symbol);
    if (base.kind != Resolved::Kind::Variable) {
        return false;
    }
    if (callee != nullptr && callee->procedure != nullptr && i < callee->procedure->parameters.size()) {
        return !callee->procedure->parameters[i].byValue && scope_.writesParameter(*callee->procedure, i);
    }
    return callee == nullptr || callee->kind == Resolved::Kind::Unknown || callee->kind == Resolved::Kind::Callable ||
           callee->kind == Resolved::Kind::Variable;
}

void CodeGen::copyBack(const Prepared& prepared) {
    for (const CopyBack& back : prepared.copyBacks) {
        const Operand base = *plainVariable(back.element->a);
        // X with Store::Discard: do nothing where the base is no array.
        emit(encode(Opcode::SetIndexN, base, back.first, back.holder,
                    packed(back.element->args.size(), Store::Discard)));
    }
}

} // namespace vbs
