// Arrays: their bounds. Dim, ReDim and Erase.
#include "platform/vbscript/compile/Instruction.h"
#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/run/VmCalls.h"
#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Work.h"

#include <algorithm>
#include <array>
#include <limits>

namespace vbs {

namespace {

void requireUnlocked(const Value& variable) {
    if (variable.isArray() && (variable.array()->locks > 0 || variable.array()->fixed())) {
        raise(ErrorNumber::ArrayLocked);
    }
}

// A parameter that is no reference has an array of its own, which may grow though that of the caller is fixed.
void freeOwnArray(const Procedure& procedure, Operand o, Value& v) {
    const bool parameter = placeOf(o) == Place::Frame && indexOf(o) < procedure.parameters;
    if (parameter && v.isArray() && v.array()->fixed() && v.array()->locks == 0) {
        v = Value::ofArray(v.array()->clone());
    }
}

} // namespace

void Vm::redim(Instruction instruction, bool preserve) {
    freeOwnArray(*top().procedure, operandA(instruction), at(operandA(instruction)));
    Value& variable = at(operandA(instruction)).deref();
    Value* first = &at(operandB(instruction));
    const std::size_t count = countOf(instruction);
    if (!preserve) {
        requireUnlocked(variable); // before the bounds are looked at
    }
    std::array<std::int32_t, maxIndexes> sizes{};
    for (std::size_t i = 0; i < count; ++i) {
        const std::int32_t bound = toLong(*this, first[i]);
        if (bound < -1) {
            raise(ErrorNumber::OutOfRange);
        }
        if (bound == std::numeric_limits<std::int32_t>::max()) {
            raise(ErrorNumber::OutOfMemory);
        }
        sizes[i] = bound + 1;
    }
    consumeRow(first, count);
    requireUnlocked(variable);
    const std::span<const std::int32_t> bounds(sizes.data(), count);
    if (!preserve || !variable.isArray() || variable.array()->dimensions() == 0) {
        variable = Value::ofArray(ArrayBlock::create(bounds));
        return;
    }
    ArrayBlock& array = writableArray(variable);
    if (static_cast<std::size_t>(array.dimensions()) != count) {
        raise(ErrorNumber::OutOfRange);
    }
    for (std::size_t i = 0; i + 1 < count; ++i) {
        if (array.size(static_cast<int>(i)) != sizes[i]) {
            raise(ErrorNumber::OutOfRange);
        }
    }
    array.resizeLast(sizes[count - 1]);
}

// Erase: a fixed array gets Empty elements, a dynamic one loses its dimensions.
void Vm::erase(Operand o) {
    freeOwnArray(*top().procedure, o, at(o));
    Value& variable = at(o).deref();
    if (!variable.isArray()) {
        raise(ErrorNumber::TypeMismatch);
    }
    const bool takenOut = isTemporary(o) && &variable == &at(o); // of a place that a fixed array does not return to
    if (variable.array()->locks > 0 || (takenOut && variable.array()->fixed())) {
        raise(ErrorNumber::ArrayLocked);
    }
    if (variable.array()->fixed()) {
        ArrayBlock& array = writableArray(variable);
        chargeWalk(array.count() * sizeof(Value));
        std::for_each(array.elements(), array.elements() + array.count(), [](Value& element) { element.clear(); });
    } else {
        variable = Value::ofArray(ArrayBlock::create(std::span<const std::int32_t>{}));
    }
}

// Dim with bounds, or with empty ones. Executed again, in a loop or by the next pass, it changes nothing.
void Vm::makeArray(Instruction instruction) {
    Value& variable = at(operandA(instruction)).deref();
    const std::vector<std::int32_t>& shape = top().procedure->shapes[operandC(instruction)];
    if (variable.isArray() && variable.array()->fixed() == !shape.empty()) {
        const ArrayBlock& array = *variable.array();
        bool same = shape.empty() || static_cast<std::size_t>(array.dimensions()) == shape.size();
        for (std::size_t i = 0; same && i < shape.size(); ++i) {
            same = array.size(static_cast<int>(i)) == shape[i];
        }
        if (same) {
            return;
        }
    }
    variable = Value::ofArray(ArrayBlock::create(shape, !shape.empty()));
}

} // namespace vbs
