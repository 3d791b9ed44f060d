// The reserved words.
#include "platform/vbscript/syntax/Lexer.h"

#include <algorithm>
#include <array>

namespace vbs {

namespace {

// Ascending by name without regard to case.
constexpr WordEntry words[] = {
    {u"And", Word::And},
    {u"ByRef", Word::ByRef},
    {u"ByVal", Word::ByVal},
    {u"Call", Word::Call},
    {u"Case", Word::Case},
    {u"Class", Word::Class},
    {u"Const", Word::Const},
    {u"Default", Word::Default},
    {u"Dim", Word::Dim},
    {u"Do", Word::Do},
    {u"Each", Word::Each},
    {u"Else", Word::Else},
    {u"ElseIf", Word::ElseIf},
    {u"Empty", Word::Empty},
    {u"End", Word::End},
    {u"Eqv", Word::Eqv},
    {u"Erase", Word::Erase},
    {u"Error", Word::Error},
    {u"Exit", Word::Exit},
    {u"Explicit", Word::Explicit},
    {u"False", Word::False},
    {u"For", Word::For},
    {u"Function", Word::Function},
    {u"Get", Word::Get},
    {u"GoTo", Word::GoTo},
    {u"If", Word::If},
    {u"Imp", Word::Imp},
    {u"In", Word::In},
    {u"Is", Word::Is},
    {u"Let", Word::Let},
    {u"Loop", Word::Loop},
    {u"Me", Word::Me},
    {u"Mod", Word::Mod},
    {u"New", Word::New},
    {u"Next", Word::Next},
    {u"Not", Word::Not},
    {u"Nothing", Word::Nothing},
    {u"Null", Word::Null},
    {u"On", Word::On},
    {u"Option", Word::Option},
    {u"Or", Word::Or},
    {u"Preserve", Word::Preserve},
    {u"Private", Word::Private},
    {u"Property", Word::Property},
    {u"Public", Word::Public},
    {u"ReDim", Word::Redim},
    {u"Resume", Word::Resume},
    {u"Select", Word::Select},
    {u"Set", Word::Set},
    {u"Step", Word::Step},
    {u"Stop", Word::Stop},
    {u"Sub", Word::Sub},
    {u"Then", Word::Then},
    {u"To", Word::To},
    {u"True", Word::True},
    {u"Until", Word::Until},
    {u"Wend", Word::Wend},
    {u"While", Word::While},
    {u"With", Word::With},
    {u"Xor", Word::Xor},
};

constexpr std::size_t longestWord = 8;
using Folded = std::array<char16_t, longestWord>; // in lower case, zeros behind it

constexpr auto folded = [] {
    std::array<Folded, std::size(words)> names{};
    for (std::size_t i = 0; i < names.size(); ++i) {
        for (std::size_t c = 0; c < words[i].name.size(); ++c) {
            const char16_t letter = words[i].name[c];
            names[i][c] = static_cast<char16_t>(letter <= u'Z' ? letter + (u'a' - u'A') : letter);
        }
    }
    return names;
}();

// The words with each first letter, and how long they are: what most names are refused by.
struct Initial {
    std::size_t first = 0;
    std::size_t count = 0;
    std::uint32_t lengths = 0; // a bit each
};
constexpr auto initials = [] {
    std::array<Initial, 26> letters{};
    for (std::size_t i = 0; i < folded.size(); ++i) {
        Initial& letter = letters[static_cast<std::size_t>(folded[i][0] - u'a')];
        letter.first = letter.count++ == 0 ? i : letter.first;
        letter.lengths |= 1U << words[i].name.size();
    }
    return letters;
}();

} // namespace

std::span<const WordEntry> reservedWords() noexcept {
    return words;
}

Word wordOf(std::u16string_view name) noexcept {
    if (name.empty() || name.size() > longestWord) {
        return Word::None;
    }
    const char16_t letter = toLower(name[0]);
    if (letter < u'a' || letter > u'z') {
        return Word::None;
    }
    const Initial& initial = initials[static_cast<std::size_t>(letter - u'a')];
    if ((initial.lengths >> name.size() & 1U) == 0) {
        return Word::None;
    }
    Folded low{};
    std::transform(name.begin(), name.end(), low.begin(), toLower);
    const auto* const end = folded.begin() + initial.first + initial.count;
    const auto* found = std::find(folded.begin() + initial.first, end, low);
    return found != end ? words[found - folded.begin()].word : Word::None;
}

} // namespace vbs
