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

    const ScriptClass& cls() const noexcept { return *m_class; }
    Value* fields() noexcept { return m_fields.get(); }
    bool terminates = false; // Class_Initialize was reached, so Class_Terminate will run

protected:
    // Queues the object for its Class_Terminate, once.
    bool postponesEnd() noexcept override;

private:
    Vm* m_vm; // null once the engine has gone, and so is the class
    const ScriptClass* m_class;
    const MemoryCharge m_charge;
    std::unique_ptr<Value[]> m_fields;
};

class ProcedureReference final : public Object {
public:
    ProcedureReference(Vm& vm, const Procedure& procedure);
    ~ProcedureReference() override;

    std::u16string_view typeName() const override { return u"Object"; }
    int resolve(std::u16string_view /*name*/) override { return noMember; }
    Value invoke(Context& context, int member, Access access, Arguments arguments) override;
    void dropContents() noexcept override;

    const Procedure& procedure() const noexcept { return *m_procedure; }

private:
    Vm* m_vm; // null once the engine has gone, and so is the procedure
    const Procedure* m_procedure;
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
    Value m_array;
    std::size_t m_index = 0;
    std::unique_ptr<Enumerator> m_enumerator;
};

} // namespace vbs
