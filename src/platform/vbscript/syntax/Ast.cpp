#include "platform/vbscript/syntax/Ast.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vbs {

namespace {

// A name in small letters, in place if it is not a very long one.
class Lowered {
public:
    explicit Lowered(std::u16string_view name) {
        char16_t* low = m_short.data();
        if (name.size() > m_short.size()) {
            m_long.resize(name.size());
            low = m_long.data();
        }
        std::transform(name.begin(), name.end(), low, toLower);
        m_view = {low, name.size()};
    }
    Lowered(const Lowered&) = delete;
    Lowered& operator=(const Lowered&) = delete;
    std::u16string_view view() const noexcept { return m_view; }

private:
    std::array<char16_t, 64> m_short;
    std::u16string m_long;
    std::u16string_view m_view;
};

} // namespace

Symbol SymbolTable::intern(std::u16string_view name) {
    const Lowered low(name);
    auto entry = m_index.find(low.view());
    const bool added = entry == m_index.end();
    if (added) {
        if (m_free == noSymbol) {
            m_info.emplace_back();
            m_info.back().nextFree = std::exchange(m_free, static_cast<Symbol>(m_info.size() - 1));
        }
        entry = m_index.emplace(low.view(), m_free).first;
    }
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
    const auto found = m_index.find(Lowered(name).view());
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
    Expr& e = m_exprs.add();
    e.kind = kind;
    e.at = at;
    return &e;
}

Stmt* Ast::stmt(Stmt::Kind kind, Position at) {
    charge(sizeof(Stmt));
    Stmt& s = m_stmts.add();
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
