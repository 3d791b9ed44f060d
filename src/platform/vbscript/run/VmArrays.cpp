// Arrays: reading and writing elements.
#include "platform/vbscript/compile/Instruction.h"
#include "platform/vbscript/run/Instance.h"
#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/run/VmCalls.h"
#include "platform/vbscript/run/VmShort.h"
#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Convert.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace vbs {

namespace {

// The values of a row, as the functions below want them.
struct Row {
    Row(Value* first, std::size_t n) : count(n) {
        for (std::size_t i = 0; i < n; ++i) {
            items[i] = first + i;
        }
    }
    std::span<Value* const> span() const { return {items.data(), count}; }
    std::array<Value*, maxIndexes> items;
    std::size_t count;
};

// A share of the value, so that it stays while code of the script runs.
Value shared(const Value& v) {
    return v;
}

// Where the object in a variable keeps the item of an index, or null if its default member has to be asked.
Value* itemPlace(const Value& base, const Value& index) noexcept {
    const Value& variable = base.deref();
    return variable.isObject() && variable.object() != nullptr ? variable.object()->itemPlace(index.deref()) : nullptr;
}

// An item read or written in its place; false, and nothing has changed, if that is not to be had.
bool readItem(Value& to, const Value& base, const Value& index, Store store) noexcept {
    const Value* item = itemPlace(base, index);
    if (item == nullptr || !(isPlain(*item) || goesAsItIs(item->type, store)) || !dropsQuietly(to)) {
        return false;
    }
    to = Value(*item);
    return true;
}

bool writeItem(const Value& base, const Value& index, const Value& from, Store store) noexcept {
    const Value& value = from.deref();
    if (!(isPlain(value) && store == Store::Let) && !goesAsItIs(value.type, store)) {
        return false;
    }
    Value* item = itemPlace(base, index);
    if (item == nullptr || !dropsQuietly(*item)) {
        return false;
    }
    *item = Value(value);
    return true;
}

std::vector<Value> copied(std::span<Value* const> indexes) {
    std::vector<Value> values;
    values.reserve(indexes.size() + 1);
    for (const Value* index : indexes) {
        values.push_back(contentOf(*index));
    }
    return values;
}

} // namespace

// The indexes as numbers; default members may run.
void Vm::indexNumbers(std::span<Value* const> indexes, std::int32_t* numbers) {
    const auto isObject = [](const Value* index) { return index->deref().isObject(); };
    if (indexes.size() > 1 && std::any_of(indexes.begin(), indexes.end(), isObject)) {
        for (const Value& index : copied(indexes)) { // as they are now: a default member may change the next one
            *numbers++ = toLong(*this, index);
        }
        return;
    }
    for (const Value* index : indexes) {
        *numbers++ = toLong(*this, *index);
    }
}

// base(indexes) into `to`; of an object the default member with arguments.
void Vm::getIndex(Value& to, const Value& base, std::span<Value* const> indexes, Store store) {
    const Value& variable = base.deref();
    if (variable.isArray()) {
        const Value keep = shared(variable); // a default member of an index may change the variable
        std::array<std::int32_t, maxIndexes> numbers{};
        indexNumbers(indexes, numbers.data());
        deliver(keep.array()->elements()[keep.array()->offset({numbers.data(), indexes.size()})], to, store);
        return;
    }
    if (!variable.isObject()) {
        raise(ErrorNumber::TypeMismatch);
    }
    if (variable.object() == nullptr) {
        raise(ErrorNumber::ObjectNotSet);
    }
    const Value keep = Value::ofObject(variable.object());
    if (indexes.size() == 1 && keep.object()->role == Object::Role::Native) {
        Value argument = contentOf(*indexes[0]);
        deliver(keep.object()->invoke(*this, Object::defaultMember, Access::Get, {&argument, 1}), to, store);
        return;
    }
    std::vector<Value> arguments = copied(indexes);
    deliver(call(keep, arguments), to, store);
}

void Vm::setIndex(Value& base, std::span<Value* const> indexes, Value value, Store store) {
    value = assignable(std::move(value), store);
    Value& variable = base.deref();
    if (variable.isArray()) {
        std::array<std::int32_t, maxIndexes> numbers{};
        indexNumbers(indexes, numbers.data()); // before the array is looked at: the variable may change by it
        if (!variable.isArray()) {
            raise(ErrorNumber::TypeMismatch);
        }
        const std::size_t offset = variable.array()->offset({numbers.data(), indexes.size()});
        writableArray(variable).elements()[offset] = std::move(value);
        return;
    }
    if (!variable.isObject()) {
        raise(ErrorNumber::TypeMismatch);
    }
    if (variable.object() == nullptr) {
        raise(ErrorNumber::ObjectNotSet);
    }
    const Value keep = Value::ofObject(variable.object());
    const Access access = store == Store::Set ? Access::Set : Access::Let;
    if (indexes.size() == 1 && keep.object()->role == Object::Role::Native) {
        std::array<Value, 2> arguments{contentOf(*indexes[0]), std::move(value)};
        keep.object()->invoke(*this, Object::defaultMember, access, arguments);
        return;
    }
    std::vector<Value> arguments = copied(indexes);
    arguments.push_back(std::move(value));
    const int member = keep.object()->role == Object::Role::Instance
                           ? static_cast<Instance*>(keep.object())->cls().defaultMember
                           : Object::defaultMember;
    keep.object()->invoke(*this, member, access, arguments);
}

