#include "platform/vbscript/library/Builtins.h"

#include <unordered_map>

namespace vbs {

namespace {

std::vector<Builtin> assemble() {
    std::vector<Builtin> all;
    for (const auto theme : {stringBuiltins(), characterBuiltins(), searchBuiltins(), byteBuiltins(), mathBuiltins(),
                             randomBuiltins(), convertBuiltins(), dateBuiltins(), intervalBuiltins(), formatBuiltins(),
                             arrayBuiltins(), infoBuiltins(), systemBuiltins()}) {
        all.insert(all.end(), theme.begin(), theme.end());
    }
    return all;
}

std::u16string folded(std::u16string_view name) {
    std::u16string low(name);
    for (char16_t& c : low) {
        c = toLower(c);
    }
    return low;
}

} // namespace

std::span<const Builtin> builtins() {
    static const std::vector<Builtin> all = assemble();
    return all;
}

const Builtin* findBuiltin(std::u16string_view name) {
    static const auto index = [] {
        std::unordered_map<std::u16string, const Builtin*> byName;
        for (const Builtin& builtin : builtins()) {
            byName.emplace(folded(builtin.name), &builtin);
        }
        return byName;
    }();
    const auto found = index.find(folded(name));
    return found != index.end() ? found->second : nullptr;
}

const Library& library() {
    static const Library all{builtins(), constants(), findBuiltin, createObject};
    return all;
}

Value createObject(Context& context, std::u16string_view name) {
    for (const ObjectFactory& factory : objectFactories()) {
        if (equalNoCase(factory.name, name)) {
            return factory.make(context);
        }
    }
    raise(ErrorNumber::CannotCreateObject);
}

} // namespace vbs
