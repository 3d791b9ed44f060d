// The short way into a procedure, in line for the dispatch loop.
#pragma once

#include "platform/vbscript/Instance.h"
#include "platform/vbscript/Vm.h"

namespace vbs {

// `base` holds `count` arguments already. Raises 450 or 28.
inline Vm::Frame* Vm::pushFrame(const Procedure* procedure, Value* base, std::size_t count, Instance* me, Value* result,
                                Store store) {
    if (count != procedure->parameters || procedure->anyByValue || m_depth == maxFrames ||
        base + procedure->registers > m_stack + stackSize) [[unlikely]] {
        checkFrame(procedure, base, count);
    }
    for (Value* local = base + count; local < base + procedure->firstTemporary; ++local) {
        local->type = Type::Empty;
    }
    Frame* frame = &m_frames[m_depth++];
    frame->procedure = procedure;
    frame->pc = procedure->code.data();
    frame->base = base;
    frame->me = me;
    frame->result = result;
    frame->store = store;
    frame->resumeNext = false;
    frame->extra = nullptr;
    frame->fields = nullptr;
    if (me != nullptr) {
        ++me->references;
        frame->fields = me->fields();
    }
    return frame;
}

} // namespace vbs
