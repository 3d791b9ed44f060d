// Inside the compiler: what is known about a whole text (UnitScope) and the making of one procedure's code (CodeGen).
#pragma once

#include "platform/vbscript/compile/Compiler.h"
#include "platform/vbscript/value/Library.h"

#include <optional>
#include <span>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace vbs {

// The names that have syntax of their own behind them.
enum class Special : std::uint8_t { None, Execute, ExecuteGlobal, Eval, GetRef };

// What a name stands for at some place.
struct Resolved {
    enum class Kind : std::uint8_t {
        Variable,  // operand
        Constant,  // operand; may not be assigned
        Callable,  // global slot: procedure or class
        OwnMember, // of the class around: member
        Intrinsic, // builtin
        Special,   // special
        Unknown,   // global slot that may be filled while the script runs
    };
    Kind kind = Kind::Unknown;
    Operand operand = 0;
    const Expr* literal = nullptr; // of a Constant of this text
    bool late = false;             // a Variable of the procedure unless `slot` is defined by then
    bool passed = false;           // an Unknown that is a variable until a text says otherwise
    bool mayRefer = false;         // the register may hold a reference to a variable elsewhere
    std::uint32_t slot = 0;
    const ProcedureDecl* procedure = nullptr; // of Callable, where it is declared in this text
    Callable* local = nullptr;                // of Callable, where only this text knows it: no slot, the thing itself
    const ClassMember* member = nullptr;
    const Builtin* builtin = nullptr;
    Special special = Special::None;
};

class UnitScope {
public:
    UnitScope(const Ast& ast, SymbolTable& symbols, Globals& globals, const Library& library, Unit& unit);

    Resolved resolve(Symbol symbol);
    // The global slot of a name; the error for too many of them stands at `at`, or where the name is declared.
    std::uint32_t slotOf(Symbol symbol);
    std::uint32_t slotOf(Symbol symbol, Position declared);
    Position at{1, 1};         // of what is being compiled
    bool valuesRunCode = true; // a default member may be code of a script
    // The procedure or class is no global: only this text and its scope know it.
    void keepLocal(Symbol symbol, Callable* callable) { local_[symbol] = callable; }
    // The name will be a global variable because the main text assigns it.
    void makeImplicit(Symbol symbol);
    // The same for a name that the text only reads and passes on: one that it runs may make it a function.
    void makePassed(Symbol symbol);
    bool isPassed(Symbol symbol) const { return passed_.contains(symbol); }
    // Whether a call may assign the parameter's variable.
    bool writesParameter(const ProcedureDecl& procedure, std::size_t index);

    const Ast& ast;
    SymbolTable& symbols;
    Globals& globals;
    const Library& library;
    Unit& unit;

private:
    bool mayWriteArgument(const ProcedureDecl& caller, std::size_t callerIndex, const Passed& passed);

    std::unordered_map<Symbol, const ProcedureDecl*> procedures_;
    std::unordered_set<Symbol> classes_;
    std::unordered_set<Symbol> variables_;
    std::unordered_map<Symbol, const Expr*> constants_;
    std::unordered_set<Symbol> implicit_;
    std::unordered_set<Symbol> passed_; // of those
    std::unordered_map<Symbol, Callable*> local_;
};

inline const Expr* withoutParentheses(const Expr* e) noexcept {
    while (e->kind == Expr::Kind::Parentheses) {
        e = e->a;
    }
    return e;
}

class CodeGen {
public:
    CodeGen(UnitScope& scope, const ProcedureDecl& decl, Procedure& procedure, const ScriptClass* owner);

    // Names that come as references in the first registers (Execute in a procedure).
    void addCaptured(LocalName name);
    void generate();

private:
    struct Local {
        Operand operand;
        bool mayRefer;
        const Expr* literal;                // of constants
        std::uint32_t late = Globals::none; // the global that goes first, once it is defined
        LocalName::Kind kind = LocalName::Kind::Variable;
        bool fixedArray = false; // of a captured name
    };
    using Label = std::vector<std::size_t>; // jumps that wait for their target

