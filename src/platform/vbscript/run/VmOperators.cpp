// Operators, assignments and loops beyond what the dispatch loop does on the spot.
#include "platform/vbscript/compile/Instruction.h"
#include "platform/vbscript/run/Instance.h"
#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/run/VmCalls.h"
#include "platform/vbscript/run/VmFrames.h"
#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Operators.h"

#include <array>
#include <utility>

namespace vbs {

namespace {

Opcode opcode(Instruction i) noexcept {
    return generalForm(static_cast<Opcode>(i & 0xff));
}

// Whether a comparison holds for that order; an unordered pair is merely not equal.
bool holds(Opcode op, Ordering o) noexcept {
    switch (op) {
    case Opcode::Equal:
        return o == Ordering::Equal;
    case Opcode::NotEqual:
        return o != Ordering::Equal && o != Ordering::Null;
    case Opcode::Less:
        return o == Ordering::Less;
    case Opcode::Greater:
        return o == Ordering::Greater;
    case Opcode::LessEqual:
        return o == Ordering::Less || o == Ordering::Equal;
    default:
        return o == Ordering::Greater || o == Ordering::Equal;
    }
}

// A share of the value, so that it stays while code of the script runs.
Value shared(const Value& v) {
    return v;
}

// Grows a text in place; the value has the text again whatever happens.
void appendTo(Value& target, std::u16string_view tail) {
    String text = String::adopt(target.stringBlock());
    target.type = Type::Empty;
    const struct PutBack {
        Value& target;
        String& text;
        ~PutBack() { target = Value::ofString(std::move(text)); }
    } putBack{target, text};
    text.append(tail);
}

} // namespace

void Vm::consumeRow(Value* first, std::size_t count) noexcept {
    for (std::size_t i = 0; i < count; ++i) {
        first[i].clear();
    }
}

// The value of an operand: moved out of a temporary, copied from anything else.
Value Vm::taken(Operand o) {
    Value& v = at(o);
    return isTemporary(o) && (isPlain(v) || v.isCounted()) ? std::move(v) : contentOf(v);
}

// What an assignment stores: the value itself, for Let the default member of an object and a dynamic copy of an array
// that is fixed or that a loop has locked.
Value Vm::assignable(Value value, Store store) {
    if (store == Store::Let && value.isObject()) {
        return defaultValue(value);
    }
    if (store == Store::Set && !value.isObject()) {
        raise(ErrorNumber::ObjectRequired);
    }
    if (store == Store::Let && value.isArray() && (value.array()->fixed() || value.array()->locks > 0)) {
        return Value::ofArray(value.array()->clone());
    }
    return value;
}

void Vm::deliver(Value value, Value& to, Store store) {
    if (store == Store::Raw) {
        to = std::move(value);
    } else if (store != Store::Discard) {
        to = assignable(std::move(value), store);
    }
}

void Vm::letInto(Value& target, Operand from) {
    deliver(taken(from), target, Store::Let);
}

void Vm::setInto(Value& target, Operand from) {
    deliver(taken(from), target, Store::Set);
}

Literals Vm::literalsOf(Operand a, Operand b) noexcept {
    const std::vector<bool>& computed = top().procedure->computed;
    const auto written = [&computed](Operand o) {
        return placeOf(o) == Place::Constant && (indexOf(o) >= computed.size() || !computed[indexOf(o)]);
    };
    return static_cast<Literals>((written(a) ? 1 : 0) | (written(b) ? 2 : 0));
}

void Vm::binary(Instruction instruction) {
    const Operand b = operandB(instruction);
    const Operand c = operandC(instruction);
    const Value& x = at(b).deref();
    const Value& y = at(c).deref();
    Value result;
    if (x.isObject() || y.isObject()) { // default members may change either variable
        result = operate(instruction, shared(x), shared(y));
    } else {
        result = operate(instruction, x, y);
    }
    consume(b);
    consume(c);
    at(operandA(instruction)) = std::move(result);
}

Value Vm::operate(Instruction instruction, const Value& x, const Value& y) {
    const Opcode op = opcode(instruction);
    switch (op) {
    case Opcode::Add:
        return add(*this, x, y);
    case Opcode::Subtract:
        return subtract(*this, x, y);
    case Opcode::Multiply:
        return multiply(*this, x, y);
    case Opcode::Divide:
        return divide(*this, x, y);
    case Opcode::IntegerDivide:
        return integerDivide(*this, x, y);
    case Opcode::Modulo:
        return modulo(*this, x, y);
    case Opcode::Power:
        return power(*this, x, y);
    case Opcode::And:
        return logicalAnd(*this, x, y);
    case Opcode::Or:
        return logicalOr(*this, x, y);
    case Opcode::Xor:
        return logicalXor(*this, x, y);
    case Opcode::Eqv:
        return logicalEqv(*this, x, y);
    case Opcode::Imp:
        return logicalImp(*this, x, y);
    case Opcode::Is:
        return Value::ofBoolean(isSameObject(x, y));
    default: {
        const Ordering order = compare(*this, x, y, literalsOf(operandB(instruction), operandC(instruction)));
        return order == Ordering::Null ? Value::null() : Value::ofBoolean(holds(op, order));
    }
    }
}

void Vm::unary(Instruction instruction) {
    const Operand b = operandB(instruction);
    const Value x = at(b).deref();
    Value result = opcode(instruction) == Opcode::Negate ? negate(*this, x) : logicalNot(*this, x);
    consume(b);
    at(operandA(instruction)) = std::move(result);
}

// Whether the operand counts as true; Null does not.
bool Vm::condition(Operand o) {
    const Value v = withoutObject(*this, at(o));
    consume(o);
    return !v.isNull() && toBoolean(*this, v);
}

// Whether `a Is b` or `a And b` counts as true.
bool Vm::conditionOf(Opcode op, Operand a, Operand b) {
    const Value x = at(a).deref(); // held: default members may change either variable
    const Value y = at(b).deref();
    const Value result = op == Opcode::Is ? Value::ofBoolean(isSameObject(x, y)) : logicalAnd(*this, x, y);
    consume(a);
    consume(b);
    return !result.isNull() && toBoolean(*this, result);
}

bool Vm::comparison(Opcode op, Operand a, Operand b) {
    const Value& x = at(a).deref();
    const Value& y = at(b).deref();
    bool result = false;
    if (x.isString() && y.isString()) {
        const bool equality = op == Opcode::Equal || op == Opcode::NotEqual;
        if (equality) {
            result = (x.counted == y.counted || sameUnits(x.text(), y.text())) == (op == Opcode::Equal);
        } else {
            const int order = x.text().compare(y.text());
            result = holds(op, order < 0 ? Ordering::Less : order > 0 ? Ordering::Greater : Ordering::Equal);
        }
    } else {
        result = holds(op, compare(*this, shared(x), shared(y), literalsOf(a, b)));
    }
    consume(a);
    consume(b);
    return result;
}

void Vm::concatenateInto(Instruction instruction) {
    const Operand a = operandA(instruction);
    const Operand b = operandB(instruction);
    const Operand c = operandC(instruction);
    Value& x = at(b).deref();
    const Value& y = at(c).deref();
    if (a == b && x.isString() && x.counted != nullptr && !x.hasOddByte() && !y.hasOddByte()) {
        if (y.isString()) {
            appendTo(x, y.text());
        } else {
            const Value before = y.isObject() ? shared(x) : Value(); // its default member may change the variable
            const Value tail = withoutObject(*this, y);
            const String text = tail.isNull() ? String() : toString(*this, tail);
            if (y.isObject()) {
                x = concatenate(*this, before, Value::ofString(text));
            } else {
                appendTo(x, text.view());
            }
        }
        consume(c);
        return;
    }
    Value result = concatenate(*this, x, y);
    consume(b);
    consume(c);
    at(a) = std::move(result);
}

// What & makes of a value: a text, or Null.
void Vm::settleTexts(Value* parts, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        if (!parts[i].isString()) {
            const Value plain = withoutObject(*this, parts[i]);
            parts[i] = plain.isNull() ? plain : Value::ofString(toString(*this, plain));
        }
    }
}

