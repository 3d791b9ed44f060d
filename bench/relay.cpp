// The bridge beside a bare two-socket copy loop: throughput of large blocks and round trips of small ones, with the
// monitors on and off. Usage: relay [SLICES]
//
// The relays take turns in slices, so that what else the machine does falls upon all; a row is the median of the ratios
// of neighbouring slices. Throughput stands beside the bytes a second of the relay's own processor time, which say the
// same on a machine that does other things too, and the memory that the monitors take beside the bytes they show.
#include "bridge/FrmConexionesPuentes.h"
#include "platform/window/EventosQt.h"

#include <QApplication>
#include <QCheckBox>
#include <QSocketNotifier>

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <functional>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sched.h>
#include <stdexcept>
#include <string>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Ports = std::array<std::uint16_t, 2>;

constexpr std::size_t largeBlock = 65536;
constexpr std::size_t smallBlock = 64;
constexpr int roundTrips = 2000;

// Relays run on the first processor, the clients on the last: where the scheduler happens to put them would otherwise
// change a round trip threefold.
void runOnProcessor(long number) {
    cpu_set_t set;
    CPU_ZERO(&set);
    CPU_SET(static_cast<std::size_t>(number), &set);
    sched_setaffinity(0, sizeof set, &set); // where it is not allowed, the figures are only less steady
}

sockaddr_in loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    return address;
}

int listenOn(std::uint16_t port) {
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    const int on = 1;
    setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    const sockaddr_in address = loopback(port);
    if (bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 || listen(listener, 1) != 0)
        throw std::runtime_error("a port is taken");
    return listener;
}

std::uint16_t freePort() {
    const int listener = listenOn(0);
    sockaddr_in address{};
    socklen_t size = sizeof address;
    getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
    close(listener);
    return ntohs(address.sin_port);
}

