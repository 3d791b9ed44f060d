// What CreateObject and New can make besides script classes.
#include "platform/vbscript/library/Builtins.h"
#include "platform/vbscript/library/Dictionary.h"
#include "platform/vbscript/library/RegExp.h"

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
    {u"VBScript.RegExp", makeRegExp},
    {u"RegExp", makeRegExp},
};

} // namespace

std::span<const ObjectFactory> objectFactories() {
    return table;
}

} // namespace vbs
