// The dispatch loop. Each instruction handles its common cases here, on the spot, and leaves the rest to a member
// function of Vm (VmOperators.cpp, VmArrays.cpp, VmCalls.cpp). Those may raise, so the frame's pc is stored before.

// One indirect jump an instruction, each with a prediction of its own: these two passes would merge them.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC optimize("no-gcse", "no-crossjumping")
#endif

#include "platform/vbscript/run/Instance.h"
#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/run/VmFrames.h"
#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Library.h"

#include <cfloat>
#include <cmath>

namespace vbs {

namespace {

inline bool bothWhole(const Value& a, const Value& b) noexcept {
    return (static_cast<std::uint64_t>(a.type) | static_cast<std::uint64_t>(b.type)) <= 1;
}

inline bool isReal(const Value& v) noexcept {
    return static_cast<std::uint64_t>(v.type) <= 2;
}

// Integer, Long and Double as double.
inline double real(const Value& v) noexcept {
    return v.type == Type::Double ? v.d : static_cast<double>(v.n);
}

// The value that an operand names. The index stands two bits up in an operand, so its distance in bytes is four times
// that.
inline Value& valueAt(Value* const* places, unsigned o) noexcept {
    return *reinterpret_cast<Value*>(reinterpret_cast<char*>(places[o & 3]) +
                                     std::size_t{o & 0xfffcU} * (sizeof(Value) / 4));
}

// Whether an element of this type reaches its place as it is.
inline bool goesAsItIs(Type type, Store store) noexcept {
    return type == Type::String ? store == Store::Let || store == Store::Raw
                                : type == Type::Object && (store == Store::Set || store == Store::Raw);
}

inline bool isReference(const Value& v) noexcept {
    return v.type == Type::Reference;
}

// Whether overwriting the value ends nothing but a text: it holds no last share of an object or array.
inline bool dropsQuietly(const Value& v) noexcept {
    return v.type <= Type::String || v.counted == nullptr || v.counted->references > 1;
}

// A text or object from one register to another; a temporary hands it on.
inline void carry(Value& to, Value& from, bool temporary) noexcept {
    if (temporary) {
        to = std::move(from);
    } else {
        to = from;
    }
}

inline bool bothTexts(const Value& a, const Value& b) noexcept {
    return a.type == Type::String && b.type == Type::String;
}

// Two texts compared by their code units.
template <Opcode op>
inline bool textsHold(const Value& a, const Value& b) noexcept {
    const std::u16string_view x = a.text();
    const std::u16string_view y = b.text();
    if constexpr (op == Opcode::Equal || op == Opcode::NotEqual) {
        return (a.counted == b.counted || x == y) == (op == Opcode::Equal);
    } else {
        const int order = x.size() == 1 && y.size() == 1 ? int{x[0]} - int{y[0]} : x.compare(y);
        return op == Opcode::Less        ? order < 0
               : op == Opcode::Greater   ? order > 0
               : op == Opcode::LessEqual ? order <= 0
                                         : order >= 0;
    }
}

inline void putDouble(Value& to, double d) noexcept {
    if (to.isCounted()) [[unlikely]] {
        to.clear();
    }
    to.type = Type::Double;
    to.d = d;
}

// The result of whole arithmetic: `type` is Long if an operand was.
inline void putWhole(Value& to, std::uint64_t type, std::int64_t n) noexcept {
    if (n == static_cast<std::int16_t>(n)) [[likely]] {
        put(to, static_cast<Type>(type), n);
    } else if (n == static_cast<std::int32_t>(n)) {
        put(to, Type::Long, n);
    } else {
        putDouble(to, static_cast<double>(n));
    }
}

} // namespace

// NOLINTNEXTLINE(readability-function-size): a dispatch loop is one table
void Vm::dispatch(std::size_t floor) {
    static const void* const labels[] = {
#define VBS_LABEL(name) &&label##name,
        VBS_OPCODES(VBS_LABEL)
#undef VBS_LABEL
    };

    Frame* frame = &top();
    const Instruction* pc = frame->pc;
    Instruction i = 0;
    const Builtin* const intrinsics = m_library.builtins.data();
    Value* places[4] = {frame->base, m_globals.values(), const_cast<Value*>(frame->procedure->constants.data()),
                        frame->fields};

// No object with a destructor may be alive here: a computed jump does not run it.
#define NEXT                                                                                                           \
    i = *pc++;                                                                                                         \
    goto* labels[i & 0xff]
#define A static_cast<Operand>(i >> 8)
#define B static_cast<Operand>(i >> 24)
#define C static_cast<Operand>(i >> 40)
#define X static_cast<unsigned>(i >> 56)
#define J (static_cast<std::int64_t>(i) >> 40)
#define R(o) valueAt(places, o)
#define TEMPORARY(o) (((o)&3) == 0 && ((o) >> 2) >= frame->procedure->firstTemporary)
// An instruction is done with a text or with an object that has other owners: it goes from a temporary.
#define USED_UP(o)                                                                                                     \
    if (TEMPORARY(o)) {                                                                                                \
        R(o).clear();                                                                                                  \
    }
#define SAVE frame->pc = pc
#define ENTER                                                                                                          \
    pc = frame->pc;                                                                                                    \
    places[0] = frame->base;                                                                                           \
    places[2] = const_cast<Value*>(frame->procedure->constants.data());                                                \
    places[3] = frame->fields
#define LOAD                                                                                                           \
    frame = &m_frames[m_depth - 1];                                                                                    \
    ENTER
#define SLOW(statement)                                                                                                \
    SAVE;                                                                                                              \
    statement;                                                                                                         \
    NEXT
#define TAKE_JUMP                                                                                                      \
    {                                                                                                                  \
        const std::int64_t jump = J;                                                                                   \
        pc += jump;                                                                                                    \
        if (jump < 0 && --m_budget < 0) [[unlikely]] {                                                                 \
            SAVE;                                                                                                      \
            pollSlow();                                                                                                \
        }                                                                                                              \
    }

    NEXT;

labelMove : {
    const Value& b = R(B);
    if (isPlain(b)) [[likely]] {
        put(R(A), b.type, b.n);
        NEXT;
    }
    if ((b.type == Type::String || b.type == Type::Object) && dropsQuietly(R(A))) [[likely]] {
        carry(R(A), R(B), TEMPORARY(B));
        NEXT;
    }
    SLOW(R(A) = taken(B));
}

labelCopy:
    SLOW(R(A) = Value(R(B).deref()));

labelLet : {
    const Value& b = R(B);
    if (isPlain(b)) [[likely]] {
        put(R(A), b.type, b.n);
        NEXT;
    }
    if (b.type == Type::String && dropsQuietly(R(A))) [[likely]] {
        carry(R(A), R(B), TEMPORARY(B));
        NEXT;
    }
    SLOW(letInto(R(A), B));
}

labelSetObject:
    if (R(B).type == Type::Object && dropsQuietly(R(A))) [[likely]] {
        carry(R(A), R(B), TEMPORARY(B));
        NEXT;
    }
    SLOW(setInto(R(A), B));

labelStoreLet : {
    Value& a = R(A).deref();
    const Value& b = R(B);
    if (isPlain(b)) [[likely]] {
        put(a, b.type, b.n);
        NEXT;
    }
    if (b.type == Type::String && dropsQuietly(a)) [[likely]] {
        carry(a, R(B), TEMPORARY(B));
        NEXT;
    }
    SLOW(letInto(a, B));
}

labelStoreSet:
    SLOW(setInto(R(A).deref(), B));

labelReference : {
    Value& b = R(B);
    Value& target = b.deref();
    if (target.type == Type::Undefined) {
        target.type = Type::Empty;
    }
    Value& a = R(A);
    if (a.isCounted()) [[unlikely]] {
        a.clear();
    }
    a.type = Type::Reference;
    a.target = &target;
    NEXT;
}

labelLoadConstant:
    R(A) = frame->procedure->constants[static_cast<std::size_t>(J)];
    NEXT;

labelClear:
    R(A).clear();
    NEXT;

// A by-reference argument is looked through, and the common cases are tried again on what it stands for.
#define LOOK_THROUGH(b, c, again)                                                                                      \
    if (isReference(*(b)) || isReference(*(c))) {                                                                      \
        (b) = &(b)->deref();                                                                                           \
        (c) = &(c)->deref();                                                                                           \
        goto again;                                                                                                    \
    }

#define ARITHMETIC(name, symbol)                                                                                       \
    label##name : {                                                                                                    \
        const Value* b = &R(B);                                                                                        \
        const Value* c = &R(C);                                                                                        \
        again##name : if (bothWhole(*b, *c)) [[likely]] {                                                              \
            putWhole(R(A), static_cast<std::uint64_t>(b->type) | static_cast<std::uint64_t>(c->type),                  \
                     b->n symbol c->n);                                                                                \
            NEXT;                                                                                                      \
        }                                                                                                              \
        if (isReal(*b) && isReal(*c)) {                                                                                \
            const double result = real(*b) symbol real(*c);                                                            \
            if (std::fabs(result) <= DBL_MAX) [[likely]] {                                                             \
                putDouble(R(A), result);                                                                               \
                NEXT;                                                                                                  \
            }                                                                                                          \
        }                                                                                                              \
        LOOK_THROUGH(b, c, again##name)                                                                                \
        SLOW(binary(i));                                                                                               \
    }
    ARITHMETIC(Add, +)
    ARITHMETIC(Subtract, -)
    ARITHMETIC(Multiply, *)

labelDivide : {
    const Value* b = &R(B);
    const Value* c = &R(C);
againDivide:
    if (isReal(*b) && isReal(*c)) {
        const double divisor = real(*c);
        const double result = real(*b) / divisor;
        if (divisor != 0.0 && std::fabs(result) <= DBL_MAX) [[likely]] {
            putDouble(R(A), result);
            NEXT;
        }
    }
    LOOK_THROUGH(b, c, againDivide)
    SLOW(binary(i));
}

labelIntegerDivide : {
    const Value* b = &R(B);
    const Value* c = &R(C);
againIntegerDivide:
    if (bothWhole(*b, *c) && c->n > 0) [[likely]] {
        const auto quotient = static_cast<std::int32_t>(b->n) / static_cast<std::int32_t>(c->n);
        put(R(A), static_cast<Type>(static_cast<std::uint64_t>(b->type) | static_cast<std::uint64_t>(c->type)),
            quotient);
        NEXT;
    }
    LOOK_THROUGH(b, c, againIntegerDivide)
    SLOW(binary(i));
}

labelModulo : {
    const Value* b = &R(B);
    const Value* c = &R(C);
againModulo:
    if (bothWhole(*b, *c) && c->n > 0) [[likely]] {
        const auto n = static_cast<std::int32_t>(b->n);
        const auto divisor = static_cast<std::int32_t>(c->n);
        const bool masks = n >= 0 && (divisor & (divisor - 1)) == 0; // a division costs more than a test
        const std::int32_t rest = masks ? n & (divisor - 1) : n % divisor;
        put(R(A), static_cast<Type>(static_cast<std::uint64_t>(b->type) | static_cast<std::uint64_t>(c->type)), rest);
        NEXT;
    }
    LOOK_THROUGH(b, c, againModulo)
    SLOW(binary(i));
}

labelConcatenate:
    SLOW(concatenateInto(i));

#define LOGIC(name, symbol)                                                                                            \
    label##name : {                                                                                                    \
        const Value* b = &R(B);                                                                                        \
        const Value* c = &R(C);                                                                                        \
        again##name : if ((b->type == Type::Boolean && c->type == Type::Boolean) || bothWhole(*b, *c)) [[likely]] {    \
            put(R(A), static_cast<Type>(static_cast<std::uint64_t>(b->type) | static_cast<std::uint64_t>(c->type)),    \
                b->n symbol c->n);                                                                                     \
            NEXT;                                                                                                      \
        }                                                                                                              \
        LOOK_THROUGH(b, c, again##name)                                                                                \
        SLOW(binary(i));                                                                                               \
    }
    LOGIC(And, &)
    LOGIC(Or, |)
    LOGIC(Xor, ^)

