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
    : Context(theHost), library_(library), compiler_(symbols_, globals_, library, theHost),
      stack_(mapStack(stackSize + stackSlack)), stackEnd_(stack_ + stackSize),
      frames_(std::make_unique_for_overwrite<Frame[]>(maxFrames)) {
    defineBuiltins();
}

Vm::~Vm() {
    const MemoryCeiling ceiling(memoryCeiling);
    timeoutMilliseconds = 1000; // what Class_Terminate may still take
    startClock();
    for (std::uint32_t slot = 0; slot < globals_.size(); ++slot) {
        if (globals_.kind(slot) == GlobalKind::Variable) {
            globals_[slot].clear(); // Class_Terminate still finds everything else
            terminateDead();
        }
    }
    for (std::uint32_t slot = 0; slot < globals_.size(); ++slot) {
        globals_[slot].clear();
        terminateDead();
    }
    closing_ = true;
    Object* cyclic = nullptr; // all that are left, each with a reference more
    while (adopted_ != nullptr) {
        Object* object = adopted_;
        Vm::abandon(*object);
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
    for (Unit* unit : recent_) {
        release(unit);
    }
    for (const auto& [slot, unit] : owners_) {
        release(unit);
    }
    freeRetired();
    munmap(static_cast<void*>(stack_), (stackSize + stackSlack) * sizeof(Value));
}

void Vm::defineBuiltins() {
    for (const NamedConstant& constant : library_.constants) {
        const Symbol symbol = symbols_.intern(constant.name);
        symbols_.hold(symbol);
        globals_.define(globals_.slotOf(symbol), GlobalKind::Constant, constant.value, true);
    }
    const auto err = makeObject<ErrObject>(*this);
    const Symbol symbol = symbols_.intern(u"Err");
    symbols_.hold(symbol);
    globals_.define(globals_.slotOf(symbol), GlobalKind::Object, err.value(), true);
}

void Vm::addObject(std::u16string_view name, Object& object) {
    define(globals_.slotOf(symbols_.intern(name)), GlobalKind::Object, Value::ofObject(&object));
}

void Vm::removeObject(std::u16string_view name) {
    const std::uint32_t slot = globals_.find(symbols_.find(name));
    if (slot != Globals::none && globals_.kind(slot) == GlobalKind::Object && !globals_.predefined(slot)) {
        define(slot, GlobalKind::Undefined, Value(Type::Undefined, 0));
    }
}

void Vm::visitVariables(const std::function<void(std::u16string_view name, const Value& value)>& visit) {
    for (std::uint32_t slot = 0; slot < globals_.size(); ++slot) {
        if (globals_.kind(slot) == GlobalKind::Variable) {
            visit(symbols_.name(globals_.symbol(slot)), globals_[slot]);
        }
    }
}

// ---------------------------------------------------------------------------------------------------------------
// entered from native code

Value Vm::callProcedure(const Procedure& procedure, Instance* me, Arguments arguments) {
    poll(); // objects that make others as they go would never come to an end
    const Reentry reentry(reentries_, maxReentries);
    Value* base = freeRegisters();
    if (base + arguments.size() + procedure.registers > stackEnd_) {
        raise(ErrorNumber::OutOfStack);
    }
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        base[i] = arguments[i];
    }
    const std::size_t floor = depth_;
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
        const Reentry reentry(reentries_, maxReentries);
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
    object.adoptedAfter = adopted_;
    if (adopted_ != nullptr) {
        adopted_->adoptedBefore = &object;
    }
    adopted_ = &object;
}

void Vm::abandon(Object& object) noexcept {
    if (object.adoptedBefore == nullptr && adopted_ != &object) {
        return; // left already, at the end of the engine
    }
    (object.adoptedBefore != nullptr ? object.adoptedBefore->adoptedAfter : adopted_) = object.adoptedAfter;
    if (object.adoptedAfter != nullptr) {
        object.adoptedAfter->adoptedBefore = object.adoptedBefore;
    }
    object.adoptedBefore = object.adoptedAfter = nullptr;
}

} // namespace vbs
