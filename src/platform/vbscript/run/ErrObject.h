// The script's Err: number, texts and Raise.
#pragma once

#include "platform/vbscript/value/Object.h"

#include <span>

namespace vbs {

class Vm;
struct ErrorState;

class ErrObject final : public NativeObject<ErrObject> {
public:
    explicit ErrObject(Vm& vm);
    ~ErrObject() override;
    static std::span<const Member> members();
    std::u16string_view typeName() const override { return u"Object"; }
    void dropContents() noexcept override;

private:
    Value number(Context& context, Access access, Arguments arguments);
    // Source, Description and HelpFile.
    template <String ErrorState::*part>
    Value text(Context& context, Access access, Arguments arguments);
    Value helpContext(Context& context, Access access, Arguments arguments);
    Value clear(Context& context, Access access, Arguments arguments);
    Value raiseError(Context& context, Access access, Arguments arguments);

    ErrorState& state() const;

    Vm* vm_; // null once the engine has gone
};

// The script's own number for a system result code; other numbers stay as they are.
std::int32_t scriptErrorNumber(std::int32_t code) noexcept;

} // namespace vbs
