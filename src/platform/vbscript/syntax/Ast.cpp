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
        char16_t* low = short_.data();
        if (name.size() > short_.size()) {
            long_.resize(name.size());
            low = long_.data();
        }
        std::transform(name.begin(), name.end(), low, toLower);
        view_ = {low, name.size()};
    }
    Lowered(const Lowered&) = delete;
    Lowered& operator=(const Lowered&) = delete;
    std::u16string_view view() const noexcept { return view_; }

private:
    std::array<char16_t, 64> short_;
    std::u16string long_;
    std::u16string_view view_;
};

} // namespace

Symbol SymbolTable::intern(std::u16string_view name) {
    const Lowered low(name);
    auto entry = index_.find(low.view());
    const bool added = entry == index_.end();
    if (added) {
        if (free_ == noSymbol) {
            info_.emplace_back();
            info_.back().nextFree = std::exchange(free_, static_cast<Symbol>(info_.size() - 1));
        }
        entry = index_.emplace(low.view(), free_).first;
    }
    Info& info = info_[entry->second];
    if (added) {
        free_ = info.nextFree;
        info.folded = &entry->first;
        info.spelling = name;
        info.round = 0;
    }
    if (notes_ != nullptr && info.round != round_) {
        notes_->push_back(entry->second);
        info.round = round_;
        ++info.holders;
    }
    return entry->second;
}

Symbol SymbolTable::find(std::u16string_view name) const {
    const auto found = index_.find(Lowered(name).view());
    return found != index_.end() ? found->second : noSymbol;
}

void SymbolTable::noteIn(std::vector<Symbol>* notes) noexcept {
    notes_ = notes;
    ++round_;
}

void SymbolTable::release(Symbol s) noexcept {
    Info& info = info_[s];
    if (--info.holders == 0) {
        index_.erase(index_.find(*info.folded));
        info.spelling = {};
        info.nextFree = std::exchange(free_, s);
    }
}

Expr* Ast::expr(Expr::Kind kind, Position at) {
    charge(sizeof(Expr));
    Expr& e = exprs_.add();
    e.kind = kind;
    e.at = at;
    return &e;
}

Stmt* Ast::stmt(Stmt::Kind kind, Position at) {
    charge(sizeof(Stmt));
    Stmt& s = stmts_.add();
    s.kind = kind;
    s.at = at;
    return &s;
}

ProcedureDecl* Ast::procedure() {
    charge(sizeof(ProcedureDecl));
    return &procedures_.emplace_back();
}

ClassDecl* Ast::classDecl() {
    charge(sizeof(ClassDecl));
    return &classes_.emplace_back();
}

} // namespace vbs
