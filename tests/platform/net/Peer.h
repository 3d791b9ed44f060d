#pragma once

#include "platform/net/Winsock.h"
#include "platform/posix/Descriptor.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <poll.h>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The other side of a connection: a plain client socket on the loopback that the test drives by hand.
class Peer {
public:
    // Connects to 127.0.0.1; connected() tells whether it worked. A `receiveBuffer` (bytes) makes a peer that the
    // kernel fills quickly.
    explicit Peer(std::uint16_t port, int receiveBuffer = 0);

    // Connects to ::1 instead.
    static Peer overIPv6(std::uint16_t port);

    bool connected() const { return connected_; }
    // Its own port.
    std::uint16_t localPort() const;
    // Sends all of it, blocking.
    void send(std::string_view data) const;
    // Sends what the kernel takes now; returns how much.
    std::size_t sendSome(std::span<const std::uint8_t> data) const;
    // What has arrived so far, at most `limit` bytes; empty when nothing has.
    std::string receive(std::size_t limit = 65536) const;
    // Waits until `count` bytes have arrived, ten seconds at most: the kernel hands over in its own time.
    std::string await(std::size_t count) const;
    // Whether the connection was closed or reset by the other side.
    bool ended() const;
    void halfClose() const;
    // Closes with a reset instead of an orderly end.
    void reset();
    void close() { descriptor_.reset(); }

private:
    Peer() = default;

    Descriptor descriptor_;
    bool connected_ = false;
};

// Turns the reactor as an event loop would until the condition holds; false when it does not within ten seconds.
bool runUntil(Reactor& reactor, const std::function<bool()>& condition);

// While it lives the system refuses to watch another descriptor, as it does when a user watches too many.
class NoMoreWatches {
public:
    NoMoreWatches();
    ~NoMoreWatches();
    NoMoreWatches(const NoMoreWatches&) = delete;
    NoMoreWatches& operator=(const NoMoreWatches&) = delete;
};

// Whether the reactor would wake its event loop now.
inline bool wouldWake(const Reactor& reactor) {
    pollfd watched{reactor.descriptor(), POLLIN, 0};
    return poll(&watched, 1, 0) > 0;
}

// Waits until it would, ten seconds at most.
inline bool awaitWake(const Reactor& reactor) {
    pollfd watched{reactor.descriptor(), POLLIN, 0};
    return poll(&watched, 1, 10'000) > 0;
}

inline std::span<const std::uint8_t> bytesOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

inline std::string textOf(std::span<const std::uint8_t> data) {
    return {data.begin(), data.end()};
}

// Records what sockets report, and runs what the test wants to happen during an event.
struct Recorder : WinsockEvents {
    void onConnectionRequest(Winsock& socket, std::uint32_t requestId) override;
    void onDataArrival(Winsock& socket, std::span<const std::uint8_t> data) override;
    void onClose(Winsock& socket) override;
    void onSendComplete(Winsock& socket) override;

    std::vector<std::uint32_t> requests;
    std::vector<std::string> arrivals;
    std::vector<WinsockState> closes; // the state at each close event
    int sendsCompleted = 0;
    std::function<void(Winsock&, std::uint32_t)> request;
    std::function<void(Winsock&, std::span<const std::uint8_t>)> arrival;
    std::function<void(Winsock&)> closed;
    std::function<void(Winsock&)> sendComplete;
};

// A reactor, a listener on a free port and one socket that accepts the next request that finds it closed.
struct Station {
    Station();
    // A peer connected to `connection`.
    Peer connect(int receiveBuffer = 0);

    Reactor reactor;
    Recorder events;
    Winsock listener{reactor, events};
    Winsock connection{reactor, events, 1};
};
