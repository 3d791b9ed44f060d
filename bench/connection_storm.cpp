// 1,000 masters that connect at once and ask as soon as they stand, beside a bare epoll loop: how long the slowest
// hundredth waits from its connect to its first answer. Usage: connection_storm PROGRAM [ROUNDS]
//
// Station and loop take turns, and all masters leave between two storms. The first storm finds no socket made; the
// later ones find 1,000 free ones. A row is the median of the ratios of neighbouring storms.
#include "BareLoop.h"
#include "ServerProcess.h"
#include "platform/posix/Descriptor.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <netinet/in.h>
#include <stdexcept>
#include <sys/epoll.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t mastersCount = 1000;
constexpr std::size_t answerSize = 29;
constexpr std::array<std::uint8_t, 12> request{0, 1, 0, 0, 0, 6, 1, 3, 0, 0, 0, 10};

struct Master {
    Descriptor connection;
    Clock::time_point begun;
    std::size_t received = 0;
    bool asked = false;
};

void connectAtOnce(std::uint16_t port, const Descriptor& epoll, std::vector<Master>& masters) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    for (std::size_t i = 0; i < masters.size(); ++i) {
        Master& master = masters[i];
        master.connection = Descriptor(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
        master.begun = Clock::now();
        if (connect(master.connection.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 &&
            errno != EINPROGRESS)
            throw std::runtime_error("a master is refused");
        epoll_event event{};
        event.events = EPOLLOUT;
        event.data.u64 = i;
        epoll_ctl(epoll.number(), EPOLL_CTL_ADD, master.connection.number(), &event);
    }
}

void ask(const Descriptor& epoll, std::size_t index, Master& master) {
    master.asked = true;
    if (send(master.connection.number(), request.data(), request.size(), MSG_NOSIGNAL) != std::ssize(request))
        throw std::runtime_error("a master cannot ask");
    epoll_event event{};
    event.events = EPOLLIN;
    event.data.u64 = index;
    epoll_ctl(epoll.number(), EPOLL_CTL_MOD, master.connection.number(), &event);
}

// Returns whether the answer is whole now.
bool takeAnswer(const Descriptor& epoll, Master& master) {
    std::array<std::uint8_t, answerSize> answer;
    const ssize_t count = recv(master.connection.number(), answer.data(), answer.size() - master.received, 0);
    if (count <= 0)
        throw std::runtime_error("a master gets no answer");
    master.received += static_cast<std::size_t>(count);
    if (master.received < answerSize)
        return false;
    epoll_ctl(epoll.number(), EPOLL_CTL_DEL, master.connection.number(), nullptr);
    return true;
}

// One storm; the 99th percentile of the waits in milliseconds.
double storm(const ServerProcess& server) {
    const Descriptor epoll(epoll_create1(EPOLL_CLOEXEC));
    std::vector<Master> masters(mastersCount);
    std::vector<double> waits;
    connectAtOnce(server.port(), epoll, masters);
    std::array<epoll_event, 256> events;
    while (waits.size() < masters.size()) {
        const int count = epoll_wait(epoll.number(), events.data(), static_cast<int>(events.size()), 5000);
        if (count <= 0)
            throw std::runtime_error("no answer within five seconds");
        for (int i = 0; i < count; ++i) {
            const auto index = static_cast<std::size_t>(events[static_cast<std::size_t>(i)].data.u64);
            Master& master = masters[index];
            if (!master.asked)
                ask(epoll, index, master);
            else if (takeAnswer(epoll, master))
                waits.push_back(std::chrono::duration<double, std::milli>(Clock::now() - master.begun).count());
        }
    }
    const auto rank = static_cast<std::ptrdiff_t>(waits.size() * 99 / 100);
    std::nth_element(waits.begin(), waits.begin() + rank, waits.end());
    return waits[static_cast<std::size_t>(rank)];
}

// The server has seen all masters leave: it uses no more processor time.
void waitUntilIdle(const ServerProcess& server) {
    auto before = server.processorTime();
    for (;;) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        const auto now = server.processorTime();
        if (now - before < std::chrono::microseconds(500))
            return;
        before = now;
    }
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void compare(const ServerProcess& station, const ServerProcess& bare, int rounds) {
    std::vector<double> ratios;
    std::vector<double> waits;
    for (int round = 0; round <= rounds; ++round) {
        const double reference = storm(bare);
        waitUntilIdle(bare);
        const double measured = storm(station);
        waitUntilIdle(station);
        if (round == 0) {
            std::printf("1000 maestros a la vez, primera vez: p99 %.2f (%.1f ms; bucle %.1f ms)\n",
                        measured / reference, measured, reference);
            continue;
        }
        ratios.push_back(measured / reference);
        waits.push_back(measured);
    }
    std::printf("1000 maestros a la vez, las siguientes: p99 %.2f (objetivo 1.50; %.1f ms)\n", median(ratios),
                median(waits));
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("usage: connection_storm PROGRAM [ROUNDS]\n", stderr);
        return 2;
    }
    rlimit files{};
    getrlimit(RLIMIT_NOFILE, &files);
    files.rlim_cur = files.rlim_max;
    setrlimit(RLIMIT_NOFILE, &files);
    try {
        const ServerProcess bare(serveBareLoop);
        const ServerProcess station{std::filesystem::path(argv[1])};
        compare(station, bare, argc > 2 ? std::max(1, std::atoi(argv[2])) : 15);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "connection_storm: %s\n", failure.what());
        return 1;
    }
}
