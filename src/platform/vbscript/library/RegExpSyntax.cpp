#include "platform/vbscript/library/RegExpSyntax.h"

#include "platform/vbscript/library/RegExpReader.h"
#include "platform/vbscript/library/RegExpSets.h"
#include "platform/vbscript/value/Errors.h"

#include <optional>
#include <utility>

namespace vbs {

namespace {

constexpr std::u16string_view wordBoundary = u"(?:(?<=[0-9A-Z_a-z])(?![0-9A-Z_a-z])|(?<![0-9A-Z_a-z])(?=[0-9A-Z_a-z]))";
constexpr std::u16string_view noWordBoundary =
    u"(?:(?<=[0-9A-Z_a-z])(?=[0-9A-Z_a-z])|(?<![0-9A-Z_a-z])(?![0-9A-Z_a-z]))";

// The largest count of a quantifier that the library takes.
constexpr int mostRepeats = 65535;

struct Quantifier {
    int least;
    std::optional<int> most;
};

class Translator {
public:
    Translator(std::u16string_view pattern, bool multiline, bool unicode)
        : in_(pattern), multiline_(multiline), unicode_(unicode) {}

    TranslatedPattern translate() {
        out_.groups = countGroups();
        while (!in_.atEnd()) {
            term();
        }
        if (depth_ > 0) {
            raise(ErrorNumber::RegexParenthesis);
        }
        return std::move(out_);
    }

private:
    void put(std::u16string_view text) { out_.text += text; }

    void putLiteral(char16_t c) { appendLiteral(out_.text, c); }

    // Groups that capture, wherever they stand: references may point forward.
    int countGroups() const {
        int groups = 0;
        bool inSet = false;
        const std::u16string_view text = in_.pattern();
        for (std::size_t i = 0; i < text.size(); ++i) {
            const char16_t c = text[i];
            if (c == u'\\') {
                ++i;
            } else if (inSet) {
                inSet = c != u']';
            } else if (c == u'[') {
                inSet = true;
            } else if (c == u'(' && (i + 1 >= text.size() || text[i + 1] != u'?')) {
                ++groups;
            }
        }
        return groups;
    }

    void term() {
        const char16_t c = in_.takeAny();
        const bool quantifiable = std::exchange(quantifiable_, true);
        switch (c) {
        case u'\\':
            escape();
            break;
        case u'[':
            translateSet(in_, out_.text);
            break;
        case u'(':
            openGroup();
            break;
        case u')':
            closeGroup();
            break;
        case u'.':
            put(u"[^\\n]");
            break;
        case u'|':
            put(u"|");
            quantifiable_ = false;
            break;
        case u'^':
            put(multiline_ ? u"(?<![^\\n\\r])" : u"^");
            quantifiable_ = false;
            break;
        case u'$':
            put(multiline_ ? u"(?![^\\n\\r])" : u"$");
            quantifiable_ = false;
            break;
        case u'*':
        case u'+':
        case u'?':
        case u'{':
            repeat(c, quantifiable);
            break;
        default:
            putLiteral(c);
        }
    }

    void openGroup() {
        ++depth_;
        quantifiable_ = false;
        if (!in_.take(u'?')) {
            put(u"(");
        } else if (in_.take(u':')) {
            put(u"(?:");
        } else if (in_.take(u'=')) {
            put(u"(?=");
        } else if (in_.take(u'!')) {
            put(u"(?!");
        } else {
            raise(ErrorNumber::RegexSyntax);
        }
    }

    void closeGroup() {
        if (depth_-- == 0) {
            raise(ErrorNumber::RegexSyntax);
        }
        put(u")");
    }

    // The number at the present place; counts beyond every limit stop growing.
    std::optional<int> number() {
        if (!isPatternDigit(in_.peek())) {
            return std::nullopt;
        }
        int n = 0;
        while (isPatternDigit(in_.peek())) {
            const int digit = in_.takeAny() - u'0';
            n = n <= mostRepeats ? n * 10 + digit : n;
        }
        return n;
    }

    // What stands after "{", if it is a quantifier: n} n,} n,m}
    std::optional<Quantifier> braces() {
        const std::size_t start = in_.place();
        if (const auto least = number()) {
            std::optional<int> most = least;
            if (in_.take(u',')) {
                most = number();
            }
            if (in_.take(u'}')) {
                return Quantifier{*least, most};
            }
        }
        in_.goBackTo(start);
        return std::nullopt;
    }

    void repeat(char16_t sign, bool quantifiable) {
        const auto counted = sign == u'{' ? braces() : std::nullopt;
        if (sign == u'{' && !counted) {
            putLiteral(sign);
            return;
        }
        if (!quantifiable) {
            raise(ErrorNumber::RegexQuantifier);
        }
        if (counted) {
            putCounted(*counted);
        } else {
            out_.text.push_back(sign);
        }
        if (in_.take(u'?')) {
            put(u"?");
        }
        quantifiable_ = false;
    }

    void putCounted(const Quantifier& q) {
        if (q.least > mostRepeats || (q.most && *q.most < q.least)) {
            raise(ErrorNumber::RegexSyntax);
        }
        put(u"{");
        putNumber(q.least);
        if (!q.most || *q.most > mostRepeats) {
            put(u",");
        } else if (*q.most != q.least) {
            put(u",");
            putNumber(*q.most);
        }
        put(u"}");
    }

    void putNumber(int n) {
        const std::string digits = std::to_string(n);
        out_.text.append(digits.begin(), digits.end());
    }

    // Outside a set, behind the backslash.
    void escape() {
        if (in_.atEnd()) {
            raise(ErrorNumber::RegexSyntax);
        }
        const char16_t c = in_.peek();
        if (const auto characters = classCharacters(c); !characters.empty()) {
            in_.takeAny();
            put(u"[");
            put(characters);
            put(u"]");
        } else if (c == u'b' || c == u'B') {
            in_.takeAny();
            unicode_ ? put(c == u'b' ? wordBoundary : noWordBoundary) : put(c == u'b' ? u"\\b" : u"\\B");
        } else if (const int group = reference(); group > 0) {
            put(u"\\g{");
            putNumber(group);
            put(u"}");
        } else {
            putLiteral(in_.escapedUnit());
        }
    }

    // Takes \1 to \99 as far as there are so many groups; else 0 and nothing taken.
    int reference() {
        const int first = in_.peek() - u'0';
        if (first < 1 || first > 9) {
            return 0;
        }
        if (isPatternDigit(in_.peek(1))) {
            const int both = first * 10 + (in_.peek(1) - u'0');
            if (both <= out_.groups) {
                in_.takeAny();
                in_.takeAny();
                return both;
            }
        }
        if (first > out_.groups) {
            return 0;
        }
        in_.takeAny();
        return first;
    }

    PatternReader in_;
    bool multiline_;
    bool unicode_;
    int depth_ = 0;
    bool quantifiable_ = false; // whether a quantifier may stand here
    TranslatedPattern out_;
};

} // namespace

bool namesBeyondAscii(std::u16string_view pattern) noexcept {
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const bool code =
            pattern[i] == u'\\' && i + 1 < pattern.size() && (pattern[i + 1] == u'u' || pattern[i + 1] == u'x');
        if (code || pattern[i] >= 0x80) {
            return true;
        }
    }
    return false;
}

TranslatedPattern translatePattern(std::u16string_view pattern, bool multiline, bool unicode) {
    return Translator(pattern, multiline, unicode).translate();
}

} // namespace vbs
