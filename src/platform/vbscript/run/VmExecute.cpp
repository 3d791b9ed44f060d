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
    const Value& named = at(c);
    if (named.type != Type::Procedure || static_cast<const Callable*>(named.pointer)->kind != Callable::Kind::Class) {
        raise(ErrorNumber::ClassUndefined, m_symbols.name(m_globals.symbol(static_cast<std::uint32_t>(indexOf(c)))));
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
    deliver(m_library.create(*this, at(operandC(instruction)).text()), at(operandA(instruction)), storeOf(instruction));
}

void Vm::getRef(Instruction instruction) {
    const Value given = at(operandB(instruction)).deref();
    consume(operandB(instruction));
    if (!given.isString()) {
        raise(ErrorNumber::TypeMismatch);
    }
    const String name = toString(*this, given);
    const std::uint32_t slot = m_globals.find(m_symbols.find(name.view()));
    const Value* named = slot == Globals::none ? nullptr : &m_globals[slot];
    if (named == nullptr || named->type != Type::Procedure ||
        static_cast<const Callable*>(named->pointer)->kind != Callable::Kind::Procedure) {
        raise(ErrorNumber::InvalidCall);
    }
    const auto& procedure = *static_cast<const Procedure*>(static_cast<const Callable*>(named->pointer));
    at(operandA(instruction)) = makeObject<ProcedureReference>(*this, procedure).value();
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
        kind != 1 && (top().procedure->dynamicScope || top().me != nullptr || kind == 2) &&
        (kind == 2 || top().procedure->form != ProcedureDecl::Kind::Main || top().procedure->parameters > 0);
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

// Execute and Eval where local names are in sight: they reach the text as references.
Value Vm::runLocalText(std::u16string_view text, bool expression) {
    Frame& frame = top();
    std::vector<Symbol> names;
    std::vector<Value*> variables;
    for (const auto& [symbol, index] : frame.procedure->locals) {
        names.push_back(symbol);
        variables.push_back(&frame.base[index].deref());
    }
    if (frame.extra != nullptr) {
        for (const auto& [symbol, value] : *frame.extra) {
            names.push_back(symbol);
            variables.push_back(value.get());
        }
    }
    const LocalScope scope{names, frame.procedure->owner};
    std::vector<Symbol> created;
    Unit* unit = expression ? m_compiler.compileExpression(text, scope) : m_compiler.compileLocal(text, scope, created);
    const struct Release {
        Vm& vm;
        Unit* unit;
        ~Release() { vm.release(unit); }
    } releaseAtEnd{*this, unit};
    bind(unit);
    for (const Symbol symbol : created) {
        if (frame.extra == nullptr) {
            frame.extra = new std::unordered_map<Symbol, std::unique_ptr<Value>>;
        }
        auto value = std::make_unique<Value>();
        variables.push_back(value.get());
        frame.extra->emplace(symbol, std::move(value));
        m_symbols.hold(symbol);
    }
    std::vector<Value> references(variables.size());
    for (std::size_t i = 0; i < variables.size(); ++i) {
        references[i].type = Type::Reference;
        references[i].target = variables[i];
    }
    return callProcedure(unit->main, frame.me, references);
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
    raise(ErrorNumber::VariableUndefined, m_symbols.name(m_globals.symbol(static_cast<std::uint32_t>(slot))));
}

} // namespace vbs
