#include "platform/vbscript/syntax/Ast.h"

#include <algorithm>

namespace vbs {

Symbol SymbolTable::intern(std::u16string_view name) {
    std::u16string low(name);
    std::transform(low.begin(), low.end(), low.begin(), toLower);
    const auto [entry, added] = m_index.try_emplace(std::move(low), static_cast<Symbol>(m_spelling.size()));
    if (added) {
        m_folded.push_back(&entry->first);
        m_spelling.push_back(std::make_unique<std::u16string>(name));
    }
    return entry->second;
}

Expr* Ast::expr(Expr::Kind kind, Position at) {
    charge(sizeof(Expr));
    Expr& e = m_exprs.emplace_back();
    e.kind = kind;
    e.at = at;
    return &e;
}

Stmt* Ast::stmt(Stmt::Kind kind, Position at) {
    charge(sizeof(Stmt));
    Stmt& s = m_stmts.emplace_back();
    s.kind = kind;
    s.at = at;
    return &s;
}

ProcedureDecl* Ast::procedure() {
    charge(sizeof(ProcedureDecl));
    return &m_procedures.emplace_back();
}

ClassDecl* Ast::classDecl() {
    charge(sizeof(ClassDecl));
    return &m_classes.emplace_back();
}

} // namespace vbs
