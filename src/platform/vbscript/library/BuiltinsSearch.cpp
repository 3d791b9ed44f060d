// Intrinsic functions that look for a text in another: InStr, InStrRev, Replace.
#include "platform/vbscript/library/BuiltinArguments.h"

#include <algorithm>

namespace vbs {

namespace {

bool matchesAt(std::u16string_view text, std::u16string_view needle, std::size_t at,
               TextComparison comparison) noexcept {
    const std::u16string_view here = text.substr(at, needle.size());
    return comparison == TextComparison::Text ? equalNoCase(here, needle) : here == needle;
}

// InStr([start, ]text, needle[, comparison]): place from 1, or 0.
Value inStr(Context& context, Arguments arguments) {
    const std::size_t first = arguments.size() > 2 ? 1 : 0;
    const std::int32_t start = first == 1 ? longArgument(context, arguments, 0, 1) : 1;
    const TextComparison comparison = comparisonArgument(context, arguments, 3);
    if (start < 1) {
        raise(ErrorNumber::InvalidCall);
    }
    if (isNullArgument(context, arguments[first]) || isNullArgument(context, arguments[first + 1])) {
        return Value::null();
    }
    const TextArgument text(context, arguments[first]);
    const TextArgument needle(context, arguments[first + 1]);
    const auto from = static_cast<std::size_t>(start) - 1;
    if (from >= text.size()) {
        return Value::ofLong(0);
    }
    const std::size_t at = findText(context, text.view(), needle.view(), from, comparison);
    return Value::ofLong(at != std::u16string_view::npos ? static_cast<std::int32_t>(at) + 1 : 0);
}

// InStrRev(text, needle[, start[, comparison]]): looks backwards; the find ends at `start` at the latest.
Value inStrRev(Context& context, Arguments arguments) {
    refuseNull(context, arguments);
    const std::int32_t start = longArgument(context, arguments, 2, -1);
    const TextComparison comparison = comparisonArgument(context, arguments, 3);
    if (start == 0 || start < -1) {
        raise(ErrorNumber::InvalidCall);
    }
    const TextArgument text(context, arguments[0]);
    const TextArgument needle(context, arguments[1]);
    const std::size_t end = start == -1 ? text.size() : static_cast<std::size_t>(start);
    if (text.size() == 0 || end > text.size() || needle.size() > end) {
        return Value::ofLong(0);
    }
    if (needle.size() == 0) {
        return Value::ofLong(static_cast<std::int32_t>(end));
    }
    for (std::size_t at = end - needle.size() + 1; at-- > 0;) {
        if (matchesAt(text.view(), needle.view(), at, comparison)) {
            return Value::ofLong(static_cast<std::int32_t>(at) + 1);
        }
    }
    return Value::ofLong(0);
}

// Replace(text, needle, by[, start[, count[, comparison]]]): what stands before `start` is not in the result.
Value replace(Context& context, Arguments arguments) {
    const TextArgument whole(context, arguments[0]);
    const TextArgument needle(context, arguments[1]);
    const TextArgument by(context, arguments[2]);
    const std::int32_t start = longArgument(context, arguments, 3, 1);
    std::int32_t count = longArgument(context, arguments, 4, -1);
    const TextComparison comparison = comparisonArgument(context, arguments, 5);
    if (start < 1 || count < -1) {
        raise(ErrorNumber::InvalidCall);
    }
    const std::u16string_view text = whole.view().substr(std::min(static_cast<std::size_t>(start) - 1, whole.size()));
    String result;
    std::size_t copied = 0;
    for (std::size_t at = 0; needle.size() > 0 && count != 0; --count) {
        at = findText(context, text, needle.view(), at, comparison);
        if (at == std::u16string_view::npos) {
            break;
        }
        result.append(text.substr(copied, at - copied));
        result.append(by.view());
        at += needle.size();
        copied = at;
    }
    if (copied == 0 && text.size() == whole.size() && arguments[0].isString()) {
        return arguments[0];
    }
    result.append(text.substr(copied));
    return Value::ofString(std::move(result));
}

constexpr Builtin table[] = {
    {u"InStr", 2, 4, inStr},
    {u"InStrRev", 2, 4, inStrRev},
    {u"Replace", 3, 6, replace},
};

} // namespace

namespace {

constexpr std::size_t comparisonsATurn = 4'000'000; // between two looks at the clock

// The first of the places from `from` to before `end` where the needle stands, or npos.
std::size_t findWithin(std::u16string_view text, std::u16string_view needle, std::size_t from, std::size_t end,
                       TextComparison comparison) noexcept {
    text = text.substr(0, end + needle.size() - 1);
    if (comparison == TextComparison::Binary) {
        return text.find(needle, from);
    }
    for (std::size_t at = from; at + needle.size() <= text.size(); ++at) {
        if (matchesAt(text, needle, at, comparison)) {
            return at;
        }
    }
    return std::u16string_view::npos;
}

} // namespace

std::size_t findText(Context& context, std::u16string_view text, std::u16string_view needle, std::size_t from,
                     TextComparison comparison) {
    if (needle.empty()) {
        return from <= text.size() ? from : std::u16string_view::npos;
    }
    const std::size_t places = comparisonsATurn / needle.size() + 1;
    while (from + needle.size() <= text.size()) {
        const std::size_t end = std::min(from + places, text.size() - needle.size() + 1);
        const std::size_t found = findWithin(text, needle, from, end, comparison);
        if (found != std::u16string_view::npos) {
            return found;
        }
        from = end;
        if (places < text.size()) {
            context.spend(comparisonsATurn);
        }
    }
    return std::u16string_view::npos;
}

std::span<const Builtin> searchBuiltins() {
    return table;
}

} // namespace vbs
