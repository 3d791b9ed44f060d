// Constants at compile time.
#pragma once

#include "platform/vbscript/syntax/Ast.h"

namespace vbs {

// The value of a literal with or without a minus sign. Throws CompileError 1045 where it cannot bear the sign.
Value foldConstant(const Expr& e);

} // namespace vbs
