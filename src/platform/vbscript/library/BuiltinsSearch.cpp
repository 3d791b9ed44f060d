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
    const std::size_t last = end - needle.size(); // the first to be tried
    const std::size_t back = searchPlaces(context, last + 1, needle.size(), [&](std::size_t first, std::size_t behind) {
        while (first < behind && !matchesAt(text.view(), needle.view(), last - first, comparison)) {
            ++first;
        }
        return first < behind ? first : std::u16string_view::npos;
    });
    return Value::ofLong(back != std::u16string_view::npos ? static_cast<std::int32_t>(last - back) + 1 : 0);
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

std::size_t findText(Context& context, std::u16string_view text, std::u16string_view needle, std::size_t from,
                     TextComparison comparison) {
    constexpr std::size_t npos = std::u16string_view::npos;
    if (needle.empty()) {
        return from <= text.size() ? from : npos;
    }
    if (from >= text.size() || text.size() - from < needle.size()) {
        return npos;
    }
    const std::u16string_view rest = text.substr(from);
    const auto firstOf = [rest, needle, comparison](std::size_t first, std::size_t end) {
        if (comparison == TextComparison::Binary) {
            return rest.substr(0, end + needle.size() - 1).find(needle, first);
        }
        while (first < end && !matchesAt(rest, needle, first, comparison)) {
            ++first;
        }
        return first < end ? first : npos;
    };
    const std::size_t found = searchPlaces(context, rest.size() - needle.size() + 1, needle.size(), firstOf);
    return found != npos ? from + found : npos;
}

std::span<const Builtin> searchBuiltins() {
    return table;
}

} // namespace vbs
