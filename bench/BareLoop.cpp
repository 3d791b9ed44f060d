#include "BareLoop.h"

#include "platform/posix/Descriptor.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cstddef>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/epoll.h>
#include <sys/socket.h>

namespace {

constexpr std::size_t requestSize = 12;
constexpr std::size_t headerSize = 9;

Descriptor openListener(std::uint16_t port) {
    Descriptor listener(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    const int on = 1;
    setsockopt(listener.number(), SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    setsockopt(listener.number(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    if (bind(listener.number(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        listen(listener.number(), SOMAXCONN) != 0)
        listener.reset();
    return listener;
}

void watch(const Descriptor& loop, int descriptor) {
    epoll_event event{};
    event.events = EPOLLIN;
    event.data.fd = descriptor;
    epoll_ctl(loop.number(), EPOLL_CTL_ADD, descriptor, &event);
}

// Reads one arrival and answers it; false when the connection has ended.
bool answer(int connection) {
    static std::array<std::uint8_t, 65536> request;
    static std::array<std::uint8_t, headerSize + 252> reply; // the registers stay 0
    const ssize_t count = recv(connection, request.data(), request.size(), 0);
    if (count < static_cast<ssize_t>(requestSize))
        return false;
    const std::size_t dataSize = std::min<std::size_t>(request[11], 126) * 2;
    std::copy_n(request.begin(), 8, reply.begin());
    reply[5] = static_cast<std::uint8_t>(dataSize + 3);
    reply[8] = static_cast<std::uint8_t>(dataSize);
    send(connection, reply.data(), headerSize + dataSize, MSG_NOSIGNAL);
    return true;
}

} // namespace

void serveBareLoop(std::uint16_t port) {
    const Descriptor listener = openListener(port);
    const Descriptor loop(epoll_create1(EPOLL_CLOEXEC));
    watch(loop, listener.number());
    std::array<epoll_event, 256> events;
    while (listener) {
        const int count = epoll_wait(loop.number(), events.data(), static_cast<int>(events.size()), -1);
        for (int i = 0; i < count; ++i) {
            const int ready = events[static_cast<std::size_t>(i)].data.fd;
            if (ready == listener.number())
                watch(loop, accept4(ready, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
            else if (!answer(ready))
                close(ready);
        }
    }
}