void Vm::index(Instruction instruction) {
    const Operand c = operandC(instruction);
    const Store store = storeOf(instruction);
    const Value& base = at(operandB(instruction));
    if (readItem(at(operandA(instruction)), base, at(c), store)) {
        if (operandA(instruction) != c) {
            consume(c);
        }
        return;
    }
    Value* const places[] = {&at(c)};
    Value result;
    getIndex(result, base, places, store);
    consume(c);
    at(operandA(instruction)) = std::move(result);
}

void Vm::index2(Instruction instruction, Operand second) {
    const Operand c = operandC(instruction);
    Value* const places[] = {&at(c), &at(second)};
    Value result;
    getIndex(result, at(operandB(instruction)), places, storeOf(instruction));
    consume(c);
    consume(second);
    at(operandA(instruction)) = std::move(result);
}

void Vm::indexN(Instruction instruction) {
    const Operand b = operandB(instruction);
    const Row row(&at(operandC(instruction)), countOf(instruction));
    Value result;
    getIndex(result, at(b), row.span(), storeOf(instruction));
    consume(b);
    consumeRow(&at(operandC(instruction)), row.count);
    if (storeOf(instruction) != Store::Discard) {
        at(operandA(instruction)) = std::move(result);
    }
}

void Vm::storeIndex(Instruction instruction) {
    const Operand a = operandA(instruction);
    const Operand b = operandB(instruction);
    const Operand c = operandC(instruction);
    const Store store = storeOf(instruction);
    if (writeItem(at(a), at(b), at(c), store)) {
        consume(c);
    } else {
        Value* const places[] = {&at(b)};
        setIndex(at(a), places, taken(c), store);
    }
    consume(b);
    consume(a);
}

void Vm::storeIndex2(Instruction instruction, Operand value) {
    const Operand a = operandA(instruction);
    const Operand b = operandB(instruction);
    const Operand c = operandC(instruction);
    Value* const places[] = {&at(b), &at(c)};
    setIndex(at(a), places, taken(value), storeOf(instruction));
    consume(b);
    consume(c);
    consume(a);
}

namespace {

// Whether what went by reference is no longer what it was, which stands behind it and is given up.
bool wasChanged(Value* holder) noexcept {
    const Value before = std::move(holder[1]);
    return before.type != holder->type || before.n != holder->n;
}

} // namespace

// With Store::Discard: the way home of an element that went by reference; only arrays take it back.
void Vm::storeIndexN(Instruction instruction) {
    const Operand a = operandA(instruction);
    const Row row(&at(operandB(instruction)), countOf(instruction));
    const bool wayHome = storeOf(instruction) == Store::Discard;
    const bool changed = !wayHome || wasChanged(&at(operandC(instruction)));
    Value value = taken(operandC(instruction));
    if (!wayHome) {
        setIndex(at(a), row.span(), std::move(value), storeOf(instruction));
    } else if (changed && at(a).deref().isArray()) {
        setIndex(at(a), row.span(), std::move(value), Store::Raw);
    }
    consumeRow(&at(operandB(instruction)), row.count);
    consume(a);
}

// base(...)(...) ... = C. The road to the element is walked when everything else is known, and no code of the script
// runs on it.
void Vm::storeDeep(Instruction instruction, std::size_t shape) {
    const std::vector<std::int32_t>& levels = top().procedure->shapes[shape];
    Value* indexes = &at(operandB(instruction));
    const bool changed = storeOf(instruction) != Store::Discard || wasChanged(&at(operandC(instruction)));
    Value value = taken(operandC(instruction));
    if (changed) {
        setDeep(at(operandA(instruction)).deref(), indexes, levels, std::move(value), storeOf(instruction));
    }
    consumeRow(indexes, static_cast<std::size_t>(std::accumulate(levels.begin(), levels.end(), 0)));
    consume(operandA(instruction));
}

namespace {

bool anyObject(const Value* first, std::int32_t count) noexcept {
    return std::any_of(first, first + count, [](const Value& v) { return v.isObject(); });
}

// The element that plain indexes name, for writing.
Value& elementOf(Context& context, Value& array, const Value* indexes, std::int32_t count) {
    std::array<std::int32_t, maxIndexes> numbers{};
    std::transform(indexes, indexes + count, numbers.begin(), [&](const Value& v) { return toLong(context, v); });
    const std::size_t offset = array.array()->offset({numbers.data(), static_cast<std::size_t>(count)});
    return writableArray(array).elements()[offset];
}

} // namespace

// With Store::Discard: the way home of an element that went by reference; only arrays take it back.
void Vm::setDeep(Value& base, Value* indexes, std::span<const std::int32_t> levels, Value value, Store store) {
    value = assignable(std::move(value), store);
    while (true) {
        Value* container = &base;
        Value* row = indexes;
        std::size_t level = 0;
        const auto leadsOn = [&] { return container->isArray() && !anyObject(row, levels[level]); };
        for (; level + 1 < levels.size() && leadsOn(); row += levels[level++]) {
            container = &elementOf(*this, *container, row, levels[level]);
        }
        if (store == Store::Discard && !container->isArray()) {
            return;
        }
        if (level > 0 && container->isObject() && container->object() == nullptr) {
            raise(ErrorNumber::TypeMismatch);
        }
        const auto count = static_cast<std::size_t>(levels[level]);
        if (container->isArray() && anyObject(row, levels[level])) {
            for (Value* index = row; index != row + count; ++index) {
                *index = withoutObject(*this, *index);
            }
            continue; // from the start: the default members may have changed anything
        }
        if (level + 1 == levels.size()) {
            setIndex(*container, Row(row, count).span(), std::move(value), store);
            return;
        }
        Value element; // what an object hands out is written into as it is
        getIndex(element, *container, Row(row, count).span(), Store::Raw);
        setDeep(element, row + count, levels.subspan(level + 1), std::move(value), store);
        return;
    }
}

} // namespace vbs
