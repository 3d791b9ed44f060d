#include "platform/vbscript/library/RegExpReader.h"

namespace vbs {

namespace {

constexpr std::u16string_view digitSet = u"0-9";
constexpr std::u16string_view blankSet = u"\\t\\n\\x{B}\\f\\r\\x{20}";
constexpr std::u16string_view wordSet = u"0-9A-Z_a-z";
constexpr std::u16string_view notDigitSet = u"\\x{0}-\\x{2F}\\x{3A}-\\x{FFFF}";
constexpr std::u16string_view notBlankSet = u"\\x{0}-\\x{8}\\x{E}-\\x{1F}\\x{21}-\\x{FFFF}";
constexpr std::u16string_view notWordSet = u"\\x{0}-\\x{2F}\\x{3A}-\\x{40}\\x{5B}-\\x{5E}\\x{60}\\x{7B}-\\x{FFFF}";

bool isOctal(char16_t c) noexcept {
    return c >= u'0' && c <= u'7';
}

bool isLetter(char16_t c) noexcept {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

int hexValue(char16_t c) noexcept {
    return isPatternDigit(c)        ? c - u'0'
           : c >= u'a' && c <= u'f' ? c - u'a' + 10
           : c >= u'A' && c <= u'F' ? c - u'A' + 10
                                    : -1;
}

} // namespace

bool isPatternDigit(char16_t c) noexcept {
    return c >= u'0' && c <= u'9';
}

std::u16string_view classCharacters(char16_t letter) noexcept {
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

void appendLiteral(std::u16string& out, char16_t c) {
    if (c > u' ' && c < 0x7F && !isPatternDigit(c) && !isLetter(c) && c != u'_') {
        out.push_back(u'\\');
    }
    out.push_back(c);
}

char16_t PatternReader::escapedUnit() noexcept {
    const char16_t c = pattern_[at_++];
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
        return at_ < pattern_.size() && isLetter(pattern_[at_]) ? static_cast<char16_t>(pattern_[at_++] % 32) : c;
    case u'x':
        return hexUnit(2).value_or(c);
    case u'u':
        return hexUnit(4).value_or(c);
    default:
        return isOctal(c) ? octalUnit(c) : c;
    }
}

std::optional<char16_t> PatternReader::hexUnit(std::size_t digits) noexcept {
    if (at_ + digits > pattern_.size()) {
        return std::nullopt;
    }
    int code = 0;
    for (std::size_t i = 0; i < digits; ++i) {
        const int value = hexValue(pattern_[at_ + i]);
        if (value < 0) {
            return std::nullopt;
        }
        code = code * 16 + value;
    }
    at_ += digits;
    return static_cast<char16_t>(code);
}

// Up to three octal digits, as far as the code stays below 256.
char16_t PatternReader::octalUnit(char16_t first) noexcept {
    int code = first - u'0';
    for (int i = 0; i < 2 && at_ < pattern_.size() && isOctal(pattern_[at_]) && code < 32; ++i) {
        code = code * 8 + (pattern_[at_++] - u'0');
    }
    return static_cast<char16_t>(code);
}

} // namespace vbs
