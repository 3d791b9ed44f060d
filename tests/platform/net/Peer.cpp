#include "tests/platform/net/Peer.h"

#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {
bool watchesRefused = false;
}

// Stands before the system's own in every program that links this file.
extern "C" int epoll_ctl(int epoll, int operation, int descriptor, epoll_event* event) noexcept {
    if (watchesRefused && operation == EPOLL_CTL_ADD) {
        errno = ENOSPC;
        return -1;
    }
    return static_cast<int>(syscall(SYS_epoll_ctl, epoll, operation, descriptor, event));
}

NoMoreWatches::NoMoreWatches() {
    watchesRefused = true;
}

NoMoreWatches::~NoMoreWatches() {
    watchesRefused = false;
}

Peer::Peer(std::uint16_t port, int receiveBuffer) : descriptor_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    if (receiveBuffer > 0)
        setsockopt(descriptor_.number(), SOL_SOCKET, SO_RCVBUF, &receiveBuffer, sizeof receiveBuffer);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    connected_ = ::connect(descriptor_.number(), reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
}

Peer Peer::overIPv6(std::uint16_t port) {
    Peer peer;
    peer.descriptor_ = Descriptor(::socket(AF_INET6, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_in6 address{};
    address.sin6_family = AF_INET6;
    address.sin6_addr = in6addr_loopback;
    address.sin6_port = htons(port);
    peer.connected_ = ::connect(peer.descriptor_.number(), reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    return peer;
}

void Peer::send(std::string_view data) const {
    while (!data.empty()) {
        const ssize_t count = ::send(descriptor_.number(), data.data(), data.size(), MSG_NOSIGNAL);
        if (count < 0)
            return;
        data.remove_prefix(static_cast<std::size_t>(count));
    }
}

std::size_t Peer::sendSome(std::span<const std::uint8_t> data) const {
    const ssize_t count = ::send(descriptor_.number(), data.data(), data.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

std::string Peer::receive(std::size_t limit) const {
    std::string data(limit, '\0');
    const ssize_t count = recv(descriptor_.number(), data.data(), data.size(), MSG_DONTWAIT);
    data.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return data;
}

std::string Peer::await(std::size_t count) const {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    std::string data = receive();
    while (data.size() < count && !ended() && std::chrono::steady_clock::now() < deadline) {
        pollfd watched{descriptor_.number(), POLLIN, 0};
        poll(&watched, 1, 100);
        data += receive();
    }
    return data;
}

bool Peer::ended() const {
    char byte = 0;
    const ssize_t count = recv(descriptor_.number(), &byte, 1, MSG_DONTWAIT | MSG_PEEK);
    return count == 0 || (count < 0 && errno != EAGAIN);
}

std::uint16_t Peer::localPort() const {
    sockaddr_in own{};
    socklen_t size = sizeof own;
    getsockname(descriptor_.number(), reinterpret_cast<sockaddr*>(&own), &size);
    return ntohs(own.sin_port);
}

void Peer::halfClose() const {
    shutdown(descriptor_.number(), SHUT_WR);
}

void Peer::reset() {
    const linger atOnce{.l_onoff = 1, .l_linger = 0};
    setsockopt(descriptor_.number(), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    descriptor_.reset();
}

bool runUntil(Reactor& reactor, const std::function<bool()>& condition) {
    // Generous: 100 MB take their time on a machine that does twenty other things.
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(90);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        pollfd watched{reactor.descriptor(), POLLIN, 0};
        poll(&watched, 1, 1);
        reactor.turn();
    }
    return true;
}

void Recorder::onConnectionRequest(Winsock& socket, std::uint32_t requestId) {
    requests.push_back(requestId);
    if (request)
        request(socket, requestId);
}

void Recorder::onDataArrival(Winsock& socket, std::span<const std::uint8_t> data) {
    arrivals.push_back(textOf(data));
    if (arrival)
        arrival(socket, data);
}

void Recorder::onClose(Winsock& socket) {
    closes.push_back(socket.State());
    if (closed)
        closed(socket);
}

void Recorder::onSendComplete(Winsock& socket) {
    ++sendsCompleted;
    if (sendComplete)
        sendComplete(socket);
}

Station::Station() {
    EXPECT_FALSE(listener.Listen());
    events.request = [this](Winsock&, std::uint32_t requestId) { connection.Accept(requestId); };
}

Peer Station::connect(int receiveBuffer) {
    Peer peer(listener.LocalPort(), receiveBuffer);
    EXPECT_TRUE(runUntil(reactor, [this] { return connection.State() == WinsockState::connected; }));
    return peer;
}
