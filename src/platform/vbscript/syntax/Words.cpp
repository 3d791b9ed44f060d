// The reserved words.
#include "platform/vbscript/syntax/Lexer.h"

#include <algorithm>
#include <array>

namespace vbs {

namespace {

struct WordEntry {
    std::u16string_view name;
    Word word;
};

// Ascending by name.
constexpr WordEntry words[] = {
    {u"and", Word::And},
    {u"byref", Word::ByRef},
    {u"byval", Word::ByVal},
    {u"call", Word::Call},
    {u"case", Word::Case},
    {u"class", Word::Class},
    {u"const", Word::Const},
    {u"default", Word::Default},
    {u"dim", Word::Dim},
    {u"do", Word::Do},
    {u"each", Word::Each},
    {u"else", Word::Else},
    {u"elseif", Word::ElseIf},
    {u"empty", Word::Empty},
    {u"end", Word::End},
    {u"eqv", Word::Eqv},
    {u"erase", Word::Erase},
    {u"error", Word::Error},
    {u"exit", Word::Exit},
    {u"explicit", Word::Explicit},
    {u"false", Word::False},
    {u"for", Word::For},
    {u"function", Word::Function},
    {u"get", Word::Get},
    {u"goto", Word::GoTo},
    {u"if", Word::If},
    {u"imp", Word::Imp},
    {u"in", Word::In},
    {u"is", Word::Is},
    {u"let", Word::Let},
    {u"loop", Word::Loop},
    {u"me", Word::Me},
    {u"mod", Word::Mod},
    {u"new", Word::New},
    {u"next", Word::Next},
    {u"not", Word::Not},
    {u"nothing", Word::Nothing},
    {u"null", Word::Null},
    {u"on", Word::On},
    {u"option", Word::Option},
    {u"or", Word::Or},
    {u"preserve", Word::Preserve},
    {u"private", Word::Private},
    {u"property", Word::Property},
    {u"public", Word::Public},
    {u"redim", Word::Redim},
    {u"resume", Word::Resume},
    {u"select", Word::Select},
    {u"set", Word::Set},
    {u"step", Word::Step},
    {u"stop", Word::Stop},
    {u"sub", Word::Sub},
    {u"then", Word::Then},
    {u"to", Word::To},
    {u"true", Word::True},
    {u"until", Word::Until},
    {u"wend", Word::Wend},
    {u"while", Word::While},
    {u"with", Word::With},
    {u"xor", Word::Xor},
};

constexpr std::size_t longestWord = 8;

} // namespace

Word wordOf(std::u16string_view name) noexcept {
    if (name.size() > longestWord) {
        return Word::None;
    }
    std::array<char16_t, longestWord> buffer{};
    std::transform(name.begin(), name.end(), buffer.begin(), toLower);
    const std::u16string_view low(buffer.data(), name.size());
    const auto* found = std::lower_bound(std::begin(words), std::end(words), low,
                                         [](const WordEntry& e, std::u16string_view n) { return e.name < n; });
    return found != std::end(words) && found->name == low ? found->word : Word::None;
}

} // namespace vbs
