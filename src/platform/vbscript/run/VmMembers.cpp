// Members of objects: reading, calling and assigning them.
#include "platform/vbscript/run/GlobalScope.h"
#include "platform/vbscript/run/Instance.h"
#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/run/VmCalls.h"
#include "platform/vbscript/run/VmFrames.h"
#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Library.h"

#include <array>
#include <utility>

namespace vbs {

namespace {

// A public variable may be indexed where it holds an array, or an object that has a default member.
void requireIndexable(const Value& field) {
    if (!field.isArray() && !field.isObject()) {
        raise(ErrorNumber::MemberNotFound);
    }
}

// Whether the member is a variable that is an array of fixed size, which takes no other value.
bool holdsFixedArray(const ScriptClass& cls, const ClassMember& member) {
    return member.field >= 0 && !cls.fields[static_cast<std::size_t>(member.field)].sizes.empty();
}

} // namespace

const ClassMember& Vm::instanceMember(const Instance& instance, MemberSite& site) const {
    if (site.shape != instance.shape) {
        const ClassMember* member = instance.cls().find(site.symbol);
        if (member == nullptr || member->isPrivate) {
            raise(ErrorNumber::MemberNotFound, symbols_.name(site.symbol));
        }
        site.shape = instance.shape;
        site.field = holdsFixedArray(instance.cls(), *member) ? -1 : member->field;
        site.entry = member;
        site.reader = readerOf(*member);
        site.shortRoad = nullptr;
    }
    return *site.entry;
}

int Vm::nativeMember(Object& object, MemberSite& site) const {
    if (object.shape != 0 && object.shape == site.shape) {
        return site.member;
    }
    const int member = object.resolve(symbols_.folded(site.symbol));
    if (member == Object::noMember) {
        raise(ErrorNumber::MemberNotFound, symbols_.name(site.symbol));
    }
    site.shape = object.shape;
    site.member = member;
    site.field = -1;
    site.reader = nullptr;
    site.shortRoad = object.shape != 0 ? object.shortRoad(member) : nullptr;
    return member;
}

void Vm::getMember(Instruction instruction) {
    MemberSite& site = top().procedure->sites[operandC(instruction)];
    Value& to = at(operandA(instruction));
    const Store store = storeOf(instruction);
    const Value keep = taken(operandB(instruction));
    Object& object = objectOf(keep);
    if (object.role != Object::Role::Instance) {
        deliver(object.invoke(*this, nativeMember(object, site), Access::Get, {}), to, store);
        return;
    }
    auto& instance = static_cast<Instance&>(object);
    const ClassMember& member = instanceMember(instance, site);
    if (member.field >= 0) {
        deliver(instance.fields()[member.field], to, store);
        return;
    }
    const Procedure* procedure = readerOf(member);
    if (procedure == nullptr) {
        raise(ErrorNumber::WrongArgumentCount, symbols_.name(site.symbol));
    }
    pushFrame(procedure, freeRegisters(), 0, &instance, &to, store);
}

void Vm::callMember(Instruction instruction, Operand firstOperand, std::size_t count) {
    MemberSite& site = top().procedure->sites[operandC(instruction)];
    Value* first = &at(firstOperand);
    const Store store = storeOf(instruction);
    Value& to = at(operandA(instruction));
    const Operand b = operandB(instruction);
    const Value keep = taken(b);
    Object& object = objectOf(keep);
    if (object.role != Object::Role::Instance) {
        if (!object.takesReferences) {
            settle(first, count);
        }
        const Access access = store == Store::Discard ? Access::Call : Access::Get;
        Value result = object.invoke(*this, nativeMember(object, site), access, {first, count});
        consumeRow(first, count);
        deliver(std::move(result), to, store);
        return;
    }
    auto& instance = static_cast<Instance&>(object);
    const ClassMember& member = instanceMember(instance, site);
    if (const Procedure* procedure = readerOf(member); procedure != nullptr) {
        pushFrame(procedure, first, count, &instance, &to, store);
        return;
    }
    if (member.field < 0) {
        raise(ErrorNumber::WrongArgumentCount, symbols_.name(site.symbol));
    }
    const Value& field = instance.fields()[member.field];
    if (count == 0) {
        if (store != Store::Discard) {
            raise(ErrorNumber::InvalidCall); // o.size()
        }
        return;
    }
    requireIndexable(field);
    callField(field, first, count, to, store);
}

// An element of a field that holds an array, or the default member of what it holds: code of the script gets its
// arguments by reference.
void Vm::callField(const Value& field, Value* first, std::size_t count, Value& to, Store store) {
    Value result;
    if (field.isObject() && field.object() != nullptr && field.object()->role != Object::Role::Native) {
        Value given = call(field, {first, count});
        deliver(std::move(given), result, store);
    } else {
        if (count > ArrayBlock::maxDimensions) {
            raise(ErrorNumber::OutOfRange);
        }
        std::array<Value*, 64> places{};
        for (std::size_t i = 0; i < count; ++i) {
            places[i] = first + i;
        }
        getIndex(result, field, {places.data(), count}, store);
    }
    consumeRow(first, count);
    if (store != Store::Discard) {
        to = std::move(result);
    }
}

void Vm::setMember(Instruction instruction) {
    MemberSite& site = top().procedure->sites[operandC(instruction)];
    const Store store = storeOf(instruction);
    Value value = taken(operandB(instruction));
    const Value keep = taken(operandA(instruction));
    Object& object = objectOf(keep);
    Value* place = freeRegisters();
    place[0] = std::move(value);
    if (object.role == Object::Role::Instance) {
        auto& instance = static_cast<Instance&>(object);
        try {
            assignMember(&instance, site, place, 0, store);
        } catch (const ScriptError&) {
            place[0].clear();
            throw;
        }
        return;
    }
    Value argument = std::move(place[0]);
    assignMember(&object, site, &argument, 0, store);
}

void Vm::setMemberN(Instruction instruction) {
    MemberSite& site = top().procedure->sites[operandC(instruction)];
    Value* first = &at(operandB(instruction));
    const std::size_t count = countOf(instruction);
    const Value keep = taken(operandA(instruction));
    settle(first, count + 1);
    const std::size_t depth = depth_;
    assignMember(&objectOf(keep), site, first, count, storeOf(instruction));
    if (depth_ == depth) {
        consumeRow(first, count + 1);
    }
}

// `first` holds `count` arguments and then the value. A Property Let or Set of a script class gets a frame on top of
// them.
void Vm::assignMember(Object* object, MemberSite& site, Value* first, std::size_t count, Store store) {
    Value& value = first[count];
    const bool set = store == Store::Set;
    if (set && !value.isObject()) {
        raise(ErrorNumber::ObjectRequired);
    }
    if (object->role != Object::Role::Instance) {
        if (!set && value.isObject()) {
            value = defaultValue(value);
        }
        object->invoke(*this, nativeMember(*object, site), set ? Access::Set : Access::Let, {first, count + 1});
        return;
    }
    auto& instance = static_cast<Instance&>(*object);
    const ClassMember& member = instanceMember(instance, site);
    if (member.field >= 0) {
        Value& field = instance.fields()[member.field];
        if (count == 0) {
            if (holdsFixedArray(instance.cls(), member)) {
                raise(ErrorNumber::TypeMismatch);
            }
            Value given = std::move(value);
            deliver(std::move(given), field, set ? Store::Set : Store::Let);
            return;
        }
        std::array<Value*, 64> places{};
        for (std::size_t i = 0; i < count; ++i) {
            places[i] = first + i;
        }
        requireIndexable(field);
        setIndex(field, {places.data(), count}, std::move(value), store);
        return;
    }
    const Procedure* procedure = set ? member.set : member.let;
    if (procedure == nullptr) {
        raise(ErrorNumber::MemberNotFound, symbols_.name(site.symbol));
    }
    pushFrame(procedure, first, count + 1, &instance, nullptr, Store::Discard);
}

Value Vm::invokeInstance(Instance& instance, const ClassMember& member, Access access, Arguments arguments) {
    const bool assigns = access == Access::Let || access == Access::Set;
    if (member.field >= 0) {
        Value& field = instance.fields()[member.field];
        std::vector<Value*> places;
        for (std::size_t i = 0; i + (assigns ? 1 : 0) < arguments.size(); ++i) {
            places.push_back(&arguments[i]);
        }
        Value result;
        if (assigns && places.empty()) {
            if (holdsFixedArray(instance.cls(), member)) {
                raise(ErrorNumber::TypeMismatch);
            }
            field = arguments[0];
        } else if (assigns) {
            setIndex(field, places, arguments.back(), Store::Raw);
        } else if (places.empty()) {
            result = field;
        } else {
            getIndex(result, field, places, Store::Raw);
        }
        return result;
    }
    const Procedure* procedure = access == Access::Set ? member.set : assigns ? member.let : readerOf(member);
    if (procedure == nullptr) {
        raise(ErrorNumber::MemberNotFound);
    }
    return callProcedure(*procedure, &instance, arguments);
}

void Vm::makeMe(Instruction instruction) {
    Value me = Value::ofObject(top().me);
    if (top().me == nullptr) {
        if (globalScope_.isEmpty()) {
            globalScope_ = makeObject<GlobalScope>(*this).value();
        }
        me = globalScope_;
    }
    deliver(std::move(me), at(operandA(instruction)), storeOf(instruction));
}

std::uint32_t Vm::definedGlobal(std::u16string_view name) {
    const std::uint32_t slot = globals_.find(symbols_.find(name));
    return slot == Globals::none || globals_[slot].type == Type::Undefined ? Globals::none : slot;
}

Value Vm::useGlobal(std::uint32_t slot, Access access, Arguments arguments) {
    const bool assigns = access == Access::Let || access == Access::Set;
    const GlobalKind kind = globals_.kind(slot);
    if (globals_[slot].type == Type::Procedure) { // code compiled before may have put a value over a procedure
        const auto& callable = *static_cast<const Callable*>(globals_[slot].pointer);
        if (assigns || callable.kind != Callable::Kind::Procedure) {
            raise(ErrorNumber::MemberNotFound);
        }
        return callProcedure(static_cast<const Procedure&>(callable), nullptr, arguments);
    }
    std::vector<Value*> indexes;
    for (std::size_t i = 0; i + (assigns ? 1 : 0) < arguments.size(); ++i) {
        indexes.push_back(&arguments[i]);
    }
    const Store store = access == Access::Set ? Store::Set : Store::Let;
    Value result;
    if (assigns && !indexes.empty()) {
        setIndex(globals_[slot], indexes, arguments.back(), store);
    } else if (assigns && kind != GlobalKind::Variable) {
        raise(ErrorNumber::IllegalAssignment);
    } else if (assigns && globals_[slot].isArray() && globals_[slot].array()->fixed()) {
        raise(ErrorNumber::TypeMismatch);
    } else if (assigns) {
        deliver(arguments[0], globals_[slot], store);
    } else if (indexes.empty()) {
        result = globals_[slot];
    } else {
        getIndex(result, globals_[slot], indexes, Store::Raw);
    }
    return result;
}

} // namespace vbs
