#include "platform/vbscript/value/Value.h"

#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Object.h"

#include <limits>

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

void Value::destroy() noexcept {
    if (type == Type::String) {
        StringBlock::destroy(stringBlock());
    } else if (type == Type::Array) {
        ArrayBlock::destroy(array());
    } else {
        Object::lastReferenceGone(object());
    }
}

} // namespace vbs
