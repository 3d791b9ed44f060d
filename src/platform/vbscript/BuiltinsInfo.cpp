#include "platform/vbscript/Builtins.h"

namespace vbs {

std::span<const Builtin> infoBuiltins() {
    return {};
}

} // namespace vbs
