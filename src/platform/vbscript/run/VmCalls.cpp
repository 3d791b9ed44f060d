// Calls of intrinsics, objects and members; New, GetRef, Execute and Eval.
#include "platform/vbscript/run/GlobalScope.h"
#include "platform/vbscript/run/Instance.h"
#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/run/VmFrames.h"
#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Library.h"

#include <array>
#include <utility>

namespace vbs {

namespace {

Operand operandA(Instruction i) noexcept {
    return static_cast<Operand>(i >> 8);
}
Operand operandB(Instruction i) noexcept {
    return static_cast<Operand>(i >> 24);
}
Operand operandC(Instruction i) noexcept {
    return static_cast<Operand>(i >> 40);
}
std::size_t countOf(Instruction i) noexcept {
    return (i >> 56) & 63;
}
Store storeOf(Instruction i) noexcept {
    return static_cast<Store>(i >> 62);
}

// References in a row of arguments become plain values.
void settle(Value* first, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        if (first[i].type == Type::Reference) {
            first[i] = Value(*first[i].target);
        }
    }
}

const Procedure* readerOf(const ClassMember& member) noexcept {
    return member.method != nullptr ? member.method : member.get;
}

// The object behind a value. Raises 424 for what is no object and for Nothing.
Object& objectOf(const Value& v) {
    const Value& value = v.deref();
    if (!value.isObject() || value.object() == nullptr) {
        raise(ErrorNumber::ObjectRequired);
    }
    return *value.object();
}

// A public variable may be indexed where it holds an array, or an object that has a default member.
void requireIndexable(const Value& field) {
    if (!field.isArray() && !field.isObject()) {
        raise(ErrorNumber::MemberNotFound);
    }
}

} // namespace

void Vm::callIntrinsic1(Instruction instruction) {
    const Operand b = operandB(instruction);
    const Builtin& builtin = m_library.builtins[operandC(instruction)];
    Value argument = isTemporary(b) ? std::move(at(b)) : at(b).deref(); // held: code of the script may run
    if (argument.type == Type::Undefined) {
        argument.type = Type::Empty;
    }
    Value result = builtin.function(*this, {&argument, 1});
    deliver(std::move(result), at(operandA(instruction)), storeOf(instruction));
}

// A call of something that is no procedure: an array, an object, or a mistake.
void Vm::callOther(Instruction instruction) {
    const Operand c = operandC(instruction);
    const Value callee = at(c).deref();
    Value* first = &at(operandB(instruction));
    const std::size_t count = countOf(instruction);
    const Store store = storeOf(instruction);
    Value& to = at(operandA(instruction));
    if (callee.type == Type::Procedure &&
        static_cast<const Callable*>(callee.pointer)->kind == Callable::Kind::Procedure) {
        const auto* procedure = static_cast<const Procedure*>(static_cast<const Callable*>(callee.pointer));
        pushFrame(procedure, first, count, nullptr, &to, store);
        return;
    }
    if (callee.isObject() && callee.object() != nullptr) {
        Object& object = *callee.object();
        if (object.role == Object::Role::ProcedureReference) {
            pushFrame(&static_cast<ProcedureReference&>(object).procedure(), first, count, nullptr, &to, store);
            return;
        }
        if (object.role == Object::Role::Instance) {
            auto& instance = static_cast<Instance&>(object);
            const int member = instance.cls().defaultMember;
            const Procedure* procedure =
                member < 0 ? nullptr : readerOf(instance.cls().members[static_cast<std::size_t>(member)]);
            if (procedure == nullptr) {
                raise(ErrorNumber::MemberNotFound);
            }
            pushFrame(procedure, first, count, &instance, &to, store);
            return;
        }
        settle(first, count);
        Value result = object.invoke(*this, Object::defaultMember, store == Store::Discard ? Access::Call : Access::Get,
                                     {first, count});
        consumeRow(first, count);
        deliver(std::move(result), to, store);
        return;
    }
    if (callee.isObject()) {
        raise(ErrorNumber::ObjectNotSet);
    }
    if (callee.isArray() && store != Store::Discard) {
        if (count == 0) {
            raise(ErrorNumber::OutOfRange);
        }
        std::array<Value*, 64> places{};
        for (std::size_t i = 0; i < count; ++i) {
            places[i] = first + i;
        }
        Value result;
        getIndex(result, callee, {places.data(), count}, store);
        consumeRow(first, count);
        to = std::move(result);
        return;
    }
    if (placeOf(c) == Place::Global) {
        raise(ErrorNumber::TypeMismatch, m_symbols.name(m_globals.symbol(static_cast<std::uint32_t>(indexOf(c)))));
    }
    raise(ErrorNumber::TypeMismatch);
}

