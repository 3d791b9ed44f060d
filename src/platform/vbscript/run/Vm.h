// The machine: runs units on its own stack of registers and frames. Calls between script procedures do not use the
// stack of C++; the machine enters itself again only where native code must have a result at once (Class_Initialize,
// Class_Terminate, default members in the middle of an operator, Execute), and counts how deep.
#pragma once

#include "platform/vbscript/compile/Compiler.h"
#include "platform/vbscript/compile/Globals.h"
#include "platform/vbscript/compile/Program.h"
#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Library.h"
#include "platform/vbscript/value/Operators.h"

#include <array>
#include <csignal>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace vbs {

class Instance;

// State of the script's Err object.
struct ErrorState {
    std::int32_t number = 0;
    String source;
    String description;
    String helpFile;
    std::int32_t helpContext = 0;
};

class Vm : public Context {
public:
    // Both must outlive the machine.
    Vm(Host& theHost, const Library& library);
    ~Vm() override;

    // Makes `object` a global name. Its members are found without regard to case.
    void addObject(std::u16string_view name, Object& object);
    // Makes the name of an added object undefined.
    void removeObject(std::u16string_view name);
    // Every global variable with its name as it was written first.
    void visitVariables(const std::function<void(std::u16string_view name, const Value& value)>& visit);

    // The unit of a text, compiled or from the cache. Throws CompileError.
    Unit* unitOf(std::u16string_view text);
    // Runs a unit for the host, with a time-out and an end of its own: what a text that is let in by a host object does
    // with its time is nothing to the text around it. Throws as runUnit().
    void runPass(Unit* unit);
    // Defines what the unit declares and runs its main procedure. Throws ScriptError; nothing of the run remains on the
    // stack then.
    void runUnit(Unit* unit);

    // Context
    Value defaultValue(const Value& object) override;
    Value call(const Value& procedure, Arguments arguments) override;
    void adopt(Object& object) noexcept override;
    void abandon(Object& object) noexcept override;
    void poll() override;
    void spend(std::size_t work) override;
    void pauseClock() override;
    void resumeClock() noexcept override;
    bool idle() const noexcept { return depth_ == 0; }
    [[noreturn]] void interrupt() override;

    ErrorState error;

    double timeoutMilliseconds = 0; // 0: none
    std::size_t memoryCeiling = std::size_t{1024} * 1024 * 1024;
    volatile std::sig_atomic_t stopRequested = 0;

    SymbolTable& symbols() noexcept { return symbols_; }
    Compiler& compiler() noexcept { return compiler_; }

    // For Instance: running its event procedures and members.
    Value callProcedure(const Procedure& procedure, Instance* me, Arguments arguments);
    Value invokeInstance(Instance& instance, const ClassMember& member, Access access, Arguments arguments);
    // For GlobalScope: the slot of a name that stands for something, or Globals::none; and its use as a member.
    std::uint32_t definedGlobal(std::u16string_view name);
    Value useGlobal(std::uint32_t slot, Access access, Arguments arguments);
    // Takes over a reference to an object whose Class_Terminate is to run before the next instruction.
    void awaitTermination(Instance& instance) noexcept;
    // Gives a place another value; Class_Terminate of an object that ends by it runs at once.
    static void overwrite(Value& to, Value value) noexcept;
    void retain(Unit* unit) noexcept { ++unit->references; }
    void release(Unit* unit) noexcept;

private:
    static constexpr std::size_t stackSize = 1 << 20; // registers
    static constexpr std::size_t stackSlack = 256;    // behind them: what an instruction puts above its frame
    static constexpr std::size_t maxFrames = 20000;
    static constexpr int maxReentries = 120;
    static constexpr int pollInterval = 10000;

    // A name that Execute made in a call of a procedure.
    struct Made {
        Value value;
        LocalName::Kind kind = LocalName::Kind::Variable;
        Unit* unit = nullptr; // of a callable
    };

