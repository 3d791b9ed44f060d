// Sets of characters in patterns: [a-z], [^\d], [] and [^].
#pragma once

#include "platform/vbscript/library/RegExpReader.h"

#include <string>

namespace vbs {

// Reads a set, behind its opening bracket and up to its closing one, and appends the library's writing of it. Raises
// 5019 for one without end and 5021 for a range that runs backwards.
void translateSet(PatternReader& in, std::u16string& out);

} // namespace vbs
