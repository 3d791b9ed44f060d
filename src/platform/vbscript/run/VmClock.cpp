// The time of a pass: its deadline, its pauses, and what may stop it.
#include "platform/vbscript/run/Vm.h"

#include <algorithm>
#include <chrono>

namespace vbs {

void Vm::startClock() {
    constexpr double longRunAfter = 500;
    clock_ = {};
    clock_.started = host.monotonicMilliseconds();
    clock_.deadline = timeoutMilliseconds > 0 ? clock_.started + timeoutMilliseconds : 0;
    clock_.nextLongRun = clock_.started + longRunAfter;
    budget_ = pollInterval;
}

void Vm::pauseClock() {
    if (clock_.pauses++ == 0) {
        clock_.pausedAt = host.monotonicMilliseconds();
    }
}

void Vm::resumeClock() noexcept {
    if (--clock_.pauses > 0) {
        return;
    }
    const double away = host.monotonicMilliseconds() - clock_.pausedAt;
    clock_.started += away;
    clock_.deadline += clock_.deadline > 0 ? away : 0;
    clock_.nextLongRun += away;
}

void Vm::poll() {
    if (--budget_ < 0) {
        checkClock(false);
    }
}

void Vm::spend(std::size_t work) {
    budget_ -= static_cast<int>(std::min<std::size_t>(work, pollInterval));
    poll();
}

void Vm::interrupt() {
    clock_.interrupted = true;
    clock_.interruption = ErrorNumber::Stopped;
    budget_ = 0;
    raise(clock_.interruption);
}

void Vm::pollSlow() {
    checkClock(true);
}

// Native code polls in the middle of its work, where the host must not let other texts in.
void Vm::checkClock(bool betweenStatements) {
    budget_ = pollInterval;
    if (!clock_.interrupted) {
        const double now = host.monotonicMilliseconds();
        if (now >= clock_.nextLongRun && !tellsLongRun_) {
            if (betweenStatements) {
                tellLongRun(now);
            } else {
                budget_ = 0; // the next statement does it
            }
        }
        const bool late = clock_.deadline > 0 && host.monotonicMilliseconds() >= clock_.deadline;
        if (stopRequested == 0 && !late && !clock_.interrupted) {
            return;
        }
        if (!clock_.interrupted) {
            clock_.interruption = stopRequested != 0 ? ErrorNumber::Stopped : ErrorNumber::TimedOut;
        }
        clock_.interrupted = true;
        stopRequested = 0;
    }
    budget_ = 0; // so that no handler on the way out gets far
    raise(clock_.interruption);
}

void Vm::tellLongRun(double now) {
    constexpr double longRunEvery = 50;
    clock_.nextLongRun = now + longRunEvery;
    const struct Telling {
        explicit Telling(bool& flag) : telling(flag) { telling = true; }
        ~Telling() { telling = false; }
        bool& telling;
    } telling(tellsLongRun_);
    const PausedClock away(*this);
    host.longRun(std::chrono::milliseconds(static_cast<std::int64_t>(now - clock_.started)));
}

} // namespace vbs
