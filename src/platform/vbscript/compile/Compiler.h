// Text to Unit: parses, resolves names to slots and makes the code. Names of the engine's global scope are looked up
// (and new ones get slots), but nothing there is defined before the unit runs.
#pragma once

#include "platform/vbscript/compile/Globals.h"
#include "platform/vbscript/compile/Program.h"
#include "platform/vbscript/syntax/Ast.h"
#include "platform/vbscript/value/Host.h"
#include "platform/vbscript/value/Library.h"

#include <memory>
#include <span>
#include <string_view>

namespace vbs {

// The place from which Execute and Eval see their names: the locals of the procedure that runs them come as references
// in the first registers of the unit's main procedure, in this order.
struct LocalScope {
    std::span<const LocalName> names;   // of one name the last entry counts
    const ScriptClass* owner = nullptr; // class of Me, if any
};

class Compiler {
public:
    Compiler(SymbolTable& symbols, Globals& globals, const Library& library, Host& host) noexcept
        : symbols_(symbols), globals_(globals), library_(library), host_(host) {}

    // Throws CompileError; the unit has one reference, which is the caller's.
    std::unique_ptr<Unit> compile(std::u16string_view text);
    // Throws what compile() would; nothing stays of the text.
    void check(std::u16string_view text);
    // Whether some text may have made objects whose default member is code of a script. While none has, nothing that
    // is used as a value can change a variable, and code is compiled accordingly.
    bool valuesRunCode() const noexcept { return valuesRunCode_; }
    // Execute inside a procedure. `created` receives the variables that the text makes in the local scope; their
    // references follow those of `scope.names`. Its constants and procedures stand in the unit.
    Unit* compileLocal(std::u16string_view text, const LocalScope& scope, std::vector<Symbol>& created);
    // Eval: the main procedure is a function that answers the value of the expression.
    Unit* compileExpression(std::u16string_view text, const LocalScope& scope);

private:
    std::unique_ptr<Unit> compileUnit(std::u16string_view text);

    SymbolTable& symbols_;
    Globals& globals_;
    const Library& library_;
    Host& host_;
    bool valuesRunCode_ = false;
};

} // namespace vbs