labelPower:
labelEqv:
labelImp:
    SLOW(binary(i));

labelIs : {
    const Value& b = R(B).deref();
    const Value& c = R(C).deref();
    if (b.type == Type::Object && c.type == Type::Object && dropsQuietly(b) && dropsQuietly(c)) [[likely]] {
        const bool same = b.counted == c.counted;
        USED_UP(B)
        USED_UP(C)
        put(R(A), Type::Boolean, same ? -1 : 0);
        NEXT;
    }
    SLOW(binary(i));
}

#define COMPARE(name, symbol)                                                                                          \
    label##name : {                                                                                                    \
        const Value* b = &R(B);                                                                                        \
        const Value* c = &R(C);                                                                                        \
        again##name : if (bothWhole(*b, *c)) [[likely]] {                                                              \
            put(R(A), Type::Boolean, b->n symbol c->n ? -1 : 0);                                                       \
            NEXT;                                                                                                      \
        }                                                                                                              \
        if (isReal(*b) && isReal(*c)) {                                                                                \
            put(R(A), Type::Boolean, real(*b) symbol real(*c) ? -1 : 0);                                               \
            NEXT;                                                                                                      \
        }                                                                                                              \
        if (bothTexts(*b, *c)) {                                                                                       \
            const bool holds = textsHold<Opcode::name>(*b, *c);                                                        \
            USED_UP(B)                                                                                                 \
            USED_UP(C)                                                                                                 \
            put(R(A), Type::Boolean, holds ? -1 : 0);                                                                  \
            NEXT;                                                                                                      \
        }                                                                                                              \
        LOOK_THROUGH(b, c, again##name)                                                                                \
        SLOW(binary(i));                                                                                               \
    }
    COMPARE(Equal, ==)
    COMPARE(NotEqual, !=)
    COMPARE(Less, <)
    COMPARE(Greater, >)
    COMPARE(LessEqual, <=)
    COMPARE(GreaterEqual, >=)

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
    SLOW(unary(i));
}

