// The names of an engine's global scope and their values. Slots never move, so code addresses them directly.
#pragma once

#include "platform/vbscript/syntax/Ast.h"
#include "platform/vbscript/value/Value.h"

#include <cstddef>
#include <vector>

namespace vbs {

enum class GlobalKind : std::uint8_t { Undefined, Variable, Constant, Callable, Object };

class Globals {
public:
    static constexpr std::size_t capacity = 16384;

    Globals();
    ~Globals();
    Globals(const Globals&) = delete;
    Globals& operator=(const Globals&) = delete;

    static constexpr std::uint32_t none = 0xffffffff;

    std::uint32_t find(Symbol symbol) const noexcept { return symbol < m_slots.size() ? m_slots[symbol] : none; }
    // The slot of a name, made if need be (Undefined). Raises CompileError 1001 when there are too many names.
    std::uint32_t slotOf(Symbol symbol);

    GlobalKind kind(std::uint32_t slot) const noexcept { return m_info[slot].kind; }
    bool predefined(std::uint32_t slot) const noexcept { return m_info[slot].predefined; }
    Symbol symbol(std::uint32_t slot) const noexcept { return m_info[slot].symbol; }
    // Takes back the slots from number `size` on; none of them may be defined or in use by code.
    void forgetFrom(std::size_t size);
    // The pass that last declared or made the variable, and whether as an array.
    struct Declared {
        std::uint32_t pass = 0;
        bool array = false;
    };
    Declared& declared(std::uint32_t slot) noexcept { return m_info[slot].declared; }
    Declared declared(std::uint32_t slot) const noexcept { return m_info[slot].declared; }
    void define(std::uint32_t slot, GlobalKind kind, Value value, bool predefined = false);

    Value& operator[](std::uint32_t slot) noexcept { return m_values[slot]; }
    Value* values() noexcept { return m_values; }
    std::size_t size() const noexcept { return m_info.size(); }

private:
    struct Info {
        Symbol symbol;
        GlobalKind kind = GlobalKind::Undefined;
        bool predefined = false;
        Declared declared{};
    };
    Value* m_values;
    std::vector<Info> m_info;
    std::vector<std::uint32_t> m_slots; // by symbol
};

} // namespace vbs
