#include "platform/vbscript/syntax/Ast.h"

#include <algorithm>
#include <utility>

namespace vbs {

namespace {

std::u16string lowered(std::u16string_view name) {
    std::u16string low(name);
    std::transform(low.begin(), low.end(), low.begin(), toLower);
    return low;
}

} // namespace

Symbol SymbolTable::intern(std::u16string_view name) {
    if (m_free == noSymbol) {
        m_info.emplace_back();
        m_info.back().nextFree = std::exchange(m_free, static_cast<Symbol>(m_info.size() - 1));
    }
    const auto [entry, added] = m_index.try_emplace(lowered(name), m_free);
    Info& info = m_info[entry->second];
    if (added) {
        m_free = info.nextFree;
        info.folded = &entry->first;
        info.spelling = name;
        info.round = 0;
    }
    if (m_notes != nullptr && info.round != m_round) {
        m_notes->push_back(entry->second);
        info.round = m_round;
        ++info.holders;
    }
    return entry->second;
}

Symbol SymbolTable::find(std::u16string_view name) const {
    const auto found = m_index.find(lowered(name));
    return found != m_index.end() ? found->second : noSymbol;
}

void SymbolTable::noteIn(std::vector<Symbol>* notes) noexcept {
    m_notes = notes;
    ++m_round;
}

void SymbolTable::release(Symbol s) noexcept {
    Info& info = m_info[s];
    if (--info.holders == 0) {
        m_index.erase(m_index.find(*info.folded));
        info.spelling = {};
        info.nextFree = std::exchange(m_free, s);
    }
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
