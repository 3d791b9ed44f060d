#pragma once

#include "platform/posix/Descriptor.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <vector>

// A port of the loopback that nobody uses.
std::uint16_t freePort();
// Whether somebody accepts connections on that port of the loopback.
bool accepts(std::uint16_t port);
// A register below 256. Throws std::runtime_error without an answer within five seconds.
std::uint16_t readRegister(std::uint16_t port, std::uint8_t unit, std::uint8_t address);

// Modbus TCP masters in closed loop, all in the calling thread: each sends a read request of ten registers (unit 1,
// address 0) and the next one when its answer has come.
class Masters {
public:
    // Connects; throws std::runtime_error when a connection is refused.
    Masters(std::uint16_t port, std::size_t count);

    std::size_t count() const { return masters_.size(); }
    // Runs for that long and until the last answer has come, and returns how many requests were answered. Adds the
    // latency of each to latencies(). Throws std::runtime_error on a wrong answer or one that takes five seconds.
    std::size_t run(std::chrono::nanoseconds duration);
    // Each asks once in every `period`, evenly spread, for that many periods. Latencies and exceptions as above. A
    // master whose answer has not come when its next request is due leaves that one out; returns how many were.
    std::size_t runPaced(std::chrono::nanoseconds period, std::size_t periods);
    const std::vector<std::chrono::nanoseconds>& latencies() const { return latencies_; }

private:
    using Clock = std::chrono::steady_clock;
    struct Master {
        Descriptor connection;
        Clock::time_point sent;
        std::uint16_t transaction = 0;
        bool waiting = false;
    };

    static void ask(Master& master);
    void takeAnswer(Master& master);
    std::size_t takeAnswers(int milliseconds);

    Descriptor epoll_;
    std::vector<Master> masters_;
    std::vector<std::chrono::nanoseconds> latencies_;
};
