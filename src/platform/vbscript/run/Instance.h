// An object of a class that the script declares, what GetRef answers, and the iterator behind For Each. A host may keep
// the first two beyond the end of their engine: they know nothing more then, and using them raises 424.
#pragma once

#include "platform/vbscript/compile/Program.h"
#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Memory.h"
#include "platform/vbscript/value/Object.h"

#include <memory>

namespace vbs {

class Vm;

class Instance final : public Object {
public:
    Instance(Vm& vm, const ScriptClass& cls);
    ~Instance() override;

    std::u16string_view typeName() const override;
    int resolve(std::u16string_view name) override;
    Value invoke(Context& context, int member, Access access, Arguments arguments) override;
    void dropContents() noexcept override;

    const ScriptClass& cls() const noexcept { return *class_; }
    Value* fields() noexcept { return fields_.get(); }
    bool terminates = false; // Class_Initialize was reached, so Class_Terminate will run

protected:
    // Queues the object for its Class_Terminate, once.
    bool postponesEnd() noexcept override;

private:
    Vm* vm_; // null once the engine has gone, and so is the class
    const ScriptClass* class_;
    const MemoryCharge charge_;
    std::unique_ptr<Value[]> fields_;
};

class ProcedureReference final : public Object {
public:
    ProcedureReference(Vm& vm, const Procedure& procedure);
    ~ProcedureReference() override;

    std::u16string_view typeName() const override { return u"Object"; }
    int resolve(std::u16string_view /*name*/) override { return noMember; }
    Value invoke(Context& context, int member, Access access, Arguments arguments) override;
    void dropContents() noexcept override;

    const Procedure& procedure() const noexcept { return *procedure_; }

private:
    Vm* vm_; // null once the engine has gone, and so is the procedure
    const Procedure* procedure_;
};

class Iterator final : public Object {
public:
    explicit Iterator(const Value& array);
    explicit Iterator(std::unique_ptr<Enumerator> enumerator);
    ~Iterator() override;

    std::u16string_view typeName() const override { return u"Iterator"; }
    int resolve(std::u16string_view /*name*/) override { return noMember; }
    Value invoke(Context& context, int member, Access access, Arguments arguments) override;

    bool next(Context& context, Value& element);

private:
    Value array_;
    std::size_t index_ = 0;
    std::unique_ptr<Enumerator> enumerator_;
};

} // namespace vbs
