// Compiled texts: the cache of them, what they define, and running them.
#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/run/VmFrames.h"
#include "platform/vbscript/value/Work.h"

#include <algorithm>
#include <utility>

namespace vbs {

namespace {

constexpr std::size_t maxCachedUnits = 64;
constexpr std::size_t maxCachedText = std::size_t{16} * 1024 * 1024; // code units in all

} // namespace

Unit* Vm::unitOf(std::u16string_view text) {
    chargeWalk(text.size() * sizeof(char16_t)); // to know it again
    if (cacheStale_) {
        forgetCache(nullptr);
    }
    if (!recent_.empty() && sameUnits(recent_.front()->text, text)) { // a pass over an unchanged text
        return recent_.front();
    }
    if (const auto found = cache_.find(text); found != cache_.end()) {
        recent_.splice(recent_.begin(), recent_, found->second);
        return recent_.front();
    }
    for (const Refused& refused : refused_) {
        if (sameUnits(refused.text, text)) {
            throw CompileError(refused.error);
        }
    }
    std::unique_ptr<Unit> made = compiled(text); // until the list has it: memory may run out on the way
    assumedLocal_.insert(made->assumedLocal.begin(), made->assumedLocal.end());
    recent_.push_front(made.get());
    Unit* unit = made.release();
    cache_.emplace(unit->text, recent_.begin());
    trimCache();
    return unit;
}

// Compiles a text that is not known, and remembers if it is refused.
std::unique_ptr<Unit> Vm::compiled(std::u16string_view text) {
    constexpr std::size_t maxRefused = 8;
    chargeTurns(text.size()); // reading it; what is made of it is charged as memory
    try {
        const bool before = compiler_.valuesRunCode();
        std::unique_ptr<Unit> unit = compiler_.compile(text);
        unit->text = text;
        if (compiler_.valuesRunCode() != before) {
            forgetCache(nullptr); // those texts were compiled without a thought of default members
        }
        return unit;
    } catch (const CompileError& failure) {
        if (failure.number == ErrorNumber::TooManyNames || failure.number == ErrorNumber::OutOfMemoryCompiling) {
            throw; // may be better next time
        }
        refused_.push_front({std::u16string(text), failure});
        if (refused_.size() > maxRefused) {
            refused_.pop_back();
        }
        throw;
    }
}

// The most recent unit always stays.
void Vm::trimCache() {
    std::size_t size = 0;
    for (const Unit* unit : recent_) {
        size += unit->text.size();
    }
    while (recent_.size() > 1 && (recent_.size() > maxCachedUnits || size > maxCachedText)) {
        Unit* oldest = recent_.back();
        size -= oldest->text.size();
        cache_.erase(oldest->text);
        recent_.pop_back();
        release(oldest);
    }
}

void Vm::forgetCache(const Unit* except) {
    for (auto it = recent_.begin(); it != recent_.end();) {
        Unit* unit = *it;
        if (unit == except) {
            ++it;
            continue;
        }
        cache_.erase(unit->text);
        it = recent_.erase(it);
        release(unit);
    }
    cacheStale_ = false;
}

// Whether a frame may be running code of the unit. Of a deep stack only so much is known that it may.
bool Vm::mayRun(const Unit& unit) const noexcept {
    constexpr std::size_t maxLook = 64;
    return depth_ > maxLook || std::any_of(frames_.get(), frames_.get() + depth_,
                                           [&unit](const Frame& frame) { return frame.procedure->unit == &unit; });
}

void Vm::release(Unit* unit) noexcept {
    if (--unit->references == 0) {
        if (closing_ || !mayRun(*unit)) {
            delete unit;
        } else {
            unit->nextRetired = std::exchange(retired_, unit); // its code may be running
        }
    }
}

// Gives a global a new meaning. Texts compiled with the old meaning in mind are compiled again when they come back.
void Vm::define(std::uint32_t slot, GlobalKind kind, Value value, Unit* owner) {
    const GlobalKind old = globals_.kind(slot);
    const Symbol symbol = globals_.symbol(slot);
    if (old != kind) {
        refused_.clear(); // what a text means depends on what its names are
        cacheStale_ = cacheStale_ || old != GlobalKind::Undefined || assumedLocal_.contains(symbol) ||
                      library_.find(symbols_.folded(symbol)) != nullptr;
    }
    Unit* before = nullptr;
    if (owner != nullptr) {
        before = std::exchange(owners_[slot], owner); // may fail, and then nothing has changed
        ++owner->references;
    } else if (const auto owned = owners_.find(slot); owned != owners_.end()) {
        before = owned->second;
        owners_.erase(owned);
    }
    if (old == GlobalKind::Undefined) {
        symbols_.hold(symbol); // for good
    }
    globals_.define(slot, kind, std::move(value));
    if (before != nullptr) {
        release(before);
    }
}

void Vm::freeRetired() noexcept {
    while (retired_ != nullptr) {
        delete std::exchange(retired_, retired_->nextRetired);
    }
}

// A text that another one runs declares beside what that pass has declared so far. A new pass starts afresh.
void Vm::checkLater(const Unit& unit) {
    const auto ofThisPass = [this](std::uint32_t slot) { return globals_.declared(slot).pass == pass_; };
    const auto used = [this](std::uint32_t slot) { // without a declaration
        return globals_.declared(slot).pass == 0 && globals_.values()[slot].type != Type::Empty;
    };
    for (const auto& [slot, value] : unit.constants) {
        if (globals_.kind(slot) == GlobalKind::Variable && (ofThisPass(slot) || used(slot))) {
            throw CompileError{ErrorNumber::NameRedefined, {1, 1}};
        }
    }
    for (const std::uint32_t slot : unit.arrays) {
        if (globals_.kind(slot) == GlobalKind::Variable && ofThisPass(slot) && globals_.declared(slot).array) {
            raise(ErrorNumber::TypeMismatch);
        }
    }
}

void Vm::bind(Unit* unit) {
    for (const auto& [slot, callable] : unit->callables) {
        if (globals_[slot].type == Type::Procedure && globals_[slot].pointer == callable) {
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
        if (globals_.kind(slot) != GlobalKind::Variable) {
            define(slot, GlobalKind::Variable, {});
        }
        if (globals_.declared(slot).pass != pass_) {
            globals_.declared(slot) = {pass_, false};
        }
    }
    for (const std::uint32_t slot : unit->arrays) {
        globals_.declared(slot).array = true;
    }
    for (const std::uint32_t slot : unit->implicit) {
        if (globals_.kind(slot) == GlobalKind::Undefined) {
            define(slot, GlobalKind::Variable, {});
        }
    }
}

// The clock of a pass; that of the pass around it is put back at the end. A stop is meant for both.
class Vm::Pass {
public:
    explicit Pass(Vm& vm) : vm_(vm), charged_(vm.budget_), around_(vm.clock_), inner_(!vm.idle()) {
        vm.startClock();
        if (!inner_) {
            vm.error = {};
        }
    }
    ~Pass() {
        const Clock own = std::exchange(vm_.clock_, around_);
        if (inner_ && own.interrupted && own.interruption == ErrorNumber::Stopped) {
            vm_.clock_.interrupted = true;
            vm_.clock_.interruption = own.interruption;
        }
        vm_.budget_ = vm_.clock_.interrupted ? 0 : pollInterval;
    }
    Pass(const Pass&) = delete;
    Pass& operator=(const Pass&) = delete;

private:
    Vm& vm_;
    const ChargedTurns charged_;
    const Clock around_;
    const bool inner_;
};

void Vm::runPass(Unit* unit) {
    if (tellsLongStep_) {
        raise(ErrorNumber::InternalError);
    }
    const Pass pass(*this);
    const struct Running {
        Running(Vm& running, const Unit* unit) : vm(running), around(std::exchange(vm.passUnit_, unit)) {}
        ~Running() { vm.passUnit_ = around; }
        Vm& vm;
        const Unit* around;
    } running(*this, unit);
    runUnit(unit);
}

void Vm::runUnit(Unit* unit) {
    const Reentry reentry(reentries_, maxReentries);
    retain(unit);
    const struct Release {
        Vm& vm;
        Unit* unit;
        ~Release() {
            vm.release(unit);
            if (vm.depth_ == 0) {
                vm.freeRetired();
            }
        }
    } releaseAtEnd{*this, unit};
    if (depth_ == 0) {
        ++pass_;
    } else {
        checkLater(*unit);
    }
    bind(unit);
    const std::size_t floor = depth_;
    pushFrame(&unit->main, freeRegisters(), 0, nullptr, nullptr, Store::Discard);
    run(floor);
}

} // namespace vbs