// A name that the compiler could not resolve: what Execute made in this call, or the global.
void Vm::findName(Instruction instruction) {
    const auto slot = static_cast<std::uint32_t>(indexOf(operandC(instruction)));
    Value& to = at(operandA(instruction));
    Value* found = &m_globals[slot];
    if (const auto* made = top().extra; made != nullptr) {
        if (const auto entry = made->find(m_globals.symbol(slot)); entry != made->end()) {
            found = entry->second.get();
        }
    }
    to.clear();
    const auto mode = instruction >> 56;
    if (mode == 2 && found->type == Type::Undefined) {
        found = &at(operandB(instruction)).deref();
    }
    const GlobalKind kind = m_globals.kind(slot);
    if (mode == 2 && found == &m_globals[slot] && (kind == GlobalKind::Constant || kind == GlobalKind::Object)) {
        to = *found;
    } else if (found->type != Type::Undefined) {
        to.type = Type::Reference;
        to.target = found;
    } else if (mode == 1) {
        raiseUndefined(slot);
    }
}

// --------------------------------------------------------------------------------------------------------------
// members

const ClassMember& Vm::instanceMember(const Instance& instance, MemberSite& site) const {
    if (site.shape != instance.shape) {
        const ClassMember* member = instance.cls().find(site.symbol);
        if (member == nullptr || member->isPrivate) {
            raise(ErrorNumber::MemberNotFound, m_symbols.name(site.symbol));
        }
        site.shape = instance.shape;
        site.field = member->field;
        site.entry = member;
    }
    return *site.entry;
}

int Vm::nativeMember(Object& object, MemberSite& site) const {
    if (object.shape != nullptr && object.shape == site.shape) {
        return site.member;
    }
    const int member = object.resolve(m_symbols.folded(site.symbol));
    if (member == Object::noMember) {
        raise(ErrorNumber::MemberNotFound, m_symbols.name(site.symbol));
    }
    site.shape = object.shape;
    site.member = member;
    site.field = -1;
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
        raise(ErrorNumber::WrongArgumentCount, m_symbols.name(site.symbol));
    }
    pushFrame(procedure, freeRegisters(), 0, &instance, &to, store);
}

void Vm::callMember(Instruction instruction, Operand firstOperand) {
    MemberSite& site = top().procedure->sites[operandC(instruction)];
    Value* first = &at(firstOperand);
    const std::size_t count = countOf(instruction);
    const Store store = storeOf(instruction);
    Value& to = at(operandA(instruction));
    const Operand b = operandB(instruction);
    Object& object = objectOf(at(b));
    if (object.role != Object::Role::Instance) {
        if (!object.takesReferences) {
            settle(first, count);
        }
        const Access access = store == Store::Discard ? Access::Call : Access::Get;
        if (isTemporary(b) || placeOf(b) != Place::Global) {
            const Value keep = taken(b);
            Value result = object.invoke(*this, nativeMember(object, site), access, {first, count});
            consumeRow(first, count);
            deliver(std::move(result), to, store);
            return;
        }
        const Value keep = Value::ofObject(&object);
        Value result = object.invoke(*this, nativeMember(object, site), access, {first, count});
        consumeRow(first, count);
        deliver(std::move(result), to, store);
        return;
    }
    const Value keep = taken(b);
    auto& instance = static_cast<Instance&>(object);
    const ClassMember& member = instanceMember(instance, site);
    if (const Procedure* procedure = readerOf(member); procedure != nullptr) {
        pushFrame(procedure, first, count, &instance, &to, store);
        return;
    }
    if (member.field < 0) {
        raise(ErrorNumber::WrongArgumentCount, m_symbols.name(site.symbol));
    }
    const Value& field = instance.fields()[member.field];
    if (count == 0) {
        if (store != Store::Discard) {
            raise(ErrorNumber::InvalidCall); // o.size()
        }
        return;
    }
    requireIndexable(field);
    std::array<Value*, 64> places{};
    for (std::size_t i = 0; i < count; ++i) {
        places[i] = first + i;
    }
    Value result;
    getIndex(result, field, {places.data(), count}, store);
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
    const std::size_t depth = m_depth;
    assignMember(&objectOf(keep), site, first, count, storeOf(instruction));
    if (m_depth == depth) {
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
        // A property that hands out an object or array may still be assigned through.
        raise(count == 0 || readerOf(member) == nullptr ? ErrorNumber::MemberNotFound : ErrorNumber::WrongArgumentCount,
              m_symbols.name(site.symbol));
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
        if (m_globalScope.isEmpty()) {
            m_globalScope = makeObject<GlobalScope>(*this).value();
        }
        me = m_globalScope;
    }
    deliver(std::move(me), at(operandA(instruction)), storeOf(instruction));
}

