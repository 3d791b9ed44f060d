#include "platform/vbscript/Builtins.h"

namespace vbs {

std::span<const Builtin> formatBuiltins() {
    return {};
}

} // namespace vbs
