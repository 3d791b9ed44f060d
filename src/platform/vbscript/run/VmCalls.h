// What the instructions that call share.
#pragma once

#include "platform/vbscript/compile/Instruction.h"
#include "platform/vbscript/compile/Program.h"
#include "platform/vbscript/value/Errors.h"
#include "platform/vbscript/value/Object.h"

namespace vbs {

// Room for the indexes of one element: no instruction tells more.
inline constexpr std::size_t maxIndexes = 64;
static_assert(maxIndexes >= maxPacked);

// A copy of what a variable holds, for keeping. An undefined name reads as Empty. Raises 13 for the name of a procedure
// or class, which a variable may have become since the code was compiled: it must not outlive its unit in a value.
inline Value contentOf(const Value& variable) {
    const Value& v = variable.deref();
    if (v.type == Type::Procedure) {
        raise(ErrorNumber::TypeMismatch);
    }
    return v.type == Type::Undefined ? Value() : v;
}

// References in a row of arguments become plain values.
inline void settle(Value* first, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        if (first[i].type == Type::Reference) {
            first[i] = contentOf(first[i]);
        }
    }
}

inline const Procedure* readerOf(const ClassMember& member) noexcept {
    return member.method != nullptr ? member.method : member.get;
}

// The procedure that a global name stands for, or null.
inline const Procedure* procedureIn(const Value& named) noexcept {
    const auto* callable = named.type == Type::Procedure ? static_cast<const Callable*>(named.pointer) : nullptr;
    return callable != nullptr && callable->kind == Callable::Kind::Procedure ? static_cast<const Procedure*>(callable)
                                                                              : nullptr;
}

// The object behind a value. Raises 424 for what is no object and for Nothing.
inline Object& objectOf(const Value& v) {
    const Value& value = v.deref();
    if (!value.isObject() || value.object() == nullptr) {
        raise(ErrorNumber::ObjectRequired);
    }
    return *value.object();
}

} // namespace vbs
