// The dispatch loop. Each instruction handles its common cases here, on the spot, and leaves the rest to a member
// function of Vm (VmOperators.cpp, VmArrays.cpp, VmCalls.cpp). Those may raise, so the frame's pc is stored before.

// One indirect jump an instruction, each with a prediction of its own: these two passes would merge them.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC optimize("no-gcse", "no-crossjumping", "no-tree-pre")
#endif

#include "platform/vbscript/run/Instance.h"
#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/run/VmShort.h"
#include "platform/vbscript/run/VmShortArrays.h"
#include "platform/vbscript/value/Library.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace vbs {

// The table of labels stays in a register: it is no constant that the compiler could make anew at every jump.
#if defined(__GNUC__)
#define KEEP(variable) asm("" : "+r"(variable))
#else
#define KEEP(variable) static_cast<void>(variable)
#endif

namespace {

// The value that an operand names. The index stands two bits up in an operand, so its distance in bytes is four times
// that; what the low two bits add by it is taken off the start of each place beforehand. A start is a number, since it
// may lie before its place, and a place that the frame does not have starts nowhere.
inline Value& valueAt(const std::uintptr_t* places, unsigned o) noexcept {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a pointer before its array would be undefined, a number is not
    return *reinterpret_cast<Value*>(places[o & 3] + std::size_t{o} * (sizeof(Value) / 4));
}
inline std::uintptr_t startOf(Place place, const Value* first) noexcept {
    return reinterpret_cast<std::uintptr_t>(first) - static_cast<std::size_t>(place) * (sizeof(Value) / 4);
}

// The same for an operand that is known to be a register of the frame.
inline Value& registerAt(Value* base, unsigned o) noexcept {
    return *reinterpret_cast<Value*>(reinterpret_cast<char*>(base) + std::size_t{o} * (sizeof(Value) / 4));
}

// The part of an instruction that starts at a bit, which is one of a byte. Where the lowest byte comes first in memory
// one load gets it: shorter than to hold the instruction and to cut the part out.
template <class Part>
inline Part partAt(const Instruction* instruction, unsigned bit) noexcept {
    if constexpr (std::endian::native == std::endian::little) {
        Part part;
        std::memcpy(&part, reinterpret_cast<const char*>(instruction) + bit / 8, sizeof part);
        return part;
    } else {
        return static_cast<Part>(*instruction >> bit);
    }
}

} // namespace