std::uint32_t Vm::definedGlobal(std::u16string_view name) {
    const std::uint32_t slot = m_globals.find(m_symbols.intern(name));
    return slot == Globals::none || m_globals[slot].type == Type::Undefined ? Globals::none : slot;
}

Value Vm::useGlobal(std::uint32_t slot, Access access, Arguments arguments) {
    const bool assigns = access == Access::Let || access == Access::Set;
    const GlobalKind kind = m_globals.kind(slot);
    if (kind == GlobalKind::Callable) {
        const auto& callable = *static_cast<const Callable*>(m_globals[slot].pointer);
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
        setIndex(m_globals[slot], indexes, arguments.back(), store);
    } else if (assigns && kind != GlobalKind::Variable) {
        raise(ErrorNumber::IllegalAssignment);
    } else if (assigns && m_globals[slot].isArray() && m_globals[slot].array()->fixed()) {
        raise(ErrorNumber::TypeMismatch);
    } else if (assigns) {
        deliver(arguments[0], m_globals[slot], store);
    } else if (indexes.empty()) {
        result = m_globals[slot];
    } else {
        getIndex(result, m_globals[slot], indexes, Store::Raw);
    }
    return result;
}

// A name that may be a variable, a function, or nothing yet.
void Vm::getName(Instruction instruction) {
    const Value& named = at(operandC(instruction)).deref();
    if (named.type == Type::Procedure &&
        static_cast<const Callable*>(named.pointer)->kind == Callable::Kind::Procedure) {
        pushFrame(static_cast<const Procedure*>(static_cast<const Callable*>(named.pointer)),
                  &at(operandB(instruction)), 0, nullptr, &at(operandA(instruction)), storeOf(instruction));
        return;
    }
    if (countOf(instruction) == 1) {
        if (named.type == Type::Procedure) {
            raise(ErrorNumber::TypeMismatch); // a class
        }
        return; // a variable stays a reference
    }
    deliver(taken(operandC(instruction)), at(operandA(instruction)), storeOf(instruction));
}

// ----------------------------------------------------------------------------------------------- objects and new code

void Vm::makeNew(Instruction instruction) {
    const Operand c = operandC(instruction);
    const Value& named = at(c);
    if (named.type != Type::Procedure || static_cast<const Callable*>(named.pointer)->kind != Callable::Kind::Class) {
        raise(ErrorNumber::ClassUndefined, m_symbols.name(m_globals.symbol(static_cast<std::uint32_t>(indexOf(c)))));
    }
    const auto& cls = *static_cast<const ScriptClass*>(static_cast<const Callable*>(named.pointer));
    const auto instance = makeObject<Instance>(*this, cls);
    instance->terminates = true;
    if (cls.initialize != nullptr) {
        callProcedure(*cls.initialize, instance.get(), {});
    }
    deliver(instance.value(), at(operandA(instruction)), storeOf(instruction));
}

