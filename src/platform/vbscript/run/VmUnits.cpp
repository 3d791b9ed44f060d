// Compiled texts: the cache of them, what they define, and running them.
#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/run/VmFrames.h"

#include <algorithm>
#include <utility>

namespace vbs {

namespace {

constexpr std::size_t maxCachedUnits = 64;
constexpr std::size_t maxCachedText = std::size_t{16} * 1024 * 1024; // code units in all

} // namespace

Unit* Vm::unitOf(std::u16string_view text) {
    if (m_cacheStale) {
        forgetCache(nullptr);
    }
    if (!m_recent.empty() && sameUnits(m_recent.front()->text, text)) { // a pass over an unchanged text
        return m_recent.front();
    }
    if (const auto found = m_cache.find(text); found != m_cache.end()) {
        m_recent.splice(m_recent.begin(), m_recent, found->second);
        return m_recent.front();
    }
    for (const Refused& refused : m_refused) {
        if (sameUnits(refused.text, text)) {
            throw CompileError(refused.error);
        }
    }
    Unit* unit = compiled(text);
    m_assumedLocal.insert(unit->assumedLocal.begin(), unit->assumedLocal.end());
    m_recent.push_front(unit);
    m_cache.emplace(unit->text, m_recent.begin());
    trimCache();
    return unit;
}

// Compiles a text that is not known, and remembers if it is refused.
Unit* Vm::compiled(std::u16string_view text) {
    constexpr std::size_t maxRefused = 8;
    try {
        Unit* unit = m_compiler.compile(text);
        unit->text = text;
        return unit;
    } catch (const CompileError& failure) {
        if (failure.number == ErrorNumber::TooManyNames || failure.number == ErrorNumber::OutOfMemoryCompiling) {
            throw; // may be better next time
        }
        m_refused.push_front({std::u16string(text), failure});
        if (m_refused.size() > maxRefused) {
            m_refused.pop_back();
        }
        throw;
    }
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

// Whether a frame may be running code of the unit. Of a deep stack only so much is known that it may.
bool Vm::mayRun(const Unit& unit) const noexcept {
    constexpr std::size_t maxLook = 64;
    return m_depth > maxLook || std::any_of(m_frames.get(), m_frames.get() + m_depth,
                                            [&unit](const Frame& frame) { return frame.procedure->unit == &unit; });
}

void Vm::release(Unit* unit) noexcept {
    if (--unit->references == 0) {
        if (m_closing || !mayRun(*unit)) {
            delete unit;
        } else {
            unit->nextRetired = std::exchange(m_retired, unit); // its code may be running
        }
    }
}

// Gives a global a new meaning. Texts compiled with the old meaning in mind are compiled again when they come back.
void Vm::define(std::uint32_t slot, GlobalKind kind, Value value, Unit* owner) {
    const GlobalKind old = m_globals.kind(slot);
    const Symbol symbol = m_globals.symbol(slot);
    if (old != kind) {
        m_refused.clear(); // what a text means depends on what its names are
        m_cacheStale = m_cacheStale || old != GlobalKind::Undefined || m_assumedLocal.contains(symbol) ||
                       m_library.find(m_symbols.folded(symbol)) != nullptr;
    }
    Unit* before = nullptr;
    if (owner != nullptr) {
        before = std::exchange(m_owners[slot], owner); // may fail, and then nothing has changed
        ++owner->references;
    } else if (const auto owned = m_owners.find(slot); owned != m_owners.end()) {
        before = owned->second;
        m_owners.erase(owned);
    }
    if (old == GlobalKind::Undefined) {
        m_symbols.hold(symbol); // for good
    }
    m_globals.define(slot, kind, std::move(value));
    if (before != nullptr) {
        release(before);
    }
}

void Vm::freeRetired() noexcept {
    while (m_retired != nullptr) {
        delete std::exchange(m_retired, m_retired->nextRetired);
    }
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
        define(slot, GlobalKind::Callable, std::move(value), unit);
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

// The clock of a pass; that of the pass around it is put back at the end. A stop is meant for both.
class Vm::Pass {
public:
    explicit Pass(Vm& vm) : m_vm(vm), m_around(vm.m_clock), m_inner(!vm.idle()) {
        vm.startClock();
        if (!m_inner) {
            vm.error = {};
        }
    }
    ~Pass() {
        const Clock own = std::exchange(m_vm.m_clock, m_around);
        if (m_inner && own.interrupted && own.interruption == ErrorNumber::Stopped) {
            m_vm.m_clock.interrupted = true;
            m_vm.m_clock.interruption = own.interruption;
        }
        m_vm.m_budget = m_vm.m_clock.interrupted ? 0 : pollInterval;
    }
    Pass(const Pass&) = delete;
    Pass& operator=(const Pass&) = delete;

private:
    Vm& m_vm;
    const Clock m_around;
    const bool m_inner;
};

void Vm::runPass(Unit* unit) {
    const Pass pass(*this);
    runUnit(unit);
}

void Vm::runUnit(Unit* unit) {
    const Reentry reentry(m_reentries, maxReentries);
    retain(unit);
    const struct Release {
        Vm& vm;
        Unit* unit;
        ~Release() {
            vm.release(unit);
            if (vm.m_depth == 0) {
                vm.freeRetired();
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

} // namespace vbs
