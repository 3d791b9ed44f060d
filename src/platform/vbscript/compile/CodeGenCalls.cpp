// Code for calls and indexing. Arguments lie in neighbouring temporaries, which become the first registers of the
// callee.
#include "platform/vbscript/compile/CodeGen.h"

#include <algorithm>

namespace vbs {

namespace {

Operand nextTo(Operand o, std::size_t by) noexcept {
    return operandOf(placeOf(o), indexOf(o) + by);
}

} // namespace

// The member of the class around that `Me.name` means, or null.
const ClassMember* CodeGen::ownMember(const Expr* e) {
    return owner_ != nullptr && e->kind == Expr::Kind::Member && e->a != nullptr && e->a->kind == Expr::Kind::Me
               ? owner_->find(e->symbol)
               : nullptr;
}

// The same for a member with arguments; null for a public variable without bounds, which only the object can tell to be
// one that takes an index.
const ClassMember* CodeGen::ownIndexed(const Expr* e) {
    const ClassMember* own = ownMember(e);
    const bool plain = own != nullptr && own->field >= 0 && !own->isPrivate &&
                       !owner_->fields[static_cast<std::size_t>(own->field)].array;
    return plain ? nullptr : own;
}

// e: callee e->a with e->args
void CodeGen::callTo(const Expr* e, Operand to, Store store) {
    const std::size_t mark = temporary_;
    const Expr* callee = e->a;
    if (callee->kind == Expr::Kind::Name) {
        callNameTo(e, resolveCallee(callee->symbol), to, store);
    } else if (callee->kind == Expr::Kind::Member) {
        callMemberTo(e, callee, to, store);
    } else {
        indexTo(expr(callee), e->args, to, store);
    }
    temporary_ = mark;
}

void CodeGen::callNameTo(const Expr* e, const Resolved& callee, Operand to, Store store) {
    using Kind = Resolved::Kind;
    switch (callee.kind) {
    case Kind::Intrinsic:
        intrinsicTo(e, *callee.builtin, to, store);
        return;
    case Kind::Special:
        specialTo(e, callee.special, to, store);
        return;
    case Kind::OwnMember:
        ownMemberTo(*callee.member, e->args, to, store);
        return;
    case Kind::Variable:
    case Kind::Constant:
        if (store != Store::Discard && !e->args.empty() && e->args.size() <= maxPacked) {
            indexTo(callee.operand, e->args, to, store);
            return;
        }
        break;
    default:
        break;
    }
    const Operand called = callee.kind == Kind::Unknown ? unresolved(callee) : callee.operand;
    const std::size_t count = e->args.size();
    const Prepared prepared =
        arguments(e->args, &callee, callee.kind == Kind::Callable ? Passing::Known : Passing::Unknown);
    emitCall(Opcode::Call, to, prepared.first, called, count, store);
    copyBack(prepared);
}

Operand CodeGen::contiguous(const std::vector<Expr*>& args) {
    const Operand first = operandOf(Place::Frame, temporary_);
    for (const Expr* argument : args) {
        const Operand place = newTemporary();
        exprTo(argument, place, Store::Raw);
    }
    if (args.empty()) {
        newTemporary(); // keeps `first` inside the frame
    }
    return first;
}

// base(args): an element of an array or the default member of an object
void CodeGen::indexTo(Operand base, const std::vector<Expr*>& args, Operand to, Store store) {
    const std::size_t count = args.size();
    if (count > maxPacked) {
        refuse(ErrorNumber::TooManyArguments);
    }
    const bool missing =
        std::any_of(args.begin(), args.end(), [](const Expr* e) { return e->kind == Expr::Kind::Missing; });
    const bool inPlace = !isTemporary(base) && !missing && store != Store::Discard;
    if (count == 1 && inPlace) {
        const Operand index = expr(args[0]);
        emit(encode(Opcode::Index, to, base, index, packed(0, store)));
    } else if (count == 2 && inPlace) {
        const Operand i = leftOperand(args[0], args[1]);
        const Operand j = expr(args[1]);
        emit(encode(Opcode::Index2, to, base, i, packed(0, store)));
        emit(j);
    } else {
        const Operand first = contiguous(args);
        emit(encode(Opcode::IndexN, to, base, first, packed(count, store)));
    }
}

void CodeGen::intrinsicTo(const Expr* e, const Builtin& builtin, Operand to, Store store) {
    const std::size_t count = e->args.size();
    if (count < builtin.least || (count > builtin.most && builtin.most != anyNumber)) {
        raiseAtRun(ErrorNumber::WrongArgumentCount, scope_.symbols.intern(builtin.name));
        return;
    }
    const bool used = store != Store::Discard;
    store = builtin.result == Result::None ? Store::Discard : store;
    emitIntrinsic(e, builtin, count, to, store);
    if (builtin.result == Result::None && used) {
        raiseAtRun(ErrorNumber::TypeMismatch, noSymbol);
    } else if (builtin.result == Result::Needed && !used) {
        raiseAtRun(ErrorNumber::VariableTypeNotSupported, noSymbol);
    }
}

void CodeGen::emitIntrinsic(const Expr* e, const Builtin& builtin, std::size_t count, Operand to, Store store) {
    const auto index = static_cast<Operand>(&builtin - scope_.library.builtins.data());
    if (count == 1 && e->args[0]->kind != Expr::Kind::Missing) {
        const Operand argument = expr(e->args[0]);
        emit(encode(Opcode::CallIntrinsic1, to, argument, index, packed(1, store)));
        return;
    }
    const Operand first = contiguous(e->args);
    emitCall(Opcode::CallIntrinsic, to, first, index, count, store);
}

void CodeGen::specialTo(const Expr* e, Special special, Operand to, Store store) {
    if (e->args.size() != 1) {
        raiseAtRun(ErrorNumber::WrongArgumentCount, noSymbol);
        return;
    }
    const Operand text = expr(e->args[0]);
    if (special == Special::GetRef && store == Store::Discard) {
        return; // a reference that nobody takes
    }
    const Operand value = store == Store::Raw ? to : newTemporary();
    if (special == Special::GetRef) {
        emit(encode(Opcode::GetRef, value, text));
    } else {
        const std::uint8_t kind = special == Special::Execute ? 0 : special == Special::ExecuteGlobal ? 1 : 2;
        emit(encode(Opcode::Execute, value, text, 0, kind));
    }
    if (store == Store::Discard) {
        emit(encode(Opcode::Clear, value));
    } else if (store != Store::Raw) {
        deliver(value, to, store);
    }
}

void CodeGen::callMemberTo(const Expr* e, const Expr* callee, Operand to, Store store) {
    if (const ClassMember* own = ownIndexed(callee)) {
        if (own->field >= 0 && e->args.empty() && store != Store::Discard) {
            raiseAtRun(ErrorNumber::InvalidCall, noSymbol); // Me.size()
        } else {
            ownMemberTo(*own, e->args, to, store);
        }
        return;
    }
    const Operand object = callee->a != nullptr ? expr(callee->a) : withObject();
    const std::size_t count = e->args.size();
    const bool native = callee->a != nullptr && isNativeObject(callee->a);
    const Prepared prepared = arguments(e->args, nullptr, native ? Passing::Values : Passing::Unknown);
    emitCall(Opcode::CallMember, to, object, site(callee->symbol), count, store);
    emit(prepared.first);
    copyBack(prepared);
}

// Whether the expression names an object of the host, which takes its arguments by value.
bool CodeGen::isNativeObject(const Expr* e) {
    if (e->kind != Expr::Kind::Name) {
        return false;
    }
    const Resolved r = resolve(e->symbol);
    return r.kind == Resolved::Kind::Constant && placeOf(r.operand) == Place::Global &&
           scope_.globals.kind(static_cast<std::uint32_t>(indexOf(r.operand))) == GlobalKind::Object;
}

void CodeGen::ownMemberTo(const ClassMember& member, const std::vector<Expr*>& args, Operand to, Store store) {
    if (member.field >= 0) {
        const Operand field = operandOf(Place::Field, static_cast<std::size_t>(member.field));
        if (args.empty() && store != Store::Discard) {
            deliver(field, to, store);
        } else {
            indexTo(field, args, to, store);
        }
        return;
    }
    const Procedure* procedure = member.method != nullptr ? member.method : member.get;
    if (procedure == nullptr) {
        raiseAtRun(ErrorNumber::WrongArgumentCount, noSymbol);
        return;
    }
    callSelfTo(procedure, args, to, store);
}

void CodeGen::callSelfTo(const Procedure* procedure, const std::vector<Expr*>& args, Operand to, Store store) {
    const Prepared prepared = arguments(args, nullptr, Passing::Unknown);
    emitCall(Opcode::CallSelf, to, prepared.first, selfCall(procedure), args.size(), store);
    copyBack(prepared);
}

// Evaluates arguments into neighbouring temporaries. A variable goes by reference; an element of an array goes through
// a holder that is written back after the call.
CodeGen::Prepared CodeGen::arguments(const std::vector<Expr*>& args, const Resolved* callee, Passing passing) {
    Prepared prepared;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (needsCopyBack(args[i], i, callee, passing)) {
            const Operand holder = newTemporary();
            const Operand first = operandOf(Place::Frame, temporary_);
            contiguous(args[i]->args);
            prepared.copyBacks.push_back({args[i], holder, first});
            const std::size_t mark = temporary_;
            const Operand indexes = operandOf(Place::Frame, temporary_);
            for (std::size_t k = 0; k < args[i]->args.size(); ++k) {
                emit(encode(Opcode::Copy, newTemporary(), nextTo(first, k))); // the originals wait for the way home
            }
            emit(encode(Opcode::IndexN, holder, *plainVariable(args[i]->a), indexes,
                        packed(args[i]->args.size(), Store::Raw)));
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

// A known callee tells which parameters it never assigns: a plain local variable may then go as a value.
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
    return local && !r.mayRefer && same == 1 && !decl_.dynamicScope && !scope_.writesParameter(*callee->procedure, i);
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