    // registers and names
    void layOut();
    std::size_t newLocal(Symbol symbol, bool mayRefer, const Expr* literal = nullptr);
    bool isMember(Symbol symbol) const;
    void addImplicitLocals();
    Resolved resolve(Symbol symbol);
    Resolved resolveOutside(Symbol symbol);
    Resolved resolveCallee(Symbol symbol);
    enum class Use { Read, Assigned };
    bool mayBeMade() const noexcept;
    Operand unresolved(const Resolved& name, Use use = Use::Read);
    Operand newTemporary();
    Operand newHidden();
    bool isTemporary(Operand o) const noexcept { return placeOf(o) == Place::Frame && indexOf(o) >= hiddenEnd_; }
    Operand constant(Value value, bool computed = false);
    Operand constantOf(const Expr& literal);
    Operand textConstant(Symbol symbol);
    std::uint16_t site(Symbol symbol);
    std::uint16_t selfCall(const Procedure* procedure);
    // The text asks for more than the machine can take: a compile error at the statement being compiled.
    [[noreturn]] void refuse(ErrorNumber number) const;

    // emission
    std::size_t emit(Instruction instruction);
    void emitCall(Opcode op, Operand to, Operand b, Operand c, std::size_t count, Store store);
    std::size_t emitJump(Opcode op, Operand a, Operand b, Label& label);
    void emitJumpTo(Opcode op, Operand a, Operand b, std::size_t target);
    void bind(Label& label);
    void patch(std::size_t at, std::size_t target);
    void beginMark(Position at);
    void endMark();
    void raiseAtRun(ErrorNumber number, Symbol detail);
    void deliver(Operand from, Operand to, Store store);

    // expressions
    Operand expr(const Expr* e);
    void exprTo(const Expr* e, Operand to, Store store);
    void literalTo(const Expr* e, Operand to, Store store);
    void lateTo(const Resolved& name, Operand to);
    void nameTo(const Expr* e, Operand to, Store store);
    void binaryTo(const Expr* e, Operand to);
    bool joinTo(const Expr* e, Operand to);
    void memberTo(const Expr* e, Operand to, Store store);
    void newTo(const Expr* e, Operand to, Store store);
    Operand leftOperand(const Expr* left, const Expr* right, Store store = Store::Raw);
    bool mayChange(const Expr* variable, const Expr* by);
    bool runsUserCode(const Expr* e);
    bool mayBeObject(const Expr* e);
    bool isPlainValue(const Expr* e);
    bool standsApart(const Resolved& r) const;
    bool mayChangeAsValue(const Expr* variable, const Expr* value);
    bool seesConversions(const Expr* part);
    void rowTo(std::span<const Expr* const> parts, std::size_t before);
    bool passesName(const Expr* e, Symbol symbol);
    std::optional<Operand> plainVariable(const Expr* e);
    Operand withObject();
    void jumpUnless(const Expr* condition, Label& label);
    void jumpIfTo(const Expr* condition, std::size_t target);
    void jumpUnlessTo(const Expr* condition, std::size_t target);

