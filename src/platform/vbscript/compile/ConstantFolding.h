// Constants at compile time: literals, other constants of the same scope, and operators between them.
#pragma once

#include "platform/vbscript/syntax/Ast.h"

#include <unordered_map>
#include <vector>

namespace vbs {

// The value of an expression of literals. Throws CompileError 1045 for any other.
Value foldConstant(const Expr& e);

// The constants of one scope, in any order. Each is worked out once, so that a row of constants that use the one before
// twice takes no longer than its length.
class ConstantTable {
public:
    explicit ConstantTable(const std::vector<ConstDecl>& declarations);

    // Throws CompileError 1045 where the declaration is no constant expression, or needs itself.
    Value valueOf(Symbol name);

private:
    std::unordered_map<Symbol, const Expr*> m_expressions;
    std::unordered_map<Symbol, Value> m_values;
};

} // namespace vbs
