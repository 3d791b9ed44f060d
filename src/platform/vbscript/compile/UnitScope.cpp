// What is known about a whole text while its procedures are compiled (declared in CodeGen.h): what its names mean, and
// which parameters a call may assign.
#include "platform/vbscript/compile/CodeGen.h"

#include <algorithm>

namespace vbs {

UnitScope::UnitScope(const Ast& theAst, SymbolTable& theSymbols, Globals& theGlobals, const Library& theLibrary,
                     Unit& theUnit)
    : ast(theAst), symbols(theSymbols), globals(theGlobals), library(theLibrary), unit(theUnit) {
    for (const ProcedureDecl* procedure : ast.procedures) {
        procedures_[procedure->name] = procedure;
    }
    for (const ClassDecl* decl : ast.classes) {
        classes_.insert(decl->name);
    }
    for (const Variable& variable : ast.main.variables) {
        variables_.insert(variable.name);
    }
    for (const ConstDecl& constant : ast.main.constants) {
        constants_.emplace(constant.name, constant.value);
    }
}

void UnitScope::makeImplicit(Symbol symbol) {
    if (implicit_.insert(symbol).second) {
        unit.implicit.push_back(slotOf(symbol));
    }
}

void UnitScope::makePassed(Symbol symbol) {
    makeImplicit(symbol);
    passed_.insert(symbol);
}

std::uint32_t UnitScope::slotOf(Symbol symbol) {
    if (globals.full() && globals.find(symbol) == Globals::none) {
        throw CompileError{ErrorNumber::TooManyNames, at};
    }
    return globals.slotOf(symbol);
}

std::uint32_t UnitScope::slotOf(Symbol symbol, Position declared) {
    at = declared;
    return slotOf(symbol);
}

Resolved UnitScope::resolve(Symbol symbol) {
    Resolved r;
    const auto procedure = procedures_.find(symbol);
    const std::uint32_t existing = globals.find(symbol);
    const GlobalKind kind = existing == Globals::none ? GlobalKind::Undefined : globals.kind(existing);
    const bool own = variables_.contains(symbol) || constants_.contains(symbol) || implicit_.contains(symbol);
    if (procedure == procedures_.end() && !classes_.contains(symbol) && !own && kind == GlobalKind::Undefined) {
        const std::u16string& name = symbols.folded(symbol);
        r.special = name == u"execute"         ? Special::Execute
                    : name == u"executeglobal" ? Special::ExecuteGlobal
                    : name == u"eval"          ? Special::Eval
                    : name == u"getref"        ? Special::GetRef
                                               : Special::None;
        r.builtin = r.special == Special::None ? library.find(name) : nullptr;
        if (r.special != Special::None || r.builtin != nullptr) {
            r.kind = r.special != Special::None ? Resolved::Kind::Special : Resolved::Kind::Intrinsic;
            return r;
        }
    }
    if (const auto local = local_.find(symbol); local != local_.end()) {
        r.local = local->second;
    } else {
        r.slot = slotOf(symbol);
        r.operand = operandOf(Place::Global, r.slot);
    }
    r.procedure = procedure != procedures_.end() ? procedure->second : nullptr;
    if (r.procedure != nullptr || classes_.contains(symbol)) {
        r.kind = Resolved::Kind::Callable;
    } else if (const auto constant = constants_.find(symbol); constant != constants_.end()) {
        r.kind = Resolved::Kind::Constant;
        r.literal = constant->second;
    } else if (own || kind != GlobalKind::Undefined) {
        r.kind = own || kind == GlobalKind::Variable ? Resolved::Kind::Variable
                 : kind == GlobalKind::Callable      ? Resolved::Kind::Callable
                                                     : Resolved::Kind::Constant;
    }
    return r;
}

bool UnitScope::writesParameter(const ProcedureDecl& procedure, std::size_t index) {
    const Symbol name = procedure.parameters[index].name;
    const auto contains = [name](const std::vector<Symbol>& list) {
        return std::find(list.begin(), list.end(), name) != list.end();
    };
    if (procedure.dynamicScope || contains(procedure.assigned) || contains(procedure.changed)) {
        return true;
    }
    const auto mayWrite = [&](const Passed& passed) {
        return passed.name == name && mayWriteArgument(procedure, index, passed);
    };
    return std::any_of(procedure.passed.begin(), procedure.passed.end(), mayWrite) ||
           std::any_of(procedure.elements.begin(), procedure.elements.end(), mayWrite);
}

bool UnitScope::mayWriteArgument(const ProcedureDecl& caller, std::size_t callerIndex, const Passed& passed) {
    if (passed.callee == noSymbol) {
        return true;
    }
    const auto named = [&passed](const auto& entry) { return entry.name == passed.callee; };
    if (std::any_of(caller.parameters.begin(), caller.parameters.end(), named) ||
        std::any_of(caller.variables.begin(), caller.variables.end(), named)) {
        return valuesRunCode; // an array that is indexed, or a reference to a procedure
    }
    const Resolved callee = resolve(passed.callee);
    if (callee.kind == Resolved::Kind::Intrinsic || callee.kind == Resolved::Kind::Variable) {
        return valuesRunCode && callee.kind == Resolved::Kind::Variable;
    }
    if (callee.procedure == nullptr || passed.index >= callee.procedure->parameters.size()) {
        return true;
    }
    const bool itself = callee.procedure == &caller && passed.index == callerIndex;
    return !itself && !callee.procedure->parameters[passed.index].byValue;
}

} // namespace vbs
