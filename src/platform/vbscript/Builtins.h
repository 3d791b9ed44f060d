// The one table of intrinsic functions, put together from the theme files (BuiltinsString.cpp, BuiltinsMath.cpp ...).
//
// A builtin:  Value len(Context& context, Arguments arguments)
// The number of arguments was checked; no argument is a Reference; an argument that was left out between commas
// isMissing(), and trailing ones are simply not in the span. Errors are raised with raise(ErrorNumber::...).
// Names in the tables are spelled as the language reference spells them; scripts may use any case.
#pragma once

#include "platform/vbscript/Context.h"
#include "platform/vbscript/Convert.h"
#include "platform/vbscript/Errors.h"
#include "platform/vbscript/Value.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace vbs {

struct Builtin {
    std::u16string_view name;
    std::uint8_t least;
    std::uint8_t most; // 255: any number
    Value (*function)(Context&, Arguments);
};

inline constexpr std::uint8_t anyNumber = 255;

std::span<const Builtin> stringBuiltins();
std::span<const Builtin> characterBuiltins();
std::span<const Builtin> searchBuiltins();
std::span<const Builtin> byteBuiltins();
std::span<const Builtin> mathBuiltins();
std::span<const Builtin> randomBuiltins();
std::span<const Builtin> convertBuiltins();
std::span<const Builtin> dateBuiltins();
std::span<const Builtin> intervalBuiltins();
std::span<const Builtin> formatBuiltins();
std::span<const Builtin> arrayBuiltins();
std::span<const Builtin> infoBuiltins();
std::span<const Builtin> systemBuiltins();

// All of them, theme after theme.
std::span<const Builtin> builtins();
const Builtin* findBuiltin(std::u16string_view name);

// The predefined constants (vbCrLf ...).
struct NamedConstant {
    std::u16string_view name;
    Value value;
};
const std::vector<NamedConstant>& constants();

// What CreateObject and New can make: the program identifier ("Scripting.Dictionary") or the class name ("RegExp").
struct ObjectFactory {
    std::u16string_view name;
    Value (*make)(Context&);
};
std::span<const ObjectFactory> objectFactories();
// Raises 429 for a name that stands in no entry.
Value createObject(Context& context, std::u16string_view name);

// Argument `i`, or null if it was left out.
inline const Value* optional(Arguments arguments, std::size_t i) noexcept {
    return i < arguments.size() && !arguments[i].isMissing() ? &arguments[i] : nullptr;
}

} // namespace vbs
