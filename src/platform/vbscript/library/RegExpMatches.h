// What RegExp.Execute answers: a collection of matches, each with its place, its text and the texts of its groups.
// All of them are read-only snapshots; they do not refer to the RegExp object.
#pragma once

#include "platform/vbscript/value/Memory.h"
#include "platform/vbscript/value/Object.h"

#include <cstdint>
#include <utility>

namespace vbs {

// A read-only list: Item(index) from 0 (default member), Count, For Each. Matches and SubMatches are such lists.
class ValueList : public NativeObject<ValueList> {
public:
    // `name` for TypeName; `array`: the elements, an array value of one dimension.
    ValueList(std::u16string_view name, Value array) : m_name(name), m_array(std::move(array)) {}

    static std::span<const Member> members();
    std::u16string_view typeName() const override { return m_name; }
    std::unique_ptr<Enumerator> enumerate(Context& context) override;

private:
    Value item(Context& context, Access access, Arguments arguments);
    Value count(Context& context, Access access, Arguments arguments);

    MemoryCharge m_charge{sizeof(ValueList)};
    std::u16string_view m_name;
    Value m_array;
};

class Match : public NativeObject<Match> {
public:
    // `firstIndex` from 0; `subMatches`: an array value, Empty for a group that took no part.
    Match(Value text, std::int32_t firstIndex, Value subMatches)
        : m_text(std::move(text)), m_firstIndex(firstIndex), m_subMatches(std::move(subMatches)) {}

    static std::span<const Member> members();
    std::u16string_view typeName() const override { return u"IMatch2"; }

private:
    Value value(Context& context, Access access, Arguments arguments);
    Value firstIndex(Context& context, Access access, Arguments arguments);
    Value length(Context& context, Access access, Arguments arguments);
    Value subMatches(Context& context, Access access, Arguments arguments);

    MemoryCharge m_charge{sizeof(Match)};
    Value m_text;
    std::int32_t m_firstIndex;
    Value m_subMatches;
};

} // namespace vbs
