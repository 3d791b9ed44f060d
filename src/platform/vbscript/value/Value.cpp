#include "platform/vbscript/value/Value.h"

#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Object.h"

#include <utility>

namespace vbs {

Value Value::ofWhole(std::int64_t i) noexcept {
    if (i == static_cast<std::int16_t>(i)) {
        return {Type::Integer, i};
    }
    if (i == static_cast<std::int32_t>(i)) {
        return {Type::Long, i};
    }
    return ofDouble(static_cast<double>(i));
}

String Value::string() const noexcept {
    retain();
    return String::adopt(stringBlock());
}

// What an array or object holds ends with it, one call within the other; beyond a certain depth the dead wait in a
// list, so that a chain of a million is not freed by a million nested calls.
void Value::destroy() noexcept {
    static constinit thread_local int depth = 0;
    static constinit thread_local ArrayBlock* arrays = nullptr;
    static constinit thread_local Object* objects = nullptr;
    constexpr int maxDepth = 40;
    if (type == Type::String) {
        StringBlock::destroy(stringBlock());
        return;
    }
    if (depth == maxDepth) {
        if (isArray()) {
            array()->nextDead = std::exchange(arrays, array());
        } else {
            object()->nextDead = std::exchange(objects, object());
        }
        return;
    }
    ++depth;
    if (isArray()) {
        ArrayBlock::free(array());
    } else {
        Object::end(object());
    }
    while (depth == 1 && (arrays != nullptr || objects != nullptr)) {
        if (arrays != nullptr) {
            ArrayBlock::free(std::exchange(arrays, arrays->nextDead));
        } else {
            Object::end(std::exchange(objects, objects->nextDead));
        }
    }
    --depth;
}

} // namespace vbs
