// Calls of intrinsics, procedures and whatever else a name may stand for.
#include "platform/vbscript/run/VmCalls.h"

#include "platform/vbscript/run/Instance.h"
#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/run/VmFrames.h"
#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Library.h"

#include <array>
#include <utility>

namespace vbs {

void Vm::callIntrinsic1(Instruction instruction) {
    const Operand b = operandB(instruction);
    const Builtin& builtin = library_.builtins[operandC(instruction)];
    Value argument = taken(b); // held: code of the script may run
    Value result = builtin.function(*this, {&argument, 1});
    deliver(std::move(result), at(operandA(instruction)), storeOf(instruction));
}

// A call with more arguments than its instruction can tell.
void Vm::callWide(Instruction instruction, Operand first, std::size_t count) {
    Value* row = &at(operandB(instruction));
    Value& to = at(operandA(instruction));
    const Operand c = operandC(instruction);
    const Store store = storeOf(instruction);
    poll();
    switch (static_cast<Opcode>(instruction & 0xff)) {
    case Opcode::CallIntrinsic:
        runIntrinsicRow(library_.builtins[c], row, count, to, store);
        return;
    case Opcode::CallSelf:
        pushFrame(top().procedure->selfCalls[c], row, count, top().me, &to, store);
        return;
    case Opcode::CallMember:
        callMember(instruction, first, count);
        return;
    default:
        callOther(instruction, count);
    }
}

// A call of something that is no procedure: an array, an object, or a mistake.
void Vm::callOther(Instruction instruction, std::size_t count) {
    const Operand c = operandC(instruction);
    const Value callee = at(c).deref();
    Value* first = &at(operandB(instruction));
    const Store store = storeOf(instruction);
    Value& to = at(operandA(instruction));
    if (const Procedure* procedure = procedureIn(callee); procedure != nullptr) {
        pushFrame(procedure, first, count, nullptr, &to, store);
        return;
    }
    if (callee.isObject() && callee.object() != nullptr) {
        Object& object = *callee.object();
        if (object.role == Object::Role::ProcedureReference) {
            pushFrame(&static_cast<ProcedureReference&>(object).procedure(), first, count, nullptr, &to, store);
            return;
        }
        if (object.role == Object::Role::Instance) {
            auto& instance = static_cast<Instance&>(object);
            const int member = instance.cls().defaultMember;
            const Procedure* procedure =
                member < 0 ? nullptr : readerOf(instance.cls().members[static_cast<std::size_t>(member)]);
            if (procedure == nullptr) {
                raise(ErrorNumber::MemberNotFound);
            }
            pushFrame(procedure, first, count, &instance, &to, store);
            return;
        }
        settle(first, count);
        Value result = object.invoke(*this, Object::defaultMember, store == Store::Discard ? Access::Call : Access::Get,
                                     {first, count});
        consumeRow(first, count);
        deliver(std::move(result), to, store);
        return;
    }
    if (callee.isObject()) {
        raise(ErrorNumber::ObjectNotSet);
    }
    if (callee.isArray() && store != Store::Discard) {
        if (count == 0 || count > ArrayBlock::maxDimensions) {
            raise(ErrorNumber::OutOfRange);
        }
        std::array<Value*, 64> places{};
        for (std::size_t i = 0; i < count; ++i) {
            places[i] = first + i;
        }
        Value result;
        getIndex(result, callee, {places.data(), count}, store);
        consumeRow(first, count);
        to = std::move(result);
        return;
    }
    if (placeOf(c) == Place::Global) {
        raise(ErrorNumber::TypeMismatch, symbols_.name(globals_.symbol(static_cast<std::uint32_t>(indexOf(c)))));
    }
    raise(ErrorNumber::TypeMismatch);
}

// A name that the compiler could not resolve: what Execute made in this call, or the global.
void Vm::findName(Instruction instruction) {
    const auto slot = static_cast<std::uint32_t>(indexOf(operandC(instruction)));
    Value& to = at(operandA(instruction));
    Value* found = &globals_[slot];
    bool constant = false;
    if (auto* made = scopeFrame().extra; made != nullptr) {
        if (const auto entry = made->find(globals_.symbol(slot)); entry != made->end()) {
            found = &entry->second.value;
            constant = entry->second.kind == LocalName::Kind::Constant;
        }
    }
    to.clear();
    const auto mode = extraOf(instruction);
    if (mode == 2 && found->type == Type::Undefined) {
        found = &at(operandB(instruction)).deref();
    }
    const GlobalKind kind = globals_.kind(slot);
    constant = constant || (found == &globals_[slot] && (kind == GlobalKind::Constant || kind == GlobalKind::Object));
    if ((mode & 4) != 0 && (constant || found->type == Type::Procedure)) {
        raise(ErrorNumber::IllegalAssignment, symbols_.name(globals_.symbol(slot)));
    }
    if (mode == 2 && constant) {
        to = *found;
    } else if (found->type != Type::Undefined) {
        to.type = Type::Reference;
        to.target = found;
    } else if ((mode & 1) != 0) {
        raiseUndefined(slot);
    }
}

// A name that may be a variable, a function, or nothing yet.
void Vm::getName(Instruction instruction) {
    Value& to = at(operandA(instruction));
    const Value& named = at(operandC(instruction)).deref();
    if (const Procedure* procedure = procedureIn(named); procedure != nullptr) {
        pushFrame(procedure, &at(operandB(instruction)), 0, nullptr, &to, storeOf(instruction));
        return;
    }
    if (countOf(instruction) == 1) {
        if (named.type == Type::Procedure) {
            raise(ErrorNumber::TypeMismatch); // a class
        }
        return; // a variable stays a reference
    }
    deliver(taken(operandC(instruction)), to, storeOf(instruction));
}

} // namespace vbs
