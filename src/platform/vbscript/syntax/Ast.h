// The tree that the parser builds and the compiler reads. Nodes live in the Ast that owns them.
#pragma once

#include "platform/vbscript/value/Errors.h"
#include "platform/vbscript/value/Memory.h"
#include "platform/vbscript/value/Value.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace vbs {

// A name as number; equal for names that differ in case only.
using Symbol = std::uint32_t;
inline constexpr Symbol noSymbol = 0xffffffff;

// The names of an engine. One that nobody holds any more gives its number to another, so that texts which bring a new
// name each leave nothing behind.
class SymbolTable {
public:
    // The number of a name, which is noted if somebody notes.
    Symbol intern(std::u16string_view name);
    // The same without making one; noSymbol if there is none.
    Symbol find(std::u16string_view name) const;
    const std::u16string& name(Symbol s) const { return info_[s].spelling; }  // as first written
    const std::u16string& folded(Symbol s) const { return *info_[s].folded; } // in small letters
    // A number that was never given before.
    std::uintptr_t nextSerial() noexcept { return ++serial_; }

    // From now on every name that is interned gets a holder and goes into `notes`, once; null ends that.
    void noteIn(std::vector<Symbol>* notes) noexcept;
    void hold(Symbol s) noexcept { ++info_[s].holders; }
    void release(Symbol s) noexcept; // the last holder's release forgets the name

private:
    struct Info {
        const std::u16string* folded = nullptr;
        std::u16string spelling;
        std::uint32_t holders = 0;
        std::uint32_t round = 0; // of the notes that have it
        Symbol nextFree = noSymbol;
    };

    // Not noexcept, so that the table remembers the hashes.
    struct Hash : std::hash<std::u16string_view> {
        using is_transparent = void;
        std::size_t operator()(std::u16string_view name) const {
            return std::hash<std::u16string_view>::operator()(name);
        }
    };
    struct Same {
        using is_transparent = void;
        bool operator()(std::u16string_view a, std::u16string_view b) const noexcept { return sameUnits(a, b); }
    };

    std::unordered_map<std::u16string, Symbol, Hash, Same> index_; // by the name in small letters
    std::vector<Info> info_;
    Symbol free_ = noSymbol;
    std::vector<Symbol>* notes_ = nullptr;
    std::uint32_t round_ = 0;
    std::uintptr_t serial_ = 0;
};

struct Position {
    std::uint32_t line = 0; // from 1; 0 is nowhere
    std::uint32_t column = 0;
};

// A compile error, thrown by parser and compiler.
struct CompileError {
    ErrorNumber number;
    Position position;
};

enum class BinaryOp : std::uint8_t {
    Add,
    Subtract,
    Multiply,
    Divide,
    IntegerDivide,
    Modulo,
    Power,
    Concatenate,
    Equal,
    NotEqual,
    Less,
    Greater,
    LessEqual,
    GreaterEqual,
    Is,
    And,
    Or,
    Xor,
    Eqv,
    Imp,
};

struct Expr {
    enum class Kind : std::uint8_t {
        Literal, // value
        Name,    // symbol
        Me,
        Member,      // a.symbol; a is null for the With object
        Call,        // a(args): index, call or default member
        New,         // symbol
        Negate,      // a
        Not,         // a
        Binary,      // a op b
        Parentheses, // (a): by value
        Missing,     // an argument that was left out
    };

    Kind kind = Kind::Literal;
    BinaryOp op = BinaryOp::Add;
    bool calls = false;       // evaluating it may run code of the user
    std::uint16_t height = 1; // of the tree
    Symbol symbol = noSymbol;
    Position at;
    Expr* a = nullptr;
    Expr* b = nullptr;
    std::vector<Expr*> args;
    Value value;
};

struct Stmt;
using Block = std::vector<Stmt*>;

struct Variable {
    Symbol name = noSymbol;
    Position at;
    bool array = false;              // written with parentheses
    std::vector<std::int32_t> sizes; // of a fixed array
    bool isPrivate = false;          // class members
};

struct CaseBranch {
    Position at;
    std::vector<Expr*> values;
    Block body;
};

struct IfBranch {
    Position at;
    Expr* condition = nullptr;
    Block body;
};

enum class LoopTest : std::uint8_t { None, WhileBefore, UntilBefore, WhileAfter, UntilAfter };
enum class ExitKind : std::uint8_t { Do, For, Sub, Function, Property };

struct Stmt {
    enum class Kind : std::uint8_t {
        Assign,  // target = value
        Set,     // Set target = value
        Call,    // target: the call as expression
        If,      // branches, otherwise
        Select,  // value, cases, otherwise
        For,     // target = value To limit Step step, body
        ForEach, // target In value, body
        While,   // value, body
        Do,      // test, value, body
        With,    // value, body
        Exit,    // exit
        ReDim,   // targets as Call expressions, preserve
        Erase,   // targets
        Const,   // constants (kept for the line table only)
        OnErrorResumeNext,
        OnErrorGoTo0,
        Dim, // variables: those of the procedure from `first` on, `count` of them
    };

