// The making and the end of the machine, and the ways into it from native code; units, the clock, frames and dead
// objects, the dispatch loop and the instructions stand in files of their own.
#include "platform/vbscript/run/Vm.h"

#include "platform/vbscript/run/ErrObject.h"
#include "platform/vbscript/run/Instance.h"
#include "platform/vbscript/run/VmFrames.h"
#include "platform/vbscript/value/Library.h"
#include "platform/vbscript/value/Memory.h"

#include <limits>
#include <new>
#include <sys/mman.h>
#include <utility>

namespace vbs {

namespace {

// Fresh pages come zeroed, which reads as Integer 0: nothing to give up.
Value* mapStack(std::size_t registers) {
    void* memory = mmap(nullptr, registers * sizeof(Value), PROT_READ | PROT_WRITE,
                        MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) {
        throw std::bad_alloc();
    }
    return static_cast<Value*>(memory);
}

} // namespace

Vm::Vm(Host& theHost, const Library& library)
    : Context(theHost), m_library(library), m_compiler(m_symbols, m_globals, library),
      m_stack(mapStack(stackSize + stackSlack)), m_stackEnd(m_stack + stackSize),
      m_frames(std::make_unique_for_overwrite<Frame[]>(maxFrames)) {
    defineBuiltins();
}

Vm::~Vm() {
    const MemoryCeiling ceiling(memoryCeiling);
    timeoutMilliseconds = 1000; // what Class_Terminate may still take
    startClock();
    for (std::uint32_t slot = 0; slot < m_globals.size(); ++slot) {
        if (m_globals.kind(slot) == GlobalKind::Variable) {
            m_globals[slot].clear(); // Class_Terminate still finds everything else
            terminateDead();
        }
    }
    for (std::uint32_t slot = 0; slot < m_globals.size(); ++slot) {
        m_globals[slot].clear();
        terminateDead();
    }
    m_closing = true;
    Object* cyclic = nullptr; // all that are left, each with a reference more
    while (m_adopted != nullptr) {
        Object* object = m_adopted;
        abandon(*object);
        ++object->references;
        object->nextDead = std::exchange(cyclic, object);
    }
    for (Object* object = cyclic; object != nullptr; object = object->nextDead) {
        object->dropContents();
    }
    while (cyclic != nullptr) {
        const Value last = Value::ofObject(cyclic);
        --cyclic->references;
        cyclic = cyclic->nextDead;
    }
    for (Unit* unit : m_recent) {
        release(unit);
    }
    for (const auto& [slot, unit] : m_owners) {
        release(unit);
    }
    freeRetired();
    munmap(static_cast<void*>(m_stack), (stackSize + stackSlack) * sizeof(Value));
}

void Vm::defineBuiltins() {
    for (const NamedConstant& constant : m_library.constants) {
        const Symbol symbol = m_symbols.intern(constant.name);
        m_symbols.hold(symbol);
        m_globals.define(m_globals.slotOf(symbol), GlobalKind::Constant, constant.value, true);
    }
    const auto err = makeObject<ErrObject>(*this);
    const Symbol symbol = m_symbols.intern(u"Err");
    m_symbols.hold(symbol);
    m_globals.define(m_globals.slotOf(symbol), GlobalKind::Object, err.value(), true);
}

void Vm::addObject(std::u16string_view name, Object& object) {
    define(m_globals.slotOf(m_symbols.intern(name)), GlobalKind::Object, Value::ofObject(&object));
}

void Vm::removeObject(std::u16string_view name) {
    const std::uint32_t slot = m_globals.find(m_symbols.find(name));
    if (slot != Globals::none && m_globals.kind(slot) == GlobalKind::Object && !m_globals.predefined(slot)) {
        define(slot, GlobalKind::Undefined, Value(Type::Undefined, 0));
    }
}

void Vm::visitVariables(const std::function<void(std::u16string_view name, const Value& value)>& visit) {
    for (std::uint32_t slot = 0; slot < m_globals.size(); ++slot) {
        if (m_globals.kind(slot) == GlobalKind::Variable) {
            visit(m_symbols.name(m_globals.symbol(slot)), m_globals[slot]);
        }
    }
}

// ---------------------------------------------------------------------------------------------------------------
// entered from native code

Value Vm::callProcedure(const Procedure& procedure, Instance* me, Arguments arguments) {
    poll(); // objects that make others as they go would never come to an end
    const Reentry reentry(m_reentries, maxReentries);
    Value* base = freeRegisters();
    if (base + arguments.size() + procedure.registers > m_stackEnd) {
        raise(ErrorNumber::OutOfStack);
    }
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        base[i] = arguments[i];
    }
    const std::size_t floor = m_depth;
    Value result;
    try {
        pushFrame(&procedure, base, arguments.size(), me, &result, Store::Raw);
    } catch (const ScriptError&) {
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            base[i].clear();
        }
        throw;
    }
    run(floor);
    return result;
}

Value Vm::defaultValue(const Value& object) {
    Object* target = object.object();
    if (target == nullptr) {
        raise(ErrorNumber::ObjectNotSet);
    }
    const Value keep = Value::ofObject(target);
    Value result;
    if (target->role == Object::Role::Instance) {
        auto& instance = static_cast<Instance&>(*target);
        const int member = instance.cls().defaultMember;
        if (member < 0) {
            raise(ErrorNumber::MemberNotFound);
        }
        result = invokeInstance(instance, instance.cls().members[static_cast<std::size_t>(member)], Access::Get, {});
    } else {
        result = target->invoke(*this, Object::defaultMember, Access::Get, {});
    }
    if (result.isObject()) {
        const Reentry reentry(m_reentries, maxReentries);
        return defaultValue(result);
    }
    return result;
}

Value Vm::call(const Value& procedure, Arguments arguments) {
    const Value& callee = procedure.deref();
    if (!callee.isObject() || callee.object() == nullptr) {
        raise(ErrorNumber::ObjectRequired);
    }
    const Value keep = Value::ofObject(callee.object());
    if (keep.object()->role == Object::Role::Instance) {
        const auto& cls = static_cast<Instance*>(keep.object())->cls();
        return keep.object()->invoke(*this, cls.defaultMember, Access::Call, arguments);
    }
    return keep.object()->invoke(*this, Object::defaultMember, Access::Call, arguments);
}

void Vm::adopt(Object& object) noexcept {
    object.adoptedAfter = m_adopted;
    if (m_adopted != nullptr) {
        m_adopted->adoptedBefore = &object;
    }
    m_adopted = &object;
}

void Vm::abandon(Object& object) noexcept {
    if (object.adoptedBefore == nullptr && m_adopted != &object) {
        return; // left already, at the end of the engine
    }
    (object.adoptedBefore != nullptr ? object.adoptedBefore->adoptedAfter : m_adopted) = object.adoptedAfter;
    if (object.adoptedAfter != nullptr) {
        object.adoptedAfter->adoptedBefore = object.adoptedBefore;
    }
    object.adoptedBefore = object.adoptedAfter = nullptr;
}

} // namespace vbs