void Vm::makeNamed(Instruction instruction) {
    deliver(m_library.create(*this, at(operandC(instruction)).text()), at(operandA(instruction)), storeOf(instruction));
}

void Vm::getRef(Instruction instruction) {
    const Value given = at(operandB(instruction)).deref();
    consume(operandB(instruction));
    if (!given.isString()) {
        raise(ErrorNumber::TypeMismatch);
    }
    const String name = toString(*this, given);
    const std::uint32_t slot = m_globals.find(m_symbols.intern(name.view()));
    const Value* named = slot == Globals::none ? nullptr : &m_globals[slot];
    if (named == nullptr || named->type != Type::Procedure ||
        static_cast<const Callable*>(named->pointer)->kind != Callable::Kind::Procedure) {
        raise(ErrorNumber::InvalidCall);
    }
    const auto& procedure = *static_cast<const Procedure*>(static_cast<const Callable*>(named->pointer));
    at(operandA(instruction)) = makeObject<ProcedureReference>(*this, procedure).value();
}

void Vm::executeText(Instruction instruction) {
    const Operand b = operandB(instruction);
    Value given = taken(b);
    consume(b);
    const auto kind = instruction >> 56;
    if (kind == 2 && !given.isString()) {
        at(operandA(instruction)) = std::move(given); // Eval gives back what is no text
        return;
    }
    given = withoutObject(*this, given);
    if (!given.isString()) {
        raise(ErrorNumber::TypeMismatch);
    }
    const String text = toString(*this, given);
    const bool local =
        kind != 1 && (top().procedure->dynamicScope || top().me != nullptr || kind == 2) &&
        (kind == 2 || top().procedure->form != ProcedureDecl::Kind::Main || top().procedure->parameters > 0);
    Value result;
    try {
        if (local) {
            result = runLocalText(text.view(), kind == 2);
        } else {
            runUnit(unitOf(text.view()));
        }
    } catch (const CompileError& failure) {
        raise(failure.number);
    }
    at(operandA(instruction)) = std::move(result);
}

// Execute and Eval where local names are in sight: they reach the text as references.
Value Vm::runLocalText(std::u16string_view text, bool expression) {
    Frame& frame = top();
    std::vector<Symbol> names;
    std::vector<Value*> variables;
    for (const auto& [symbol, index] : frame.procedure->locals) {
        names.push_back(symbol);
        variables.push_back(&frame.base[index].deref());
    }
    if (frame.extra != nullptr) {
        for (const auto& [symbol, value] : *frame.extra) {
            names.push_back(symbol);
            variables.push_back(value.get());
        }
    }
    const LocalScope scope{names, frame.procedure->owner};
    std::vector<Symbol> created;
    Unit* unit = expression ? m_compiler.compileExpression(text, scope) : m_compiler.compileLocal(text, scope, created);
    const struct Release {
        Vm& vm;
        Unit* unit;
        ~Release() { vm.release(unit); }
    } releaseAtEnd{*this, unit};
    bind(unit);
    for (const Symbol symbol : created) {
        if (frame.extra == nullptr) {
            frame.extra = new std::unordered_map<Symbol, std::unique_ptr<Value>>;
        }
        auto& entry = (*frame.extra)[symbol];
        entry = std::make_unique<Value>();
        variables.push_back(entry.get());
    }
    std::vector<Value> references(variables.size());
    for (std::size_t i = 0; i < variables.size(); ++i) {
        references[i].type = Type::Reference;
        references[i].target = variables[i];
    }
    return callProcedure(unit->main, frame.me, references);
}

// ---------------------------------------------------------------------------------------------------------------
// errors

void Vm::onError(bool resumeNext) {
    top().resumeNext = resumeNext;
    error = {};
}

void Vm::raiseCompiled(Instruction instruction) {
    const auto number = static_cast<ErrorNumber>(operandC(instruction));
    if ((instruction >> 56) == 1) {
        raise(number, at(operandB(instruction)).text());
    }
    raise(number);
}

void Vm::raiseUndefined(std::size_t slot) {
    raise(ErrorNumber::VariableUndefined, m_symbols.name(m_globals.symbol(static_cast<std::uint32_t>(slot))));
}

} // namespace vbs
