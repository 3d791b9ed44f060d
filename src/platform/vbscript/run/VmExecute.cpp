// New objects and new code: New, GetRef, Execute and Eval; and errors that the compiler foresaw.
#include "platform/vbscript/run/Instance.h"
#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/run/VmCalls.h"
#include "platform/vbscript/run/VmFrames.h"
#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Library.h"

#include <array>
#include <utility>

namespace vbs {

void Vm::makeNew(Instruction instruction) {
    const Operand c = operandC(instruction);
    const Value& named = at(c).deref();
    if (named.type != Type::Procedure || static_cast<const Callable*>(named.pointer)->kind != Callable::Kind::Class) {
        if (placeOf(c) != Place::Global) {
            raise(ErrorNumber::ClassUndefined);
        }
        raise(ErrorNumber::ClassUndefined, symbols_.name(globals_.symbol(static_cast<std::uint32_t>(indexOf(c)))));
    }
    const auto& cls = *static_cast<const ScriptClass*>(static_cast<const Callable*>(named.pointer));
    const auto instance = makeObject<Instance>(*this, cls);
    instance->terminates = true;
    if (cls.initialize != nullptr) {
        callProcedure(*cls.initialize, instance.get(), {});
    }
    deliver(instance.value(), at(operandA(instruction)), storeOf(instruction));
}

void Vm::makeNamed(Instruction instruction) {
    deliver(library_.create(*this, at(operandC(instruction)).text()), at(operandA(instruction)), storeOf(instruction));
}

void Vm::getRef(Instruction instruction) {
    const Value given = at(operandB(instruction)).deref();
    consume(operandB(instruction));
    if (!given.isString()) {
        raise(ErrorNumber::TypeMismatch);
    }
    const Value* named = findNamed(symbols_.find(given.text()));
    const Procedure* procedure = named != nullptr ? procedureIn(*named) : nullptr;
    if (procedure == nullptr) {
        raise(ErrorNumber::InvalidCall);
    }
    at(operandA(instruction)) = makeObject<ProcedureReference>(*this, *procedure).value();
}

// What the name stands for in the running call, or else among the globals; null for nothing.
const Value* Vm::findNamed(Symbol symbol) noexcept {
    if (const auto* extra = scopeFrame().extra; extra != nullptr) {
        if (const auto entry = extra->find(symbol); entry != extra->end()) {
            return &entry->second.value;
        }
    }
    const std::uint32_t slot = globals_.find(symbol);
    return slot == Globals::none ? nullptr : &globals_[slot];
}

void Vm::executeText(Instruction instruction) {
    const Operand b = operandB(instruction);
    Value given = taken(b);
    consume(b);
    const auto kind = extraOf(instruction);
    if (kind == 2 && !given.isString()) {
        at(operandA(instruction)) = std::move(given); // Eval gives back what is no text
        return;
    }
    given = withoutObject(*this, given);
    if (!given.isString()) {
        raise(ErrorNumber::TypeMismatch);
    }
    const String text = toString(*this, given);
    const bool local =
        kind == 2 || (kind != 1 && (top().procedure->dynamicScope || top().me != nullptr) &&
                      (top().procedure->form != ProcedureDecl::Kind::Main || top().procedure->localText));
    Value result;
    try {
        if (local) {
            result = runLocalText(text.view(), kind == 2);
        } else {
            runUnit(unitOf(text.view()));
        }
    } catch (const CompileError& failure) {
        raise(failure.number);
    }
    at(operandA(instruction)) = std::move(result);
}

// The frame of the procedure that a running Execute or Eval belongs to, however deep they stand in each other.
Vm::Frame& Vm::scopeFrame() noexcept {
    Frame* frame = &top();
    while (frame->procedure->localText) {
        --frame;
    }
    return *frame;
}

// The entry of a name that Execute makes in the running call, made if need be.
Vm::Made& Vm::made(Symbol symbol) {
    Frame& frame = scopeFrame();
    if (frame.extra == nullptr) {
        frame.extra = new std::unordered_map<Symbol, Made>;
    }
    const auto [entry, added] = frame.extra->try_emplace(symbol);
    if (added) {
        symbols_.hold(symbol);
    }
    if (Unit* before = std::exchange(entry->second.unit, nullptr); before != nullptr) {
        release(before);
    }
    return entry->second;
}

// Procedures, classes and constants of a text that runs in a procedure belong to that call of it.
void Vm::makeLocals(const Unit& unit) {
    for (const auto& [symbol, callable] : unit.localCallables) {
        Made& entry = made(symbol);
        entry.kind = LocalName::Kind::Callable;
        entry.unit = callable->kind == Callable::Kind::Class ? static_cast<ScriptClass*>(callable)->unit
                                                             : static_cast<Procedure*>(callable)->unit;
        retain(entry.unit);
        Value itself;
        itself.type = Type::Procedure;
        itself.pointer = callable;
        overwrite(entry.value, std::move(itself));
    }
    for (const auto& [symbol, value] : unit.localConstants) {
        Made& entry = made(symbol);
        entry.kind = LocalName::Kind::Constant;
        overwrite(entry.value, value);
    }
}

// Execute and Eval where local names are in sight: they reach the text as references.
Value Vm::runLocalText(std::u16string_view text, bool expression) {
    const Frame& frame = top();
    std::vector<LocalName> names;
    std::vector<Value*> variables;
    for (const auto& [name, index] : frame.procedure->locals) {
        names.push_back(name);
        variables.push_back(&frame.base[index].deref());
    }
    if (auto* extra = scopeFrame().extra; extra != nullptr) {
        for (auto& [symbol, entry] : *extra) {
            names.push_back({symbol, entry.kind});
            variables.push_back(&entry.value);
        }
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        names[i].fixedArray = variables[i]->isArray() && variables[i]->array()->fixed();
    }
    const LocalScope scope{names, frame.procedure->owner};
    std::vector<Symbol> created;
    Unit* unit = expression ? compiler_.compileExpression(text, scope) : compiler_.compileLocal(text, scope, created);
    const struct Release {
        Vm& vm;
        Unit* unit;
        ~Release() { vm.release(unit); }
    } releaseAtEnd{*this, unit};
    bind(unit);
    for (const Symbol symbol : created) {
        Made& entry = made(symbol);
        entry.kind = LocalName::Kind::Variable;
        overwrite(entry.value, {});
        variables.push_back(&entry.value);
    }
    makeLocals(*unit);
    std::vector<Value> references(variables.size());
    for (std::size_t i = 0; i < variables.size(); ++i) {
        references[i].type = Type::Reference;
        references[i].target = variables[i];
    }
    return callProcedure(unit->main, scopeFrame().me, references);
}

// ---------------------------------------------------------------------------------------------------------------
// errors

void Vm::onError(bool resumeNext) {
    top().resumeNext = resumeNext;
    error = {};
}

void Vm::raiseCompiled(Instruction instruction) {
    const auto number = static_cast<ErrorNumber>(operandC(instruction));
    if (extraOf(instruction) == 1) {
        raise(number, at(operandB(instruction)).text());
    }
    raise(number);
}

void Vm::raiseUndefined(std::size_t slot) {
    raise(ErrorNumber::VariableUndefined, symbols_.name(globals_.symbol(static_cast<std::uint32_t>(slot))));
}

} // namespace vbs
