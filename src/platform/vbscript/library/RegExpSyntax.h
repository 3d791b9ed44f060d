// Translates a pattern of the RegExp object into the dialect of the matching library. The pattern follows the language
// reference: \d, \w, \s and \b know ASCII only, "." leaves out the line feed, "$" is the very end unless Multiline is
// set, \1 to \99 are references while there are that many groups and octal codes beyond, [] matches nothing and [^]
// anything. What only the library knows (possessive quantifiers, look-behind, verbs ...) is an error or literal text.
#pragma once

#include <string>
#include <string_view>

namespace vbs {

struct TranslatedPattern {
    std::u16string text;
    int groups = 0;
};

// Whether a pattern may name characters beyond ASCII.
bool namesBeyondAscii(std::u16string_view pattern) noexcept;

// `unicode`: the library will be told to go by Unicode properties. Raises 5017 (syntax), 5018 (quantifier), 5019 ("]"
// missing), 5020 (")" missing), 5021 (range).
TranslatedPattern translatePattern(std::u16string_view pattern, bool multiline, bool unicode);

} // namespace vbs
