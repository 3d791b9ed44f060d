#include "platform/vbscript/library/RegExpSets.h"

#include "platform/vbscript/value/Errors.h"

#include <optional>

namespace vbs {

namespace {

// The next character of a set; sets like \d are written at once and give nothing.
std::optional<char16_t> setUnit(PatternReader& in, std::u16string& out) {
    if (in.atEnd()) {
        raise(ErrorNumber::RegexBracket);
    }
    const char16_t c = in.takeAny();
    if (c != u'\\') {
        return c;
    }
    if (in.atEnd()) {
        raise(ErrorNumber::RegexBracket);
    }
    if (const auto characters = classCharacters(in.peek()); !characters.empty()) {
        in.takeAny();
        out += characters;
        return std::nullopt;
    }
    return in.take(u'b') ? u'\b' : in.escapedUnit();
}

// One character, one set like \d, or a range of characters.
void setRange(PatternReader& in, std::u16string& out) {
    const auto from = setUnit(in, out);
    if (!from) {
        return;
    }
    appendLiteral(out, *from);
    if (!in.next(u'-') || in.peek(1) == u']' || in.place() + 1 >= in.pattern().size()) {
        return;
    }
    in.takeAny();
    const std::size_t mark = out.size();
    const auto to = setUnit(in, out);
    if (!to) {
        out.insert(mark, u"\\-"); // [a-\d]: the sign stands for itself
        return;
    }
    if (*to < *from) {
        raise(ErrorNumber::RegexRange);
    }
    out += u"-";
    appendLiteral(out, *to);
}

} // namespace

void translateSet(PatternReader& in, std::u16string& out) {
    const bool negated = in.take(u'^');
    if (in.take(u']')) {
        out += negated ? u"[\\x{0}-\\x{FFFF}]" : u"(?!)";
        return;
    }
    out += negated ? u"[^" : u"[";
    while (!in.take(u']')) {
        setRange(in, out);
    }
    out += u"]";
}

} // namespace vbs
