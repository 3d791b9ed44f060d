// What native code does for a script, counted in turns of an empty loop. The machine looks at the clock after so many
// jumps and calls; a builtin that goes over a text of megabytes takes as long as many of them, and takes them off here.
// Otherwise a loop over such builtins would meet its time-out, or let the host breathe, thousands of times too late.
//
// The count belongs to the thread: the engine that is running tells which one it is. Nothing here allocates or raises;
// what runs long in one piece calls Context::spend instead, which looks at the clock by itself.
#pragma once

#include <cstddef>

namespace vbs {

// Takes turns off what is left before the next look at the clock; never more than are left. Without an engine that runs
// it does nothing.
void chargeTurns(std::size_t turns) noexcept;

inline constexpr std::size_t bytesATurn = 16; // that are read, written or both

// Charges a walk over so many bytes. Short ones are no longer than the call that asked for them.
inline void chargeWalk(std::size_t bytes) noexcept {
    constexpr std::size_t longWalk = 1024;
    if (bytes >= longWalk) [[unlikely]] {
        chargeTurns(bytes / bytesATurn);
    }
}

// While it lives, what is charged goes off `turns`; engines that run inside each other keep their own.
class ChargedTurns {
public:
    explicit ChargedTurns(int& turns) noexcept;
    ~ChargedTurns();
    ChargedTurns(const ChargedTurns&) = delete;
    ChargedTurns& operator=(const ChargedTurns&) = delete;

private:
    int* const before_;
};

} // namespace vbs
