#include "platform/vbscript/value/Work.h"

#include <utility>

namespace vbs {

namespace {

constinit thread_local int* charged = nullptr;

} // namespace

void chargeTurns(std::size_t turns) noexcept {
    if (charged != nullptr && *charged > 0) {
        const auto left = static_cast<std::size_t>(*charged);
        *charged = turns < left ? static_cast<int>(left - turns) : 0;
    }
}

ChargedTurns::ChargedTurns(int& turns) noexcept : before_(std::exchange(charged, &turns)) {}

ChargedTurns::~ChargedTurns() {
    charged = before_;
}

} // namespace vbs