labelNot : {
    const Value& b = R(B);
    if (b.type == Type::Boolean) [[likely]] {
        put(R(A), Type::Boolean, ~b.n);
        NEXT;
    }
    SLOW(unary(i));
}

labelPlus:
    SLOW(unary(i));

labelJoin:
    SLOW(join(i, false));

labelAppend:
    SLOW(join(i, true));

labelJump:
    pc += J;
    NEXT;

labelBack:
    TAKE_JUMP
    NEXT;

labelJumpIf : {
    const Value& a = R(A);
    if (a.type == Type::Boolean) [[likely]] {
        if (a.n != 0) {
            TAKE_JUMP
        }
        NEXT;
    }
    SAVE;
    if (condition(A)) {
        TAKE_JUMP
    }
    NEXT;
}

labelJumpUnless : {
    const Value& a = R(A);
    if (a.type == Type::Boolean) [[likely]] {
        if (a.n == 0) {
            TAKE_JUMP
        }
        NEXT;
    }
    SAVE;
    if (!condition(A)) {
        TAKE_JUMP
    }
    NEXT;
}

#define JUMP_ON(name, opcode, symbol, wanted)                                                                          \
    label##name : {                                                                                                    \
        const Value* a = &R(A);                                                                                        \
        const Value* b = &R(B);                                                                                        \
        bool holds;                                                                                                    \
        again##name : if (bothWhole(*a, *b)) [[likely]] {                                                              \
            holds = a->n symbol b->n;                                                                                  \
        }                                                                                                              \
        else if (isReal(*a) && isReal(*b)) {                                                                           \
            holds = real(*a) symbol real(*b);                                                                          \
        }                                                                                                              \
        else if (bothTexts(*a, *b)) {                                                                                  \
            holds = textsHold<Opcode::opcode>(*a, *b);                                                                 \
            USED_UP(A)                                                                                                 \
            USED_UP(B)                                                                                                 \
        }                                                                                                              \
        else {                                                                                                         \
            LOOK_THROUGH(a, b, again##name)                                                                            \
            SAVE;                                                                                                      \
            holds = comparison(Opcode::opcode, A, B);                                                                  \
        }                                                                                                              \
        if (holds == (wanted)) {                                                                                       \
            TAKE_JUMP                                                                                                  \
        }                                                                                                              \
        NEXT;                                                                                                          \
    }
    JUMP_ON(JumpEqual, Equal, ==, true)
    JUMP_ON(JumpNotEqual, NotEqual, !=, true)
    JUMP_ON(JumpLess, Less, <, true)
    JUMP_ON(JumpGreater, Greater, >, true)
    JUMP_ON(JumpLessEqual, LessEqual, <=, true)
    JUMP_ON(JumpGreaterEqual, GreaterEqual, >=, true)
    JUMP_ON(UnlessEqual, Equal, ==, false)
    JUMP_ON(UnlessNotEqual, NotEqual, !=, false)
    JUMP_ON(UnlessLess, Less, <, false)
    JUMP_ON(UnlessGreater, Greater, >, false)
    JUMP_ON(UnlessLessEqual, LessEqual, <=, false)
    JUMP_ON(UnlessGreaterEqual, GreaterEqual, >=, false)

