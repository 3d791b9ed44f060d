#include "platform/vbscript/compile/Globals.h"

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
    if (m_slots[symbol] == none) {
        if (m_info.size() == capacity) {
            throw CompileError{ErrorNumber::OutOfMemoryCompiling, {1, 1}};
        }
        m_slots[symbol] = static_cast<std::uint32_t>(m_info.size());
        m_values[m_info.size()] = Value(Type::Undefined, 0);
        m_info.push_back({symbol});
    }
    return m_slots[symbol];
}

void Globals::forgetFrom(std::size_t size) {
    for (; m_info.size() > size; m_info.pop_back()) {
        m_slots[m_info.back().symbol] = none;
    }
}

void Globals::define(std::uint32_t slot, GlobalKind kind, Value value, bool predefined) {
    m_info[slot].kind = kind;
    m_info[slot].predefined = predefined;
    m_values[slot] = std::move(value);
}

} // namespace vbs
