// Rnd and Randomize: a 24-bit linear congruential sequence, the same numbers everywhere after the same start value.
#include "platform/vbscript/library/BuiltinArguments.h"
#include "platform/vbscript/value/Dates.h"

#include <bit>

namespace vbs {

namespace {

constexpr std::uint32_t stateMask = 0xFFFFFF;

// A negative number starts the sequence at a place of its own: its bits as Single, folded to 24.
std::uint32_t stateOf(double number) noexcept {
    const auto bits = std::bit_cast<std::uint32_t>(static_cast<float>(number));
    return (bits + (bits >> 24)) & stateMask;
}

// Rnd([number]): negative starts anew from the number, zero gives the last one again, else the next one.
Value rnd(Context& context, Arguments arguments) {
    const Value* argument = optional(arguments, 0);
    const double number = argument != nullptr ? toSingle(context, *argument) : 1.0;
    if (number < 0) {
        context.random = stateOf(number);
    }
    if (number != 0) {
        context.random = (context.random * 1140671485U + 12820163U) & stateMask;
    }
    return Value::ofSingle(static_cast<double>(context.random) / 16777216.0);
}

// Randomize([number]): mixes the number, or the seconds since midnight, into the upper 16 bits of the state.
Value randomize(Context& context, Arguments arguments) {
    const Value* argument = optional(arguments, 0);
    std::uint32_t bits = 0;
    if (argument != nullptr) {
        bits = static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(toDouble(context, *argument)) >> 32);
    } else {
        bits = std::bit_cast<std::uint32_t>(static_cast<float>(secondsSinceMidnight(context.host.now())));
    }
    const std::uint32_t mixed = (((bits & 0xFFFF) ^ (bits >> 16)) << 8) & 0xFFFF00;
    context.random = (context.random & 0xFF) | mixed;
    return {};
}

constexpr Builtin table[] = {
    {u"Randomize", 0, 1, randomize, Result::None},
    {u"Rnd", 0, 1, rnd},
};

} // namespace

std::span<const Builtin> randomBuiltins() {
    return table;
}

} // namespace vbs