labelForPrepare : {
    const Value& variable = R(A);
    const Value* limits = &R(B);
    if (bothWhole(variable, limits[0]) && limits[1].isWhole()) [[likely]] {
        if (limits[1].n >= 0 ? variable.n > limits[0].n : variable.n < limits[0].n) {
            pc += J;
        }
        NEXT;
    }
    SAVE;
    if (!forPrepare(R(A).deref(), &R(B))) {
        pc += J;
    }
    NEXT;
}

labelForLoop : {
    Value& variable = R(A);
    const Value* limits = &R(B);
    if (bothWhole(variable, limits[0]) && limits[1].isWhole()) [[likely]] {
        const std::int64_t step = limits[1].n;
        const std::int64_t n = variable.n + step;
        if (n == static_cast<std::int16_t>(n)) [[likely]] {
            variable.n = n;
            variable.type = static_cast<Type>(static_cast<std::uint64_t>(variable.type) |
                                              static_cast<std::uint64_t>(limits[1].type));
        } else if (n == static_cast<std::int32_t>(n)) {
            variable.n = n;
            variable.type = Type::Long;
        } else {
            putDouble(variable, static_cast<double>(n));
        }
        if (step >= 0 ? n <= limits[0].n : n >= limits[0].n) [[likely]] {
            TAKE_JUMP
        }
        NEXT;
    }
    SAVE;
    if (forStep(variable.deref(), &R(B))) {
        TAKE_JUMP
    }
    NEXT;
}

