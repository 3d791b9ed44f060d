// Frames and errors: what a call takes and leaves, and how an error finds who resumes.
#include "platform/vbscript/run/VmFrames.h"

#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/value/Memory.h"
#include "platform/vbscript/value/Work.h"

#include <limits>
#include <new>
#include <utility>

namespace vbs {

Value* Vm::freeRegisters() noexcept {
    return depth_ == 0 ? stack_ : top().base + top().procedure->registers;
}

// The rare parts of pushFrame: what must be refused, and arguments that go by value.
void Vm::checkFrame(const Procedure* procedure, Value* base, std::size_t count) {
    if (count != procedure->parameters) {
        raise(ErrorNumber::WrongArgumentCount, symbols_.name(procedure->name == noSymbol ? 0 : procedure->name));
    }
    if (depth_ == maxFrames || base + procedure->registers > stackEnd_) {
        raise(ErrorNumber::OutOfStack);
    }
    if (procedure->anyByValue) {
        for (std::size_t i = 0; i < count; ++i) {
            if (procedure->byValue[i] && base[i].type == Type::Reference) {
                base[i] = contentOf(base[i]);
            }
        }
    }
}

void Vm::clearRegisters(const Frame& frame, std::size_t from) noexcept {
    for (std::size_t i = from; i < frame.procedure->registers; ++i) {
        frame.base[i].clear();
    }
}

// Gives up the names that Execute made in the frame.
void Vm::dropExtra(const Frame& frame) noexcept {
    if (frame.extra != nullptr) {
        for (const auto& [symbol, made] : *frame.extra) {
            symbols_.release(symbol);
            if (made.unit != nullptr) {
                release(made.unit);
            }
        }
        delete frame.extra;
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
    dropExtra(frame);
    terminateDead(); // before the caller sees the result
    Value* to = frame.result;
    const Store store = frame.store;
    Instance* me = frame.me;
    --depth_;
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
    while (depth_ > floor) {
        const Frame& frame = top();
        clearRegisters(frame, 0);
        dropExtra(frame);
        Value me;
        if (frame.me != nullptr) {
            me.type = Type::Object;
            me.counted = frame.me;
        }
        --depth_;
    }
}

void Vm::run(std::size_t floor) {
    const struct Floor {
        Vm& vm;
        std::size_t floor;
        ~Floor() { vm.unwindTo(floor); }
    } nothingStays{*this, floor};
    terminateDead(); // what whoever entered has dropped
    while (true) {
        try {
            if (budget_-- <= 0) { // resuming is a jump like another: loops may go round by it alone
                pollSlow();
            }
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
    std::size_t depth = depth_;
    while (depth > floor && (clock_.interrupted || !frames_[depth - 1].resumeNext)) {
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
    constexpr std::size_t turnsAnError = 500; // what throwing and catching it took
    chargeTurns(turnsAnError);
    Frame& frame = top();
    noteError(failure);
    const auto pc = static_cast<std::size_t>(frame.pc - frame.procedure->code.data()) - 1;
    const StatementMark* mark = frame.procedure->markAt(pc);
    frame.pc = mark != nullptr ? frame.procedure->code.data() + mark->resume : frame.pc;
    return true;
}

// The place in the text that the pass runs: where it called, directly or not, what failed in another text.
void Vm::locate(ScriptError& failure) const {
    if (failure.line != 0 || depth_ == 0) {
        return;
    }
    std::size_t depth = depth_;
    while (depth > 0 && frames_[depth - 1].procedure->unit != passUnit_) {
        --depth;
    }
    const Frame& frame = frames_[(depth > 0 ? depth : depth_) - 1];
    const auto pc = static_cast<std::size_t>(frame.pc - frame.procedure->code.data());
    if (const StatementMark* mark = frame.procedure->markAt(pc > 0 ? pc - 1 : 0); mark != nullptr) {
        failure.line = mark->at.line;
        failure.column = mark->at.column;
    }
}

void Vm::noteError(const ScriptError& failure) {
    const MemoryCeiling room(std::numeric_limits<std::size_t>::max()); // error 7 has a text, too
    error.number = failure.number;
    error.source = failure.source.empty() ? errorSource(failure.number) : failure.source;
    error.description = failure.description.empty() ? errorText(failure.number) : failure.description;
    error.helpFile = failure.helpFile;
    error.helpContext = failure.helpContext;
}

} // namespace vbs