// A row of texts made one; with `append` it goes onto the variable that takes the result.
void Vm::join(Instruction instruction, bool append) {
    Value* parts = &at(operandB(instruction));
    const std::size_t count = countOf(instruction);
    bool allNull = true;
    bool odd = false;
    std::size_t length = 0;
    for (std::size_t i = 0; i < count; ++i) {
        odd = odd || parts[i].hasOddByte();
        if (!parts[i].isString()) {
            const Value plain = withoutObject(*this, parts[i]);
            allNull = allNull && plain.isNull();
            parts[i] = Value::ofString(plain.isNull() ? String() : toString(*this, plain));
        } else {
            allNull = false;
        }
        length += parts[i].text().size();
    }
    Value& target = at(operandA(instruction));
    if (odd || (append && target.hasOddByte())) {
        Value bytes = append ? target : Value::ofString(String());
        for (std::size_t i = 0; i < count; ++i) {
            bytes = concatenate(*this, bytes, parts[i]);
        }
        consumeRow(parts, count);
        target = std::move(bytes);
        return;
    }
    if (append) {
        const Value plain = withoutObject(*this, target);
        if (!(plain.isNull() && allNull)) {
            if (!target.isString()) {
                target = Value::ofString(plain.isNull() ? String() : toString(*this, plain));
            }
        }
    }
    Value result;
    if (append && target.isString()) {
        for (std::size_t i = 0; i < count; ++i) {
            // While another name shares the text, `plain` is gone by now and only true shares count.
            appendTo(target, parts[i].text());
        }
        consumeRow(parts, count);
        return;
    }
    if (allNull) {
        result = Value::null();
    } else {
        String text = String::uninitialized(length);
        char16_t* out = length > 0 ? text.mutableData() : nullptr;
        for (std::size_t i = 0; i < count; ++i) {
            const std::u16string_view part = parts[i].text();
            std::char_traits<char16_t>::copy(out, part.data(), part.size());
            out += part.size();
        }
        result = Value::ofString(std::move(text));
    }
    consumeRow(parts, count);
    target = std::move(result);
}