void setNoDelay(int connection) {
    const int on = 1;
    setsockopt(connection, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

void sendAll(int connection, const char* data, std::size_t size) {
    while (size > 0) {
        const ssize_t count = send(connection, data, size, MSG_NOSIGNAL);
        if (count <= 0)
            throw std::runtime_error("a relay ended");
        data += count;
        size -= static_cast<std::size_t>(count);
    }
}

void receiveAll(int connection, std::vector<char>& buffer, std::size_t size) {
    while (size > 0) {
        const ssize_t count = recv(connection, buffer.data(), std::min(buffer.size(), size), 0);
        if (count <= 0)
            throw std::runtime_error("a relay ended");
        size -= static_cast<std::size_t>(count);
    }
}

// Where a bare loop puts what arrives: at one place again and again, or one arrival behind the other in memory that was
// never used, in large pages, so that all of it is kept.
class Arrivals {
public:
    explicit Arrivals(bool kept) : kept_(kept) {}

    // Room for a large block.
    char* place() {
        if (begin_ == nullptr || size_ - used_ < largeBlock)
            reserve();
        return begin_ + used_;
    }
    void took(std::size_t count) { used_ += kept_ ? count : 0; }

private:
    void reserve() {
        constexpr std::size_t portion = std::size_t{64} << 20;
        void* memory =
            mmap(nullptr, portion, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (memory == MAP_FAILED)
            throw std::runtime_error("no memory for what arrives");
        madvise(memory, portion, MADV_HUGEPAGE); // without them it only takes longer
        begin_ = static_cast<char*>(memory);
        size_ = portion;
        used_ = 0;
    }

    bool kept_;
    char* begin_ = nullptr;
    std::size_t size_ = 0;
    std::size_t used_ = 0;
};

// The references: the least that copying between two sockets takes, and the least when nothing of it is thrown away.
void serveBareLoop(Ports ports, bool keep) {
    const std::array listeners{listenOn(ports[0]), listenOn(ports[1])};
    const std::array sides{accept(listeners[0], nullptr, nullptr), accept(listeners[1], nullptr, nullptr)};
    std::array<pollfd, 2> watched{pollfd{sides[0], POLLIN, 0}, pollfd{sides[1], POLLIN, 0}};
    for (const int side : sides)
        setNoDelay(side);
    Arrivals arrivals(keep);
    while (poll(watched.data(), watched.size(), -1) > 0)
        for (std::size_t i = 0; i < 2; ++i)
            if (watched[i].revents != 0) {
                char* block = arrivals.place();
                const ssize_t count = recv(sides[i], block, largeBlock, 0);
                if (count <= 0)
                    return;
                sendAll(sides[1 - i], block, static_cast<std::size_t>(count));
                arrivals.took(static_cast<std::size_t>(count));
            }
}

enum class Monitors { off, text, hexadecimal };

// The bridge window in its event loop, as the station runs it.
void serveBridge(Ports ports, Monitors monitors) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    int argc = 1;
    std::array<char, 6> name{"relay"};
    std::array<char*, 2> argv{name.data(), nullptr};
    QApplication application(argc, argv.data());
    Reactor reactor;
    EventosQt events;
    QWidget principal;
    Puente bridge(reactor, events, ports[0], ports[1]);
    FrmConexionesPuentes window(principal, bridge);
    QSocketNotifier notifier(reactor.descriptor(), QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [&] { reactor.turn(); });
    window.findChild<QCheckBox*>(QStringLiteral("chStop"))->setChecked(monitors == Monitors::off);
    window.findChild<QCheckBox*>(QStringLiteral("chModbus"))->setChecked(monitors == Monitors::hexadecimal);
    window.show();
    QApplication::exec();
}

// A relay in a process of its own, and a client on each side.
class Relay {
public:
    explicit Relay(const std::function<void(Ports)>& serve) : ports_{freePort(), freePort()}, process_(fork()) {
        if (process_ == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            runOnProcessor(0);
            serve(ports_);
            _exit(0);
        }
        sides_ = {connectTo(ports_[0]), connectTo(ports_[1])};
    }
    ~Relay() {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
        for (const int side : sides_)
            close(side);
    }
    Relay(const Relay&) = delete;
    Relay& operator=(const Relay&) = delete;

    // Seconds that `size` bytes take from side 1 to side 2 in large blocks.
    double transfer(std::size_t size) {
        const auto began = Clock::now();
        std::thread sender([&] {
            // Lines, as a device would send: without line ends the monitors would show one endless one.
            std::vector<char> block(largeBlock, 'x');
            for (std::size_t i = 79; i < block.size(); i += 80)
                block[i] = '\r';
            for (std::size_t sent = 0; sent < size; sent += block.size())
                sendAll(sides_[0], block.data(), block.size());
        });
        receiveAll(sides_[1], buffer_, size);
        sender.join();
        return std::chrono::duration<double>(Clock::now() - began).count();
    }

    // Seconds of processor time that the relay has taken.
    double processorTime() const {
        clockid_t clock = 0;
        timespec time{};
        if (clock_getcpuclockid(process_, &clock) != 0 || clock_gettime(clock, &time) != 0)
            throw std::runtime_error("a relay ended");
        return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
    }

    // Bytes of memory that are its own.
    double memory() const {
        std::ifstream file("/proc/" + std::to_string(process_) + "/statm");
        double pages = 0;
        double shared = 0;
        file >> pages >> pages >> shared;
        return (pages - shared) * static_cast<double>(sysconf(_SC_PAGESIZE));
    }

    // Median seconds of a round trip of a small block, there and back.
    double roundTrip() {
        std::vector<double> times;
        std::vector<char> block(smallBlock, 'x');
        for (int i = 0; i < roundTrips; ++i) {
            const auto began = Clock::now();
            sendAll(sides_[0], block.data(), block.size());
            receiveAll(sides_[1], buffer_, block.size());
            sendAll(sides_[1], block.data(), block.size());
            receiveAll(sides_[0], buffer_, block.size());
            times.push_back(std::chrono::duration<double>(Clock::now() - began).count());
        }
        std::nth_element(times.begin(), times.begin() + roundTrips / 2, times.end());
        return times[roundTrips / 2];
    }

private:
    static int connectTo(std::uint16_t port) {
        const auto deadline = Clock::now() + std::chrono::seconds(10);
        const sockaddr_in address = loopback(port);
        while (Clock::now() < deadline) {
            const int connection = socket(AF_INET, SOCK_STREAM, 0);
            setNoDelay(connection);
            if (connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
                return connection;
            close(connection);
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
        throw std::runtime_error("a relay does not listen");
    }

    Ports ports_;
    pid_t process_;
    std::array<int, 2> sides_{};
    std::vector<char> buffer_ = std::vector<char>(largeBlock * 4);
};

double median(std::vector<double>& values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double medianRatio(int slices, const std::function<double()>& first, const std::function<double()>& second) {
    std::vector<double> ratios;
    first(); // not counted: lets the windows of the connections open up
    second();
    for (int i = 0; i < slices; ++i) {
        const double one = first();
        ratios.push_back(one / second());
    }
    return median(ratios);
}

// What a relay reaches of the bare loop's bytes a second, and of its bytes a second of processor time.
void printThroughput(const char* title, int slices, Relay& bare, Relay& relay, std::size_t size) {
    double ofBare = 0;
    double ofRelay = 0;
    const auto timed = [size](Relay& one, double& processor) {
        const double before = one.processorTime();
        const double seconds = one.transfer(size);
        processor += one.processorTime() - before;
        return seconds;
    };
    const double throughput = medianRatio(
        slices, [&] { return timed(bare, ofBare); }, [&] { return timed(relay, ofRelay); });
    std::printf("puente, caudal %s: %.2f; por tiempo de procesador %.2f\n", title, throughput, ofBare / ofRelay);
}

// Bytes of memory that a byte shown takes.
void printMemory(const char* title, Relay& relay) {
    constexpr std::size_t shown = 1600 * largeBlock; // 100 MiB
    const double before = relay.memory();
    relay.transfer(shown);
    std::printf("puente, memoria por byte mostrado %s: %.2f (objetivo 1.5)\n", title,
                (relay.memory() - before) / static_cast<double>(shown));
}

} // namespace

int main(int argc, char** argv) {
    const int slices = argc > 1 ? std::max(1, std::atoi(argv[1])) : 15;
    // Long enough that a repaint, which costs the same whatever came, falls upon all that came meanwhile. The monitors
    // keep everything, so with them on there are fewer slices.
    constexpr std::size_t slice = 1024 * largeBlock; // 64 MiB
    const int shownSlices = std::max(1, slices / 2);
    try {
        Relay bare([](Ports ports) { serveBareLoop(ports, false); });
        Relay keeping([](Ports ports) { serveBareLoop(ports, true); });
        Relay quiet([](Ports ports) { serveBridge(ports, Monitors::off); });
        Relay text([](Ports ports) { serveBridge(ports, Monitors::text); });
        Relay hexadecimal([](Ports ports) { serveBridge(ports, Monitors::hexadecimal); });
        runOnProcessor(sysconf(_SC_NPROCESSORS_ONLN) - 1);
        const auto latency = [&](Relay& relay) {
            return medianRatio(
                slices, [&] { return relay.roundTrip(); }, [&] { return bare.roundTrip(); });
        };
        printThroughput("sin monitores (objetivo 0.90)", slices, bare, quiet, slice);
        printThroughput("de un bucle desnudo que lo guarda todo", shownSlices, bare, keeping, slice);
        printThroughput("con monitores, texto (objetivo 0.80)", shownSlices, bare, text, slice);
        printThroughput("con monitores, hexadecimal", shownSlices, bare, hexadecimal, slice);
        printMemory("como texto", text);
        printMemory("en hexadecimal", hexadecimal);
        std::printf("puente, ida y vuelta sin monitores: %.2f\n", latency(quiet));
        std::printf("puente, ida y vuelta con monitores: %.2f\n", latency(text));
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "relay: %s\n", failure.what());
        return 1;
    }
    return 0;
}
