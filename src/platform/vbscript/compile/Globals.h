// The names of an engine's global scope and their values. Slots never move, so code addresses them directly. The slot
// of a name that nothing has defined goes back when the last unit that mentions it has gone.
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

    std::uint32_t find(Symbol symbol) const noexcept { return symbol < slots_.size() ? slots_[symbol] : none; }
    bool full() const noexcept { return free_ == none && info_.size() == capacity; }
    // The slot of a name, made if need be (Undefined); noted if somebody notes. Raises CompileError 1903 if full.
    std::uint32_t slotOf(Symbol symbol);

    GlobalKind kind(std::uint32_t slot) const noexcept { return info_[slot].kind; }
    bool predefined(std::uint32_t slot) const noexcept { return info_[slot].predefined; }
    Symbol symbol(std::uint32_t slot) const noexcept { return info_[slot].symbol; }
    // From now on every slot that is asked for gets a holder and goes into `notes`, once; null ends that.
    void noteIn(std::vector<std::uint32_t>* notes) noexcept;
    // The last holder's release takes the slot back if nothing has defined it.
    void release(std::uint32_t slot) noexcept;
    // The pass that last declared or made the variable, and whether as an array.
    struct Declared {
        std::uint32_t pass = 0;
        bool array = false;
    };
    Declared& declared(std::uint32_t slot) noexcept { return info_[slot].declared; }
    Declared declared(std::uint32_t slot) const noexcept { return info_[slot].declared; }
    void define(std::uint32_t slot, GlobalKind kind, Value value, bool predefined = false);

    bool holdsFixedArray(std::uint32_t slot) const noexcept;
    Value& operator[](std::uint32_t slot) noexcept { return values_[slot]; }
    Value* values() noexcept { return values_; }
    std::size_t size() const noexcept { return info_.size(); }

private:
    struct Info {
        Symbol symbol = noSymbol;
        GlobalKind kind = GlobalKind::Undefined;
        bool predefined = false;
        Declared declared{};
        std::uint32_t holders = 0;
        std::uint32_t round = 0; // of the notes that have it
        std::uint32_t nextFree = none;
    };
    Value* values_;
    std::vector<Info> info_;
    std::vector<std::uint32_t> slots_; // by symbol
    std::uint32_t free_ = none;
    std::vector<std::uint32_t>* notes_ = nullptr;
    std::uint32_t round_ = 0;
};

// What a unit mentions: it holds every name and slot that is asked for between its making and close(), for as long as
// it lives itself.
class UnitNames {
public:
    UnitNames(SymbolTable& symbols, Globals& globals) noexcept;
    ~UnitNames();
    UnitNames(const UnitNames&) = delete;
    UnitNames& operator=(const UnitNames&) = delete;

    void close() noexcept;

private:
    SymbolTable& symbols_;
    Globals& globals_;
    std::vector<Symbol> heldSymbols_;
    std::vector<std::uint32_t> heldSlots_;
    bool open_ = true;
};

} // namespace vbs
