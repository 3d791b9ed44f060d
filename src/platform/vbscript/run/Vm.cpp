// Units, frames and errors; the dispatch loop and the instructions stand in files of their own.
#include "platform/vbscript/run/Vm.h"

#include "platform/vbscript/run/ErrObject.h"
#include "platform/vbscript/run/Instance.h"
#include "platform/vbscript/run/VmFrames.h"
#include "platform/vbscript/value/Library.h"
#include "platform/vbscript/value/Memory.h"

#include <new>
#include <sys/mman.h>
#include <utility>

namespace vbs {

namespace {

constexpr std::size_t maxCachedUnits = 64;
constexpr std::size_t maxCachedText = std::size_t{16} * 1024 * 1024; // code units in all

// Counts a re-entry of the machine; error 28 when the stack of C++ would be at risk.
class Reentry {
public:
    Reentry(int& counter, int most) : m_counter(counter) {
        if (m_counter >= most) {
            raise(ErrorNumber::OutOfStack);
        }
        ++m_counter;
    }
    ~Reentry() { --m_counter; }
    Reentry(const Reentry&) = delete;
    Reentry& operator=(const Reentry&) = delete;

private:
    int& m_counter;
};

// Fresh pages come zeroed, which reads as Integer 0: nothing to give up.
Value* mapStack(std::size_t registers) {
    void* memory = mmap(nullptr, registers * sizeof(Value), PROT_READ | PROT_WRITE,
                        MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) {
        throw std::bad_alloc();
    }
    return static_cast<Value*>(memory);
}

} // namespace

Vm::Vm(Host& theHost, const Library& library)
    : Context(theHost), m_library(library), m_compiler(m_symbols, m_globals, library), m_stack(mapStack(stackSize)),
      m_frames(std::make_unique<Frame[]>(maxFrames)) {
    defineBuiltins();
}

Vm::~Vm() {
    const MemoryCeiling ceiling(memoryCeiling);
    timeoutMilliseconds = 1000; // what Class_Terminate may still take
    startClock();
    for (std::uint32_t slot = 0; slot < m_globals.size(); ++slot) {
        if (m_globals.kind(slot) == GlobalKind::Variable) {
            m_globals[slot].clear(); // Class_Terminate still finds everything else
            terminateDead();
        }
    }
    for (std::uint32_t slot = 0; slot < m_globals.size(); ++slot) {
        m_globals[slot].clear();
        terminateDead();
    }
    m_closing = true;
    std::vector<Value> cyclic;
    for (Object* object : m_adopted) {
        cyclic.push_back(Value::ofObject(object));
    }
    for (const Value& value : cyclic) {
        value.object()->dropContents();
    }
    cyclic.clear();
    for (Unit* unit : m_recent) {
        release(unit);
    }
    for (const auto& [slot, unit] : m_owners) {
        release(unit);
    }
    for (Unit* unit : m_retired) {
        delete unit;
    }
    munmap(static_cast<void*>(m_stack), stackSize * sizeof(Value));
}

void Vm::defineBuiltins() {
    for (const NamedConstant& constant : m_library.constants) {
        m_globals.define(m_globals.slotOf(m_symbols.intern(constant.name)), GlobalKind::Constant, constant.value, true);
    }
    const auto err = makeObject<ErrObject>(*this);
    m_globals.define(m_globals.slotOf(m_symbols.intern(u"Err")), GlobalKind::Object, err.value(), true);
}

void Vm::addObject(std::u16string_view name, Object& object) {
    define(m_globals.slotOf(m_symbols.intern(name)), GlobalKind::Object, Value::ofObject(&object));
}

// ----------------------------------------------------------------------------------------------------------------
// units

Unit* Vm::unitOf(std::u16string_view text) {
    if (m_cacheStale) {
        forgetCache(nullptr);
    }
    if (const auto found = m_cache.find(text); found != m_cache.end()) {
        m_recent.splice(m_recent.begin(), m_recent, found->second);
        return m_recent.front();
    }
    Unit* unit = m_compiler.compile(text);
    unit->text = text;
    m_assumedLocal.insert(unit->assumedLocal.begin(), unit->assumedLocal.end());
    m_recent.push_front(unit);
    m_cache.emplace(unit->text, m_recent.begin());
    trimCache();
    return unit;
}

// The most recent unit always stays.
void Vm::trimCache() {
    std::size_t size = 0;
    for (const Unit* unit : m_recent) {
        size += unit->text.size();
    }
    while (m_recent.size() > 1 && (m_recent.size() > maxCachedUnits || size > maxCachedText)) {
        Unit* oldest = m_recent.back();
        size -= oldest->text.size();
        m_cache.erase(oldest->text);
        m_recent.pop_back();
        release(oldest);
    }
}

void Vm::forgetCache(const Unit* except) {
    for (auto it = m_recent.begin(); it != m_recent.end();) {
        Unit* unit = *it;
        if (unit == except) {
            ++it;
            continue;
        }
        m_cache.erase(unit->text);
        it = m_recent.erase(it);
        release(unit);
    }
    m_cacheStale = false;
}

void Vm::release(Unit* unit) noexcept {
    if (--unit->references == 0) {
        if (m_depth == 0 || m_closing) {
            delete unit;
        } else {
            m_retired.push_back(unit); // its code may be running
        }
    }
}

// Gives a global a new meaning. Texts compiled with the old meaning in mind are compiled again when they come back.
void Vm::define(std::uint32_t slot, GlobalKind kind, Value value) {
    const GlobalKind old = m_globals.kind(slot);
    const Symbol symbol = m_globals.symbol(slot);
    if (old != kind) {
        m_cacheStale = m_cacheStale || old != GlobalKind::Undefined || m_assumedLocal.contains(symbol) ||
                       m_library.find(m_symbols.folded(symbol)) != nullptr;
    }
    if (const auto owner = m_owners.find(slot); owner != m_owners.end()) {
        Unit* unit = owner->second;
        m_owners.erase(owner);
        release(unit);
    }
    m_globals.define(slot, kind, std::move(value));
}

// A text that another one runs declares beside what that pass has declared so far. A new pass starts afresh.
void Vm::checkLater(const Unit& unit) {
    const auto ofThisPass = [this](std::uint32_t slot) { return m_globals.declared(slot).pass == m_pass; };
    const auto used = [this](std::uint32_t slot) { // without a declaration
        return m_globals.declared(slot).pass == 0 && m_globals.values()[slot].type != Type::Empty;
    };
    for (const auto& [slot, value] : unit.constants) {
        if (m_globals.kind(slot) == GlobalKind::Variable && (ofThisPass(slot) || used(slot))) {
            throw CompileError{ErrorNumber::NameRedefined, {1, 1}};
        }
    }
    for (const std::uint32_t slot : unit.arrays) {
        if (m_globals.kind(slot) == GlobalKind::Variable && ofThisPass(slot) && m_globals.declared(slot).array) {
            raise(ErrorNumber::TypeMismatch);
        }
    }
}

void Vm::bind(Unit* unit) {
    for (const auto& [slot, callable] : unit->callables) {
        if (m_globals[slot].type == Type::Procedure && m_globals[slot].pointer == callable) {
            continue;
        }
        Value value;
        value.type = Type::Procedure;
        value.pointer = callable;
        ++unit->references;
        define(slot, GlobalKind::Callable, std::move(value));
        m_owners[slot] = unit;
    }
    for (const auto& [slot, value] : unit->constants) {
        define(slot, GlobalKind::Constant, value);
    }
    for (const std::uint32_t slot : unit->variables) {
        if (m_globals.kind(slot) != GlobalKind::Variable) {
            define(slot, GlobalKind::Variable, {});
        }
        if (m_globals.declared(slot).pass != m_pass) {
            m_globals.declared(slot) = {m_pass, false};
        }
    }
    for (const std::uint32_t slot : unit->arrays) {
        m_globals.declared(slot).array = true;
    }
    for (const std::uint32_t slot : unit->implicit) {
        if (m_globals.kind(slot) == GlobalKind::Undefined) {
            define(slot, GlobalKind::Variable, {});
        }
    }
}

void Vm::runUnit(Unit* unit) {
    if (m_depth == 0) {
        startClock();
        error = {};
    }
    const Reentry reentry(m_reentries, maxReentries);
    retain(unit);
    const struct Release {
        Vm& vm;
        Unit* unit;
        ~Release() {
            vm.release(unit);
            if (vm.m_depth == 0) {
                for (Unit* retired : std::exchange(vm.m_retired, {})) {
                    delete retired;
                }
            }
        }
    } releaseAtEnd{*this, unit};
    if (m_depth == 0) {
        ++m_pass;
    } else {
        checkLater(*unit);
    }
    bind(unit);
    const std::size_t floor = m_depth;
    pushFrame(&unit->main, freeRegisters(), 0, nullptr, nullptr, Store::Discard);
    run(floor);
}

void Vm::startClock() {
    m_interrupted = false;
    m_budget = pollInterval;
    m_deadline = timeoutMilliseconds > 0 ? host.monotonicMilliseconds() + timeoutMilliseconds : 0;
}

void Vm::poll() {
    if (--m_budget < 0) {
        pollSlow();
    }
}

void Vm::spend(std::size_t work) {
    m_budget -= static_cast<int>(std::min<std::size_t>(work, pollInterval));
    poll();
}

void Vm::interrupt() {
    m_interrupted = true;
    m_interruption = ErrorNumber::Stopped;
    m_budget = 0;
    raise(m_interruption);
}

void Vm::pollSlow() {
    m_budget = pollInterval;
    if (!m_interrupted) {
        const bool late = m_deadline > 0 && host.monotonicMilliseconds() >= m_deadline;
        if (stopRequested == 0 && !late) {
            return;
        }
        m_interrupted = true;
        m_interruption = stopRequested != 0 ? ErrorNumber::Stopped : ErrorNumber::TimedOut;
        stopRequested = 0;
    }
    m_budget = 0; // so that no handler on the way out gets far
    raise(m_interruption);
}

// ---------------------------------------------------------------------------------------------------------------
// frames

Value* Vm::freeRegisters() noexcept {
    return m_depth == 0 ? m_stack : top().base + top().procedure->registers;
}

// The rare parts of pushFrame: what must be refused, and arguments that go by value.
void Vm::checkFrame(const Procedure* procedure, Value* base, std::size_t count) {
    if (count != procedure->parameters) {
        raise(ErrorNumber::WrongArgumentCount, m_symbols.name(procedure->name == noSymbol ? 0 : procedure->name));
    }
    if (m_depth == maxFrames || base + procedure->registers > m_stack + stackSize) {
        raise(ErrorNumber::OutOfStack);
    }
    if (procedure->anyByValue) {
        for (std::size_t i = 0; i < count; ++i) {
            if (procedure->byValue[i] && base[i].type == Type::Reference) {
                base[i] = Value(*base[i].target);
            }
        }
    }
}

void Vm::clearRegisters(const Frame& frame, std::size_t from) noexcept {
    for (std::size_t i = from; i < frame.procedure->registers; ++i) {
        frame.base[i].clear();
    }
}

void Vm::popFrame() {
    const Frame& frame = top();
    Value result;
    if (frame.procedure->resultSlot >= 0) {
        result = std::move(frame.base[frame.procedure->resultSlot]);
    }
    for (std::size_t i = 0; i < frame.procedure->firstTemporary; ++i) {
        frame.base[i].clear();
    }
    delete frame.extra;
    terminateDead(); // before the caller sees the result
    Value* to = frame.result;
    const Store store = frame.store;
    Instance* me = frame.me;
    --m_depth;
    Value releaseMe;
    if (me != nullptr) {
        releaseMe.type = Type::Object;
        releaseMe.counted = me; // takes over the frame's reference
    }
    if (to != nullptr && store != Store::Discard) {
        deliver(std::move(result), *to, store);
    }
}

void Vm::unwindTo(std::size_t floor) noexcept {
    while (m_depth > floor) {
        const Frame& frame = top();
        clearRegisters(frame, 0);
        delete frame.extra;
        Value me;
        if (frame.me != nullptr) {
            me.type = Type::Object;
            me.counted = frame.me;
        }
        --m_depth;
    }
}

void Vm::run(std::size_t floor) {
    terminateDead(); // what whoever entered has dropped
    while (true) {
        try {
            dispatch(floor);
            return;
        } catch (ScriptError& failure) {
            if (!recover(failure, floor)) {
                throw;
            }
        } catch (const std::bad_alloc&) {
            ScriptError failure{.number = static_cast<std::int32_t>(ErrorNumber::OutOfMemory),
                                .description = {},
                                .source = {},
                                .helpFile = {}};
            if (!recover(failure, floor)) {
                throw failure;
            }
        }
    }
}

// Finds the frame above `floor` that resumes and sets it on its way; false if there is none, and then those frames are
// gone.
bool Vm::recover(ScriptError& failure, std::size_t floor) {
    locate(failure);
    std::size_t depth = m_depth;
    while (depth > floor && (m_interrupted || !m_frames[depth - 1].resumeNext)) {
        --depth;
    }
    unwindTo(depth);
    if (depth > floor) {
        clearRegisters(top(), top().procedure->firstTemporary);
    }
    terminateDead();
    if (depth == floor) {
        return false;
    }
    Frame& frame = top();
    noteError(failure);
    const auto pc = static_cast<std::size_t>(frame.pc - frame.procedure->code.data()) - 1;
    const StatementMark* mark = frame.procedure->markAt(pc);
    frame.pc = mark != nullptr ? frame.procedure->code.data() + mark->resume : frame.pc;
    return true;
}

void Vm::locate(ScriptError& failure) const {
    if (failure.line != 0 || m_depth == 0) {
        return;
    }
    const Frame& frame = m_frames[m_depth - 1];
    const auto pc = static_cast<std::size_t>(frame.pc - frame.procedure->code.data());
    if (const StatementMark* mark = frame.procedure->markAt(pc > 0 ? pc - 1 : 0); mark != nullptr) {
        failure.line = mark->at.line;
        failure.column = mark->at.column;
    }
}

void Vm::noteError(const ScriptError& failure) {
    error.number = failure.number;
    error.source = failure.source.empty() ? errorSource(failure.number) : failure.source;
    error.description = failure.description.empty() ? errorText(failure.number) : failure.description;
    error.helpFile = failure.helpFile;
    error.helpContext = failure.helpContext;
}

// ------------------------------------------------------------------------------------------------- entered from native
// code

Value Vm::callProcedure(const Procedure& procedure, Instance* me, Arguments arguments) {
    poll(); // objects that make others as they go would never come to an end
    const Reentry reentry(m_reentries, maxReentries);
    Value* base = freeRegisters();
    if (base + arguments.size() + procedure.registers > m_stack + stackSize) {
        raise(ErrorNumber::OutOfStack);
    }
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        base[i] = arguments[i];
    }
    const std::size_t floor = m_depth;
    Value result;
    try {
        pushFrame(&procedure, base, arguments.size(), me, &result, Store::Raw);
    } catch (const ScriptError&) {
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            base[i].clear();
        }
        throw;
    }
    run(floor);
    return result;
}

