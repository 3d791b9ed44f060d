#include "platform/vbscript/syntax/Lexer.h"

#include "platform/vbscript/value/Dates.h"

#include <string>

namespace vbs {

namespace {

constexpr std::size_t longestName = 255;

bool isBlank(char16_t c) noexcept {
    return c <= u' ' ? c == u' ' || c == u'\t' || c == u'\v' || c == u'\f' : c == 0xA0 || c == 0xFEFF;
}

bool isLineEnd(char16_t c) noexcept {
    return c == u'\r' || c == u'\n';
}

} // namespace

bool isNameStart(char16_t c) noexcept {
    return c < 0x80 ? (c | 0x20U) >= u'a' && (c | 0x20U) <= u'z'
                    : toLower(c) != toUpper(c) || c == 0xAA || c == 0xBA || c == 0xDF;
}

bool isNamePart(char16_t c) noexcept {
    return isNameStart(c) || isDigit(c) || c == u'_';
}

Token Lexer::next() {
    Token token;
    token.spaceBefore = skipBlanks();
    token.offset = static_cast<std::uint32_t>(position_);
    token.line = line_;
    token.column = static_cast<std::uint32_t>(position_ - lineStart_ + 1);
    if (atEnd()) {
        return token;
    }
    scan(token);
    token.length = static_cast<std::uint32_t>(position_ - token.offset);
    token.spaceAfter = atEnd() || isBlank(at(0)) || isLineEnd(at(0));
    afterDot_ = token.sign == Token::Sign::Dot;
    afterOperand_ = token.kind == Token::Kind::Identifier || token.kind == Token::Kind::Number ||
                    token.kind == Token::Kind::Text || token.kind == Token::Kind::Date ||
                    token.sign == Token::Sign::Close;
    return token;
}

bool Lexer::skipBlanks() {
    const std::size_t start = position_;
    while (!atEnd() && (isBlank(at(0)) || skipContinuation())) {
        if (isBlank(at(0))) {
            ++position_;
        }
    }
    return position_ != start;
}

// An underscore, blanks and the end of the line: the statement goes on.
bool Lexer::skipContinuation() {
    if (at(0) != u'_') {
        return false;
    }
    std::size_t ahead = 1;
    while (isBlank(at(ahead))) {
        ++ahead;
    }
    if (position_ + ahead < text_.size() && !isLineEnd(at(ahead))) {
        return false;
    }
    position_ += ahead;
    if (!atEnd()) {
        newLine();
    }
    return true;
}

void Lexer::newLine() {
    position_ += at(0) == u'\r' && at(1) == u'\n' ? 2 : 1;
    ++line_;
    lineStart_ = position_;
}

void Lexer::bad(Token& token, ErrorNumber error) {
    token.kind = Token::Kind::Bad;
    token.error = error;
}

void Lexer::scan(Token& token) {
    const char16_t c = at(0);
    if (isLineEnd(c)) {
        token.kind = Token::Kind::NewLine;
        newLine();
    } else if (c == u'\'') {
        scanComment(token);
    } else if (isNameStart(c)) {
        scanName(token);
    } else if (c == u'[') {
        scanBracketed(token);
    } else if (isDigit(c) || (c == u'.' && isDigit(at(1)))) {
        scanDecimal(token);
    } else if (c == u'"') {
        scanText(token);
    } else if (c == u'#') {
        scanDate(token);
    } else if (c != u'&' || !scanRadix(token)) {
        scanOperator(token);
    }
}

void Lexer::scanComment(Token& token) {
    token.kind = Token::Kind::Comment;
    while (!atEnd() && !isLineEnd(at(0))) {
        ++position_;
    }
}

void Lexer::scanName(Token& token) {
    const std::size_t start = position_;
    while (!atEnd() && isNamePart(at(0))) {
        ++position_;
    }
    token.text = text_.substr(start, position_ - start);
    token.kind = Token::Kind::Identifier;
    if (token.text.size() > longestName) {
        bad(token, ErrorNumber::IdentifierTooLong);
    } else if (!afterDot_) {
        token.word = wordOf(token.text);
        if (token.word != Word::None) {
            token.kind = Token::Kind::Keyword;
        } else if (equalNoCase(token.text, u"rem")) {
            scanComment(token);
        }
    }
}

void Lexer::scanBracketed(Token& token) {
    const std::size_t start = ++position_;
    while (!atEnd() && at(0) != u']' && !isLineEnd(at(0))) {
        ++position_;
    }
    token.text = text_.substr(start, position_ - start);
    token.kind = Token::Kind::Identifier;
    if (at(0) != u']' || atEnd()) {
        bad(token, ErrorNumber::ExpectedRightBracket);
        return;
    }
    ++position_;
    if (token.text.size() > longestName) {
        bad(token, ErrorNumber::IdentifierTooLong);
    }
}

void Lexer::scanText(Token& token) {
    token.kind = Token::Kind::Text;
    const std::size_t start = ++position_;
    bool doubled = false;
    while (true) {
        if (atEnd() || isLineEnd(at(0))) {
            bad(token, ErrorNumber::UnterminatedString);
            return;
        }
        if (at(0) == u'"') {
            if (at(1) != u'"') {
                break;
            }
            doubled = true;
            ++position_;
        }
        ++position_;
    }
    const std::u16string_view raw = text_.substr(start, position_ - start);
    ++position_;
    if (!doubled) {
        token.value = Value::ofString(raw);
        return;
    }
    std::u16string text;
    for (std::size_t i = 0; i < raw.size(); ++i) {
        text.push_back(raw[i]);
        i += raw[i] == u'"' ? 1 : 0;
    }
    token.value = Value::ofString(std::u16string_view(text));
}

void Lexer::scanDate(Token& token) {
    const std::size_t start = ++position_;
    while (!atEnd() && at(0) != u'#' && !isLineEnd(at(0))) {
        ++position_;
    }
    const std::u16string_view written = text_.substr(start, position_ - start);
    if (at(0) != u'#') {
        bad(token, ErrorNumber::SyntaxError);
        return;
    }
    ++position_;
    token.kind = Token::Kind::Date;
    const auto date = parseDate(written, *builtinLocale(1033), thisYear_); // literals are month/day/year everywhere
    if (date) {
        token.value = Value::ofDate(*date);
    } else {
        bad(token, ErrorNumber::SyntaxError);
    }
}

void Lexer::scanOperator(Token& token) {
    using enum Token::Sign;
    const char16_t c = at(0);
    const char16_t d = at(1);
    token.kind = Token::Kind::Operator;
    std::size_t length = 1;
    switch (c) {
    case u'=':
        token.sign = d == u'<' ? LessEqual : d == u'>' ? GreaterEqual : Equal;
        length = token.sign == Equal ? 1 : 2;
        break;
    case u'<':
        token.sign = d == u'=' ? LessEqual : d == u'>' ? NotEqual : Less;
        length = token.sign == Less ? 1 : 2;
        break;
    case u'>':
        token.sign = d == u'=' ? GreaterEqual : d == u'<' ? NotEqual : Greater;
        length = token.sign == Greater ? 1 : 2;
        break;
    case u'+':
        token.sign = Plus;
        break;
    case u'-':
        token.sign = Minus;
        break;
    case u'*':
        token.sign = Times;
        break;
    case u'/':
        token.sign = Slash;
        break;
    case u'\\':
        token.sign = Backslash;
        break;
    case u'^':
        token.sign = Caret;
        break;
    case u'&':
        token.sign = Ampersand;
        break;
    case u'(':
        token.sign = Open;
        break;
    case u')':
        token.sign = Close;
        break;
    case u',':
        token.sign = Comma;
        break;
    case u'.':
        token.sign = Dot;
        break;
    case u':':
        token.kind = Token::Kind::Colon;
        break;
    default:
        bad(token, ErrorNumber::InvalidCharacter);
    }
    position_ += length;
}

} // namespace vbs
