// Dead objects. Dropping a value never enters the machine, so native code may drop what it likes wherever it stands;
// the objects that have a Class_Terminate wait here until the machine is between two instructions.
#include "platform/vbscript/run/Instance.h"
#include "platform/vbscript/run/Vm.h"

#include <new>
#include <utility>

namespace vbs {

namespace {

// The engine of this thread that was the last to get an object to terminate, until it turns to it.
constinit thread_local Vm* engineWithDead = nullptr;

} // namespace

void Vm::awaitTermination(Instance& instance) noexcept {
    instance.nextDead = nullptr;
    if (dead_ == nullptr) {
        dead_ = &instance;
    } else {
        lastDead_->nextDead = &instance;
    }
    lastDead_ = &instance;
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
    while (reentries_ < maxReentries) { // else whoever stands further out goes on
        if (dead_ != nullptr) {
            lastDead_->nextDead = rest;
            rest = std::exchange(dead_, nullptr);
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

} // namespace vbs
