// What CreateObject and New can make besides script classes.
#include "platform/vbscript/Builtins.h"
#include "platform/vbscript/Dictionary.h"

namespace vbs {

namespace {

Value makeDictionary(Context& context) {
    return makeObject<Dictionary>(context).value();
}

constexpr ObjectFactory table[] = {
    {u"Scripting.Dictionary", makeDictionary},
};

} // namespace

std::span<const ObjectFactory> objectFactories() {
    return table;
}

} // namespace vbs
