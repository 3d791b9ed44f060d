// The parts of an instruction, as Bytecode.h lays them out.
#pragma once

#include "platform/vbscript/compile/Bytecode.h"

#include <cstddef>

namespace vbs {

constexpr Operand operandA(Instruction i) noexcept {
    return static_cast<Operand>(i >> 8);
}
constexpr Operand operandB(Instruction i) noexcept {
    return static_cast<Operand>(i >> 24);
}
constexpr Operand operandC(Instruction i) noexcept {
    return static_cast<Operand>(i >> 40);
}
// The whole of X, and the two parts that it has in calls.
constexpr unsigned extraOf(Instruction i) noexcept {
    return static_cast<unsigned>(i >> 56);
}
constexpr std::size_t countOf(Instruction i) noexcept {
    return extraOf(i) & 63;
}
constexpr Store storeOf(Instruction i) noexcept {
    return static_cast<Store>(extraOf(i) >> 6);
}

} // namespace vbs
