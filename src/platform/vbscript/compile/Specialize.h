// The last step of making a procedure's code: instructions get the forms that their operands allow (see Bytecode.h).
#pragma once

#include "platform/vbscript/compile/Bytecode.h"
#include "platform/vbscript/value/Value.h"

#include <span>

namespace vbs {

// `code` is complete, jumps included; it keeps its length.
void specialize(std::span<Instruction> code, std::span<const Value> constants) noexcept;

} // namespace vbs
