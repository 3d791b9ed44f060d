#include "platform/vbscript/Builtins.h"

namespace vbs {

std::span<const Builtin> convertBuiltins() {
    return {};
}

} // namespace vbs
