#include "platform/vbscript/run/Instance.h"

#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/value/Memory.h"

#include <utility>

namespace vbs {

namespace {

std::size_t bytesOf(const ScriptClass& cls) noexcept {
    return sizeof(Instance) + cls.fields.size() * sizeof(Value);
}

} // namespace

Instance::Instance(Vm& vm, const ScriptClass& cls) : m_vm(&vm), m_class(&cls), m_charge(bytesOf(cls)) {
    role = Role::Instance;
    shape = cls.shape;
    m_fields = std::make_unique<Value[]>(cls.fields.size());
    for (std::size_t i = 0; i < cls.fields.size(); ++i) {
        if (cls.fields[i].array) {
            m_fields[i] = Value::ofArray(ArrayBlock::create(cls.fields[i].sizes, !cls.fields[i].sizes.empty()));
        }
    }
    vm.retain(cls.unit);
    vm.adopt(*this);
}

Instance::~Instance() {
    if (m_vm == nullptr) {
        return;
    }
    m_vm->abandon(*this);
    m_fields.reset();
    m_vm->release(m_class->unit);
}

std::u16string_view Instance::typeName() const {
    return m_class != nullptr ? std::u16string_view(m_class->spelling) : u"Object";
}

int Instance::resolve(std::u16string_view name) {
    if (m_class == nullptr) {
        return noMember;
    }
    const auto found = m_class->index.find(m_vm->symbols().find(name));
    return found != m_class->index.end() ? found->second : noMember;
}

Value Instance::invoke(Context& /*context*/, int member, Access access, Arguments arguments) {
    if (m_vm == nullptr) {
        raise(ErrorNumber::ObjectRequired);
    }
    if (member < 0 || static_cast<std::size_t>(member) >= m_class->members.size()) {
        raise(ErrorNumber::MemberNotFound);
    }
    return m_vm->invokeInstance(*this, m_class->members[static_cast<std::size_t>(member)], access, arguments);
}

void Instance::dropContents() noexcept {
    if (m_vm == nullptr) {
        return;
    }
    terminates = false;
    for (std::size_t i = 0; i < m_class->fields.size(); ++i) {
        m_fields[i].clear();
    }
    m_vm->abandon(*this);
    role = Role::Native;
    shape = nullptr;
    std::exchange(m_vm, nullptr)->release(std::exchange(m_class, nullptr)->unit);
}

bool Instance::postponesEnd() noexcept {
    if (!terminates || m_class->terminate == nullptr) {
        return false;
    }
    terminates = false;
    references = 1;
    m_vm->awaitTermination(*this);
    return true;
}

ProcedureReference::ProcedureReference(Vm& vm, const Procedure& procedure) : m_vm(&vm), m_procedure(&procedure) {
    role = Role::ProcedureReference;
    vm.retain(procedure.unit);
    vm.adopt(*this);
}

ProcedureReference::~ProcedureReference() {
    dropContents();
}

void ProcedureReference::dropContents() noexcept {
    if (m_vm != nullptr) {
        m_vm->abandon(*this);
        role = Role::Native;
        std::exchange(m_vm, nullptr)->release(std::exchange(m_procedure, nullptr)->unit);
    }
}

Value ProcedureReference::invoke(Context& /*context*/, int member, Access access, Arguments arguments) {
    if (m_vm == nullptr) {
        raise(ErrorNumber::ObjectRequired);
    }
    if (member != defaultMember || access == Access::Let || access == Access::Set) {
        raise(ErrorNumber::MemberNotFound);
    }
    return m_vm->callProcedure(*m_procedure, nullptr, arguments);
}

Iterator::Iterator(const Value& array) : m_array(array) {
    role = Role::Iterator;
    ++m_array.array()->locks;
}

Iterator::Iterator(std::unique_ptr<Enumerator> enumerator) : m_enumerator(std::move(enumerator)) {
    role = Role::Iterator;
}

Iterator::~Iterator() {
    if (m_array.isArray()) {
        --m_array.array()->locks;
    }
}

Value Iterator::invoke(Context& /*context*/, int /*member*/, Access /*access*/, Arguments /*arguments*/) {
    raise(ErrorNumber::MemberNotFound);
}

bool Iterator::next(Context& context, Value& element) {
    if (m_enumerator != nullptr) {
        return m_enumerator->next(context, element);
    }
    const ArrayBlock& array = *m_array.array();
    if (m_index >= array.count()) {
        return false;
    }
    element = array.elements()[m_index++];
    return true;
}

} // namespace vbs
