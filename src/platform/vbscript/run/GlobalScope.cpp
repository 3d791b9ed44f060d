#include "platform/vbscript/run/GlobalScope.h"

#include "platform/vbscript/run/Vm.h"

#include <utility>

namespace vbs {

GlobalScope::GlobalScope(Vm& vm) : vm_(&vm) {
    takesReferences = true;
    vm.adopt(*this);
}

GlobalScope::~GlobalScope() {
    dropContents();
}

void GlobalScope::dropContents() noexcept {
    if (vm_ != nullptr) {
        std::exchange(vm_, nullptr)->abandon(*this);
    }
}

// A member's number is one more than its slot: 0 would be the default member, and there is none.
int GlobalScope::resolve(std::u16string_view name) {
    const std::uint32_t slot = vm_ != nullptr ? vm_->definedGlobal(name) : Globals::none;
    return slot == Globals::none ? noMember : static_cast<int>(slot) + 1;
}

Value GlobalScope::invoke(Context& /*context*/, int member, Access access, Arguments arguments) {
    if (vm_ == nullptr) {
        raise(ErrorNumber::ObjectRequired);
    }
    if (member == defaultMember) {
        raise(ErrorNumber::MemberNotFound);
    }
    return vm_->useGlobal(static_cast<std::uint32_t>(member) - 1, access, arguments);
}

} // namespace vbs
