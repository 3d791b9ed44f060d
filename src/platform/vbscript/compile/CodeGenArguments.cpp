// Code for the arguments of calls. They lie in neighbouring temporaries, which become the first registers of the
// callee.
#include "platform/vbscript/compile/CodeGen.h"
#include "platform/vbscript/value/Array.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace vbs {

namespace {

Operand nextTo(Operand o, std::size_t by) noexcept {
    return operandOf(placeOf(o), indexOf(o) + by);
}

// The calls and indexes that lead from a name to an element, the first one in front; empty if `e` is no such thing.
std::vector<const Expr*> levelsOf(const Expr* e) {
    std::vector<const Expr*> levels;
    for (; e->kind == Expr::Kind::Call && !e->args.empty() && e->args.size() <= ArrayBlock::maxDimensions; e = e->a) {
        levels.insert(levels.begin(), e);
    }
    return e->kind == Expr::Kind::Name ? levels : std::vector<const Expr*>{};
}

} // namespace

// Evaluates arguments into neighbouring temporaries, from left to right. A variable goes by reference; an element of an
// array goes through a holder that is written back after the call.
CodeGen::Prepared CodeGen::arguments(const std::vector<Expr*>& args, const Resolved* callee, Passing passing) {
    Prepared prepared;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (needsCopyBack(args[i], i, callee, passing)) {
            prepared.copyBacks.push_back(newCopyBack(args[i]));
        }
    }
    prepared.first = operandOf(Place::Frame, temporary_);
    std::size_t next = 0;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const Operand place = newTemporary();
        if (next < prepared.copyBacks.size() && prepared.copyBacks[next].element == args[i]) {
            const CopyBack& back = prepared.copyBacks[next++];
            elementTo(back);
            emit(encode(Opcode::Reference, place, back.holder));
        } else {
            argumentTo(args[i], place, passing == Passing::Values || passedByValue(args, i, callee));
        }
    }
    if (args.empty()) {
        newTemporary();
    }
    for (const CopyBack& back : prepared.copyBacks) {
        const auto later = std::find(args.begin(), args.end(), back.element) + 1;
        if (std::any_of(later, args.end(), [this](const Expr* e) { return runsUserCode(e); })) {
            elementAgain(back);
        }
    }
    return prepared;
}

// Temporaries for the element, for what stands on the way to it, and for the indexes, which wait for the way home.
CodeGen::CopyBack CodeGen::newCopyBack(const Expr* element) {
    CopyBack back{element, newTemporary(), 0};
    newTemporary(); // behind the holder: what it held at first
    std::size_t others = 0;
    for (const Expr* level : levelsOf(element)) {
        others += level->args.size() + (level != element ? 1 : 0);
    }
    back.first = operandOf(Place::Frame, temporary_);
    for (std::size_t k = 0; k < others; ++k) {
        newTemporary();
    }
    return back;
}

// The element into its holder. Where code of the script stands on the way, it is called instead.
void CodeGen::elementTo(const CopyBack& back) {
    const std::size_t mark = temporary_;
    const std::vector<const Expr*> levels = levelsOf(back.element);
    const auto add = [](std::size_t sum, const Expr* level) { return sum + level->args.size(); };
    Operand between = nextTo(back.first, std::accumulate(levels.begin(), levels.end(), std::size_t{0}, add));
    Operand indexes = back.first;
    Resolved base = resolveCallee(levels.front()->a->symbol);
    for (const Expr* level : levels) {
        const std::size_t count = level->args.size();
        const Operand to = level == back.element ? back.holder : between;
        Label end;
        const int made = callInsteadTo(level, base, to, Store::Raw, end);
        callsInArguments_ += made;
        for (std::size_t k = 0; k < count; ++k) {
            exprTo(level->args[k], nextTo(indexes, k), Store::Raw);
        }
        callsInArguments_ -= made;
        readElement(base.kind == Resolved::Kind::Unknown ? unresolved(base) : base.operand, indexes, count, to);
        bind(end);
        temporary_ = mark;
        indexes = nextTo(indexes, count);
        base = Resolved{};
        base.kind = Resolved::Kind::Variable;
        base.operand = std::exchange(between, nextTo(between, 1));
    }
    emit(encode(Opcode::Copy, nextTo(back.holder, 1), back.holder));
}