// Readies a For loop: the bounds as numbers, then the variable, and whether the body runs at all. After a failure Next
// finds no step and so a loop that was never set up.
bool Vm::forPrepare(Value& variable, Value* limits) {
    const auto numeric = [this](Value& v) {
        v = toNumber(*this, v);
        if (v.isNull()) {
            raise(ErrorNumber::InvalidNull);
        }
    };
    try {
        numeric(limits[2]);
        numeric(limits[0]);
        numeric(limits[1]);
    } catch (const ScriptError&) {
        limits[1].clear();
        throw;
    }
    variable = limits[2];
    const bool upward = compare(*this, limits[1], Value::ofInteger(0)) != Ordering::Less;
    const Ordering order = compare(*this, variable, limits[0]);
    return order == Ordering::Equal || order == (upward ? Ordering::Less : Ordering::Greater);
}

bool Vm::forStep(Value& variable, Value* limits) {
    if (limits[1].isEmpty()) {
        raise(ErrorNumber::ForNotInitialized);
    }
    variable = add(*this, variable, limits[1]);
    const bool upward = compare(*this, limits[1], Value::ofInteger(0)) != Ordering::Less;
    const Ordering order = compare(*this, variable, limits[0]);
    return order == Ordering::Equal || order == (upward ? Ordering::Less : Ordering::Greater);
}

void Vm::eachPrepare(Instruction instruction) {
    if (Value& walked = at(operandB(instruction)).deref(); walked.isArray()) {
        writableArray(walked); // the lock is for this array alone, not for those that share its elements
    }
    const Value collection = taken(operandB(instruction));
    Value iterator;
    if (collection.isArray()) {
        iterator = makeObject<Iterator>(collection).value();
    } else if (collection.isObject()) {
        if (collection.object() == nullptr) {
            raise(ErrorNumber::ObjectNotSet);
        }
        iterator = makeObject<Iterator>(collection.object()->enumerate(*this)).value();
    } else {
        raise(ErrorNumber::NotACollection);
    }
    at(operandA(instruction)) = std::move(iterator);
}

bool Vm::eachNext(Value& variable, Value& iterator) {
    Value element;
    if (!iterator.isObject() || !static_cast<Iterator*>(iterator.object())->next(*this, element)) {
        return false;
    }
    variable = std::move(element);
    return true;
}

} // namespace vbs
