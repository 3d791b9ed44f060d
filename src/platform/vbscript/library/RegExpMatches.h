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
    ValueList(std::u16string_view name, Value array) : name_(name), array_(std::move(array)) {}

    static std::span<const Member> members();
    std::u16string_view typeName() const override { return name_; }
    std::unique_ptr<Enumerator> enumerate(Context& context) override;

private:
    Value item(Context& context, Access access, Arguments arguments);
    Value count(Context& context, Access access, Arguments arguments);

    MemoryCharge charge_{sizeof(ValueList)};
    std::u16string_view name_;
    Value array_;
};

class Match : public NativeObject<Match> {
public:
    // `firstIndex` from 0; `subMatches`: an array value, Empty for a group that took no part.
    Match(Value text, std::int32_t firstIndex, Value subMatches)
        : text_(std::move(text)), firstIndex_(firstIndex), subMatches_(std::move(subMatches)) {}

    static std::span<const Member> members();
    std::u16string_view typeName() const override { return u"IMatch2"; }

private:
    Value value(Context& context, Access access, Arguments arguments);
    Value firstIndex(Context& context, Access access, Arguments arguments);
    Value length(Context& context, Access access, Arguments arguments);
    Value subMatches(Context& context, Access access, Arguments arguments);

    MemoryCharge charge_{sizeof(Match)};
    Value text_;
    std::int32_t firstIndex_;
    Value subMatches_;
};

} // namespace vbs
