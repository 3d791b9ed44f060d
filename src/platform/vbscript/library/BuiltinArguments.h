// How intrinsic functions read their arguments: whole numbers on a short road, and the arguments that many functions
// have in common (kind of comparison, first day of the week). Texts are read through TextArgument (Convert.h).
#pragma once

#include "platform/vbscript/library/Builtins.h"

#include <string_view>

namespace vbs {

inline std::int32_t longArgument(Context& context, const Value& v) {
    return v.isWhole() ? static_cast<std::int32_t>(v.n) : toLong(context, v);
}

// The argument at `i`, or `otherwise` if it was left out.
inline std::int32_t longArgument(Context& context, Arguments arguments, std::size_t i, std::int32_t otherwise) {
    const Value* v = optional(arguments, i);
    return v != nullptr ? longArgument(context, *v) : otherwise;
}

inline bool booleanArgument(Context& context, Arguments arguments, std::size_t i, bool otherwise) {
    const Value* v = optional(arguments, i);
    return v != nullptr ? toBoolean(context, *v) : otherwise;
}

// A length or count: not negative, else error 5.
inline std::size_t countArgument(Context& context, const Value& v) {
    const std::int32_t count = longArgument(context, v);
    if (count < 0) {
        raise(ErrorNumber::InvalidCall);
    }
    return static_cast<std::size_t>(count);
}

// Whether the argument is Null. An object gives way to the value of its default member, which may be Null as well.
inline bool isNullArgument(Context& context, Value& argument) {
    if (argument.isObject()) {
        argument = context.defaultValue(argument);
    }
    return argument.isNull();
}

// Raises 94 if one of them is Null, before any other is looked at.
inline void refuseNull(Context& context, Arguments arguments) {
    for (Value& argument : arguments) {
        if (isNullArgument(context, argument)) {
            raise(ErrorNumber::InvalidNull);
        }
    }
}

// The part of a text that Mid and MidB are asked for.
struct Section {
    std::size_t from; // counts from 0
    std::size_t length;
};

// The start (from 1) and the optional length in the second and third argument: both are converted before either is
// checked; raises 94 for Null, 5 for a start below 1 or a negative length.
inline Section sectionArguments(Context& context, Arguments arguments) {
    refuseNull(context, arguments.subspan(1));
    const std::int32_t start = longArgument(context, arguments[1]);
    const std::int32_t length = longArgument(context, arguments, 2, String::maxLength);
    if (start < 1 || length < 0) {
        raise(ErrorNumber::InvalidCall);
    }
    return {static_cast<std::size_t>(start) - 1, static_cast<std::size_t>(length)};
}

enum class TextComparison : bool { Binary, Text };

// vbBinaryCompare (also when left out) or vbTextCompare; anything else raises 5.
inline TextComparison comparisonArgument(Context& context, Arguments arguments, std::size_t i) {
    const std::int32_t kind = longArgument(context, arguments, i, 0);
    if (kind != 0 && kind != 1) {
        raise(ErrorNumber::InvalidCall);
    }
    return kind == 1 ? TextComparison::Text : TextComparison::Binary;
}

// 1 (Sunday, also when left out) to 7; 0 stands for the locale's own. Anything else raises 5.
inline int firstDayArgument(Context& context, Arguments arguments, std::size_t i) {
    const std::int32_t day = longArgument(context, arguments, i, 1);
    if (day < 0 || day > 7) {
        raise(ErrorNumber::InvalidCall);
    }
    return day == 0 ? context.locale().firstDayOfWeek : day;
}

// The first of `places` places, numbered from 0, where something fits, or npos. `firstOf(from, to)` tells it for the
// places from `from` to before `to`; a place costs up to `comparisons`. Looks at the clock on the way.
template <class FirstOf>
std::size_t searchPlaces(Context& context, std::size_t places, std::size_t comparisons, FirstOf firstOf) {
    constexpr std::size_t atATime = std::size_t{64} * 1024; // comparisons
    constexpr std::size_t aTurn = 8;                        // of an empty loop
    const std::size_t step = atATime / comparisons + 1;
    for (std::size_t from = 0; from < places; from += step) {
        const std::size_t to = std::min(from + step, places);
        const std::size_t found = firstOf(from, to);
        const std::size_t tried = (found == std::u16string_view::npos ? to : found + 1) - from;
        if (tried * comparisons >= atATime / 64) {
            context.spend(tried * comparisons / aTurn);
        }
        if (found != std::u16string_view::npos) {
            return found;
        }
    }
    return std::u16string_view::npos;
}

// Place of `needle` at or after `from`, or npos. An empty needle is found at `from`.
std::size_t findText(Context& context, std::u16string_view text, std::u16string_view needle, std::size_t from,
                     TextComparison comparison);

} // namespace vbs
