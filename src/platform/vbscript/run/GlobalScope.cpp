#include "platform/vbscript/run/GlobalScope.h"

#include "platform/vbscript/run/Vm.h"

#include <utility>

namespace vbs {

GlobalScope::GlobalScope(Vm& vm) : m_vm(&vm) {
    takesReferences = true;
    vm.adopt(*this);
}

GlobalScope::~GlobalScope() {
    dropContents();
}

void GlobalScope::dropContents() noexcept {
    if (m_vm != nullptr) {
        std::exchange(m_vm, nullptr)->abandon(*this);
    }
}

// A member's number is one more than its slot: 0 would be the default member, and there is none.
int GlobalScope::resolve(std::u16string_view name) {
    const std::uint32_t slot = m_vm != nullptr ? m_vm->definedGlobal(name) : Globals::none;
    return slot == Globals::none ? noMember : static_cast<int>(slot) + 1;
}

Value GlobalScope::invoke(Context& /*context*/, int member, Access access, Arguments arguments) {
    if (m_vm == nullptr) {
        raise(ErrorNumber::ObjectRequired);
    }
    if (member == defaultMember) {
        raise(ErrorNumber::MemberNotFound);
    }
    return m_vm->useGlobal(static_cast<std::uint32_t>(member) - 1, access, arguments);
}

} // namespace vbs
