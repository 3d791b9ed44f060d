// What the compiler makes of a text: procedures, classes and the names they take among the globals.
#pragma once

#include "platform/vbscript/compile/Bytecode.h"
#include "platform/vbscript/compile/Globals.h"
#include "platform/vbscript/syntax/Ast.h"
#include "platform/vbscript/value/Object.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace vbs {

class Unit;
struct ScriptClass;

// What a global slot of Type::Procedure points to.
struct Callable {
    enum class Kind : std::uint8_t { Procedure, Class };
    explicit Callable(Kind k) noexcept : kind(k) {}
    Kind kind;
};

// Code that belongs to one statement: where it starts, where the statement stands, and where to go on after an error.
struct StatementMark {
    std::uint32_t start;
    std::uint32_t resume;
    Position at;
};

// A place in the code that uses a member, and what it found there last time.
struct MemberSite {
    Symbol symbol = noSymbol;
    std::uintptr_t shape = 0;                  // of the object seen last
    int member = 0;                            // its number there
    int field = -1;                            // of instances of script classes: the index of a public field, or -1
    const struct ClassMember* entry = nullptr; // of script classes
    const struct Procedure* reader = nullptr;  // of script classes: what a call of it runs, if it is no variable
    ShortRoad shortRoad = nullptr;             // of host objects
};

// A name that Execute and Eval find in the procedure that runs them.
struct LocalName {
    // Late: a variable, unless the name means something else by the time of its use.
    enum class Kind : std::uint8_t { Variable, Late, Constant, Callable };
    Symbol symbol = noSymbol;
    Kind kind = Kind::Variable;
    bool fixedArray = false; // a variable that holds one by now
};

struct Procedure : Callable {
    Procedure() noexcept : Callable(Kind::Procedure) {}

    Unit* unit = nullptr;
    const ScriptClass* owner = nullptr; // of class members
    Symbol name = noSymbol;
    ProcedureDecl::Kind form = ProcedureDecl::Kind::Sub;
    std::vector<Instruction> code;
    std::vector<Value> constants;
    std::vector<bool> computed;            // of constants: not written as a literal; what lies beyond is
    mutable std::vector<MemberSite> sites; // caches
    std::vector<const Procedure*> selfCalls;
    std::vector<std::vector<std::int32_t>> shapes; // of fixed arrays
    std::vector<StatementMark> marks;              // by start
    std::vector<bool> byValue;                     // a parameter each
    bool anyByValue = false;
    std::uint16_t parameters = 0;
    std::uint16_t plainParameters = 0; // the same, or out of reach if a call must look at its arguments (anyByValue)
    std::uint16_t firstTemporary = 0;
    std::uint16_t registers = 0;
    int resultSlot = -1;
    bool dynamicScope = false;
    bool localText = false; // what Execute or Eval run in the scope of the frame beneath
    std::vector<std::pair<LocalName, std::uint16_t>> locals; // only with dynamicScope

    const StatementMark* markAt(std::size_t pc) const noexcept;
};

struct ClassMember {
    int field = -1; // index of a variable, or -1
    bool isPrivate = false;
    const Procedure* method = nullptr; // Sub or Function
    const Procedure* get = nullptr;
    const Procedure* let = nullptr;
    const Procedure* set = nullptr;
};

struct ScriptClass : Callable {
    ScriptClass() noexcept : Callable(Kind::Class) {}

    Unit* unit = nullptr;
    Symbol name = noSymbol;
    std::u16string spelling;
    std::uintptr_t shape = 0; // different for every class there ever was
    std::vector<Variable> fields;
    std::vector<ClassMember> members;
    std::unordered_map<Symbol, int> index; // name to members
    int defaultMember = -1;
    const Procedure* initialize = nullptr;
    const Procedure* terminate = nullptr;

    const ClassMember* find(Symbol symbol) const noexcept {
        const auto found = index.find(symbol);
        return found != index.end() ? &members[static_cast<std::size_t>(found->second)] : nullptr;
    }
};

// One compiled text. It lives while the cache, a global name, an instance or a running frame refers to it.
class Unit : public Counted {
public:
    Unit(SymbolTable& symbols, Globals& globals) noexcept : names(symbols, globals) {}

    UnitNames names;
    std::u16string text;
    Procedure main;
    std::vector<std::unique_ptr<Procedure>> procedures;
    std::vector<std::unique_ptr<ScriptClass>> classes;

    // What running the text does to the globals before its first statement.
    std::vector<std::pair<std::uint32_t, Callable*>> callables; // slot and what it becomes
    std::vector<std::pair<std::uint32_t, Value>> constants;
    std::vector<std::uint32_t> variables; // declared
    std::vector<std::uint32_t> arrays;    // those of them that are declared with parentheses
    std::vector<std::uint32_t> implicit;  // made by their use

    // Of a text that Execute runs in a procedure: what belongs to that call of it.
    std::vector<std::pair<Symbol, Callable*>> localCallables;
    std::vector<std::pair<Symbol, Value>> localConstants;

    // Names that procedures took as local because no global of that name was known.
    std::vector<Symbol> assumedLocal;

    Unit* nextRetired = nullptr; // without references, but its code may be running
};

} // namespace vbs