    Kind kind = Kind::Call;
    Position at;
    Expr* target = nullptr;
    Expr* value = nullptr;
    Expr* limit = nullptr;
    Expr* step = nullptr;
    LoopTest test = LoopTest::None;
    ExitKind exit = ExitKind::Do;
    bool preserve = false;
    std::size_t first = 0;
    std::size_t count = 0;
    Position closing; // of Next, Loop, Wend
    std::vector<Expr*> targets;
    std::vector<IfBranch> branches;
    std::vector<CaseBranch> cases;
    bool hasOtherwise = false;
    Block body;
    Block otherwise;
};

struct Parameter {
    Symbol name = noSymbol;
    bool byValue = false;
};

struct ConstDecl {
    Symbol name = noSymbol;
    Expr* value = nullptr;
    Position at;
};

// A name handed to a call as argument number `index`; `callee` is noSymbol when the procedure is not named alone.
struct Passed {
    Symbol name;
    Symbol callee;
    std::size_t index;
    Position at;
};

struct ProcedureDecl {
    enum class Kind : std::uint8_t { Sub, Function, PropertyGet, PropertyLet, PropertySet, Main };
    Kind kind = Kind::Sub;
    Symbol name = noSymbol;
    Position at{1, 1}; // of the main text: its start
    bool isPrivate = false;
    bool isDefault = false;
    std::vector<Parameter> parameters;
    std::vector<Variable> variables;
    std::vector<ConstDecl> constants;
    std::unordered_set<Symbol> declared; // names of variables and constants
    std::vector<Symbol> assigned;        // names assigned without regard to where they are declared
    std::vector<Position> assignedAt;    // of each of those
    std::vector<Symbol> redimmed;        // names that a ReDim would declare
    std::vector<Symbol> changed;         // names whose elements are assigned, or that ReDim and Erase act on
    std::vector<Passed> passed;          // names that stand alone as arguments
    std::vector<Passed> elements;        // names whose elements do
    std::vector<Symbol> mentioned;       // every name
    std::vector<Symbol> called;          // names that are called or indexed
    std::vector<Symbol> objects;         // names that Set or For Each assign
    bool resumesNext = false;            // contains On Error Resume Next
    std::uint32_t hiddenSlots = 0;       // deepest nesting of statements, in slots for their bookkeeping
    bool dynamicScope = false;           // uses Execute or Eval: names may come from text at run time
    Block body;
};

struct ClassDecl {
    Symbol name = noSymbol;
    Position at;
    std::vector<Variable> fields;
    std::vector<ProcedureDecl*> members;
    std::unordered_set<Symbol> fieldNames;
    std::unordered_multimap<Symbol, const ProcedureDecl*> memberNames; // Get, Let and Set share one
    bool hasDefault = false;
};

// Nodes that stay where they are, side by side: few rows for a short text, long ones for a long text.
template <class Node>
class Nodes {
public:
    Node& add() {
        if (rows_.empty() || rows_.back().size() == rows_.back().capacity()) {
            const std::size_t length = rows_.empty() ? 4 : std::min<std::size_t>(2 * rows_.back().size(), 512);
            rows_.emplace_back().reserve(length);
        }
        return rows_.back().emplace_back();
    }

private:
    std::vector<std::vector<Node>> rows_; // none grows beyond what is reserved
};

// One parsed text.
struct Ast {
    Ast() = default;
    ~Ast() { releaseMemory(charged_); }
    Ast(const Ast&) = delete;
    Ast& operator=(const Ast&) = delete;

    bool optionExplicit = false;
    bool valuesRunCode = false; // it may make objects whose default member is code of a script
    bool runsTexts = false;     // which may give its own procedures other bodies
    ProcedureDecl main;
    std::vector<ProcedureDecl*> procedures;
    std::vector<ClassDecl*> classes;

    Expr* expr(Expr::Kind kind, Position at);
    Stmt* stmt(Stmt::Kind kind, Position at);
    ProcedureDecl* procedure();
    ClassDecl* classDecl();

private:
    // Trees count as memory of the script: error 7 when the ceiling is passed.
    void charge(std::size_t bytes) {
        chargeMemory(bytes);
        charged_ += bytes;
    }

    std::size_t charged_ = 0;
    Nodes<Expr> exprs_;
    Nodes<Stmt> stmts_;
    std::deque<ProcedureDecl> procedures_;
    std::deque<ClassDecl> classes_;
};

} // namespace vbs