    struct Frame {
        const Procedure* procedure;
        const Instruction* pc;
        Value* base;
        Value* fields;
        Instance* me;
        Value* result;
        Store store;
        bool resumeNext;
        std::unordered_map<Symbol, Made>* extra; // names made by Execute
    };

    // Dispatch
    void dispatch(std::size_t floor);
    void run(std::size_t floor);
    bool recover(ScriptError& failure, std::size_t floor);
    void unwindTo(std::size_t floor) noexcept;
    void clearRegisters(const Frame& frame, std::size_t from) noexcept;
    void noteError(const ScriptError& failure);
    void locate(ScriptError& failure) const;
    void pollSlow();
    void checkClock(bool betweenStatements);
    void tellLongRun(double now, bool betweenStatements);

    // Dead objects
    void terminateDead() noexcept;
    void terminate(Instance& instance) noexcept;

    // Frames
    void checkFrame(const Procedure* procedure, Value* base, std::size_t count);
    Frame* pushFrame(const Procedure* procedure, Value* base, std::size_t count, Instance* me, Value* result,
                     Store store);
    void popFrame();
    void dropExtra(const Frame& frame) noexcept;
    bool mayRun(const Unit& unit) const noexcept;
    Value* freeRegisters() noexcept;
    Frame& top() noexcept { return frames_[depth_ - 1]; }
    Frame& scopeFrame() noexcept;
    Made& made(Symbol symbol);
    void makeLocals(const Unit& unit);
    Value& at(Operand o) noexcept;
    bool isTemporary(Operand o) noexcept;
    void consume(Operand o) noexcept;
    void consumeRow(Value* first, std::size_t count) noexcept;
    void deliver(Value value, Value& to, Store store);
    Value taken(Operand o);

    // Slow paths of instructions
    void binary(Instruction instruction);
    void unary(Instruction instruction);
    bool condition(Operand o);
    bool comparison(Opcode op, Operand a, Operand b);
    bool conditionOf(Opcode op, Operand a, Operand b);
    Literals literalsOf(Operand a, Operand b) noexcept;
    void letInto(Value& target, Operand from);
    void setInto(Value& target, Operand from);
    void concatenateInto(Instruction instruction);
    void join(Instruction instruction, bool append);
    void settleTexts(Value* parts, std::size_t count);
    bool forPrepare(Value& variable, Value* limits);
    bool forStep(Value& variable, Value* limits);
    void eachPrepare(Instruction instruction);
    bool eachNext(Value& variable, Value& iterator);
    void getIndex(Value& to, const Value& base, std::span<Value* const> indexes, Store store);
    void setIndex(Value& base, std::span<Value* const> indexes, Value value, Store store);
    void index(Instruction instruction);
    void index2(Instruction instruction, Operand second);
    void indexN(Instruction instruction);
    void storeIndex(Instruction instruction);
    void storeIndex2(Instruction instruction, Operand value);
    void storeIndexN(Instruction instruction);
    void storeDeep(Instruction instruction, std::size_t shape);
    void setDeep(Value& base, Value* indexes, std::span<const std::int32_t> levels, Value value, Store store);
    Value assignable(Value value, Store store);
    void indexNumbers(std::span<Value* const> indexes, std::int32_t* numbers);
    void callOther(Instruction instruction, std::size_t count);
    void callWide(Instruction instruction, Operand first, std::size_t count);
    void runIntrinsic(const Builtin& intrinsic, Value& argument, Value& to, Store store);
    void runNative(Object& target, int member, Arguments arguments, Value& to, Store store);
    void callIntrinsic1(Instruction instruction);
    void runIntrinsicRow(const Builtin& intrinsic, Value* first, std::size_t count, Value& to, Store store);
    void getMember(Instruction instruction);
    void callMember(Instruction instruction, Operand first, std::size_t count);
    void callField(const Value& field, Value* first, std::size_t count, Value& to, Store store);
    void setMember(Instruction instruction);
    void setMemberN(Instruction instruction);
    void assignMember(Object* object, MemberSite& site, Value* first, std::size_t count, Store store);
    const ClassMember& instanceMember(const Instance& instance, MemberSite& site) const;
    int nativeMember(Object& object, MemberSite& site) const;
    void getName(Instruction instruction);
    void findName(Instruction instruction);
    void makeNew(Instruction instruction);
    void makeNamed(Instruction instruction);
    void makeMe(Instruction instruction);
    void redim(Instruction instruction, bool preserve);
    void erase(Operand o);
    void makeArray(Instruction instruction);
    Value operate(Instruction instruction, const Value& x, const Value& y);
    void executeText(Instruction instruction);
    Value runLocalText(std::u16string_view text, bool expression);
    void getRef(Instruction instruction);
    const Value* findNamed(Symbol symbol) noexcept;
    void onError(bool resumeNext);
    [[noreturn]] void raiseCompiled(Instruction instruction);
    [[noreturn]] void raiseUndefined(std::size_t slot);

