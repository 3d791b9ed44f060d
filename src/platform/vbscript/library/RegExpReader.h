// A pattern read from front to back: what stands next, and the characters that escapes stand for. Shared by the
// translation of patterns (RegExpSyntax.cpp) and that of the sets in them (RegExpSets.cpp).
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vbs {

bool isPatternDigit(char16_t c) noexcept; // 0 to 9, whatever the script

// The characters of \d, \w, \s and their opposites as they stand inside a set of the library's; nothing for another
// letter.
std::u16string_view classCharacters(char16_t letter) noexcept;

// Appends a character that stands for itself, inside or outside a set.
void appendLiteral(std::u16string& out, char16_t c);

class PatternReader {
public:
    explicit PatternReader(std::u16string_view pattern) noexcept : pattern_(pattern) {}

    std::u16string_view pattern() const noexcept { return pattern_; }
    bool atEnd() const noexcept { return at_ >= pattern_.size(); }
    std::size_t place() const noexcept { return at_; }
    void goBackTo(std::size_t place) noexcept { at_ = place; }

    // The character `ahead` places further on, or 0 behind the end.
    char16_t peek(std::size_t ahead = 0) const noexcept {
        return at_ + ahead < pattern_.size() ? pattern_[at_ + ahead] : u'\0';
    }
    bool next(char16_t c) const noexcept { return !atEnd() && pattern_[at_] == c; }
    bool take(char16_t c) noexcept {
        if (!next(c)) {
            return false;
        }
        ++at_;
        return true;
    }
    char16_t takeAny() noexcept { return pattern_[at_++]; } // not at the end

    // Behind a backslash, not at the end: the character that the escape stands for. A letter without meaning stands for
    // itself.
    char16_t escapedUnit() noexcept;

private:
    std::optional<char16_t> hexUnit(std::size_t digits) noexcept;
    char16_t octalUnit(char16_t first) noexcept;

    std::u16string_view pattern_;
    std::size_t at_ = 0;
};

} // namespace vbs