// ---------------------------------------------------------------------------------------------------------------
// dead objects: dropping a value never enters the machine, so native code may drop what it likes wherever it stands

namespace {

// The engine of this thread that was the last to get an object to terminate, until it turns to it.
constinit thread_local Vm* engineWithDead = nullptr;

} // namespace

void Vm::awaitTermination(Instance& instance) noexcept {
    instance.nextDead = nullptr;
    if (m_dead == nullptr) {
        m_dead = &instance;
    } else {
        m_lastDead->nextDead = &instance;
    }
    m_lastDead = &instance;
    engineWithDead = this;
}

void Vm::overwrite(Value& to, Value value) noexcept {
    to = std::move(value);
    if (engineWithDead != nullptr) {
        engineWithDead->terminateDead();
    }
}

// Runs what waits. What ends by a Class_Terminate comes before what waited beside it.
void Vm::terminateDead() noexcept {
    Instance* rest = nullptr;
    while (m_reentries < maxReentries) { // else whoever stands further out goes on
        if (m_dead != nullptr) {
            m_lastDead->nextDead = rest;
            rest = std::exchange(m_dead, nullptr);
            engineWithDead = nullptr;
        }
        if (rest == nullptr) {
            return;
        }
        terminate(*std::exchange(rest, static_cast<Instance*>(rest->nextDead)));
    }
}

