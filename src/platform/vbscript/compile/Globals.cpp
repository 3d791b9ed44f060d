#include "platform/vbscript/compile/Globals.h"

#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Errors.h"

#include <utility>

namespace vbs {

Globals::Globals() : m_values(new Value[capacity]) {}

Globals::~Globals() {
    delete[] m_values;
}

std::uint32_t Globals::slotOf(Symbol symbol) {
    if (symbol >= m_slots.size()) {
        m_slots.resize(symbol + std::size_t{64}, none);
    }
    std::uint32_t& slot = m_slots[symbol];
    if (slot == none) {
        if (full()) {
            throw CompileError{ErrorNumber::TooManyNames, {1, 1}};
        }
        if (m_free == none) {
            m_info.emplace_back();
            m_free = static_cast<std::uint32_t>(m_info.size() - 1);
        }
        slot = m_free;
        m_free = m_info[slot].nextFree;
        m_info[slot] = {};
        m_info[slot].symbol = symbol;
        m_values[slot] = Value(Type::Undefined, 0);
    }
    Info& info = m_info[slot];
    if (m_notes != nullptr && info.round != m_round) {
        m_notes->push_back(slot);
        info.round = m_round;
        ++info.holders;
    }
    return slot;
}

void Globals::noteIn(std::vector<std::uint32_t>* notes) noexcept {
    m_notes = notes;
    ++m_round;
}

void Globals::release(std::uint32_t slot) noexcept {
    Info& info = m_info[slot];
    if (--info.holders > 0 || info.kind != GlobalKind::Undefined) {
        return;
    }
    m_slots[info.symbol] = none;
    m_values[slot] = Value(Type::Undefined, 0);
    info.nextFree = std::exchange(m_free, slot);
}

bool Globals::holdsFixedArray(std::uint32_t slot) const noexcept {
    return m_values[slot].isArray() && m_values[slot].array()->fixed();
}

void Globals::define(std::uint32_t slot, GlobalKind kind, Value value, bool predefined) {
    m_info[slot].kind = kind;
    m_info[slot].predefined = predefined;
    m_values[slot] = std::move(value);
}

UnitNames::UnitNames(SymbolTable& symbols, Globals& globals) noexcept : m_symbols(symbols), m_globals(globals) {
    m_symbols.noteIn(&m_heldSymbols);
    m_globals.noteIn(&m_heldSlots);
}

UnitNames::~UnitNames() {
    close();
    for (const std::uint32_t slot : m_heldSlots) {
        m_globals.release(slot);
    }
    for (const Symbol symbol : m_heldSymbols) {
        m_symbols.release(symbol);
    }
}

void UnitNames::close() noexcept {
    if (std::exchange(m_open, false)) {
        m_symbols.noteIn(nullptr);
        m_globals.noteIn(nullptr);
    }
}

} // namespace vbs
