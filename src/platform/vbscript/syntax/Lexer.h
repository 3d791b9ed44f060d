// Cuts a script into tokens, one a call. Never fails: what is no token comes out as Kind::Bad with the number of the
// compile error. The parser uses it, and so may an editor that colours text:
//
//   Lexer lexer(text);
//   for (Token t = lexer.next(); t.kind != Token::Kind::End; t = lexer.next()) paint(t.offset, t.length, t.kind);
#pragma once

#include "platform/vbscript/value/Errors.h"
#include "platform/vbscript/value/Value.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace vbs {

// Reserved words. The ones from ByRef on are words only where the grammar asks for them, and names elsewhere.
enum class Word : std::uint8_t {
    None,
    And,
    Call,
    Case,
    Class,
    Const,
    Dim,
    Do,
    Each,
    Else,
    ElseIf,
    Empty,
    End,
    Eqv,
    Exit,
    False,
    For,
    Function,
    Get,
    GoTo,
    If,
    Imp,
    In,
    Is,
    Let,
    Loop,
    Me,
    Mod,
    New,
    Next,
    Not,
    Nothing,
    Null,
    On,
    Option,
    Or,
    Preserve,
    Private,
    Public,
    Redim,
    Resume,
    Select,
    Set,
    Stop,
    Sub,
    Then,
    To,
    True,
    Until,
    Wend,
    While,
    With,
    Xor,
    ByRef,
    ByVal,
    Default,
    Erase,
    Error,
    Explicit,
    Property,
    Step,
};

struct Token {
    enum class Kind : std::uint8_t {
        End, // of the text
        NewLine,
        Colon,
        Comment,    // from ' or Rem to the end of the line
        Identifier, // a name; [brackets] removed in `text`
        Keyword,    // `word` tells which
        Number,     // `value`
        Text,       // `value`
        Date,       // `value`
        Operator,   // `sign` tells which
        Bad,        // `error`
    };
    enum class Sign : std::uint8_t {
        None,
        Equal,
        Less,
        Greater,
        LessEqual,
        GreaterEqual,
        NotEqual,
        Plus,
        Minus,
        Times,
        Slash,
        Backslash,
        Caret,
        Ampersand,
        Open,
        Close,
        Comma,
        Dot,
    };

    Kind kind = Kind::End;
    Word word = Word::None;
    Sign sign = Sign::None;
    bool spaceBefore = false;
    bool spaceAfter = false;
    ErrorNumber error = ErrorNumber::None;
    std::uint32_t offset = 0; // code units from the start of the text
    std::uint32_t length = 0;
    std::uint32_t line = 1;   // from 1
    std::uint32_t column = 1; // from 1
    std::u16string_view text; // the name of an Identifier or Keyword as written
    Value value;              // of literals
};

class Lexer {
public:
    // The text must outlive the lexer. A date literal without a year means `thisYear`.
    explicit Lexer(std::u16string_view text, int thisYear = someLeapYear) noexcept : text_(text), thisYear_(thisYear) {}

    Token next();

private:
    static constexpr int someLeapYear = 2000; // every day of a year is good to one who only looks for tokens

    char16_t at(std::size_t ahead) const noexcept {
        return position_ + ahead < text_.size() ? text_[position_ + ahead] : u'\0';
    }
    bool atEnd() const noexcept { return position_ >= text_.size(); }
    bool skipBlanks();
    bool skipContinuation();
    void newLine();
    void scan(Token& token);
    void scanComment(Token& token);
    void scanName(Token& token);
    void scanBracketed(Token& token);
    void scanDecimal(Token& token);
    bool scanRadix(Token& token);
    void scanText(Token& token);
    void scanDate(Token& token);
    void scanOperator(Token& token);
    static void bad(Token& token, ErrorNumber error);

    std::u16string_view text_;
    std::size_t position_ = 0;
    std::size_t lineStart_ = 0;
    std::uint32_t line_ = 1;
    int thisYear_;
    bool afterDot_ = false;     // a keyword after a dot is a name
    bool afterOperand_ = false; // an & after an operand joins texts
};

// A reserved word as the language reference spells it.
struct WordEntry {
    std::u16string_view name;
    Word word;
};
// All of them, in alphabetical order.
std::span<const WordEntry> reservedWords() noexcept;

// The reserved word, or None.
Word wordOf(std::u16string_view name) noexcept;

constexpr bool isDigit(char16_t c) noexcept {
    return c >= u'0' && c <= u'9';
}
bool isNameStart(char16_t c) noexcept;
bool isNamePart(char16_t c) noexcept;

} // namespace vbs