// NOLINTBEGIN(bugprone-macro-parentheses): the macros stand for statements and for names
// NOLINTNEXTLINE(readability-function-size): a dispatch loop is one table
void Vm::dispatch(std::size_t floor) {
    static const void* const labels[] = {
#define VBS_LABEL(name) &&label##name,
#define VBS_LOCAL(name) &&label##name##Local,
#define VBS_SMALL(name) &&label##name##Small,
#define VBS_SELF(name) &&label##name##Self,
        VBS_OPCODES(VBS_LABEL) VBS_LOCAL_FORMS(VBS_LOCAL) VBS_SMALL_FORMS(VBS_SMALL) VBS_SELF_FORMS(VBS_SELF)
#undef VBS_LABEL
#undef VBS_LOCAL
#undef VBS_SMALL
#undef VBS_SELF
    };

    Frame* frame = &top();
    const Instruction* pc = frame->pc - 1;
    const void* const* table = labels;
    KEEP(table);
    const Builtin* const intrinsics = library_.builtins.data();
    Value* base = frame->base;
    std::uintptr_t places[4] = {startOf(Place::Frame, base), startOf(Place::Global, globals_.values()),
                                startOf(Place::Constant, frame->procedure->constants.data()),
                                startOf(Place::Field, frame->fields)};

// No object with a destructor may be alive here: a computed jump does not run it.
#define NEXT goto* table[partAt<std::uint8_t>(++pc, 0)]
// The instruction at work and its parts.
#define I *pc
#define A partAt<Operand>(pc, 8)
#define B partAt<Operand>(pc, 24)
#define C partAt<Operand>(pc, 40)
#define X                                                                                                              \
    unsigned {                                                                                                         \
        partAt<std::uint8_t>(pc, 56)                                                                                   \
    }
#define J                                                                                                              \
    std::int64_t {                                                                                                     \
        partAt<std::int32_t>(pc, 32) >> 8                                                                              \
    }
#define R(o) valueAt(places, o)
#define L(o) registerAt(base, o)
// The number of a small form, and the jump of one that jumps.
#define SMALL partAt<std::int8_t>(pc, 56)
#define SMALL_BESIDE_JUMP partAt<std::int8_t>(pc, 40)
#define SHORT_JUMP                                                                                                     \
    std::int64_t {                                                                                                     \
        partAt<std::int16_t>(pc, 48)                                                                                   \
    }
#define TEMPORARY(o) (((o)&3) == 0 && ((o) >> 2) >= frame->procedure->firstTemporary)
// An instruction is done with a text or with an object that has other owners: it goes from a temporary.
#define USED_UP(o)                                                                                                     \
    if (TEMPORARY(o)) {                                                                                                \
        R(o).clear();                                                                                                  \
    }
#define SAVE frame->pc = pc + 1
#define ENTER                                                                                                          \
    pc = frame->pc - 1;                                                                                                \
    base = frame->base;                                                                                                \
    places[0] = startOf(Place::Frame, base);                                                                           \
    places[2] = startOf(Place::Constant, frame->procedure->constants.data());                                          \
    places[3] = startOf(Place::Field, frame->fields)
#define LOAD                                                                                                           \
    BURY;                                                                                                              \
    frame = &frames_[depth_ - 1];                                                                                      \
    ENTER
// After everything that may have dropped an object: its Class_Terminate runs before the next instruction.
#define BURY                                                                                                           \
    if (dead_ != nullptr) [[unlikely]] {                                                                               \
        terminateDead();                                                                                               \
    }
#define SLOW(statement)                                                                                                \
    SAVE;                                                                                                              \
    statement;                                                                                                         \
    BURY;                                                                                                              \
    NEXT
#define GO(by)                                                                                                         \
    {                                                                                                                  \
        const std::int64_t jump = by;                                                                                  \
        pc += jump;                                                                                                    \
        if (jump < 0 && budget_-- <= 0) [[unlikely]] {                                                                 \
            SAVE;                                                                                                      \
            pollSlow();                                                                                                \
        }                                                                                                              \
    }
#define TAKE_JUMP GO(J)
// The same where the jump is sure to lead back.
#define GO_BACK(by)                                                                                                    \
    pc += by;                                                                                                          \
    if (budget_-- <= 0) [[unlikely]] {                                                                                 \
        SAVE;                                                                                                          \
        pollSlow();                                                                                                    \
    }

    NEXT;

#define MOVE(label, a, b, mayCarry, slow)                                                                              \
    label : {                                                                                                          \
        Value& from = b;                                                                                               \
        if (isPlain(from)) [[likely]] {                                                                                \
            put(a, from.type, from.n);                                                                                 \
            NEXT;                                                                                                      \
        }                                                                                                              \
        if (mayCarry) [[likely]] {                                                                                     \
            carry(a, from, TEMPORARY(B));                                                                              \
            BURY;                                                                                                      \
            NEXT;                                                                                                      \
        }                                                                                                              \
        if (isReference(from) && isPlain(*from.target)) {                                                              \
            put(a, from.target->type, from.target->n);                                                                 \
            NEXT;                                                                                                      \
        }                                                                                                              \
        SLOW(slow);                                                                                                    \
    }
    MOVE(labelMove, R(A), R(B), from.isString() || from.isObject(), R(A) = taken(B))
    MOVE(labelMoveLocal, L(A), L(B), from.isString() || from.isObject(), R(A) = taken(B))
    MOVE(labelLet, R(A), R(B), from.isString(), letInto(R(A), B))
    MOVE(labelLetLocal, L(A), L(B), from.isString(), letInto(R(A), B))

labelCopy:
    SLOW(R(A) = contentOf(R(B)));

labelSetObject:
    if (R(B).type == Type::Object) [[likely]] {
        carry(R(A), R(B), TEMPORARY(B));
        BURY;
        NEXT;
    }
    SLOW(setInto(R(A), B));

    MOVE(labelStoreLet, R(A).deref(), R(B), from.isString(), letInto(R(A).deref(), B))

labelStoreSet:
    SLOW(setInto(R(A).deref(), B));

labelReference : {
    Value& b = R(B);
    Value& target = b.deref();
    if (target.type == Type::Undefined) {
        target.type = Type::Empty;
    }
    Value& a = R(A);
    a.clear();
    a.type = Type::Reference;
    a.target = &target;
    BURY;
    NEXT;
}

labelLoadConstant:
    SLOW(R(A) = frame->procedure->constants[static_cast<std::size_t>(J)]);

labelClear:
    SLOW(R(A).clear());

// An operator on two values: its short road, then the same with references looked through, then the long road.
#define BINARY(label, road, a, b, c)                                                                                   \
    label : {                                                                                                          \
        const Value& x = b;                                                                                            \
        const Value& y = c;                                                                                            \
        if (road(a, x, y)) [[likely]] {                                                                                \
            NEXT;                                                                                                      \
        }                                                                                                              \
        if ((isReference(x) || isReference(y)) && lookThrough<road>(a, x, y)) {                                        \
            NEXT;                                                                                                      \
        }                                                                                                              \
        SLOW(binary(I));                                                                                               \
    }
#define BINARY_FORMS(name, road)                                                                                       \
    BINARY(label##name, road, R(A), R(B), R(C))                                                                        \
    BINARY(label##name##Local, road, L(A), L(B), L(C))
// The same with a small number for the last operand.
#define BINARY_SMALL(name, road)                                                                                       \
    label##name##Small : {                                                                                             \
        if (road(L(A), L(B), SMALL)) [[likely]] {                                                                      \
            NEXT;                                                                                                      \
        }                                                                                                              \
        if (isReference(L(B)) && lookThrough<road>(L(A), L(B), SMALL)) {                                               \
            NEXT;                                                                                                      \
        }                                                                                                              \
        SLOW(binary(I));                                                                                               \
    }

// The same where the result goes back into the first operand.
#define BINARY_SELF(name, road)                                                                                        \
    label##name##Self : {                                                                                              \
        if (road(L(A), SMALL)) [[likely]] {                                                                            \
            NEXT;                                                                                                      \
        }                                                                                                              \
        if (isReference(L(A)) && lookThrough<arithmeticSmall<Opcode::name>>(L(A), L(A), SMALL)) {                      \
            NEXT;                                                                                                      \
        }                                                                                                              \
        SLOW(binary(I));                                                                                               \
    }

    BINARY_FORMS(Add, arithmetic<Opcode::Add>)
    BINARY_FORMS(Subtract, arithmetic<Opcode::Subtract>)
    BINARY_FORMS(Multiply, arithmetic<Opcode::Multiply>)
    BINARY_FORMS(Divide, quotient)
    BINARY_FORMS(IntegerDivide, wholeQuotient)
    BINARY_FORMS(Modulo, rest)
    BINARY_FORMS(And, logic<Opcode::And>)
    BINARY_FORMS(Or, logic<Opcode::Or>)
    BINARY_FORMS(Xor, logic<Opcode::Xor>)
    BINARY_SMALL(Add, arithmeticSmall<Opcode::Add>)
    BINARY_SMALL(Subtract, arithmeticSmall<Opcode::Subtract>)
    BINARY_SMALL(Multiply, arithmeticSmall<Opcode::Multiply>)
    BINARY_SMALL(IntegerDivide, wholeQuotientSmall)
    BINARY_SMALL(Modulo, restSmall)
    BINARY_SMALL(And, andSmall)
    BINARY_SELF(Add, arithmeticSelf<Opcode::Add>)
    BINARY_SELF(Subtract, arithmeticSelf<Opcode::Subtract>)

labelConcatenate:
    SLOW(concatenateInto(I));

labelPower:
labelEqv:
labelImp:
    SLOW(binary(I));

labelIs : {
    const Value& b = R(B).deref();
    const Value& c = R(C).deref();
    if (b.type == Type::Object && c.type == Type::Object) [[likely]] {
        const bool same = b.counted == c.counted;
        USED_UP(B)
        USED_UP(C)
        put(R(A), Type::Boolean, same ? -1 : 0);
        BURY;
        NEXT;
    }
    SLOW(binary(I));
}

#define COMPARE(label, op, a, b, c)                                                                                    \
    label : {                                                                                                          \
        const Value& x = b;                                                                                            \
        const Value& y = c;                                                                                            \
        if (relation<op>(a, x, y)) [[likely]] {                                                                        \
            NEXT;                                                                                                      \
        }                                                                                                              \
        if (bothTexts(x, y)) {                                                                                         \
            const bool holds = textsHold<op>(x, y);                                                                    \
            USED_UP(B)                                                                                                 \
            USED_UP(C)                                                                                                 \
            putBoolean(a, holds);                                                                                      \
            NEXT;                                                                                                      \
        }                                                                                                              \
        if ((isReference(x) || isReference(y)) && lookThrough<relation<op>>(a, x, y)) {                                \
            NEXT;                                                                                                      \
        }                                                                                                              \
        SLOW(binary(I));                                                                                               \
    }
#define COMPARE_FORMS(name)                                                                                            \
    COMPARE(label##name, Opcode::name, R(A), R(B), R(C))                                                               \
    COMPARE(label##name##Local, Opcode::name, L(A), L(B), L(C))
    COMPARE_FORMS(Equal)
    COMPARE_FORMS(NotEqual)
    COMPARE_FORMS(Less)
    COMPARE_FORMS(Greater)
    COMPARE_FORMS(LessEqual)
    COMPARE_FORMS(GreaterEqual)

labelNegate : {
    const Value& b = R(B);
    if (b.isWhole() && b.n > -32768) [[likely]] {
        putWhole(R(A), static_cast<std::uint64_t>(b.type), -b.n);
        NEXT;
    }
    if (b.type == Type::Double) {
        putDouble(R(A), -b.d);
        NEXT;
    }
    SLOW(unary(I));
}

labelNot : {
    const Value& b = R(B);
    if (b.type == Type::Boolean) [[likely]] {
        put(R(A), Type::Boolean, ~b.n);
        NEXT;
    }
    SLOW(unary(I));
}

labelJoin:
    SLOW(join(I, false));

labelAppend:
    SLOW(join(I, true));

labelSettle:
    SLOW(settleTexts(&R(A), X & 63));

labelJump:
    pc += J;
    NEXT;

labelJumpByValue : {
    const Value& callee = R(A).deref();
    if (callee.isArray() || (B != arraysOnly && (!callee.isObject() || callee.object() == nullptr ||
                                                 callee.object()->role == Object::Role::Native))) {
        pc += J;
    }
    NEXT;
}

labelBack:
    TAKE_JUMP
    NEXT;

#define JUMP_ON_CONDITION(label, a, wanted)                                                                            \
    label : {                                                                                                          \
        const Value& x = a;                                                                                            \
        if (x.type == Type::Boolean) [[likely]] {                                                                      \
            if ((x.n != 0) == (wanted)) {                                                                              \
                TAKE_JUMP                                                                                              \
            }                                                                                                          \
            NEXT;                                                                                                      \
        }                                                                                                              \
        SAVE;                                                                                                          \
        const bool holds = condition(A);                                                                               \
        BURY;                                                                                                          \
        if (holds == (wanted)) {                                                                                       \
            TAKE_JUMP                                                                                                  \
        }                                                                                                              \
        NEXT;                                                                                                          \
    }
    JUMP_ON_CONDITION(labelJumpIf, R(A), true)
    JUMP_ON_CONDITION(labelJumpIfLocal, L(A), true)
    JUMP_ON_CONDITION(labelJumpUnless, R(A), false)
    JUMP_ON_CONDITION(labelJumpUnlessLocal, L(A), false)

#define JUMP_ON(label, op, a, b, wanted)                                                                               \
    label : {                                                                                                          \
        const Value& x = a;                                                                                            \
        const Value& y = b;                                                                                            \
        bool holds;                                                                                                    \
        if (!compared<op>(holds, x, y)) [[unlikely]] {                                                                 \
            if (bothTexts(x, y)) {                                                                                     \
                holds = textsHold<op>(x, y);                                                                           \
                USED_UP(A)                                                                                             \
                USED_UP(B)                                                                                             \
            } else if (!(isReference(x) || isReference(y)) || !lookThrough<compared<op>>(holds, x, y)) {               \
                SAVE;                                                                                                  \
                holds = comparison(op, A, B);                                                                          \
                BURY;                                                                                                  \
            }                                                                                                          \
        }                                                                                                              \
        if (holds == (wanted)) {                                                                                       \
            TAKE_JUMP                                                                                                  \
        }                                                                                                              \
        NEXT;                                                                                                          \
    }
#define JUMP_ON_SMALL(label, op, wanted)                                                                               \
    label : {                                                                                                          \
        const Value& x = L(A);                                                                                         \
        bool holds;                                                                                                    \
        if (!comparedSmall<op>(holds, x, SMALL_BESIDE_JUMP)) [[unlikely]] {                                            \
            if (!isReference(x) || !comparedSmall<op>(holds, *x.target, SMALL_BESIDE_JUMP)) {                          \
                SAVE;                                                                                                  \
                holds = comparison(op, A, B);                                                                          \
                BURY;                                                                                                  \
            }                                                                                                          \
        }                                                                                                              \
        if (holds == (wanted)) {                                                                                       \
            GO(SHORT_JUMP)                                                                                             \
        }                                                                                                              \
        NEXT;                                                                                                          \
    }
#define JUMP_ON_FORMS(name, op)                                                                                        \
    JUMP_ON(labelJump##name, op, R(A), R(B), true)                                                                     \
    JUMP_ON(labelJump##name##Local, op, L(A), L(B), true)                                                              \
    JUMP_ON_SMALL(labelJump##name##Small, op, true)                                                                    \
    JUMP_ON(labelUnless##name, op, R(A), R(B), false)                                                                  \
    JUMP_ON(labelUnless##name##Local, op, L(A), L(B), false)                                                           \
    JUMP_ON_SMALL(labelUnless##name##Small, op, false)
    JUMP_ON_FORMS(Equal, Opcode::Equal)
    JUMP_ON_FORMS(NotEqual, Opcode::NotEqual)
    JUMP_ON_FORMS(Less, Opcode::Less)
    JUMP_ON_FORMS(Greater, Opcode::Greater)
    JUMP_ON_FORMS(LessEqual, Opcode::LessEqual)
    JUMP_ON_FORMS(GreaterEqual, Opcode::GreaterEqual)

#define JUMP_ON_IS(label, wanted)                                                                                      \
    label : {                                                                                                          \
        const Value& x = R(A).deref();                                                                                 \
        const Value& y = R(B).deref();                                                                                 \
        bool holds = x.counted == y.counted;                                                                           \
        if (x.type == Type::Object && y.type == Type::Object) [[likely]] {                                             \
            USED_UP(A)                                                                                                 \
            USED_UP(B)                                                                                                 \
        } else {                                                                                                       \
            SAVE;                                                                                                      \
            holds = conditionOf(Opcode::Is, A, B);                                                                     \
        }                                                                                                              \
        BURY;                                                                                                          \
        if (holds == (wanted)) {                                                                                       \
            TAKE_JUMP                                                                                                  \
        }                                                                                                              \
        NEXT;                                                                                                          \
    }
    JUMP_ON_IS(labelJumpIs, true)
    JUMP_ON_IS(labelUnlessIs, false)

#define JUMP_ON_NOTHING(label, wanted)                                                                                 \
    label : {                                                                                                          \
        Value& x = R(A);                                                                                               \
        bool holds = true;                                                                                             \
        if (x.type == Type::Object) [[likely]] {                                                                       \
            if (x.counted != nullptr) {                                                                                \
                holds = false;                                                                                         \
                if (TEMPORARY(A)) {                                                                                    \
                    x.clear();                                                                                         \
                    BURY;                                                                                              \
                }                                                                                                      \
            }                                                                                                          \
        } else {                                                                                                       \
            SAVE;                                                                                                      \
            holds = conditionOf(Opcode::Is, A, B);                                                                     \
            BURY;                                                                                                      \
        }                                                                                                              \
        if (holds == (wanted)) {                                                                                       \
            TAKE_JUMP                                                                                                  \
        }                                                                                                              \
        NEXT;                                                                                                          \
    }
    JUMP_ON_NOTHING(labelJumpNothing, true)
    JUMP_ON_NOTHING(labelUnlessNothing, false)

#define JUMP_ON_BOTH(label, a, b, wanted)                                                                              \
    label : {                                                                                                          \
        bool holds;                                                                                                    \
        if (!both(holds, a, b)) [[unlikely]] {                                                                         \
            SAVE;                                                                                                      \
            holds = conditionOf(Opcode::And, A, B);                                                                    \
            BURY;                                                                                                      \
        }                                                                                                              \
        if (holds == (wanted)) {                                                                                       \
            TAKE_JUMP                                                                                                  \
        }                                                                                                              \
        NEXT;                                                                                                          \
    }
    JUMP_ON_BOTH(labelJumpBoth, R(A), R(B), true)
    JUMP_ON_BOTH(labelJumpBothLocal, L(A), L(B), true)
    JUMP_ON_BOTH(labelUnlessBoth, R(A), R(B), false)
    JUMP_ON_BOTH(labelUnlessBothLocal, L(A), L(B), false)

labelForPrepare : {
    Value& variable = R(A);
    const Value* limits = &R(B);
    if (bothWhole(limits[2], limits[0]) && limits[1].isWhole() && isPlain(variable)) [[likely]] {
        put(variable, limits[2].type, limits[2].n);
        if (limits[1].n >= 0 ? variable.n > limits[0].n : variable.n < limits[0].n) {
            pc += J;
        }
        NEXT;
    }
    SAVE;
    const bool runs = forPrepare(R(A).deref(), &R(B));
    BURY;
    if (!runs) {
        pc += J;
    }
    NEXT;
}

#define FOR_LOOP(label, a, b)                                                                                          \
    label : {                                                                                                          \
        bool runs;                                                                                                     \
        if (!countedOn(runs, a, &b)) [[unlikely]] {                                                                    \
            SAVE;                                                                                                      \
            runs = forStep(R(A).deref(), &R(B));                                                                       \
            BURY;                                                                                                      \
        }                                                                                                              \
        if (runs) [[likely]] {                                                                                         \
            GO_BACK(J)                                                                                                 \
        }                                                                                                              \
        NEXT;                                                                                                          \
    }
    FOR_LOOP(labelForLoop, R(A), R(B))
    FOR_LOOP(labelForLoopLocal, L(A), L(B))

#define FOR_NEXT(label, a, b)                                                                                          \
    label : {                                                                                                          \
        bool runs = countedByOne(a, b);                                                                                \
        if (!runs && !countedOn(runs, a, &b)) {                                                                        \
            SAVE;                                                                                                      \
            runs = forStep(R(A).deref(), &R(B));                                                                       \
            BURY;                                                                                                      \
        }                                                                                                              \
        if (runs) [[likely]] {                                                                                         \
            GO_BACK(J)                                                                                                 \
        }                                                                                                              \
        NEXT;                                                                                                          \
    }
    FOR_NEXT(labelForNext, R(A), R(B))
    FOR_NEXT(labelForNextLocal, L(A), L(B))

labelEachPrepare:
    SLOW(eachPrepare(I));

labelEachNext : {
    SAVE;
    const bool goesOn = eachNext(R(A).deref(), R(B));
    BURY;
    if (goesOn) {
        TAKE_JUMP
    }
    NEXT;
}

#define ELEMENT(label, a, b, c)                                                                                        \
    label : {                                                                                                          \
        if (element(a, b, c, static_cast<Store>(X >> 6))) [[likely]] {                                                 \
            NEXT;                                                                                                      \
        }                                                                                                              \
        SLOW(index(I));                                                                                                \
    }
    ELEMENT(labelIndex, R(A), R(B), R(C))
    ELEMENT(labelIndexLocal, L(A), L(B), L(C))

#define ELEMENT_2(label, a, b, c, d)                                                                                   \
    label : {                                                                                                          \
        const auto second = static_cast<Operand>(pc[1]);                                                               \
        if (element2(a, b, c, d)) [[likely]] {                                                                         \
            ++pc;                                                                                                      \
            NEXT;                                                                                                      \
        }                                                                                                              \
        ++pc;                                                                                                          \
        SLOW(index2(pc[-1], second));                                                                                  \
    }
    ELEMENT_2(labelIndex2, R(A), R(B), R(C), R(second))
    ELEMENT_2(labelIndex2Local, L(A), L(B), L(C), L(second))

labelIndexN:
    SLOW(indexN(I));

#define STORE_ELEMENT(label, a, b, c)                                                                                  \
    label : {                                                                                                          \
        if ((X >> 6) == static_cast<unsigned>(Store::Let) && storeElement(a, b, c)) [[likely]] {                       \
            NEXT;                                                                                                      \
        }                                                                                                              \
        SLOW(storeIndex(I));                                                                                           \
    }
    STORE_ELEMENT(labelSetIndex, R(A), R(B), R(C))
    STORE_ELEMENT(labelSetIndexLocal, L(A), L(B), L(C))

#define STORE_ELEMENT_2(label, a, b, c, d)                                                                             \
    label : {                                                                                                          \
        const auto from = static_cast<Operand>(pc[1]);                                                                 \
        if ((X >> 6) == static_cast<unsigned>(Store::Let) && storeElement2(a, b, c, d)) [[likely]] {                   \
            ++pc;                                                                                                      \
            NEXT;                                                                                                      \
        }                                                                                                              \
        ++pc;                                                                                                          \
        SLOW(storeIndex2(pc[-1], from));                                                                               \
    }
    STORE_ELEMENT_2(labelSetIndex2, R(A), R(B), R(C), R(from))
    STORE_ELEMENT_2(labelSetIndex2Local, L(A), L(B), L(C), L(from))

labelSetIndexN:
    SLOW(storeIndexN(I));

labelSetDeep : {
    ++pc;
    SLOW(storeDeep(pc[-1], static_cast<std::size_t>(*pc)));
}

labelWide : {
    const auto count = static_cast<std::size_t>(J);
    const Instruction call = *++pc;
    const Operand first = hasSecondWord(static_cast<Opcode>(call & 0xff)) ? static_cast<Operand>(*++pc) : Operand{0};
    SAVE;
    callWide(call, first, count);
    LOAD;
    NEXT;
}

labelCall : {
    const Value& callee = R(C);
    SAVE;
    if (budget_-- <= 0) [[unlikely]] {
        pollSlow();
    }
    if (callee.type == Type::Procedure &&
        static_cast<const Callable*>(callee.pointer)->kind == Callable::Kind::Procedure) [[likely]] {
        frame = pushFrame(static_cast<const Procedure*>(static_cast<const Callable*>(callee.pointer)), &R(B), X & 63,
                          nullptr, &R(A), static_cast<Store>(X >> 6));
        ENTER;
        NEXT;
    }
    callOther(I, X & 63);
    LOAD;
    NEXT;
}

labelCallSelf:
    SAVE;
    if (budget_-- <= 0) [[unlikely]] {
        pollSlow();
    }
    frame = pushFrame(frame->procedure->selfCalls[C], &R(B), X & 63, frame->me, &R(A), static_cast<Store>(X >> 6));
    ENTER;
    NEXT;

labelCallIntrinsic1 : {
    Value& argument = R(B).deref();
    if (isPlain(argument)) [[likely]] {
        SLOW(runIntrinsic(intrinsics[C], argument, R(A), static_cast<Store>(X >> 6)));
    }
    SLOW(callIntrinsic1(I));
}

labelCallIntrinsic:
    SLOW(runIntrinsicRow(intrinsics[C], &R(B), X & 63, R(A), static_cast<Store>(X >> 6)));

// A public variable of an object that lies in a register or has other owners.
#define GET_MEMBER(label, a, b)                                                                                        \
    label : {                                                                                                          \
        const Value& object = (b).deref();                                                                             \
        const MemberSite& site = frame->procedure->sites[C];                                                           \
        if (object.type == Type::Object && object.counted != nullptr && object.object()->shape == site.shape &&        \
            site.field >= 0 && ((X & 1) == 0 || object.counted->references > 1)) [[likely]] {                          \
            const Value& field = static_cast<Instance*>(object.object())->fields()[site.field];                        \
            const bool counted = field.isCounted();                                                                    \
            if (!counted || goesAsItIs(field.type, static_cast<Store>(X >> 6))) [[likely]] {                           \
                if (counted) {                                                                                         \
                    a = field;                                                                                         \
                    BURY;                                                                                              \
                } else {                                                                                               \
                    put(a, field.type, field.n);                                                                       \
                }                                                                                                      \
                if ((X & 1) != 0 && A != B) {                                                                          \
                    R(B).clear();                                                                                      \
                    BURY;                                                                                              \
                }                                                                                                      \
                NEXT;                                                                                                  \
            }                                                                                                          \
        }                                                                                                              \
        SAVE;                                                                                                          \
        getMember(I);                                                                                                  \
        LOAD;                                                                                                          \
        NEXT;                                                                                                          \
    }
    GET_MEMBER(labelGetMember, R(A), R(B))
    GET_MEMBER(labelGetMemberLocal, L(A), L(B))

labelCallMember : {
    const auto first = static_cast<Operand>(pc[1]);
    frame->pc = pc + 2;
    if (budget_-- <= 0) [[unlikely]] {
        pollSlow();
    }
    const Value& object = R(B).deref();
    const MemberSite& site = frame->procedure->sites[C];
    if (object.type == Type::Object && object.counted != nullptr && site.shape != 0 &&
        object.object()->shape == site.shape && !TEMPORARY(B)) [[likely]] {
        Object* target = object.object();
        const auto store = static_cast<Store>(X >> 6);
        if (site.reader != nullptr) {
            frame = pushFrame(site.reader, &R(first), X & 63, static_cast<Instance*>(target), &R(A), store);
            ENTER;
            NEXT;
        }
        if (target->role == Object::Role::Native && store != Store::Set) {
            if (ranShort(site, *target, {&R(first), X & 63}, R(A), store)) {
                ++pc;
                NEXT;
            }
            if ((B & 3) != static_cast<unsigned>(Place::Frame) && !target->takesReferences) {
                runNative(*target, site.member, {&R(first), X & 63}, R(A), store);
                BURY;
                ++pc;
                NEXT;
            }
        }
    }
    callMember(I, first, X & 63);
    LOAD;
    NEXT;
}

// The value of a public variable of an object; a temporary that held the object is left to the long road.
#define SET_MEMBER(label, a, b)                                                                                        \
    label : {                                                                                                          \
        const Value& object = (a).deref();                                                                             \
        const MemberSite& site = frame->procedure->sites[C];                                                           \
        if (object.type == Type::Object && object.counted != nullptr && object.object()->shape == site.shape &&        \
            site.field >= 0 && !TEMPORARY(A)) [[likely]] {                                                             \
            Value& field = static_cast<Instance*>(object.object())->fields()[site.field];                              \
            Value& from = b;                                                                                           \
            if (isPlain(from) && X == packed(0, Store::Let)) [[likely]] {                                              \
                put(field, from.type, from.n);                                                                         \
                NEXT;                                                                                                  \
            }                                                                                                          \
            if (goesAsItIs(from.type, static_cast<Store>(X >> 6))) {                                                   \
                carry(field, from, TEMPORARY(B));                                                                      \
                BURY;                                                                                                  \
                NEXT;                                                                                                  \
            }                                                                                                          \
        }                                                                                                              \
        SAVE;                                                                                                          \
        setMember(I);                                                                                                  \
        LOAD;                                                                                                          \
        NEXT;                                                                                                          \
    }
    SET_MEMBER(labelSetMember, R(A), R(B))
    SET_MEMBER(labelSetMemberLocal, L(A), L(B))

labelSetMemberN:
    SAVE;
    setMemberN(I);
    LOAD;
    NEXT;

labelGetName:
    SAVE;
    getName(I);
    LOAD;
    NEXT;

labelCheckDefined:
    if (R(C).type == Type::Undefined) {
        SAVE;
        raiseUndefined(indexOf(C));
    }
    NEXT;

labelFindName:
    SLOW(findName(I));

labelNew:
    SLOW(makeNew(I));

labelNewNamed:
    SLOW(makeNamed(I));

labelMe:
    SLOW(makeMe(I));

labelReDim:
    SLOW(redim(I, false));

labelReDimPreserve:
    SLOW(redim(I, true));

labelErase:
    SLOW(erase(A));

labelMakeArray:
    SLOW(makeArray(I));

labelExecute:
    SLOW(executeText(I));

labelGetRef:
    SLOW(getRef(I));

labelOnError:
    SLOW(onError(A != 0));

labelClearError:
    error = {};
    NEXT;

labelRaise:
    SAVE;
    raiseCompiled(I);

labelReturn : {
    const Procedure& procedure = *frame->procedure;
    Instance* const me = frame->me;
    if (frame->extra == nullptr && (me == nullptr || me->references > 1)) [[likely]] {
        Value* to = frame->result;
        const int slot = procedure.resultSlot;
        const bool wanted = slot >= 0 && frame->store <= Store::Let;
        if (!wanted ? frame->store == Store::Discard : isPlain(base[slot])) [[likely]] {
            const Value* end = base + procedure.firstTemporary;
            for (Value* local = base; local < end; ++local) {
                if (local->isCounted()) {
                    local->clear();
                }
            }
            BURY;
            --depth_;
            if (me != nullptr) {
                --me->references;
            }
            if (wanted) {
                put(*to, base[slot].type, base[slot].n);
            }
            if (depth_ == floor) {
                return;
            }
            --frame;
            ENTER;
            NEXT;
        }
    }
    SAVE;
    popFrame();
    if (depth_ == floor) {
        return;
    }
    LOAD;
    NEXT;
}
}
// NOLINTEND(bugprone-macro-parentheses)

} // namespace vbs