labelEachPrepare:
    SLOW(eachPrepare(i));

labelEachNext:
    SAVE;
    if (eachNext(R(A).deref(), R(B))) {
        TAKE_JUMP
    }
    NEXT;

labelIndex : {
    const Value& base = R(B).deref();
    const Value& at = R(C).deref();
    if (base.type == Type::Array && at.isWhole()) [[likely]] {
        const ArrayBlock& array = *base.array();
        if (array.dimensions() == 1 && static_cast<std::uint64_t>(at.n) < array.count()) [[likely]] {
            const Value& element = array.elements()[at.n];
            if (!element.isCounted()) [[likely]] {
                put(R(A), element.type, element.n);
                NEXT;
            }
            if (goesAsItIs(element.type, static_cast<Store>(X >> 6))) {
                R(A) = Value(element);
                NEXT;
            }
        }
    }
    SLOW(index(i));
}

labelIndex2 : {
    const auto second = static_cast<Operand>(*pc++);
    const Value& base = R(B).deref();
    const Value& c = R(C).deref();
    const Value& d = R(second).deref();
    if (base.type == Type::Array && bothWhole(c, d)) [[likely]] {
        const ArrayBlock& array = *base.array();
        if (array.dimensions() == 2 && static_cast<std::uint64_t>(c.n) < static_cast<std::uint64_t>(array.size(0)) &&
            static_cast<std::uint64_t>(d.n) < static_cast<std::uint64_t>(array.size(1))) [[likely]] {
            const Value& element = array.elements()[c.n + d.n * array.size(0)];
            if (!element.isCounted()) [[likely]] {
                put(R(A), element.type, element.n);
                NEXT;
            }
        }
    }
    SLOW(index2(i, second));
}

