// The short ways into procedures, intrinsics and host objects, in line for the dispatch loop.
#pragma once

#include "platform/vbscript/run/Instance.h"
#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/run/VmCalls.h"
#include "platform/vbscript/value/Library.h"

#include <utility>

namespace vbs {

// Copied by its two words alone.
inline bool isPlain(const Value& v) noexcept {
    return v.type < Type::Undefined;
}

// Gives a place a plain value. Class_Terminate of an object that ends by it runs here, so `to` is not to be used after.
inline void put(Value& to, Type type, std::int64_t payload) noexcept {
    if (to.isCounted()) [[unlikely]] {
        Vm::overwrite(to, Value(type, payload));
        return;
    }
    to.type = type;
    to.n = payload;
}

// Counts a re-entry of the machine; error 28 when the stack of C++ would be at risk.
class Reentry {
public:
    Reentry(int& counter, int most) : counter_(counter) {
        if (counter_ >= most) {
            raise(ErrorNumber::OutOfStack);
        }
        ++counter_;
    }
    ~Reentry() { --counter_; }
    Reentry(const Reentry&) = delete;
    Reentry& operator=(const Reentry&) = delete;

private:
    int& counter_;
};

// `base` holds `count` arguments already. Raises 450 or 28.
inline Vm::Frame* Vm::pushFrame(const Procedure* procedure, Value* base, std::size_t count, Instance* me, Value* result,
                                Store store) {
    if (count != procedure->plainParameters || depth_ == maxFrames || base + procedure->registers > stackEnd_)
        [[unlikely]] {
        checkFrame(procedure, base, count);
    }
    for (Value* local = base + count; local < base + procedure->firstTemporary; ++local) {
        local->type = Type::Empty;
    }
    Frame* frame = &frames_[depth_++];
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

inline void Vm::runIntrinsic(const Builtin& intrinsic, Value& argument, Value& to, Store store) {
    Value result = intrinsic.function(*this, {&argument, 1});
    if (isPlain(result) && store <= Store::Let) [[likely]] {
        put(to, result.type, result.n);
    } else if (result.isString() && store <= Store::Let) {
        to = std::move(result);
    } else {
        deliver(std::move(result), to, store);
    }
}

// The same with a row of arguments, which are used up.
inline void Vm::runIntrinsicRow(const Builtin& intrinsic, Value* first, std::size_t count, Value& to, Store store) {
    Value result = intrinsic.function(*this, {first, count});
    for (std::size_t k = 0; k < count; ++k) {
        if (first[k].isCounted()) {
            first[k].clear();
        }
    }
    if (isPlain(result) && store <= Store::Let) [[likely]] {
        put(to, result.type, result.n);
    } else if (result.isString() && store <= Store::Let) {
        to = std::move(result);
    } else {
        deliver(std::move(result), to, store);
    }
}

// A member of a host object by its short road, if it has one for these arguments.
inline bool ranShort(const MemberSite& site, Object& target, std::span<Value> arguments, Value& to,
                     Store store) noexcept {
    Value result;
    if (site.shortRoad == nullptr || !site.shortRoad(target, result, arguments)) {
        return false;
    }
    if (store != Store::Discard) {
        put(to, result.type, result.n);
    }
    return true;
}

// A member of a host object; the arguments are used up.
inline void Vm::runNative(Object& target, int member, Arguments arguments, Value& to, Store store) {
    for (Value& argument : arguments) {
        if (argument.type == Type::Reference) {
            argument = contentOf(argument);
        }
    }
    const Value keep = Value::ofObject(&target);
    Value result = target.invoke(*this, member, store == Store::Discard ? Access::Call : Access::Get, arguments);
    for (Value& argument : arguments) {
        argument.clear();
    }
    if (!isPlain(result)) [[unlikely]] {
        deliver(std::move(result), to, store);
    } else if (store != Store::Discard) {
        put(to, result.type, result.n);
    }
}

} // namespace vbs
