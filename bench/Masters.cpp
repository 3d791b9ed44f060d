#include "Masters.h"

#include <algorithm>
#include <arpa/inet.h>
#include <iterator>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <stdexcept>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <sys/time.h>

namespace {

constexpr std::size_t answerSize = 29;

sockaddr_in loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    return address;
}

Descriptor connectTo(std::uint16_t port) {
    Descriptor connection(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    const sockaddr_in address = loopback(port);
    const int on = 1;
    setsockopt(connection.number(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    if (connect(connection.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        connection.reset();
    return connection;
}

} // namespace

std::uint16_t freePort() {
    const Descriptor probe(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    if (bind(probe.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        getsockname(probe.number(), reinterpret_cast<sockaddr*>(&address), &size) != 0)
        throw std::runtime_error("no free port");
    return ntohs(address.sin_port);
}

bool accepts(std::uint16_t port) {
    return static_cast<bool>(connectTo(port));
}

std::uint16_t readRegister(std::uint16_t port, std::uint8_t unit, std::uint8_t address) {
    const Descriptor connection = connectTo(port);
    const timeval patience{.tv_sec = 5, .tv_usec = 0};
    setsockopt(connection.number(), SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    const std::array<std::uint8_t, 12> request{0, 1, 0, 0, 0, 6, unit, 3, 0, address, 0, 1};
    std::array<std::uint8_t, 11> answer;
    if (send(connection.number(), request.data(), request.size(), MSG_NOSIGNAL) != std::ssize(request) ||
        recv(connection.number(), answer.data(), answer.size(), MSG_WAITALL) != std::ssize(answer))
        throw std::runtime_error("a register cannot be read");
    return static_cast<std::uint16_t>(answer[9] << 8U | answer[10]);
}

Masters::Masters(std::uint16_t port, std::size_t count) : epoll_(epoll_create1(EPOLL_CLOEXEC)), masters_(count) {
    for (std::size_t i = 0; i < count; ++i) {
        masters_[i].connection = connectTo(port);
        epoll_event event{};
        event.events = EPOLLIN;
        event.data.u64 = i;
        if (epoll_ctl(epoll_.number(), EPOLL_CTL_ADD, masters_[i].connection.number(), &event) != 0)
            throw std::runtime_error("a master is refused");
    }
}

void Masters::ask(Master& master) {
    ++master.transaction;
    const std::array<std::uint8_t, 12> request{static_cast<std::uint8_t>(master.transaction >> 8U),
                                               static_cast<std::uint8_t>(master.transaction & 255U),
                                               0,
                                               0,
                                               0,
                                               6,
                                               1,
                                               3,
                                               0,
                                               0,
                                               0,
                                               10};
    master.sent = Clock::now();
    master.waiting = true;
    send(master.connection.number(), request.data(), request.size(), MSG_NOSIGNAL);
}

void Masters::takeAnswer(Master& master) {
    std::array<std::uint8_t, 512> answer;
    const ssize_t count = recv(master.connection.number(), answer.data(), answer.size(), 0);
    if (count != static_cast<ssize_t>(answerSize) || (answer[0] << 8U | answer[1]) != master.transaction ||
        answer[5] != answerSize - 6 || answer[7] != 3)
        throw std::runtime_error("a wrong answer");
    latencies_.push_back(Clock::now() - master.sent);
    master.waiting = false;
}

// Takes what comes within that time, and returns how many answers it was.
std::size_t Masters::takeAnswers(int milliseconds) {
    std::array<epoll_event, 256> events;
    const int ready = epoll_wait(epoll_.number(), events.data(), static_cast<int>(events.size()), milliseconds);
    for (int i = 0; i < ready; ++i)
        takeAnswer(masters_[events[static_cast<std::size_t>(i)].data.u64]);
    return static_cast<std::size_t>(std::max(ready, 0));
}

std::size_t Masters::runPaced(std::chrono::nanoseconds period, std::size_t periods) {
    const auto begin = Clock::now();
    std::size_t open = 0;
    std::size_t leftOut = 0;
    for (std::size_t asked = 0; asked < periods * count();) {
        const auto due = begin + period / static_cast<long>(count()) * static_cast<long>(asked);
        if (Clock::now() < due) {
            open -= takeAnswers(1);
            continue;
        }
        Master& master = masters_[asked++ % count()];
        if (master.waiting) {
            ++leftOut;
        } else {
            ask(master);
            ++open;
        }
        open -= takeAnswers(0);
    }
    while (open > 0) {
        const std::size_t answers = takeAnswers(30'000);
        if (answers == 0)
            throw std::runtime_error("no answer for thirty seconds");
        open -= answers;
    }
    return leftOut;
}

std::size_t Masters::run(std::chrono::nanoseconds duration) {
    const auto end = Clock::now() + duration;
    const std::size_t before = latencies_.size();
    for (Master& master : masters_)
        ask(master);
    std::array<epoll_event, 256> events;
    for (std::size_t open = masters_.size(); open > 0;) {
        const int ready = epoll_wait(epoll_.number(), events.data(), static_cast<int>(events.size()), 5000);
        if (ready <= 0)
            throw std::runtime_error("no answer for five seconds");
        for (std::size_t i = 0; i < static_cast<std::size_t>(ready); ++i) {
            Master& master = masters_[events[i].data.u64];
            takeAnswer(master);
            if (Clock::now() < end)
                ask(master);
            else
                --open;
        }
    }
    return latencies_.size() - before;
}
