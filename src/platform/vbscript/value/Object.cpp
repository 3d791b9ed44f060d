#include "platform/vbscript/value/Object.h"

namespace vbs {

std::unique_ptr<Enumerator> Object::enumerate(Context& /*context*/) {
    raise(ErrorNumber::NotACollection);
}

void Object::end(Object* object) noexcept {
    if (!object->postponesEnd()) {
        delete object;
    }
}

} // namespace vbs
