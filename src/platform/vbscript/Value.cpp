#include "platform/vbscript/Value.h"

#include "platform/vbscript/Array.h"
#include "platform/vbscript/Object.h"

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

Value Value::ofObject(Object* object) noexcept {
    Value v;
    v.type = Type::Object;
    v.counted = object;
    v.retain();
    return v;
}

Value Value::ofArray(ArrayBlock* array) noexcept {
    Value v;
    v.type = Type::Array;
    v.counted = array;
    return v;
}

String Value::string() const noexcept {
    retain();
    return String::adopt(stringBlock());
}

Object* Value::object() const noexcept {
    return static_cast<Object*>(counted);
}

ArrayBlock* Value::array() const noexcept {
    return static_cast<ArrayBlock*>(counted);
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
