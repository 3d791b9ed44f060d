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

// Native code polls in the middle of its work, where the host lets no other text in.
void Vm::checkClock(bool betweenStatements) {
    budget_ = pollInterval;
    if (!clock_.interrupted) {
        const double now = host.monotonicMilliseconds();
        if (now >= clock_.nextLongRun && !tellsLongRun_) {
            tellLongRun(now, betweenStatements);
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

void Vm::tellLongRun(double now, bool betweenStatements) {
    constexpr double longRunEvery = 50;
    clock_.nextLongRun = now + longRunEvery;
    const struct Telling {
        Telling(Vm& teller, bool inStep) : vm(teller) {
            vm.tellsLongRun_ = true;
            vm.tellsLongStep_ = inStep;
        }
        ~Telling() { vm.tellsLongRun_ = vm.tellsLongStep_ = false; }
        Vm& vm;
    } telling(*this, !betweenStatements);
    const PausedClock away(*this);
    const std::chrono::milliseconds elapsed(static_cast<std::int64_t>(now - clock_.started));
    if (betweenStatements) {
        host.longRun(elapsed);
    } else {
        host.longStep(elapsed);
    }
}

} // namespace vbs
