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

// Place of `needle` at or after `from`, or npos. An empty needle is found at `from`.
std::size_t findText(Context& context, std::u16string_view text, std::u16string_view needle, std::size_t from,
                     TextComparison comparison);

} // namespace vbs
