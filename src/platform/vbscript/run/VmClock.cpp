// The time of a pass: its deadline, its pauses, and what may stop it.
#include "platform/vbscript/run/Vm.h"

#include <algorithm>
#include <chrono>

namespace vbs {

void Vm::startClock() {
    constexpr double longRunAfter = 500;
    m_clock = {};
    m_clock.started = host.monotonicMilliseconds();
    m_clock.deadline = timeoutMilliseconds > 0 ? m_clock.started + timeoutMilliseconds : 0;
    m_clock.nextLongRun = m_clock.started + longRunAfter;
    m_budget = pollInterval;
}

void Vm::pauseClock() {
    if (m_clock.pauses++ == 0) {
        m_clock.pausedAt = host.monotonicMilliseconds();
    }
}

void Vm::resumeClock() noexcept {
    if (--m_clock.pauses > 0) {
        return;
    }
    const double away = host.monotonicMilliseconds() - m_clock.pausedAt;
    m_clock.started += away;
    m_clock.deadline += m_clock.deadline > 0 ? away : 0;
    m_clock.nextLongRun += away;
}

void Vm::poll() {
    if (--m_budget < 0) {
        checkClock(false);
    }
}

void Vm::spend(std::size_t work) {
    m_budget -= static_cast<int>(std::min<std::size_t>(work, pollInterval));
    poll();
}

void Vm::interrupt() {
    m_clock.interrupted = true;
    m_clock.interruption = ErrorNumber::Stopped;
    m_budget = 0;
    raise(m_clock.interruption);
}

void Vm::pollSlow() {
    checkClock(true);
}

// Native code polls in the middle of its work, where the host must not let other texts in.
void Vm::checkClock(bool betweenStatements) {
    m_budget = pollInterval;
    if (!m_clock.interrupted) {
        const double now = host.monotonicMilliseconds();
        if (now >= m_clock.nextLongRun && !m_tellsLongRun) {
            if (betweenStatements) {
                tellLongRun(now);
            } else {
                m_budget = 0; // the next statement does it
            }
        }
        const bool late = m_clock.deadline > 0 && host.monotonicMilliseconds() >= m_clock.deadline;
        if (stopRequested == 0 && !late && !m_clock.interrupted) {
            return;
        }
        if (!m_clock.interrupted) {
            m_clock.interruption = stopRequested != 0 ? ErrorNumber::Stopped : ErrorNumber::TimedOut;
        }
        m_clock.interrupted = true;
        stopRequested = 0;
    }
    m_budget = 0; // so that no handler on the way out gets far
    raise(m_clock.interruption);
}

void Vm::tellLongRun(double now) {
    constexpr double longRunEvery = 50;
    m_clock.nextLongRun = now + longRunEvery;
    const struct Telling {
        explicit Telling(bool& flag) : telling(flag) { telling = true; }
        ~Telling() { telling = false; }
        bool& telling;
    } telling(m_tellsLongRun);
    const PausedClock away(*this);
    host.longRun(std::chrono::milliseconds(static_cast<std::int64_t>(now - m_clock.started)));
}

} // namespace vbs