void Vm::terminate(Instance& instance) noexcept {
    Value last; // the reference that waited
    last.type = Type::Object;
    last.counted = &instance;
    const ErrorState kept = error;
    try {
        callProcedure(*instance.cls().terminate, &instance, {});
    } catch (const ScriptError&) {
        error = kept; // nobody is there to hear of it; an interruption shows at the next poll
    }
}

Value Vm::defaultValue(const Value& object) {
    Object* target = object.object();
    if (target == nullptr) {
        raise(ErrorNumber::ObjectNotSet);
    }
    const Value keep = Value::ofObject(target);
    Value result;
    if (target->role == Object::Role::Instance) {
        auto& instance = static_cast<Instance&>(*target);
        const int member = instance.cls().defaultMember;
        if (member < 0) {
            raise(ErrorNumber::MemberNotFound);
        }
        result = invokeInstance(instance, instance.cls().members[static_cast<std::size_t>(member)], Access::Get, {});
    } else {
        result = target->invoke(*this, Object::defaultMember, Access::Get, {});
    }
    if (result.isObject()) {
        const Reentry reentry(m_reentries, maxReentries);
        return defaultValue(result);
    }
    return result;
}

Value Vm::call(const Value& procedure, Arguments arguments) {
    const Value& callee = procedure.deref();
    if (!callee.isObject() || callee.object() == nullptr) {
        raise(ErrorNumber::ObjectRequired);
    }
    const Value keep = Value::ofObject(callee.object());
    if (keep.object()->role == Object::Role::Instance) {
        const auto& cls = static_cast<Instance*>(keep.object())->cls();
        return keep.object()->invoke(*this, cls.defaultMember, Access::Call, arguments);
    }
    return keep.object()->invoke(*this, Object::defaultMember, Access::Call, arguments);
}

void Vm::adopt(Object& object) {
    m_adopted.insert(&object);
}

void Vm::abandon(Object& object) noexcept {
    m_adopted.erase(&object);
}

} // namespace vbs
