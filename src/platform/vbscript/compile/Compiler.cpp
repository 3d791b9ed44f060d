#include "platform/vbscript/compile/Compiler.h"

#include "platform/vbscript/compile/CodeGen.h"
#include "platform/vbscript/compile/ConstantFolding.h"
#include "platform/vbscript/syntax/Parser.h"

#include <algorithm>

namespace vbs {

namespace {

void addMember(ScriptClass& cls, const ProcedureDecl& decl, const Procedure* procedure, const SymbolTable& symbols) {
    const auto [entry, added] = cls.index.try_emplace(decl.name, static_cast<int>(cls.members.size()));
    if (added) {
        cls.members.emplace_back();
        cls.members.back().isPrivate = decl.isPrivate;
    }
    ClassMember& member = cls.members[static_cast<std::size_t>(entry->second)];
    using PK = ProcedureDecl::Kind;
    (decl.kind == PK::PropertyGet   ? member.get
     : decl.kind == PK::PropertyLet ? member.let
     : decl.kind == PK::PropertySet ? member.set
                                    : member.method) = procedure;
    if (decl.isDefault) {
        cls.defaultMember = entry->second;
    }
    const std::u16string& name = symbols.folded(decl.name);
    if (name == u"class_initialize") {
        cls.initialize = procedure;
    } else if (name == u"class_terminate") {
        cls.terminate = procedure;
    }
}

// Odd numbers, so that no address of a native table can equal one.
std::uintptr_t freshShape(SymbolTable& symbols) noexcept {
    return (symbols.nextSerial() << 1) | 1U;
}

// Declares the class: its fields and, still without code, its procedures.
std::unique_ptr<ScriptClass> declareClass(const ClassDecl& decl, Unit& unit, SymbolTable& symbols,
                                          std::vector<std::pair<const ProcedureDecl*, Procedure*>>& bodies) {
    auto cls = std::make_unique<ScriptClass>();
    cls->unit = &unit;
    cls->name = decl.name;
    cls->spelling = symbols.name(decl.name);
    cls->shape = freshShape(symbols);
    cls->fields = decl.fields;
    for (std::size_t i = 0; i < decl.fields.size(); ++i) {
        cls->index[decl.fields[i].name] = static_cast<int>(cls->members.size());
        ClassMember& member = cls->members.emplace_back();
        member.field = static_cast<int>(i);
        member.isPrivate = decl.fields[i].isPrivate;
    }
    for (const ProcedureDecl* body : decl.members) {
        Procedure* procedure = unit.procedures.emplace_back(std::make_unique<Procedure>()).get();
        procedure->owner = cls.get();
        bodies.emplace_back(body, procedure);
        addMember(*cls, *body, procedure, symbols);
    }
    return cls;
}

// Every name that the text assigns somewhere.
std::unordered_set<Symbol> namesChanged(const Ast& ast) {
    std::unordered_set<Symbol> names(ast.main.changed.begin(), ast.main.changed.end());
    const auto add = [&names](const ProcedureDecl* procedure) {
        names.insert(procedure->assigned.begin(), procedure->assigned.end());
        names.insert(procedure->changed.begin(), procedure->changed.end());
    };
    std::for_each(ast.procedures.begin(), ast.procedures.end(), add);
    for (const ClassDecl* decl : ast.classes) {
        std::for_each(decl->members.begin(), decl->members.end(), add);
    }
    return names;
}

// What a unit defines among the globals.
void declareGlobals(UnitScope& scope) {
    const ProcedureDecl& main = scope.ast.main;
    for (const ConstDecl& decl : main.constants) {
        scope.unit.constants.emplace_back(scope.slotOf(decl.name, decl.at), foldConstant(*decl.value));
    }
    for (const Variable& variable : main.variables) {
        scope.unit.variables.push_back(scope.slotOf(variable.name, variable.at));
        if (variable.array) {
            scope.unit.arrays.push_back(scope.unit.variables.back());
        }
    }
    if (scope.ast.optionExplicit) {
        for (const Symbol symbol : main.redimmed) {
            if (scope.resolve(symbol).kind == Resolved::Kind::Unknown) {
                scope.makeImplicit(symbol);
            }
        }
        return;
    }
    for (std::size_t i = 0; i < main.assigned.size(); ++i) {
        scope.at = main.assignedAt[i];
        if (scope.resolve(main.assigned[i]).kind == Resolved::Kind::Unknown) {
            scope.makeImplicit(main.assigned[i]);
        }
    }
    const std::unordered_set<Symbol> changed = namesChanged(scope.ast);
    for (const Passed& passed : main.passed) {
        scope.at = passed.at;
        const bool toIntrinsic =
            passed.callee != noSymbol && scope.resolve(passed.callee).kind == Resolved::Kind::Intrinsic;
        if (toIntrinsic || scope.resolve(passed.name).kind != Resolved::Kind::Unknown) {
            continue;
        }
        if (changed.contains(passed.name)) {
            scope.makeImplicit(passed.name);
        } else {
            scope.makePassed(passed.name);
        }
    }
}

void checkRedefinitions(const Ast& ast) {
    std::unordered_set<Symbol> names;
    for (const Variable& variable : ast.main.variables) {
        names.insert(variable.name);
    }
    for (const ConstDecl& constant : ast.main.constants) {
        names.insert(constant.name);
    }
    for (const ProcedureDecl* procedure : ast.procedures) {
        if (names.contains(procedure->name)) {
            throw CompileError{ErrorNumber::NameRedefined, procedure->at};
        }
    }
    for (const ClassDecl* decl : ast.classes) {
        if (!names.insert(decl->name).second) {
            throw CompileError{ErrorNumber::NameRedefined, decl->at};
        }
    }
}

enum class Reach { Global, Local };

// Compiles everything but the main procedure.
void compileDeclarations(UnitScope& scope, Reach reach) {
    const Ast& ast = scope.ast;
    Unit& unit = scope.unit;
    checkRedefinitions(ast);
    const auto declare = [&](Symbol name, Position at, Callable* callable) {
        if (reach == Reach::Global) {
            unit.callables.emplace_back(scope.slotOf(name, at), callable);
        } else {
            unit.localCallables.emplace_back(name, callable);
            scope.keepLocal(name, callable);
        }
    };
    std::vector<std::pair<const ProcedureDecl*, Procedure*>> bodies;
    for (const ClassDecl* decl : ast.classes) {
        unit.classes.push_back(declareClass(*decl, unit, scope.symbols, bodies));
        declare(decl->name, decl->at, unit.classes.back().get());
    }
    for (const ProcedureDecl* decl : ast.procedures) {
        Procedure* procedure = unit.procedures.emplace_back(std::make_unique<Procedure>()).get();
        bodies.emplace_back(decl, procedure);
        declare(decl->name, decl->at, procedure);
    }
    for (const auto& [decl, procedure] : bodies) {
        CodeGen(scope, *decl, *procedure, procedure->owner).generate();
    }
}

// What the text finds under the name in the procedure that runs it; null for nothing.
const LocalName* findLocal(const LocalScope& localScope, Symbol name) {
    const auto found = std::find_if(localScope.names.rbegin(), localScope.names.rend(),
                                    [name](const LocalName& known) { return known.symbol == name; });
    return found != localScope.names.rend() ? &*found : nullptr;
}

// Whether the text declares the name as a constant, a procedure or a class.
bool declares(const Ast& ast, Symbol name) {
    const auto named = [name](const auto& decl) { return decl.name == name; };
    const auto pointsTo = [name](const auto* decl) { return decl->name == name; };
    return std::any_of(ast.main.constants.begin(), ast.main.constants.end(), named) ||
           std::any_of(ast.procedures.begin(), ast.procedures.end(), pointsTo) ||
           std::any_of(ast.classes.begin(), ast.classes.end(), pointsTo);
}

// Notes the constants of a text that Execute runs in a procedure. A variable of the procedure can become neither
// constant nor procedure, and what is an array with bounds is not declared as an array again.
void checkLocals(UnitScope& scope, const LocalScope& localScope) {
    const auto check = [&localScope](Symbol name, Position at) {
        const LocalName* known = findLocal(localScope, name);
        if (known != nullptr && known->kind == LocalName::Kind::Variable) {
            throw CompileError{ErrorNumber::NameRedefined, at};
        }
    };
    for (const ConstDecl& constant : scope.ast.main.constants) {
        check(constant.name, constant.at);
        scope.unit.localConstants.emplace_back(constant.name, foldConstant(*constant.value));
    }
    for (const Variable& variable : scope.ast.main.variables) {
        const LocalName* known = findLocal(localScope, variable.name);
        if (variable.array && known != nullptr && known->fixedArray) {
            raise(ErrorNumber::TypeMismatch);
        }
    }
    for (const ProcedureDecl* procedure : scope.ast.procedures) {
        check(procedure->name, procedure->at);
    }
    for (const ClassDecl* decl : scope.ast.classes) {
        check(decl->name, decl->at);
    }
}

// The variables that a text makes in the procedure that runs it: those that it declares, also over a constant, and
// those that it assigns and nobody knows.
std::vector<Symbol> namesMade(UnitScope& scope, const LocalScope& localScope) {
    std::vector<Symbol> made;
    const auto isField = [&localScope](Symbol name) {
        return localScope.owner != nullptr && localScope.owner->find(name) != nullptr;
    };
    const auto add = [&made](Symbol name) {
        if (std::find(made.begin(), made.end(), name) == made.end()) {
            made.push_back(name);
        }
    };
    for (const Variable& variable : scope.ast.main.variables) {
        const LocalName* known = findLocal(localScope, variable.name);
        if (known == nullptr || known->kind >= LocalName::Kind::Constant) {
            add(variable.name);
        }
    }
    for (const Symbol name : scope.ast.main.assigned) {
        if (findLocal(localScope, name) == nullptr && !isField(name) &&
            scope.resolve(name).kind == Resolved::Kind::Unknown) {
            add(name);
        }
    }
    return made;
}

} // namespace

std::unique_ptr<Unit> Compiler::compile(std::u16string_view text) {
    return compileUnit(text);
}

void Compiler::check(std::u16string_view text) {
    compileUnit(text);
}

std::unique_ptr<Unit> Compiler::compileUnit(std::u16string_view text) {
    auto unit = std::make_unique<Unit>(symbols_, globals_);
    Parser parser(text, symbols_, host_.now().year);
    const std::unique_ptr<Ast> ast = parser.parse();
    UnitScope scope(*ast, symbols_, globals_, library_, *unit);
    scope.valuesRunCode = valuesRunCode_ = valuesRunCode_ || ast->valuesRunCode;
    declareGlobals(scope);
    compileDeclarations(scope, Reach::Global);
    CodeGen(scope, ast->main, unit->main, nullptr).generate();
    unit->names.close();
    return unit;
}

Unit* Compiler::compileLocal(std::u16string_view text, const LocalScope& localScope, std::vector<Symbol>& created) {
    auto unit = std::make_unique<Unit>(symbols_, globals_);
    Parser parser(text, symbols_, host_.now().year);
    const std::unique_ptr<Ast> ast = parser.parse();
    UnitScope scope(*ast, symbols_, globals_, library_, *unit);
    compileDeclarations(scope, Reach::Local);
    checkLocals(scope, localScope);
    CodeGen main(scope, ast->main, unit->main, localScope.owner);
    for (const LocalName& name : localScope.names) {
        main.addCaptured(declares(*ast, name.symbol) ? LocalName{} : name); // its own meaning hides the older one
    }
    created = namesMade(scope, localScope);
    for (const Symbol name : created) {
        main.addCaptured({name});
    }
    unit->main.localText = true;
    main.generate();
    unit->names.close();
    return unit.release();
}

Unit* Compiler::compileExpression(std::u16string_view text, const LocalScope& localScope) {
    auto unit = std::make_unique<Unit>(symbols_, globals_);
    const Symbol result = symbols_.intern(u"(eval)");
    Parser parser(text, symbols_, host_.now().year);
    const std::unique_ptr<Ast> ast = parser.parseExpression(result);
    ast->main.name = result;
    UnitScope scope(*ast, symbols_, globals_, library_, *unit);
    CodeGen main(scope, ast->main, unit->main, localScope.owner);
    for (const LocalName& name : localScope.names) {
        main.addCaptured(name);
    }
    unit->main.localText = true;
    main.generate();
    unit->names.close();
    return unit.release();
}

} // namespace vbs