    // Units
    void bind(Unit* unit);
    void checkLater(const Unit& unit);
    void define(std::uint32_t slot, GlobalKind kind, Value value, Unit* owner = nullptr);
    void forgetCache(const Unit* except);
    void trimCache();
    std::unique_ptr<Unit> compiled(std::u16string_view text);
    void defineBuiltins();
    void startClock();
    void freeRetired() noexcept;

    const Library& library_;
    SymbolTable symbols_;
    Globals globals_;
    Compiler compiler_;
    Value globalScope_; // what Me is outside classes, once it was asked for
    Value* stack_;
    Value* stackEnd_; // no frame may reach beyond
    std::unique_ptr<Frame[]> frames_;
    std::size_t depth_ = 0;
    int reentries_ = 0;
    int budget_ = pollInterval;
    // The time of a pass; milliseconds of the host's clock.
    struct Clock {
        double started = 0;
        double deadline = 0; // 0: none
        double nextLongRun = 0;
        double pausedAt = 0;
        int pauses = 0;
        bool interrupted = false; // a time-out or stop that no On Error may catch
        ErrorNumber interruption = ErrorNumber::None;
    };
    class Pass;
    Clock clock_;
    const Unit* passUnit_ = nullptr; // the text that the host runs
    bool tellsLongRun_ = false;
    bool tellsLongStep_ = false; // native code stands in script storage: no text may run

    // Texts that did not compile, the last ones first: they fail again without being compiled again.
    struct Refused {
        std::u16string text;
        CompileError error;
    };
    std::list<Refused> refused_;

    std::list<Unit*> recent_; // most recently used first
    struct SameText {
        bool operator()(std::u16string_view a, std::u16string_view b) const noexcept { return sameUnits(a, b); }
    };
    std::unordered_map<std::u16string_view, std::list<Unit*>::iterator, std::hash<std::u16string_view>, SameText>
        cache_;
    bool cacheStale_ = false;
    std::uint32_t pass_ = 0; // counts the texts that the host runs; what they run in turn belongs to them
    std::unordered_set<Symbol> assumedLocal_;
    Unit* retired_ = nullptr;                         // a list
    std::unordered_map<std::uint32_t, Unit*> owners_; // of global callables
    Object* adopted_ = nullptr;                       // a list
    bool closing_ = false;

    // Objects that wait for their Class_Terminate, in the order in which their last references went.
    Instance* dead_ = nullptr;
    Instance* lastDead_ = nullptr;
};

inline Value& Vm::at(Operand o) noexcept {
    switch (placeOf(o)) {
    case Place::Frame:
        return top().base[indexOf(o)];
    case Place::Global:
        return globals_.values()[indexOf(o)];
    case Place::Constant:
        return const_cast<Value&>(top().procedure->constants[indexOf(o)]);
    default:
        return top().fields[indexOf(o)];
    }
}

inline bool Vm::isTemporary(Operand o) noexcept {
    return placeOf(o) == Place::Frame && indexOf(o) >= top().procedure->firstTemporary;
}

// Gives up what a temporary held once it was read.
inline void Vm::consume(Operand o) noexcept {
    if (isTemporary(o)) {
        at(o).clear();
    }
}

} // namespace vbs
