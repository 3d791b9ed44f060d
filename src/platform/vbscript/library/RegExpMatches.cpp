#include "platform/vbscript/library/RegExpMatches.h"

#include "platform/vbscript/value/ArrayEnumerator.h"
#include "platform/vbscript/value/Convert.h"

namespace vbs {

std::span<const ValueList::Member> ValueList::members() {
    static constexpr Member table[] = {
        {u"Item", &ValueList::item, readOnly, 1, 1},
        {u"Count", &ValueList::count, readOnly, 0, 0},
    };
    return table;
}

std::unique_ptr<Enumerator> ValueList::enumerate(Context& /*context*/) {
    return std::make_unique<ArrayEnumerator>(array_);
}

Value ValueList::item(Context& context, Access /*access*/, Arguments arguments) {
    const std::int32_t index = toLong(context, arguments[0]);
    if (index < 0 || static_cast<std::size_t>(index) >= array_.array()->count()) {
        raise(ErrorNumber::InvalidCall);
    }
    return array_.array()->elements()[index];
}

Value ValueList::count(Context& /*context*/, Access /*access*/, Arguments /*arguments*/) {
    return Value::ofLong(static_cast<std::int32_t>(array_.array()->count()));
}

std::span<const Match::Member> Match::members() {
    static constexpr Member table[] = {
        {u"Value", &Match::value, readOnly, 0, 0},
        {u"FirstIndex", &Match::firstIndex, readOnly, 0, 0},
        {u"Length", &Match::length, readOnly, 0, 0},
        {u"SubMatches", &Match::subMatches, readOnly, 0, 1},
    };
    return table;
}

Value Match::value(Context& /*context*/, Access /*access*/, Arguments /*arguments*/) {
    return text_;
}

Value Match::firstIndex(Context& /*context*/, Access /*access*/, Arguments /*arguments*/) {
    return Value::ofLong(firstIndex_);
}

Value Match::length(Context& /*context*/, Access /*access*/, Arguments /*arguments*/) {
    return Value::ofLong(static_cast<std::int32_t>(text_.text().size()));
}

// SubMatches, or SubMatches(index) at once.
Value Match::subMatches(Context& context, Access /*access*/, Arguments arguments) {
    const auto list = makeObject<ValueList>(std::u16string_view(u"ISubMatches"), subMatches_);
    return arguments.empty() ? list.value() : list->invoke(context, defaultMember, Access::Get, arguments);
}

} // namespace vbs
