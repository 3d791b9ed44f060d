// The order of words in a dictionary, for StrComp with vbTextCompare: signs and digits before letters, accents decide
// only between words that are otherwise alike, capitals not at all.
#pragma once

#include "platform/vbscript/value/Locale.h"

#include <string_view>

namespace vbs {

// Negative, zero or positive. In Spanish locales "ñ" is a letter of its own, after "n". Zero exactly when the texts
// differ in nothing but case.
int collate(std::u16string_view a, std::u16string_view b, const Locale& locale) noexcept;

} // namespace vbs
