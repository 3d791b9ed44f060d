// The short roads of the dispatch loop: what an operator, a comparison or a loop does with the commonest types (those
// of elements: VmShortArrays.h). Each answers whether it has done the work; if not, nothing has changed and the long
// road (VmOperators.cpp) takes over. Operands may be references to variables only where it says so.
#pragma once

#include "platform/vbscript/compile/Bytecode.h"
#include "platform/vbscript/run/VmFrames.h"
#include "platform/vbscript/value/Value.h"
#include "platform/vbscript/value/Work.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace vbs {

inline bool bothWhole(const Value& a, const Value& b) noexcept {
    return (static_cast<std::uint64_t>(a.type) | static_cast<std::uint64_t>(b.type)) <= 1;
}

// A test that comes out one way as often as the other: what follows stays in line on both sides. (A side that counts as
// unlikely goes far away, which costs two jumps.)
inline bool evenly(bool test) noexcept {
#if defined(__GNUC__)
    return __builtin_expect_with_probability(static_cast<long>(test), 1, 0.5) != 0;
#else
    return test;
#endif
}

inline bool isReal(const Value& v) noexcept {
    return static_cast<std::uint64_t>(v.type) <= 2;
}

// Integer, Long and Double as double.
inline double real(const Value& v) noexcept {
    return v.type == Type::Double ? v.d : static_cast<double>(v.n);
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

inline void putDouble(Value& to, double d) noexcept {
    if (to.isCounted()) [[unlikely]] {
        Vm::overwrite(to, Value::ofDouble(d));
        return;
    }
    to.type = Type::Double;
    to.d = d;
}

// False if the number is too large for a Double.
inline bool putFinite(Value& to, double d) noexcept {
    if (std::fabs(d) <= DBL_MAX) [[likely]] {
        putDouble(to, d);
        return true;
    }
    return false;
}

inline void putBoolean(Value& to, bool b) noexcept {
    put(to, Type::Boolean, b ? -1 : 0);
}

// The type of the sum of whole numbers, at least `type`: Long if 16 bits do not hold it. Without a branch, because
// numbers go to and fro across the border.
inline Type wholeType(std::uint64_t type, std::int64_t n) noexcept {
    return static_cast<Type>(type | static_cast<std::uint64_t>(n != static_cast<std::int16_t>(n)));
}

// The result of whole arithmetic: `type` is Long if an operand was.
inline void putWhole(Value& to, std::uint64_t type, std::int64_t n) noexcept {
    if (n == static_cast<std::int32_t>(n)) [[likely]] {
        put(to, wholeType(type, n), n);
    } else {
        putDouble(to, static_cast<double>(n));
    }
}

inline std::uint64_t widerType(const Value& b, const Value& c) noexcept {
    return static_cast<std::uint64_t>(b.type) | static_cast<std::uint64_t>(c.type);
}

// Add, Subtract or Multiply.
template <Opcode op, class Number>
inline Number computed(Number b, Number c) noexcept {
    return op == Opcode::Add ? b + c : op == Opcode::Subtract ? b - c : b * c;
}

template <Opcode op>
[[gnu::always_inline]] inline bool arithmetic(Value& to, const Value& b, const Value& c) noexcept {
    if (evenly(bothWhole(b, c))) {
        putWhole(to, widerType(b, c), computed<op>(b.n, c.n));
        return true;
    }
    if (b.type == Type::Double && c.type == Type::Double) [[likely]] {
        return putFinite(to, computed<op>(b.d, c.d));
    }
    return isReal(b) && isReal(c) && putFinite(to, computed<op>(real(b), real(c)));
}

[[gnu::always_inline]] inline bool quotient(Value& to, const Value& b, const Value& c) noexcept {
    if (b.type == Type::Double && c.type == Type::Double) [[likely]] {
        return c.d != 0.0 && putFinite(to, b.d / c.d);
    }
    if (isReal(b) && isReal(c)) {
        const double divisor = real(c);
        return divisor != 0.0 && putFinite(to, real(b) / divisor);
    }
    return false;
}

[[gnu::always_inline]] inline bool wholeQuotient(Value& to, const Value& b, const Value& c) noexcept {
    if (bothWhole(b, c) && c.n > 0) [[likely]] {
        const auto result = static_cast<std::int32_t>(b.n) / static_cast<std::int32_t>(c.n);
        put(to, static_cast<Type>(widerType(b, c)), result);
        return true;
    }
    return false;
}

// The rest of n / divisor for a divisor above 0; a division costs more than a test.
inline std::int32_t restOf(std::int32_t n, std::int32_t divisor) noexcept {
    return n >= 0 && (divisor & (divisor - 1)) == 0 ? n & (divisor - 1) : n % divisor;
}

[[gnu::always_inline]] inline bool rest(Value& to, const Value& b, const Value& c) noexcept {
    if (bothWhole(b, c) && c.n > 0) [[likely]] {
        put(to, static_cast<Type>(widerType(b, c)),
            restOf(static_cast<std::int32_t>(b.n), static_cast<std::int32_t>(c.n)));
        return true;
    }
    return false;
}

// And, Or or Xor.
template <Opcode op>
[[gnu::always_inline]] inline bool logic(Value& to, const Value& b, const Value& c) noexcept {
    if ((b.type == Type::Boolean && c.type == Type::Boolean) || bothWhole(b, c)) [[likely]] {
        put(to, static_cast<Type>(widerType(b, c)),
            op == Opcode::And  ? b.n & c.n
            : op == Opcode::Or ? b.n | c.n
                               : b.n ^ c.n);
        return true;
    }
    return false;
}

template <Opcode op, class Number>
inline bool related(Number b, Number c) noexcept {
    return op == Opcode::Equal       ? b == c
           : op == Opcode::NotEqual  ? b != c
           : op == Opcode::Less      ? b < c
           : op == Opcode::Greater   ? b > c
           : op == Opcode::LessEqual ? b <= c
                                     : b >= c;
}

// Two numbers compared.
template <Opcode op>
[[gnu::always_inline]] inline bool compared(bool& holds, const Value& b, const Value& c) noexcept {
    if (evenly(bothWhole(b, c))) {
        holds = related<op>(b.n, c.n);
        return true;
    }
    if (b.type == Type::Double && c.type == Type::Double) [[likely]] {
        holds = related<op>(b.d, c.d);
        return true;
    }
    if (isReal(b) && isReal(c)) {
        holds = related<op>(real(b), real(c));
        return true;
    }
    return false;
}

template <Opcode op>
[[gnu::always_inline]] inline bool relation(Value& to, const Value& b, const Value& c) noexcept {
    bool holds = false;
    if (compared<op>(holds, b, c)) [[likely]] {
        putBoolean(to, holds);
        return true;
    }
    return false;
}

// The same with a small number on the right, whose type is Integer.
template <Opcode op>
[[gnu::always_inline]] inline bool arithmeticSmall(Value& to, const Value& b, std::int8_t c) noexcept {
    if (b.isWhole()) [[likely]] {
        putWhole(to, static_cast<std::uint64_t>(b.type), computed<op>(b.n, std::int64_t{c}));
        return true;
    }
    return b.type == Type::Double && putFinite(to, computed<op>(b.d, static_cast<double>(c)));
}

// A variable that takes its own sum or difference with a small number.
template <Opcode op>
[[gnu::always_inline]] inline bool arithmeticSelf(Value& v, std::int8_t c) noexcept {
    if (v.isWhole()) [[likely]] {
        const std::int64_t n = computed<op>(v.n, std::int64_t{c});
        if (n == static_cast<std::int32_t>(n)) [[likely]] {
            v.type = wholeType(static_cast<std::uint64_t>(v.type), n);
            v.n = n;
        } else {
            putDouble(v, static_cast<double>(n));
        }
        return true;
    }
    return v.type == Type::Double && putFinite(v, computed<op>(v.d, static_cast<double>(c)));
}

[[gnu::always_inline]] inline bool wholeQuotientSmall(Value& to, const Value& b, std::int8_t c) noexcept {
    if (b.isWhole() && c > 0) [[likely]] {
        put(to, b.type, static_cast<std::int32_t>(b.n) / c);
        return true;
    }
    return false;
}

[[gnu::always_inline]] inline bool restSmall(Value& to, const Value& b, std::int8_t c) noexcept {
    if (b.isWhole() && c > 0) [[likely]] {
        put(to, b.type, restOf(static_cast<std::int32_t>(b.n), c));
        return true;
    }
    return false;
}

[[gnu::always_inline]] inline bool andSmall(Value& to, const Value& b, std::int8_t c) noexcept {
    if (b.isWhole()) [[likely]] {
        put(to, b.type, b.n & c);
        return true;
    }
    return false;
}

template <Opcode op>
[[gnu::always_inline]] inline bool comparedSmall(bool& holds, const Value& b, std::int8_t c) noexcept {
    if (b.isWhole()) [[likely]] {
        holds = related<op>(b.n, std::int64_t{c});
        return true;
    }
    if (b.type == Type::Double) {
        holds = related<op>(b.d, static_cast<double>(c));
        return true;
    }
    return false;
}

// Whether b And c counts as true.
[[gnu::always_inline]] inline bool both(bool& holds, const Value& b, const Value& c) noexcept {
    if ((b.type == Type::Boolean && c.type == Type::Boolean) || bothWhole(b, c)) [[likely]] {
        holds = (b.n & c.n) != 0;
        return true;
    }
    return false;
}

inline bool bothTexts(const Value& a, const Value& b) noexcept {
    return a.type == Type::String && b.type == Type::String;
}

// Two texts compared by their code units.
template <Opcode op>
inline bool textsHold(const Value& a, const Value& b) noexcept {
    const std::u16string_view x = a.text();
    const std::u16string_view y = b.text();
    chargeWalk(std::min(x.size(), y.size()) * sizeof(char16_t));
    if constexpr (op == Opcode::Equal || op == Opcode::NotEqual) {
        return (a.counted == b.counted || sameUnits(x, y)) == (op == Opcode::Equal);
    } else {
        return related<op>(x.size() == 1 && y.size() == 1 ? int{x[0]} - int{y[0]} : x.compare(y), 0);
    }
}

// A short road for operands that may be references to variables; out of the loop's way.
template <bool (*road)(Value&, const Value&, const Value&) noexcept>
[[gnu::noinline]] bool lookThrough(Value& to, const Value& b, const Value& c) noexcept {
    return road(to, b.deref(), c.deref());
}

template <bool (*road)(bool&, const Value&, const Value&) noexcept>
[[gnu::noinline]] bool lookThrough(bool& holds, const Value& b, const Value& c) noexcept {
    return road(holds, b.deref(), c.deref());
}

template <bool (*road)(Value&, const Value&, std::int8_t) noexcept>
[[gnu::noinline]] bool lookThrough(Value& to, const Value& b, std::int8_t c) noexcept {
    return road(to, b.deref(), c);
}

// The counter of a For loop without a Step goes on; false, and nothing has changed, if the loop ends or an operand is
// no whole number.
[[gnu::always_inline]] inline bool countedByOne(Value& variable, const Value& limit) noexcept {
    if (bothWhole(variable, limit) && variable.n < limit.n) [[likely]] {
        const std::int64_t n = ++variable.n;
        variable.type =
            static_cast<Type>(static_cast<std::uint64_t>(variable.type) | static_cast<std::uint64_t>(n > INT16_MAX));
        return true;
    }
    return false;
}

// The counter of a For loop goes on; false if an operand is no whole number.
[[gnu::always_inline]] inline bool countedOn(bool& runs, Value& variable, const Value* limits) noexcept {
    if (bothWhole(variable, limits[0]) && limits[1].isWhole()) [[likely]] {
        const std::int64_t step = limits[1].n;
        const std::int64_t n = variable.n + step;
        if (n == static_cast<std::int16_t>(n)) [[likely]] {
            variable.n = n;
            variable.type = static_cast<Type>(widerType(variable, limits[1]));
        } else if (n == static_cast<std::int32_t>(n)) {
            variable.n = n;
            variable.type = Type::Long;
        } else {
            putDouble(variable, static_cast<double>(n));
        }
        runs = step >= 0 ? n <= limits[0].n : n >= limits[0].n;
        return true;
    }
    return false;
}

} // namespace vbs
