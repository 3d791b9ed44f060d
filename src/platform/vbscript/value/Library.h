// The library of a language as the compiler and the machine see it: intrinsic functions, predefined constants and the
// objects that scripts can make, found by name. The tables themselves stand in library/; whoever builds an engine
// hands them over.
//
// A builtin:  Value len(Context& context, Arguments arguments)
// The number of arguments was checked; no argument is a Reference; an argument that was left out between commas
// isMissing(), and trailing ones are simply not in the span. Errors are raised with raise(ErrorNumber::...).
// Names in the tables are spelled as the language reference spells them; scripts may use any case.
#pragma once

#include "platform/vbscript/value/Value.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace vbs {

class Context;

// What becomes of a builtin's result.
enum class Result : std::uint8_t {
    Usable, // it may be used or not
    Needed, // a call as a statement raises 458 after it, since the result has nowhere to go
    None,   // using it raises 13
};

struct Builtin {
    std::u16string_view name;
    std::uint8_t least;
    std::uint8_t most; // 255: any number
    Value (*function)(Context&, Arguments);
    Result result = Result::Usable;
};

inline constexpr std::uint8_t anyNumber = 255;

// Argument `i`, or null if it was left out.
inline const Value* optional(Arguments arguments, std::size_t i) noexcept {
    return i < arguments.size() && !arguments[i].isMissing() ? &arguments[i] : nullptr;
}

// The predefined constants (vbCrLf ...).
struct NamedConstant {
    std::u16string_view name;
    Value value;
};

struct Library {
    std::span<const Builtin> builtins;
    std::span<const NamedConstant> constants;
    // An entry of `builtins`, or null.
    const Builtin* (*find)(std::u16string_view name);
    // What CreateObject and New make of a program identifier or class name. Raises 429 for one that it does not know.
    Value (*create)(Context&, std::u16string_view name);
};

} // namespace vbs
