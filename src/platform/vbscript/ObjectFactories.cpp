// What CreateObject and New can make besides script classes.
#include "platform/vbscript/Builtins.h"

namespace vbs {

std::span<const ObjectFactory> objectFactories() {
    return {};
}

} // namespace vbs
