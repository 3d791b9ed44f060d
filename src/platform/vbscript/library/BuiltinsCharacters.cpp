// Intrinsic functions between characters and their codes: Asc, Chr, their W variants, Escape, Unescape.
#include "platform/text/CodePage.h"
#include "platform/vbscript/library/BuiltinArguments.h"

#include <optional>

namespace vbs {

namespace {

char16_t firstUnit(Context& context, const Value& argument) {
    const TextArgument text(context, argument);
    if (text.size() == 0) {
        raise(ErrorNumber::InvalidCall);
    }
    return text.view().front();
}

Value asc(Context& context, Arguments arguments) {
    return Value::ofInteger(text::toAnsi(firstUnit(context, arguments[0])).value_or('?'));
}

// An Integer: codes from &H8000 upwards are negative.
Value ascW(Context& context, Arguments arguments) {
    return Value::ofInteger(static_cast<std::int16_t>(firstUnit(context, arguments[0])));
}

Value chr(Context& context, Arguments arguments) {
    const std::int32_t code = longArgument(context, arguments[0]);
    if (code < 0 || code > 255) {
        raise(ErrorNumber::InvalidCall);
    }
    return context.character(text::fromAnsi(static_cast<std::uint8_t>(code)));
}

Value chrW(Context& context, Arguments arguments) {
    const std::int32_t code = longArgument(context, arguments[0]);
    if (code < -32768 || code > 65535) {
        raise(ErrorNumber::InvalidCall);
    }
    return context.character(static_cast<char16_t>(code));
}

bool staysAsItIs(char16_t c) noexcept {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
           std::u16string_view(u"*@-_+./").find(c) != std::u16string_view::npos;
}

void appendHex(String& out, unsigned code, int digits) {
    for (int shift = (digits - 1) * 4; shift >= 0; shift -= 4) {
        const char16_t digit = u"0123456789ABCDEF"[(code >> shift) & 0xFU];
        out.append({&digit, 1});
    }
}

// Escape(text): %XX for a code below 256, %uXXXX for the others.
Value escape(Context& context, Arguments arguments) {
    const TextArgument text(context, arguments[0]);
    String out;
    for (const char16_t c : text.view()) {
        if (staysAsItIs(c)) {
            out.append({&c, 1});
        } else if (c < 256) {
            out.append(u"%");
            appendHex(out, c, 2);
        } else {
            out.append(u"%u");
            appendHex(out, c, 4);
        }
    }
    return Value::ofString(std::move(out));
}

// The number that exactly `count` hexadecimal digits at `from` make.
std::optional<char16_t> hexAt(std::u16string_view text, std::size_t from, std::size_t count) {
    if (from + count > text.size()) {
        return std::nullopt;
    }
    unsigned code = 0;
    for (std::size_t i = from; i < from + count; ++i) {
        const char16_t c = toLower(text[i]);
        if ((c < u'0' || c > u'9') && (c < u'a' || c > u'f')) {
            return std::nullopt;
        }
        code = code * 16 + static_cast<unsigned>(c <= u'9' ? c - u'0' : c - u'a' + 10);
    }
    return static_cast<char16_t>(code);
}

Value unescape(Context& context, Arguments arguments) {
    const TextArgument argument(context, arguments[0]);
    const std::u16string_view text = argument.view();
    String out;
    for (std::size_t i = 0; i < text.size();) {
        std::optional<char16_t> code;
        std::size_t length = 1;
        if (text[i] == u'%') {
            const bool wide = i + 1 < text.size() && (text[i + 1] == u'u' || text[i + 1] == u'U');
            code = wide ? hexAt(text, i + 2, 4) : hexAt(text, i + 1, 2);
            length = !code ? 1 : wide ? 6 : 3;
        }
        const char16_t unit = code.value_or(text[i]);
        out.append({&unit, 1});
        i += length;
    }
    return Value::ofString(std::move(out));
}

constexpr Builtin table[] = {
    {u"Asc", 1, 1, asc},   {u"AscW", 1, 1, ascW},     {u"Chr", 1, 1, chr},
    {u"ChrW", 1, 1, chrW}, {u"Escape", 1, 1, escape}, {u"Unescape", 1, 1, unescape},
};

} // namespace

std::span<const Builtin> characterBuiltins() {
    return table;
}

} // namespace vbs