labelIndexN:
    SLOW(indexN(i));

labelSetIndex : {
    Value& base = R(A).deref();
    const Value& at = R(B).deref();
    const Value& value = R(C).deref();
    if (base.type == Type::Array && at.isWhole() && isPlain(value) && (X >> 6) == static_cast<unsigned>(Store::Let))
        [[likely]] {
        ArrayBlock& array = *base.array();
        if (array.references == 1 && array.dimensions() == 1 && static_cast<std::uint64_t>(at.n) < array.count())
            [[likely]] {
            put(array.elements()[at.n], value.type, value.n);
            NEXT;
        }
    }
    SLOW(storeIndex(i));
}

labelSetIndex2 : {
    const auto from = static_cast<Operand>(*pc++);
    Value& base = R(A).deref();
    const Value& b = R(B).deref();
    const Value& c = R(C).deref();
    const Value& value = R(from).deref();
    if (base.type == Type::Array && bothWhole(b, c) && isPlain(value) && (X >> 6) == static_cast<unsigned>(Store::Let))
        [[likely]] {
        ArrayBlock& array = *base.array();
        if (array.references == 1 && array.dimensions() == 2 &&
            static_cast<std::uint64_t>(b.n) < static_cast<std::uint64_t>(array.size(0)) &&
            static_cast<std::uint64_t>(c.n) < static_cast<std::uint64_t>(array.size(1))) [[likely]] {
            put(array.elements()[b.n + c.n * array.size(0)], value.type, value.n);
            NEXT;
        }
    }
    SLOW(storeIndex2(i, from));
}

labelSetIndexN:
    SLOW(storeIndexN(i));

labelElementReference:
    SLOW(elementReference(i));

labelCall : {
    const Value& callee = R(C);
    SAVE;
    if (--m_budget < 0) [[unlikely]] {
        pollSlow();
    }
    if (callee.type == Type::Procedure &&
        static_cast<const Callable*>(callee.pointer)->kind == Callable::Kind::Procedure) [[likely]] {
        frame = pushFrame(static_cast<const Procedure*>(static_cast<const Callable*>(callee.pointer)), &R(B), X & 63,
                          nullptr, &R(A), static_cast<Store>(X >> 6));
        ENTER;
        NEXT;
    }
    callOther(i);
    LOAD;
    NEXT;
}

labelCallSelf:
    SAVE;
    if (--m_budget < 0) [[unlikely]] {
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
    SLOW(callIntrinsic1(i));
}

labelCallIntrinsic:
    SLOW(runIntrinsicRow(intrinsics[C], &R(B), X & 63, R(A), static_cast<Store>(X >> 6)));

