#include "platform/vbscript/compile/Program.h"

#include <algorithm>

namespace vbs {

const StatementMark* Procedure::markAt(std::size_t pc) const noexcept {
    const auto after = std::upper_bound(marks.begin(), marks.end(), pc,
                                        [](std::size_t p, const StatementMark& m) { return p < m.start; });
    return after == marks.begin() ? nullptr : &*(after - 1);
}

} // namespace vbs