void CodeGen::readElement(Operand base, Operand indexes, std::size_t count, Operand to) {
    const Operand row = operandOf(Place::Frame, temporary_);
    for (std::size_t k = 0; k < count; ++k) {
        emit(encode(Opcode::Copy, newTemporary(), nextTo(indexes, k)));
    }
    emit(encode(Opcode::IndexN, to, base, row, packed(count, Store::Raw)));
}

// The element as the arguments after it have left it, if an array still holds it.
void CodeGen::elementAgain(const CopyBack& back) {
    const Expr* base = back.element->a;
    if (base->kind != Expr::Kind::Name) {
        return;
    }
    const std::size_t mark = temporary_;
    const Resolved r = resolveCallee(base->symbol);
    const Operand array = r.kind == Resolved::Kind::Unknown ? unresolved(r) : r.operand;
    Label read;
    Label end;
    emitJump(Opcode::JumpByValue, array, arraysOnly, read);
    emitJump(Opcode::Jump, 0, 0, end);
    bind(read);
    readElement(array, back.first, back.element->args.size(), back.holder);
    emit(encode(Opcode::Copy, nextTo(back.holder, 1), back.holder));
    bind(end);
    temporary_ = mark;
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
            const std::size_t mark = temporary_;
            const Operand variable = r.passed && mayBeMade() ? unresolved(r) : r.operand;
            emit(encode(Opcode::Reference, to, variable));
            if (r.passed) {
                emit(encode(Opcode::GetName, to, newTemporary(), to, packed(1, Store::Raw)));
            }
            temporary_ = mark;
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
        callee->procedure == nullptr || i >= callee->procedure->parameters.size() || scope_.ast.runsTexts) {
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
    const std::vector<const Expr*> levels = passing == Passing::Values ? std::vector<const Expr*>{} : levelsOf(e);
    const auto base = levels.empty() ? Resolved::Kind::Callable : resolveCallee(levels.front()->a->symbol).kind;
    if (base != Resolved::Kind::Variable && (base != Resolved::Kind::Unknown || callsInArguments_ == deepestCalls)) {
        return false;
    }
    const bool known = callee != nullptr && callee->procedure != nullptr && !scope_.ast.runsTexts;
    if (known && i < callee->procedure->parameters.size()) {
        return !callee->procedure->parameters[i].byValue && scope_.writesParameter(*callee->procedure, i);
    }
    return callee == nullptr || callee->kind == Resolved::Kind::Unknown || callee->kind == Resolved::Kind::Callable ||
           callee->kind == Resolved::Kind::Variable;
}

void CodeGen::copyBack(const Prepared& prepared) {
    for (const CopyBack& back : prepared.copyBacks) {
        const std::vector<const Expr*> levels = levelsOf(back.element);
        Road road;
        const std::size_t mark = temporary_;
        const Resolved base = resolveCallee(levels.front()->a->symbol);
        road.base = base.kind == Resolved::Kind::Unknown ? unresolved(base) : base.operand;
        // Store::Discard: nothing is done where the holder was left alone or an array is missing on the way.
        if (levels.size() == 1) {
            emit(encode(Opcode::SetIndexN, road.base, back.first, back.holder,
                        packed(back.element->args.size(), Store::Discard)));
        } else {
            for (const Expr* level : levels) {
                road.levels.push_back(&level->args);
            }
            storeDeep(road, back.first, back.holder, Store::Discard);
        }
        temporary_ = mark;
    }
}

} // namespace vbs