labelGetMember : {
    const Value& object = R(B).deref();
    const bool temporary = (X & 1) != 0;
    if (object.type == Type::Object && object.counted != nullptr && (!temporary || object.counted->references > 1))
        [[likely]] {
        const MemberSite& site = frame->procedure->sites[C];
        Object* target = object.object();
        if (target->shape == site.shape && site.field >= 0) [[likely]] {
            const Value& field = static_cast<Instance*>(target)->fields()[site.field];
            const bool counted = field.isCounted();
            if (!counted || (goesAsItIs(field.type, static_cast<Store>(X >> 6)) && dropsQuietly(R(A)))) [[likely]] {
                if (counted) {
                    R(A) = Value(field);
                } else {
                    put(R(A), field.type, field.n);
                }
                if (temporary && A != B) {
                    R(B).clear();
                }
                NEXT;
            }
        }
    }
    SAVE;
    getMember(i);
    LOAD;
    NEXT;
}

labelCallMember : {
    const auto first = static_cast<Operand>(*pc++);
    SAVE;
    if (--m_budget < 0) [[unlikely]] {
        pollSlow();
    }
    const Value& object = R(B).deref();
    if (object.type == Type::Object && object.counted != nullptr && (B & 3) != static_cast<unsigned>(Place::Frame)) {
        const MemberSite& site = frame->procedure->sites[C];
        Object* target = object.object();
        const auto store = static_cast<Store>(X >> 6);
        if (target->shape == site.shape && target->role == Object::Role::Native && !target->takesReferences &&
            store != Store::Set) {
            runNative(*target, site.member, {&R(first), X & 63}, R(A), store);
            NEXT;
        }
    }
    callMember(i, first);
    LOAD;
    NEXT;
}

labelSetMember : {
    const Value& object = R(A).deref();
    const Value& value = R(B);
    if (object.type == Type::Object && object.counted != nullptr && isPlain(value) && X == packed(0, Store::Let))
        [[likely]] {
        const MemberSite& site = frame->procedure->sites[C];
        Object* target = object.object();
        if (target->shape == site.shape && site.field >= 0) [[likely]] {
            put(static_cast<Instance*>(target)->fields()[site.field], value.type, value.n);
            NEXT;
        }
    }
    SAVE;
    setMember(i);
    LOAD;
    NEXT;
}

labelSetMemberN:
    SAVE;
    setMemberN(i);
    LOAD;
    NEXT;

labelGetName:
    SAVE;
    getName(i);
    LOAD;
    NEXT;

labelCheckDefined:
    if (R(C).type == Type::Undefined) {
        SAVE;
        raiseUndefined(indexOf(C));
    }
    NEXT;

labelNew:
    SLOW(makeNew(i));

labelNewNamed:
    SLOW(makeNamed(i));

labelMe:
    SLOW(makeMe(i));

labelReDim:
    SLOW(redim(i, false));

labelReDimPreserve:
    SLOW(redim(i, true));

labelErase:
    SLOW(erase(A));

labelMakeArray:
    SLOW(makeArray(i));

labelExecute:
    SLOW(executeText(i));

labelGetRef:
    SLOW(getRef(i));

labelOnError:
    SLOW(onError(A != 0));

labelClearError:
    error = {};
    NEXT;

labelRaise:
    SAVE;
    raiseCompiled(i);

labelReturn : {
    const Procedure& procedure = *frame->procedure;
    Value* base = frame->base;
    if (frame->me == nullptr && frame->extra == nullptr) [[likely]] {
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
            --m_depth;
            if (wanted) {
                put(*to, base[slot].type, base[slot].n);
            }
            if (m_depth == floor) {
                return;
            }
            --frame;
            ENTER;
            NEXT;
        }
    }
    SAVE;
    popFrame();
    if (m_depth == floor) {
        return;
    }
    LOAD;
    NEXT;
}
}

} // namespace vbs
