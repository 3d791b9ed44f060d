#include "platform/vbscript/Builtins.h"

namespace vbs {

std::span<const Builtin> dateBuiltins() {
    return {};
}

} // namespace vbs
