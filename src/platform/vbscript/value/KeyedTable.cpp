#include "platform/vbscript/value/KeyedTable.h"

#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Errors.h"
#include "platform/vbscript/value/Memory.h"
#include "platform/vbscript/value/Work.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace vbs {

namespace {

constexpr std::uint64_t multiplier = 0x9E3779B97F4A7C15; // 2^64 by the golden ratio

std::uint64_t mixed(std::uint64_t h, std::uint64_t word) noexcept {
    h = (h ^ word) * multiplier;
    return h ^ (h >> 29);
}

std::uint32_t folded(std::uint64_t h) noexcept {
    return static_cast<std::uint32_t>(h ^ (h >> 32));
}

// Eight bytes at a time; the last eight may overlap those before them. Fewer than four units make one word.
std::uint64_t hashOfText(std::u16string_view text) noexcept {
    const std::size_t size = text.size();
    if (size < unitsPerWord) {
        std::uint64_t word = size;
        for (const char16_t c : text) {
            word = word << 16 | c;
        }
        return mixed(0, word);
    }
    std::uint64_t h = size;
    for (std::size_t i = 0; i + unitsPerWord < size; i += unitsPerWord) {
        h = mixed(h, wordAt(text.data() + i));
    }
    return mixed(h, wordAt(text.data() + size - unitsPerWord));
}

std::uint64_t hashIgnoringCase(std::u16string_view text) noexcept {
    std::uint64_t h = text.size();
    for (const char16_t c : text) {
        h = mixed(h, toLower(c));
    }
    return h;
}

bool isNumber(const Value& v) noexcept {
    return v.type <= Type::Byte;
}

bool holdsReal(const Value& v) noexcept {
    return v.type == Type::Double || v.type == Type::Single || v.type == Type::Date;
}

// Equal numbers have equal hashes, so a whole real counts as integer.
std::uint64_t hashOfNumber(const Value& v) noexcept {
    if (!holdsReal(v) && v.type != Type::Currency) {
        return mixed(1, static_cast<std::uint64_t>(v.n));
    }
    const double x = plainNumber(v);
    const bool whole = std::fabs(x) < 9e15 && x == std::trunc(x);
    return mixed(1, whole ? static_cast<std::uint64_t>(static_cast<std::int64_t>(x)) : std::bit_cast<std::uint64_t>(x));
}

Type kindOf(const Value& v) noexcept {
    return isNumber(v) ? Type::Double : v.type == Type::Undefined ? Type::Empty : v.type;
}

} // namespace

KeyedTable::~KeyedTable() {
    releaseMemory(charged_);
}

void KeyedTable::setIgnoresCase(bool ignoresCase) noexcept {
    ignoresCase_ = ignoresCase;
    recent_ = {};
}

std::uint32_t KeyedTable::hashOf(const Value& key) const {
    if (key.isString()) {
        chargeWalk(key.text().size() * sizeof(char16_t));
        return folded(ignoresCase_ ? hashIgnoringCase(key.text()) : hashOfText(key.text()));
    }
    if (isNumber(key)) {
        return folded(hashOfNumber(key));
    }
    switch (kindOf(key)) {
    case Type::Object:
        return folded(mixed(2, std::bit_cast<std::uint64_t>(key.counted)));
    case Type::Empty:
    case Type::Null:
        return static_cast<std::uint32_t>(key.type);
    default:
        raise(ErrorNumber::InvalidCall);
    }
}

bool KeyedTable::same(const Value& a, const Value& b) const noexcept {
    if (a.isString() && b.isString()) {
        return a.counted == b.counted ||
               (ignoresCase_ ? equalNoCase(a.text(), b.text()) : sameUnits(a.text(), b.text()));
    }
    if (a.isWhole() && b.isWhole()) {
        return a.n == b.n;
    }
    if (kindOf(a) != kindOf(b)) {
        return false;
    }
    return isNumber(a) ? plainNumber(a) == plainNumber(b) : !a.isObject() || a.counted == b.counted;
}

KeyedTable::Entry* KeyedTable::probe(const Value& key, std::uint32_t hash) noexcept {
    if (slots_.empty()) {
        return nullptr;
    }
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = hash & mask; slots_[i].entry != 0; i = (i + 1) & mask) {
        if (slots_[i].hash == hash) {
            Entry& entry = entries_[slots_[i].entry - 1];
            if (entry.alive && entry.hash == hash && same(entry.key, key)) {
                return &entry;
            }
        }
    }
    return nullptr;
}

