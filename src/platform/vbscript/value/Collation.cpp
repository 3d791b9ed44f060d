#include "platform/vbscript/value/Collation.h"

#include "platform/vbscript/value/String.h"

#include <algorithm>

namespace vbs {

namespace {

constexpr int spanish = 0x0A; // the language part of a locale number
constexpr int languageMask = 0x3FF;
constexpr char16_t lettersFrom = 0x100; // weights of letters lie above those of signs and digits

// Letters without accent for U+00E0 to U+00FF; 0 keeps the letter as it is.
constexpr std::u16string_view plain(u"aaaaaa\0ceeeeiiii\0nooooo\0ouuuuy\0y", 32);

// Place of a character in the alphabet, without regard to case and accent. A letter has two places, the second one
// for a letter that follows it ("ñ").
int weight(char16_t unit, bool ownLetter) noexcept {
    const char16_t c = toLower(unit);
    if (c >= 0xE0 && c <= 0xFF && plain[c - 0xE0U] != 0) {
        return (lettersFrom + plain[c - 0xE0U]) * 2 + (c == u'ñ' && ownLetter ? 1 : 0);
    }
    const bool letter = c >= u'a' && (c <= u'z' || c >= 0xC0);
    return (letter ? lettersFrom + c : c) * 2;
}

} // namespace

int collate(std::u16string_view a, std::u16string_view b, const Locale& locale) noexcept {
    const bool ownLetter = (locale.id & languageMask) == spanish;
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const int difference = weight(a[i], ownLetter) - weight(b[i], ownLetter);
        if (difference != 0) {
            return difference;
        }
    }
    return a.size() != b.size() ? (a.size() < b.size() ? -1 : 1) : compareNoCase(a, b);
}

} // namespace vbs
