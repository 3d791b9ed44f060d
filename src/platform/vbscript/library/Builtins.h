// The one table of intrinsic functions, put together from the theme files (BuiltinsString.cpp, BuiltinsMath.cpp ...),
// and the library that an engine gets. How a builtin is called tells value/Library.h.
#pragma once

#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Errors.h"
#include "platform/vbscript/value/Library.h"
#include "platform/vbscript/value/Value.h"

#include <span>
#include <string_view>
#include <vector>

namespace vbs {

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

const std::vector<NamedConstant>& constants();

// What CreateObject and New can make: the program identifier ("Scripting.Dictionary") or the class name ("RegExp").
struct ObjectFactory {
    std::u16string_view name;
    Value (*make)(Context&);
};
std::span<const ObjectFactory> objectFactories();
// Raises 429 for a name that stands in no entry.
Value createObject(Context& context, std::u16string_view name);

// All of the above, as an engine takes it.
const Library& library();

} // namespace vbs
