#include "platform/vbscript/compile/Globals.h"

#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Errors.h"

#include <utility>

namespace vbs {

Globals::Globals() : values_(new Value[capacity]) {}

Globals::~Globals() {
    delete[] values_;
}

std::uint32_t Globals::slotOf(Symbol symbol) {
    if (symbol >= slots_.size()) {
        slots_.resize(symbol + std::size_t{64}, none);
    }
    std::uint32_t& slot = slots_[symbol];
    if (slot == none) {
        if (full()) {
            throw CompileError{ErrorNumber::TooManyNames, {1, 1}};
        }
        if (free_ == none) {
            info_.emplace_back();
            free_ = static_cast<std::uint32_t>(info_.size() - 1);
        }
        slot = free_;
        free_ = info_[slot].nextFree;
        info_[slot] = {};
        info_[slot].symbol = symbol;
        values_[slot] = Value(Type::Undefined, 0);
    }
    Info& info = info_[slot];
    if (notes_ != nullptr && info.round != round_) {
        notes_->push_back(slot);
        info.round = round_;
        ++info.holders;
    }
    return slot;
}

void Globals::noteIn(std::vector<std::uint32_t>* notes) noexcept {
    notes_ = notes;
    ++round_;
}

void Globals::release(std::uint32_t slot) noexcept {
    Info& info = info_[slot];
    if (--info.holders > 0 || info.kind != GlobalKind::Undefined) {
        return;
    }
    slots_[info.symbol] = none;
    values_[slot] = Value(Type::Undefined, 0);
    info.nextFree = std::exchange(free_, slot);
}

bool Globals::holdsFixedArray(std::uint32_t slot) const noexcept {
    return values_[slot].isArray() && values_[slot].array()->fixed();
}

void Globals::define(std::uint32_t slot, GlobalKind kind, Value value, bool predefined) {
    info_[slot].kind = kind;
    info_[slot].predefined = predefined;
    values_[slot] = std::move(value);
}

UnitNames::UnitNames(SymbolTable& symbols, Globals& globals) noexcept : symbols_(symbols), globals_(globals) {
    symbols_.noteIn(&heldSymbols_);
    globals_.noteIn(&heldSlots_);
}

UnitNames::~UnitNames() {
    close();
    for (const std::uint32_t slot : heldSlots_) {
        globals_.release(slot);
    }
    for (const Symbol symbol : heldSymbols_) {
        symbols_.release(symbol);
    }
}

void UnitNames::close() noexcept {
    if (std::exchange(open_, false)) {
        symbols_.noteIn(nullptr);
        globals_.noteIn(nullptr);
    }
}

} // namespace vbs
