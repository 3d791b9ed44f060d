#include "platform/vbscript/library/RegExpSyntax.h"

#include "platform/vbscript/value/Errors.h"

#include <optional>
#include <utility>

namespace vbs {

namespace {

constexpr std::u16string_view digitSet = u"0-9";
constexpr std::u16string_view blankSet = u"\\t\\n\\x{B}\\f\\r\\x{20}";
constexpr std::u16string_view wordSet = u"0-9A-Z_a-z";
constexpr std::u16string_view notDigitSet = u"\\x{0}-\\x{2F}\\x{3A}-\\x{FFFF}";
constexpr std::u16string_view notBlankSet = u"\\x{0}-\\x{8}\\x{E}-\\x{1F}\\x{21}-\\x{FFFF}";
constexpr std::u16string_view notWordSet = u"\\x{0}-\\x{2F}\\x{3A}-\\x{40}\\x{5B}-\\x{5E}\\x{60}\\x{7B}-\\x{FFFF}";

constexpr std::u16string_view wordBoundary = u"(?:(?<=[0-9A-Z_a-z])(?![0-9A-Z_a-z])|(?<![0-9A-Z_a-z])(?=[0-9A-Z_a-z]))";
constexpr std::u16string_view noWordBoundary =
    u"(?:(?<=[0-9A-Z_a-z])(?=[0-9A-Z_a-z])|(?<![0-9A-Z_a-z])(?![0-9A-Z_a-z]))";

// The largest count of a quantifier that the library takes.
constexpr int mostRepeats = 65535;

bool isDigit(char16_t c) noexcept {
    return c >= u'0' && c <= u'9';
}

bool isOctal(char16_t c) noexcept {
    return c >= u'0' && c <= u'7';
}

bool isLetter(char16_t c) noexcept {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

int hexValue(char16_t c) noexcept {
    return isDigit(c) ? c - u'0' : c >= u'a' && c <= u'f' ? c - u'a' + 10 : c >= u'A' && c <= u'F' ? c - u'A' + 10 : -1;
}

// The characters of \d, \w, \s and their opposites, or nothing for another letter.
std::u16string_view setOf(char16_t letter) noexcept {
    switch (letter) {
    case u'd':
        return digitSet;
    case u'D':
        return notDigitSet;
    case u's':
        return blankSet;
    case u'S':
        return notBlankSet;
    case u'w':
        return wordSet;
    case u'W':
        return notWordSet;
    default:
        return {};
    }
}

struct Quantifier {
    int least;
    std::optional<int> most;
};

class Translator {
public:
    Translator(std::u16string_view pattern, bool multiline, bool unicode)
        : m_in(pattern), m_multiline(multiline), m_unicode(unicode) {}

    TranslatedPattern translate() {
        m_out.groups = countGroups();
        while (m_at < m_in.size()) {
            term();
        }
        if (m_depth > 0) {
            raise(ErrorNumber::RegexParenthesis);
        }
        return std::move(m_out);
    }

private:
    bool next(char16_t c) const { return m_at < m_in.size() && m_in[m_at] == c; }
    bool take(char16_t c) {
        if (next(c)) {
            ++m_at;
            return true;
        }
        return false;
    }
    void put(std::u16string_view text) { m_out.text += text; }

    // A character that stands for itself, inside or outside a set.
    void putLiteral(char16_t c) {
        if (c > u' ' && c < 0x7F && !isDigit(c) && !isLetter(c) && c != u'_') {
            m_out.text.push_back(u'\\');
        }
        m_out.text.push_back(c);
    }

    // Groups that capture, wherever they stand: references may point forward.
    int countGroups() const {
        int groups = 0;
        bool inSet = false;
        for (std::size_t i = 0; i < m_in.size(); ++i) {
            const char16_t c = m_in[i];
            if (c == u'\\') {
                ++i;
            } else if (inSet) {
                inSet = c != u']';
            } else if (c == u'[') {
                inSet = true;
            } else if (c == u'(' && (i + 1 >= m_in.size() || m_in[i + 1] != u'?')) {
                ++groups;
            }
        }
        return groups;
    }

    void term() {
        const char16_t c = m_in[m_at++];
        const bool quantifiable = std::exchange(m_quantifiable, true);
        switch (c) {
        case u'\\':
            escape();
            break;
        case u'[':
            set();
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
            m_quantifiable = false;
            break;
        case u'^':
            put(m_multiline ? u"(?<![^\\n\\r])" : u"^");
            m_quantifiable = false;
            break;
        case u'$':
            put(m_multiline ? u"(?![^\\n\\r])" : u"$");
            m_quantifiable = false;
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
        ++m_depth;
        m_quantifiable = false;
        if (!take(u'?')) {
            put(u"(");
        } else if (take(u':')) {
            put(u"(?:");
        } else if (take(u'=')) {
            put(u"(?=");
        } else if (take(u'!')) {
            put(u"(?!");
        } else {
            raise(ErrorNumber::RegexSyntax);
        }
    }

    void closeGroup() {
        if (m_depth-- == 0) {
            raise(ErrorNumber::RegexSyntax);
        }
        put(u")");
    }

    // The number at the present place; counts beyond every limit stop growing.
    std::optional<int> number() {
        if (m_at >= m_in.size() || !isDigit(m_in[m_at])) {
            return std::nullopt;
        }
        int n = 0;
        for (; m_at < m_in.size() && isDigit(m_in[m_at]); ++m_at) {
            n = n <= mostRepeats ? n * 10 + (m_in[m_at] - u'0') : n;
        }
        return n;
    }

    // What stands after "{", if it is a quantifier: n} n,} n,m}
    std::optional<Quantifier> braces() {
        const std::size_t start = m_at;
        if (const auto least = number()) {
            std::optional<int> most = least;
            if (take(u',')) {
                most = number();
            }
            if (take(u'}')) {
                return Quantifier{*least, most};
            }
        }
        m_at = start;
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
            m_out.text.push_back(sign);
        }
        if (take(u'?')) {
            put(u"?");
        }
        m_quantifiable = false;
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
        m_out.text.append(digits.begin(), digits.end());
    }

    // Outside a set, behind the backslash.
    void escape() {
        if (m_at >= m_in.size()) {
            raise(ErrorNumber::RegexSyntax);
        }
        const char16_t c = m_in[m_at];
        if (const auto characters = setOf(c); !characters.empty()) {
            ++m_at;
            put(u"[");
            put(characters);
            put(u"]");
        } else if (c == u'b' || c == u'B') {
            ++m_at;
            m_unicode ? put(c == u'b' ? wordBoundary : noWordBoundary) : put(c == u'b' ? u"\\b" : u"\\B");
        } else if (const int group = reference(); group > 0) {
            put(u"\\g{");
            putNumber(group);
            put(u"}");
        } else {
            putLiteral(escapedUnit());
        }
    }

    // Takes \1 to \99 as far as there are so many groups; else 0 and nothing taken.
    int reference() {
        const int first = m_in[m_at] - u'0';
        if (first < 1 || first > 9) {
            return 0;
        }
        if (m_at + 1 < m_in.size() && isDigit(m_in[m_at + 1])) {
            const int both = first * 10 + (m_in[m_at + 1] - u'0');
            if (both <= m_out.groups) {
                m_at += 2;
                return both;
            }
        }
        if (first > m_out.groups) {
            return 0;
        }
        ++m_at;
        return first;
    }

    // The character that an escape stands for; a letter without meaning stands for itself.
    char16_t escapedUnit() {
        const char16_t c = m_in[m_at++];
        switch (c) {
        case u'f':
            return u'\f';
        case u'n':
            return u'\n';
        case u'r':
            return u'\r';
        case u't':
            return u'\t';
        case u'v':
            return u'\v';
        case u'c':
            return m_at < m_in.size() && isLetter(m_in[m_at]) ? static_cast<char16_t>(m_in[m_at++] % 32) : c;
        case u'x':
            return hexUnit(2).value_or(c);
        case u'u':
            return hexUnit(4).value_or(c);
        default:
            return isOctal(c) ? octalUnit(c) : c;
        }
    }

    std::optional<char16_t> hexUnit(std::size_t digits) {
        if (m_at + digits > m_in.size()) {
            return std::nullopt;
        }
        int code = 0;
        for (std::size_t i = 0; i < digits; ++i) {
            const int value = hexValue(m_in[m_at + i]);
            if (value < 0) {
                return std::nullopt;
            }
            code = code * 16 + value;
        }
        m_at += digits;
        return static_cast<char16_t>(code);
    }

    // Up to three octal digits, as far as the code stays below 256.
    char16_t octalUnit(char16_t first) {
        int code = first - u'0';
        for (int i = 0; i < 2 && m_at < m_in.size() && isOctal(m_in[m_at]) && code < 32; ++i) {
            code = code * 8 + (m_in[m_at++] - u'0');
        }
        return static_cast<char16_t>(code);
    }

    void set() {
        const bool negated = take(u'^');
        if (take(u']')) {
            put(negated ? u"[\\x{0}-\\x{FFFF}]" : u"(?!)");
            return;
        }
        put(negated ? u"[^" : u"[");
        while (!take(u']')) {
            setRange();
        }
        put(u"]");
    }

    // One character, one set like \d, or a range of characters.
    void setRange() {
        const auto from = setUnit();
        if (!from || !next(u'-') || m_at + 1 >= m_in.size() || m_in[m_at + 1] == u']') {
            if (from) {
                putLiteral(*from);
            }
            return;
        }
        ++m_at;
        putLiteral(*from);
        const std::size_t mark = m_out.text.size();
        const auto to = setUnit();
        if (!to) {
            m_out.text.insert(mark, u"\\-"); // [a-\d]: the sign stands for itself
            return;
        }
        if (*to < *from) {
            raise(ErrorNumber::RegexRange);
        }
        put(u"-");
        putLiteral(*to);
    }

    // The next character of a set; sets like \d are written at once and give nothing.
    std::optional<char16_t> setUnit() {
        if (m_at >= m_in.size()) {
            raise(ErrorNumber::RegexBracket);
        }
        const char16_t c = m_in[m_at++];
        if (c != u'\\') {
            return c;
        }
        if (m_at >= m_in.size()) {
            raise(ErrorNumber::RegexBracket);
        }
        if (const auto characters = setOf(m_in[m_at]); !characters.empty()) {
            ++m_at;
            put(characters);
            return std::nullopt;
        }
        if (take(u'b')) {
            return u'\b';
        }
        return escapedUnit();
    }

    std::u16string_view m_in;
    bool m_multiline;
    bool m_unicode;
    std::size_t m_at = 0;
    int m_depth = 0;
    bool m_quantifiable = false; // whether a quantifier may stand here
    TranslatedPattern m_out;
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
