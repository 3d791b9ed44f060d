// The RegExp object: Pattern, Global, IgnoreCase, Multiline, Test, Execute, Replace. A bad pattern raises its error
// when it is first used, not when it is assigned.
#pragma once

#include "platform/vbscript/library/RegExpProgram.h"
#include "platform/vbscript/value/Memory.h"
#include "platform/vbscript/value/Object.h"

namespace vbs {

class RegExp final : public NativeObject<RegExp> {
public:
    static std::span<const Member> members();
    std::u16string_view typeName() const override { return u"IRegExp2"; }

private:
    Value pattern(Context& context, Access access, Arguments arguments);
    Value global(Context& context, Access access, Arguments arguments);
    Value ignoreCase(Context& context, Access access, Arguments arguments);
    Value multiline(Context& context, Access access, Arguments arguments);
    Value test(Context& context, Access access, Arguments arguments);
    Value execute(Context& context, Access access, Arguments arguments);
    Value replace(Context& context, Access access, Arguments arguments);

    Value flag(Context& context, Access access, Arguments arguments, bool& value);
    const std::shared_ptr<RegExpProgram>& program(); // compiles if the pattern or a flag changed
    template <class Function>
    void eachMatch(Context& context, const String& text, Function function);

    MemoryCharge charge_{sizeof(RegExp)};
    String pattern_;
    bool global_ = false;
    bool ignoreCase_ = false;
    bool multiline_ = false;
    std::shared_ptr<RegExpProgram> program_; // a search under way keeps the one it began with
};

} // namespace vbs
