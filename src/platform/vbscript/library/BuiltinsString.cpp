// Intrinsic functions that cut, pad, fold and compare texts.
#include "platform/text/CodePage.h"
#include "platform/vbscript/library/BuiltinArguments.h"
#include "platform/vbscript/value/Collation.h"
#include "platform/vbscript/value/Work.h"

#include <algorithm>

namespace vbs {

namespace {

// A part of an argument: shared when it is the whole text, from the engine's stock when it is one character.
Value part(Context& context, const Value& argument, std::u16string_view text, std::size_t from, std::size_t length) {
    if (length == text.size() && argument.isString()) {
        return argument;
    }
    return length == 1 ? context.character(text[from]) : Value::ofString(text.substr(from, length));
}

Value len(Context& context, Arguments arguments) {
    Value& v = arguments[0];
    if (isNullArgument(context, v)) {
        return Value::null();
    }
    const std::size_t size = v.isString() ? v.text().size() : toString(context, v).size();
    return Value::ofLong(static_cast<std::int32_t>(size));
}

// The numbers of Left, Right, Mid and String are checked before a Null text is let through.
Value left(Context& context, Arguments arguments) {
    const std::size_t wanted = countArgument(context, arguments[1]);
    if (isNullArgument(context, arguments[0])) {
        return Value::null();
    }
    const TextArgument text(context, arguments[0]);
    const std::size_t length = std::min(wanted, text.size());
    return part(context, arguments[0], text.view(), 0, length);
}

Value right(Context& context, Arguments arguments) {
    const std::size_t wanted = countArgument(context, arguments[1]);
    if (isNullArgument(context, arguments[0])) {
        return Value::null();
    }
    const TextArgument text(context, arguments[0]);
    const std::size_t length = std::min(wanted, text.size());
    return part(context, arguments[0], text.view(), text.size() - length, length);
}

// Mid(text, start[, length]): start from 1; without a length up to the end.
Value mid(Context& context, Arguments arguments) {
    const Section section = sectionArguments(context, arguments);
    if (isNullArgument(context, arguments[0])) {
        return Value::null();
    }
    const TextArgument text(context, arguments[0]);
    const std::size_t from = std::min(section.from, text.size());
    return part(context, arguments[0], text.view(), from, std::min(section.length, text.size() - from));
}

// Only the blank is trimmed, not tabs or line ends.
Value trimmed(Context& context, Value& argument, bool front, bool back) {
    if (isNullArgument(context, argument)) {
        return Value::null();
    }
    const TextArgument text(context, argument);
    std::size_t from = 0;
    std::size_t end = text.size();
    while (front && from < end && text.view()[from] == u' ') {
        ++from;
    }
    while (back && end > from && text.view()[end - 1] == u' ') {
        --end;
    }
    return part(context, argument, text.view(), from, end - from);
}

Value ltrim(Context& context, Arguments arguments) {
    return trimmed(context, arguments[0], true, false);
}

Value rtrim(Context& context, Arguments arguments) {
    return trimmed(context, arguments[0], false, true);
}

Value trim(Context& context, Arguments arguments) {
    return trimmed(context, arguments[0], true, true);
}

template <char16_t (*map)(char16_t) noexcept>
Value mapped(Context& context, Value& argument) {
    if (isNullArgument(context, argument)) {
        return Value::null();
    }
    String text = toString(context, argument);
    const std::u16string_view old = text.view();
    const auto changed = std::find_if(old.begin(), old.end(), [](char16_t c) { return map(c) != c; });
    if (changed == old.end()) {
        return Value::ofString(std::move(text));
    }
    const auto from = changed - old.begin();
    char16_t* units = text.mutableData();
    std::transform(units + from, units + text.size(), units + from, map);
    return Value::ofString(std::move(text));
}

Value lcase(Context& context, Arguments arguments) {
    return mapped<toLower>(context, arguments[0]);
}

Value ucase(Context& context, Arguments arguments) {
    return mapped<toUpper>(context, arguments[0]);
}

Value space(Context& context, Arguments arguments) {
    return Value::ofString(String::repeated(countArgument(context, arguments[0]), u' '));
}

// String(count, character): a text stands for its first character, a number for its code modulo 256.
Value repeated(Context& context, Arguments arguments) {
    const std::size_t count = isNullArgument(context, arguments[0]) ? 0 : countArgument(context, arguments[0]);
    if (arguments[0].isNull() || isNullArgument(context, arguments[1])) {
        return Value::null();
    }
    const Value& character = arguments[1];
    if (character.isString()) {
        if (character.text().empty()) {
            raise(ErrorNumber::InvalidCall);
        }
        return Value::ofString(String::repeated(count, character.text().front()));
    }
    const auto code = static_cast<std::uint8_t>(longArgument(context, character) & 0xFF);
    return Value::ofString(String::repeated(count, text::fromAnsi(code)));
}

Value strReverse(Context& context, Arguments arguments) {
    String text = toString(context, arguments[0]);
    if (text.size() > 1) {
        char16_t* units = text.mutableData();
        std::reverse(units, units + text.size());
    }
    return Value::ofString(std::move(text));
}

Value strComp(Context& context, Arguments arguments) {
    const TextComparison comparison = comparisonArgument(context, arguments, 2);
    if (isNullArgument(context, arguments[0]) || isNullArgument(context, arguments[1])) {
        return Value::null();
    }
    const TextArgument a(context, arguments[0]);
    const TextArgument b(context, arguments[1]);
    chargeWalk(std::min(a.size(), b.size()) * sizeof(char16_t) * (comparison == TextComparison::Text ? 4 : 1));
    const int order =
        comparison == TextComparison::Text ? collate(a.view(), b.view(), context.locale()) : a.view().compare(b.view());
    return Value::ofInteger(static_cast<std::int16_t>((order > 0) - (order < 0)));
}

constexpr Builtin table[] = {
    {u"LCase", 1, 1, lcase},
    {u"Left", 2, 2, left},
    {u"Len", 1, 1, len},
    {u"LTrim", 1, 1, ltrim},
    {u"Mid", 2, 3, mid},
    {u"Right", 2, 2, right},
    {u"RTrim", 1, 1, rtrim},
    {u"Space", 1, 1, space},
    {u"StrComp", 2, 3, strComp},
    {u"String", 2, 2, repeated},
    {u"StrReverse", 1, 1, strReverse},
    {u"Trim", 1, 1, trim},
    {u"UCase", 1, 1, ucase},
};

} // namespace

std::span<const Builtin> stringBuiltins() {
    return table;
}

} // namespace vbs