    // calls
    void callTo(const Expr* e, Operand to, Store store);
    void callValueTo(const Expr* e, Operand base, Operand to, Store store);
    void callNameTo(const Expr* e, const Resolved& callee, Operand to, Store store);
    void indexOrCallTo(const Expr* e, const Resolved& callee, Operand to, Store store);
    bool mayTakeReferences(const Expr* e);
    int callInsteadTo(const Expr* e, const Resolved& callee, Operand to, Store store, Label& end);
    void callUnknownTo(const Expr* e, const Resolved& callee, Operand to, Store store);
    void indexTo(Operand base, const std::vector<Expr*>& args, Operand to, Store store);
    void intrinsicTo(const Expr* e, const Builtin& builtin, Operand to, Store store);
    void emitIntrinsic(const Expr* e, const Builtin& builtin, std::size_t count, Operand to, Store store);
    void specialTo(const Expr* e, Special special, Operand to, Store store);
    void callMemberTo(const Expr* e, const Expr* callee, Operand to, Store store);
    enum class Passing { Unknown, Known, Values };
    void callSelfTo(const Procedure* procedure, const std::vector<Expr*>& args, Passing passing, Operand to,
                    Store store);
    void ownMemberTo(const ClassMember& member, const std::vector<Expr*>& args, Operand to, Store store);
    struct CopyBack {
        const Expr* element;
        Operand holder;
        Operand first;
    };
    struct Prepared {
        Operand first = 0;
        std::vector<CopyBack> copyBacks;
    };
    Prepared arguments(const std::vector<Expr*>& args, const Resolved* callee, Passing passing);
    void argumentTo(const Expr* e, Operand to, bool byValue);
    bool passedByValue(const std::vector<Expr*>& args, std::size_t i, const Resolved* callee);
    bool needsCopyBack(const Expr* e, std::size_t i, const Resolved* callee, Passing passing);
    CopyBack newCopyBack(const Expr* element);
    void elementTo(const CopyBack& back);
    void elementAgain(const CopyBack& back);
    void readElement(Operand base, Operand indexes, std::size_t count, Operand to);
    void copyBack(const Prepared& prepared);
    Operand contiguous(const std::vector<Expr*>& args);
    const ClassMember* ownMember(const Expr* e);
    const ClassMember* ownIndexed(const Expr* e);
    bool isNativeObject(const Expr* e);

    // assignment
    void assign(const Expr* target, const Expr* value, Store store);
    void assignName(const Expr* target, const Expr* value, Store store);
    void assignCall(const Expr* target, const Expr* value, Store store);
    void assignMember(const Expr* object, Symbol symbol, const std::vector<Expr*>& args, const Expr* value,
                      Store store);
    void assignOwn(const ClassMember& member, const std::vector<Expr*>& args, const Expr* value, Store store);
    void storeElement(Operand base, const std::vector<Expr*>& args, const Expr* value, Store store);
    struct Road {
        Operand base = 0;
        std::vector<const std::vector<Expr*>*> levels; // from the base on
    };
    Road roadTo(const Expr* target);
    Operand indexesOf(const Road& road);
    void storeDeep(const Road& road, Operand indexes, Operand from, Store store);
    bool isOwnResult(Symbol symbol) const;
    bool isErr(const Resolved& r) const;
    bool isFixedArray(Symbol symbol);

    // statements
    void block(const Block& statements);
    void statement(const Stmt& s);
    void ifStatement(const Stmt& s);
    void selectStatement(const Stmt& s);
    void dimStatement(const Stmt& s);
    void searchAgain(Symbol symbol, Operand variable);
    Operand counterOf(Symbol symbol, Operand instead);
    void forStatement(const Stmt& s);
    void forEachStatement(const Stmt& s);
    void whileStatement(const Stmt& s);
    void doStatement(const Stmt& s);
    void withStatement(const Stmt& s);
    void exitStatement(const Stmt& s);
    void reDimStatement(const Stmt& s);
    void eraseStatement(const Stmt& s);
    void putBack(const Expr* target, Operand copy);
    bool isElement(const Expr* e);
    void prologue();

    UnitScope& scope_;
    const ProcedureDecl& decl_;
    Procedure& procedure_;
    const ScriptClass* owner_;
    std::unordered_map<Symbol, Local> locals_;
    std::vector<Symbol> localOrder_;
    std::size_t nextLocal_ = 0;
    std::size_t hidden_ = 0;
    std::size_t hiddenEnd_ = 0;
    std::size_t temporary_ = 0;
    std::size_t highest_ = 0;
    std::unordered_map<std::u16string, Operand> textConstants_;
    std::unordered_map<std::uint64_t, Operand> numberConstants_;
    std::unordered_map<std::uint64_t, Operand> computedConstants_;
    std::unordered_map<Symbol, std::uint16_t> sites_; // the last of each name
    std::unordered_map<const Procedure*, std::uint16_t> selfCalls_;
    std::vector<Operand> withs_;
    std::vector<Label*> exitDo_;
    std::vector<Label*> exitFor_;
    Label exit_;
    std::vector<std::pair<const Expr*, Operand>> localConstants_;
    bool markOpen_ = false;
    static constexpr int deepestCalls = 3;
    int callsInArguments_ = 0; // through variables, one inside the other
};

} // namespace vbs
