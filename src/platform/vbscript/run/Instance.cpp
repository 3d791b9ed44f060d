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

Instance::Instance(Vm& vm, const ScriptClass& cls) : vm_(&vm), class_(&cls), charge_(bytesOf(cls)) {
    role = Role::Instance;
    shape = cls.shape;
    fields_ = std::make_unique<Value[]>(cls.fields.size());
    for (std::size_t i = 0; i < cls.fields.size(); ++i) {
        if (cls.fields[i].array) {
            fields_[i] = Value::ofArray(ArrayBlock::create(cls.fields[i].sizes, !cls.fields[i].sizes.empty()));
        }
    }
    vm.retain(cls.unit);
    vm.adopt(*this);
}

Instance::~Instance() {
    if (vm_ == nullptr) {
        return;
    }
    vm_->abandon(*this);
    fields_.reset();
    vm_->release(class_->unit);
}

std::u16string_view Instance::typeName() const {
    return class_ != nullptr ? std::u16string_view(class_->spelling) : u"Object";
}

int Instance::resolve(std::u16string_view name) {
    if (class_ == nullptr) {
        return noMember;
    }
    const auto found = class_->index.find(vm_->symbols().find(name));
    return found != class_->index.end() ? found->second : noMember;
}

Value Instance::invoke(Context& /*context*/, int member, Access access, Arguments arguments) {
    if (vm_ == nullptr) {
        raise(ErrorNumber::ObjectRequired);
    }
    if (member < 0 || static_cast<std::size_t>(member) >= class_->members.size()) {
        raise(ErrorNumber::MemberNotFound);
    }
    return vm_->invokeInstance(*this, class_->members[static_cast<std::size_t>(member)], access, arguments);
}

void Instance::dropContents() noexcept {
    if (vm_ == nullptr) {
        return;
    }
    terminates = false;
    for (std::size_t i = 0; i < class_->fields.size(); ++i) {
        fields_[i].clear();
    }
    vm_->abandon(*this);
    role = Role::Native;
    shape = 0;
    std::exchange(vm_, nullptr)->release(std::exchange(class_, nullptr)->unit);
}

bool Instance::postponesEnd() noexcept {
    if (!terminates || class_->terminate == nullptr) {
        return false;
    }
    terminates = false;
    references = 1;
    vm_->awaitTermination(*this);
    return true;
}

ProcedureReference::ProcedureReference(Vm& vm, const Procedure& procedure) : vm_(&vm), procedure_(&procedure) {
    role = Role::ProcedureReference;
    vm.retain(procedure.unit);
    vm.adopt(*this);
}

ProcedureReference::~ProcedureReference() {
    dropContents();
}

void ProcedureReference::dropContents() noexcept {
    if (vm_ != nullptr) {
        vm_->abandon(*this);
        role = Role::Native;
        std::exchange(vm_, nullptr)->release(std::exchange(procedure_, nullptr)->unit);
    }
}

Value ProcedureReference::invoke(Context& /*context*/, int member, Access access, Arguments arguments) {
    if (vm_ == nullptr) {
        raise(ErrorNumber::ObjectRequired);
    }
    if (member != defaultMember || access == Access::Let || access == Access::Set) {
        raise(ErrorNumber::MemberNotFound);
    }
    return vm_->callProcedure(*procedure_, nullptr, arguments);
}

Iterator::Iterator(const Value& array) : array_(array) {
    role = Role::Iterator;
    ++array_.array()->locks;
}

Iterator::Iterator(std::unique_ptr<Enumerator> enumerator) : enumerator_(std::move(enumerator)) {
    role = Role::Iterator;
}

Iterator::~Iterator() {
    if (array_.isArray()) {
        --array_.array()->locks;
    }
}

Value Iterator::invoke(Context& /*context*/, int /*member*/, Access /*access*/, Arguments /*arguments*/) {
    raise(ErrorNumber::MemberNotFound);
}

bool Iterator::next(Context& context, Value& element) {
    if (enumerator_ != nullptr) {
        return enumerator_->next(context, element);
    }
    const ArrayBlock& array = *array_.array();
    if (index_ >= array.count()) {
        return false;
    }
    element = array.elements()[index_++];
    return true;
}

} // namespace vbs
