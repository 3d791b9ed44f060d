// The B variants: texts seen as rows of bytes, two a character. Places count from 1, lengths in bytes.
#include "platform/vbscript/library/BuiltinArguments.h"

#include <algorithm>

namespace vbs {

namespace {

using Bytes = std::span<const std::uint8_t>;

Value textOf(Bytes bytes) {
    return Value::ofString(String::fromBytes(bytes));
}

Value ascB(Context& context, Arguments arguments) {
    const String text = toString(context, arguments[0]);
    if (text.bytes().empty()) {
        raise(ErrorNumber::InvalidCall);
    }
    return Value::ofByte(text.bytes().front());
}

Value chrB(Context& context, Arguments arguments) {
    const std::uint8_t byte = toByte(context, arguments[0]);
    return textOf({&byte, 1});
}

Value lenB(Context& context, Arguments arguments) {
    if (isNullArgument(context, arguments[0])) {
        return Value::null();
    }
    return Value::ofLong(static_cast<std::int32_t>(toString(context, arguments[0]).bytes().size()));
}

Value leftB(Context& context, Arguments arguments) {
    const std::size_t wanted = countArgument(context, arguments[1]);
    if (isNullArgument(context, arguments[0])) {
        return Value::null();
    }
    const String text = toString(context, arguments[0]);
    return textOf(text.bytes().first(std::min(wanted, text.bytes().size())));
}

Value rightB(Context& context, Arguments arguments) {
    const std::size_t wanted = countArgument(context, arguments[1]);
    if (isNullArgument(context, arguments[0])) {
        return Value::null();
    }
    const String text = toString(context, arguments[0]);
    return textOf(text.bytes().last(std::min(wanted, text.bytes().size())));
}

Value midB(Context& context, Arguments arguments) {
    const Section section = sectionArguments(context, arguments);
    if (isNullArgument(context, arguments[0])) {
        return Value::null();
    }
    const String text = toString(context, arguments[0]);
    const Bytes rest = text.bytes().subspan(std::min(section.from, text.bytes().size()));
    return textOf(rest.first(std::min(section.length, rest.size())));
}

// Place of the needle, which an empty one has at the front, or npos.
std::size_t findBytes(Context& context, Bytes text, Bytes needle) {
    if (needle.empty()) {
        return 0;
    }
    if (text.size() < needle.size()) {
        return std::u16string_view::npos;
    }
    return searchPlaces(context, text.size() - needle.size() + 1, needle.size(),
                        [text, needle](std::size_t first, std::size_t end) {
                            const Bytes within = text.subspan(first, end - first + needle.size() - 1);
                            const auto found = std::search(within.begin(), within.end(), needle.begin(), needle.end());
                            return found != within.end() ? first + static_cast<std::size_t>(found - within.begin())
                                                         : std::u16string_view::npos;
                        });
}

// InStrB([start, ]text, needle[, comparison]): bytes are compared as they are, whatever the comparison.
Value inStrB(Context& context, Arguments arguments) {
    const std::size_t first = arguments.size() > 2 ? 1 : 0;
    const std::int32_t start = first == 1 ? longArgument(context, arguments, 0, 1) : 1;
    comparisonArgument(context, arguments, 3);
    if (start < 1) {
        raise(ErrorNumber::InvalidCall);
    }
    if (isNullArgument(context, arguments[first]) || isNullArgument(context, arguments[first + 1])) {
        return Value::null();
    }
    const String text = toString(context, arguments[first]);
    const String needle = toString(context, arguments[first + 1]);
    const Bytes bytes = text.bytes();
    const auto from = static_cast<std::size_t>(start) - 1;
    if (from >= bytes.size()) {
        return Value::ofLong(0);
    }
    const std::size_t found = findBytes(context, bytes.subspan(from), needle.bytes());
    return Value::ofLong(found != std::u16string_view::npos ? static_cast<std::int32_t>(from + found) + 1 : 0);
}

constexpr Builtin table[] = {
    {u"AscB", 1, 1, ascB}, {u"ChrB", 1, 1, chrB}, {u"InStrB", 2, 4, inStrB}, {u"LeftB", 2, 2, leftB},
    {u"LenB", 1, 1, lenB}, {u"MidB", 2, 3, midB}, {u"RightB", 2, 2, rightB},
};

} // namespace

std::span<const Builtin> byteBuiltins() {
    return table;
}

} // namespace vbs