KeyedTable::Entry* KeyedTable::locate(const Value& key, std::uint32_t& hash) {
    if (!key.isString() || key.counted == nullptr) {
        hash = hashOf(key);
        return probe(key, hash);
    }
    if (recent_.key.counted == key.counted && recent_.key.isString()) {
        hash = recent_.hash;
        if (recent_.entry != 0) {
            return &entries_[recent_.entry - 1];
        }
        return probe(key, hash);
    }
    hash = hashOf(key);
    Entry* entry = probe(key, hash);
    recent_ = {key, hash, entry != nullptr ? static_cast<std::uint32_t>(entry - entries_.data()) + 1 : 0};
    return entry;
}

Value* KeyedTable::find(const Value& key) {
    std::uint32_t hash = 0;
    Entry* entry = locate(key, hash);
    return entry != nullptr ? &entry->item : nullptr;
}

Value* KeyedTable::findPlain(const Value& key) noexcept {
    return key.isString() || isNumber(key) ? find(key) : nullptr;
}

Value& KeyedTable::findOrAdd(const Value& key) {
    std::uint32_t hash = 0;
    Entry* entry = locate(key, hash);
    return entry != nullptr ? entry->item : append(key, hash);
}

bool KeyedTable::add(const Value& key, const Value& item) {
    std::uint32_t hash = 0;
    if (locate(key, hash) != nullptr) {
        return false;
    }
    append(key, hash) = item;
    return true;
}

bool KeyedTable::remove(const Value& key) {
    std::uint32_t hash = 0;
    Entry* entry = locate(key, hash);
    if (entry == nullptr) {
        return false;
    }
    recent_.entry = 0;
    entry->alive = false;
    --count_;
    entry->item.clear();
    entry->key.clear();
    return true;
}

void KeyedTable::rename(const Value& key, const Value& newKey) {
    const std::uint32_t hash = hashOf(newKey);
    makeRoom(); // the slot of the old key stays behind until the table is built anew
    Entry* entry = probe(key, hashOf(key));
    recent_.entry = 0;
    const Value oldKey = std::exchange(entry->key, newKey);
    entry->hash = hash;
    place(static_cast<std::uint32_t>(entry - entries_.data()) + 1, hash);
}

void KeyedTable::clear() noexcept {
    const std::vector<Entry> old = std::exchange(entries_, {});
    slots_ = {};
    recent_ = {};
    usedSlots_ = 0;
    count_ = 0;
    releaseMemory(std::exchange(charged_, 0));
}

Value& KeyedTable::append(const Value& key, std::uint32_t hash) {
    makeRoom();
    entries_.push_back({key, {}, hash, true});
    place(static_cast<std::uint32_t>(entries_.size()), hash);
    ++count_;
    return entries_.back().item;
}

void KeyedTable::place(std::uint32_t number, std::uint32_t hash) noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t i = hash & mask;
    while (slots_[i].entry != 0) {
        i = (i + 1) & mask;
    }
    slots_[i] = {number, hash};
    ++usedSlots_;
}

void KeyedTable::makeRoom() {
    if (usedSlots_ * 2 >= slots_.size()) {
        rebuild();
    }
}

// Drops removed entries and makes room for twice those that are left.
void KeyedTable::rebuild() {
    const std::size_t capacity = std::bit_ceil(std::max<std::size_t>(count_ * 2, 8));
    const std::size_t bytes = capacity * sizeof(Entry) + 2 * capacity * sizeof(Slot);
    chargeMemory(bytes);
    std::vector<Entry> entries;
    entries.reserve(capacity);
    std::vector<Slot> slots(2 * capacity);
    std::copy_if(std::make_move_iterator(entries_.begin()), std::make_move_iterator(entries_.end()),
                 std::back_inserter(entries), [](const Entry& entry) { return entry.alive; });
    entries_ = std::move(entries);
    slots_ = std::move(slots);
    recent_.entry = 0;
    usedSlots_ = 0;
    releaseMemory(std::exchange(charged_, bytes));
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        place(static_cast<std::uint32_t>(i) + 1, entries_[i].hash);
    }
}

} // namespace vbs
