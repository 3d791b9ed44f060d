// Code for calls and indexing; the arguments of calls stand in CodeGenArguments.cpp.
#include "platform/vbscript/compile/CodeGen.h"

#include <algorithm>

namespace vbs {

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
        callValueTo(e, expr(callee), to, store);
    }
    temporary_ = mark;
}

// What a call or an index has given is called or indexed in its turn.
void CodeGen::callValueTo(const Expr* e, Operand base, Operand to, Store store) {
    Resolved given;
    given.kind = Resolved::Kind::Variable;
    given.operand = base;
    if (store != Store::Discard && !e->args.empty() && e->args.size() <= maxPacked) {
        indexOrCallTo(e, given, to, store);
    } else {
        callUnknownTo(e, given, to, store);
    }
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
            indexOrCallTo(e, callee, to, store);
            return;
        }
        break;
    default:
        break;
    }
    callUnknownTo(e, callee, to, store);
}

// Whether what e->a gives may be code of the script, as an object or a reference, which gets what can be assigned
// by reference as a procedure does.
bool CodeGen::mayTakeReferences(const Expr* e) {
    const auto goesByReference = [](const Expr* argument) {
        return argument->kind == Expr::Kind::Name || argument->kind == Expr::Kind::Call;
    };
    const bool array = e->a->kind == Expr::Kind::Name && isFixedArray(e->a->symbol);
    return !array && mayBeObject(e->a) && std::any_of(e->args.begin(), e->args.end(), goesByReference);
}

// An index on a variable, or a call of what it holds: made both ways. In the arguments of others that ends somewhere.
void CodeGen::indexOrCallTo(const Expr* e, const Resolved& callee, Operand to, Store store) {
    Label end;
    const int made = callInsteadTo(e, callee, to, store, end);
    callsInArguments_ += made;
    indexTo(callee.operand, e->args, to, store);
    callsInArguments_ -= made;
    bind(end);
}

// The call, which goes on at `end`, for when the variable asks for one. Answers how many were made: one or none.
int CodeGen::callInsteadTo(const Expr* e, const Resolved& callee, Operand to, Store store, Label& end) {
    const bool unknown = callee.kind == Resolved::Kind::Unknown;
    if (callsInArguments_ == deepestCalls || !(unknown || mayTakeReferences(e))) {
        return 0;
    }
    ++callsInArguments_;
    Label byValue;
    const std::size_t mark = temporary_;
    emitJump(Opcode::JumpByValue, unknown ? unresolved(callee) : callee.operand, unknown ? arraysOnly : 0, byValue);
    temporary_ = mark;
    callUnknownTo(e, callee, to, store);
    temporary_ = mark;
    emitJump(Opcode::Jump, 0, 0, end);
    bind(byValue);
    --callsInArguments_;
    return 1;
}

// A call of what is known, if at all, by the time it runs.
void CodeGen::callUnknownTo(const Expr* e, const Resolved& callee, Operand to, Store store) {
    using Kind = Resolved::Kind;
    const Operand called = callee.kind == Kind::Unknown ? unresolved(callee) : callee.operand;
    const std::size_t count = e->args.size();
    const Prepared prepared =
        arguments(e->args, &callee, callee.kind == Kind::Callable ? Passing::Known : Passing::Unknown);
    emitCall(Opcode::Call, to, prepared.first, called, count, store);
    copyBack(prepared);
    if (callee.kind == Kind::Variable && isTemporary(called)) {
        emit(encode(Opcode::Clear, called)); // a call leaves what it calls
    }
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
        } else if (own->field >= 0) {
            callValueTo(e, operandOf(Place::Field, static_cast<std::size_t>(own->field)), to, store);
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
    callSelfTo(procedure, args, Passing::Unknown, to, store);
}

void CodeGen::callSelfTo(const Procedure* procedure, const std::vector<Expr*>& args, Passing passing, Operand to,
                         Store store) {
    const Prepared prepared = arguments(args, nullptr, passing);
    emitCall(Opcode::CallSelf, to, prepared.first, selfCall(procedure), args.size(), store);
    copyBack(prepared);
}

} // namespace vbs
