// What CreateObject and New can make besides script classes.
#include "platform/vbscript/Builtins.h"
#include "platform/vbscript/Dictionary.h"
#include "platform/vbscript/RegExp.h"

namespace vbs {

namespace {

Value makeDictionary(Context& context) {
    return makeObject<Dictionary>(context).value();
}

Value makeRegExp(Context& /*context*/) {
    return makeObject<RegExp>().value();
}

constexpr ObjectFactory table[] = {
    {u"Scripting.Dictionary", makeDictionary},
    {u"RegExp", makeRegExp},
};

} // namespace

std::span<const ObjectFactory> objectFactories() {
    return table;
}

} // namespace vbs
