// What `Me` is outside classes: the script's global names as the members of an object.
#pragma once

#include "platform/vbscript/value/Object.h"

namespace vbs {

class Vm;

class GlobalScope final : public Object {
public:
    explicit GlobalScope(Vm& vm);
    ~GlobalScope() override;

    std::u16string_view typeName() const override { return u"Object"; }
    int resolve(std::u16string_view name) override;
    Value invoke(Context& context, int member, Access access, Arguments arguments) override;
    void dropContents() noexcept override;

private:
    Vm* vm_; // null once the engine has gone
};

} // namespace vbs
