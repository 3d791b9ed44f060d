// A hash table from script values to script values that keeps the order of insertion; what a Dictionary is made of.
//
// Numbers are one key whatever their type (1 and 1.0), a text is never a number, objects are keys by identity; Empty
// and Null are keys of their own. Arrays are no keys: hashing one raises error 5. No operation runs code of the script.
#pragma once

#include "platform/vbscript/value/Value.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vbs {

class KeyedTable {
public:
    struct Entry {
        Value key;
        Value item;
        std::uint32_t hash = 0;
        bool alive = false; // a removed entry keeps its place until the table is built anew
    };

    KeyedTable() noexcept = default;
    ~KeyedTable();
    KeyedTable(const KeyedTable&) = delete;
    KeyedTable& operator=(const KeyedTable&) = delete;

    std::size_t count() const noexcept { return count_; }
    // In order of insertion; skip those that are not alive.
    const std::vector<Entry>& entries() const noexcept { return entries_; }

    bool ignoresCase() const noexcept { return ignoresCase_; }
    void setIgnoresCase(bool ignoresCase) noexcept; // only while empty

    // The item under a key, or null. The pointer holds until the table changes.
    Value* find(const Value& key);
    // The same for a number or text; null for other keys too.
    Value* findPlain(const Value& key) noexcept;
    // The item under a key, which is added with an Empty item if it is missing.
    Value& findOrAdd(const Value& key);
    // False, and nothing done, if the key is there already.
    bool add(const Value& key, const Value& item);
    // False if the key is not there.
    bool remove(const Value& key);
    // Gives an entry another key and leaves it in its place; the new key must not be there.
    void rename(const Value& key, const Value& newKey);
    void clear() noexcept;

private:
    struct Slot {
        std::uint32_t entry = 0; // number of the entry from 1; 0 is free
        std::uint32_t hash = 0;
    };

    // The text looked for last. Scripts ask for one key several times in a row (Exists, read, write), and while its
    // block is held here nobody can change it, so the same block is the same key.
    struct Recent {
        Value key;
        std::uint32_t hash = 0;
        std::uint32_t entry = 0; // number of its entry from 1; 0 if there was none or it moved
    };

    std::uint32_t hashOf(const Value& key) const;
    bool same(const Value& a, const Value& b) const noexcept;
    Entry* locate(const Value& key, std::uint32_t& hash); // gives the hash too
    Entry* probe(const Value& key, std::uint32_t hash) noexcept;
    Value& append(const Value& key, std::uint32_t hash);
    void place(std::uint32_t number, std::uint32_t hash) noexcept;
    void makeRoom(); // for one more slot
    void rebuild();

    std::vector<Entry> entries_;
    std::vector<Slot> slots_;   // a power of two, at most half in use
    std::size_t usedSlots_ = 0; // those of removed entries and former keys included
    std::size_t count_ = 0;
    std::size_t charged_ = 0; // bytes
    Recent recent_;
    bool ignoresCase_ = false;
};

} // namespace vbs
