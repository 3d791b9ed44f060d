// The listening socket: requests, accepting, refused ports, exhausted descriptors.
#include "tests/platform/net/Peer.h"

#include <array>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <memory>
#include <netinet/in.h>
#include <optional>
#include <sys/resource.h>
#include <sys/socket.h>
#include <system_error>

using WinsockState::closed;
using WinsockState::connected;
using WinsockState::error;
using WinsockState::listening;

namespace {

// Lowers the limit of open descriptors to what is open now and some more, for the life of the object.
class DescriptorLimit {
public:
    explicit DescriptorLimit(rlim_t more) {
        getrlimit(RLIMIT_NOFILE, &before_);
        const Descriptor next(open("/dev/null", O_RDONLY | O_CLOEXEC));
        const rlimit low{static_cast<rlim_t>(next.number()) + more, before_.rlim_max};
        setrlimit(RLIMIT_NOFILE, &low);
    }
    ~DescriptorLimit() { setrlimit(RLIMIT_NOFILE, &before_); }
    DescriptorLimit(const DescriptorLimit&) = delete;
    DescriptorLimit& operator=(const DescriptorLimit&) = delete;

private:
    rlimit before_{};
};

int runOutOfDescriptors(Station& station, std::optional<Peer>& waiting) {
    waiting.emplace(station.listener.LocalPort());
    EXPECT_TRUE(waiting->connected()); // by the kernel, into the backlog
    int wakings = 0;
    for (int i = 0; i < 20; ++i) {
        wakings += wouldWake(station.reactor) ? 1 : 0;
        station.reactor.turn();
    }
    return wakings;
}

} // namespace

TEST(Listener, tellsThePortInUse) {
    Station station;
    EXPECT_EQ(station.listener.State(), listening);
    EXPECT_NE(station.listener.LocalPort(), 0);
    station.listener.Close();
    EXPECT_EQ(station.listener.State(), closed);
    EXPECT_EQ(station.listener.LocalPort(), 0);
}

TEST(Listener, aTakenPortIsRefusedWithItsCause) {
    Station station;
    Winsock second(station.reactor, station.events);
    second.LocalPort(station.listener.LocalPort());
    EXPECT_EQ(second.Listen(), std::errc::address_in_use);
    EXPECT_EQ(second.State(), error);
    station.listener.Close();
    EXPECT_FALSE(second.Listen());
    EXPECT_EQ(second.State(), listening);
}

// Whether this machine has an IPv6 loopback.
bool hasIPv6() {
    const Descriptor probe(socket(AF_INET6, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_in6 address{};
    address.sin6_family = AF_INET6;
    address.sin6_addr = in6addr_loopback;
    return bind(probe.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

TEST(Listener, takesPeersOverIPv6AsWellAsIPv4) {
    if (!hasIPv6())
        GTEST_SKIP() << "no IPv6 here";
    Station station;
    const Peer peer = Peer::overIPv6(station.listener.LocalPort());
    ASSERT_TRUE(peer.connected());
    EXPECT_TRUE(runUntil(station.reactor, [&] { return station.connection.State() == connected; }));
    EXPECT_EQ(station.connection.RemoteHostIP(), "::1");
    EXPECT_EQ(station.connection.LocalPort(), station.listener.LocalPort());
    station.connection.Close();
    const Peer old = station.connect();
    EXPECT_EQ(station.connection.RemoteHostIP(), "127.0.0.1");
}

TEST(Listener, aPortTakenOverIPv4AloneIsRefused) {
    const Descriptor other(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    ASSERT_EQ(bind(other.number(), reinterpret_cast<sockaddr*>(&address), size), 0);
    ASSERT_EQ(listen(other.number(), 1), 0);
    ASSERT_EQ(getsockname(other.number(), reinterpret_cast<sockaddr*>(&address), &size), 0);
    Station station;
    station.listener.LocalPort(ntohs(address.sin_port));
    EXPECT_EQ(station.listener.Listen(), std::errc::address_in_use);
}

TEST(Listener, isNotStarvedByLoadedConnections) {
    Station station;
    constexpr std::size_t loaded = 400;
    std::vector<std::unique_ptr<Winsock>> sockets;
    std::vector<Peer> peers;
    std::size_t served = 0;
    std::size_t servedAtTheLast = 0;
    station.events.request = [&](Winsock&, std::uint32_t requestId) {
        sockets.push_back(std::make_unique<Winsock>(station.reactor, station.events, static_cast<int>(sockets.size())));
        EXPECT_TRUE(sockets.back()->Accept(requestId));
        servedAtTheLast = served; // a turn may go on for rounds after that
    };
    station.events.arrival = [&](Winsock& socket, auto) {
        ++served;
        peers[static_cast<std::size_t>(socket.Index())].send("again"); // always ready
    };
    for (std::size_t i = 0; i < loaded; ++i) {
        peers.emplace_back(station.listener.LocalPort());
        ASSERT_TRUE(runUntil(station.reactor, [&] { return sockets.size() == i + 1; }));
    }
    for (const Peer& peer : peers)
        peer.send("first");
    station.reactor.turn();
    for (int i = 0; i < 50; ++i)
        peers.emplace_back(station.listener.LocalPort());
    served = 0;
    EXPECT_TRUE(runUntil(station.reactor, [&] { return sockets.size() == loaded + 50; }));
    EXPECT_LE(servedAtTheLast, 2 * loaded); // all of them within two rounds
}

TEST(Listener, listensAgainOnThePortOfAnEstablishedConnection) {
    Station station;
    const Peer peer = station.connect();
    station.listener.LocalPort(station.listener.LocalPort());
    EXPECT_FALSE(station.listener.Listen());
    EXPECT_EQ(station.connection.State(), connected);
}

TEST(Listener, listeningTwiceListensOnce) {
    Station station;
    const std::uint16_t before = station.listener.LocalPort();
    EXPECT_FALSE(station.listener.Listen());
    EXPECT_EQ(station.listener.State(), listening);
    EXPECT_FALSE(Peer(before).connected() && before != station.listener.LocalPort());
}

TEST(Listener, aRequestThatNobodyAcceptsIsClosed) {
    Station station;
    station.events.request = nullptr;
    const Peer peer(station.listener.LocalPort());
    EXPECT_TRUE(runUntil(station.reactor, [&] { return peer.ended(); }));
    EXPECT_EQ(station.events.requests.size(), 1U);
    EXPECT_EQ(station.connection.State(), closed);
}

TEST(Listener, aRequestIsOverWhenItsEventReturns) {
    Station station;
    station.events.request = nullptr;
    const Peer peer(station.listener.LocalPort());
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.requests.empty(); }));
    EXPECT_FALSE(station.connection.Accept(station.events.requests.front()));
}

TEST(Listener, theSecondAcceptOfARequestFailsWithoutHarm) {
    Station station;
    Winsock other(station.reactor, station.events);
    station.events.request = [&](Winsock&, std::uint32_t requestId) {
        EXPECT_TRUE(station.connection.Accept(requestId));
        EXPECT_FALSE(other.Accept(requestId));
        EXPECT_FALSE(station.connection.Accept(requestId));
    };
    const Peer peer = station.connect();
    EXPECT_EQ(other.State(), closed);
    peer.send("x");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.arrivals.empty(); }));
}

TEST(Listener, aConnectedSocketDoesNotAcceptAndTheRequestStaysOpen) {
    Station station;
    const Peer first = station.connect();
    Winsock free(station.reactor, station.events);
    station.events.request = [&](Winsock&, std::uint32_t requestId) {
        EXPECT_FALSE(station.connection.Accept(requestId));
        EXPECT_TRUE(free.Accept(requestId));
    };
    const Peer second(station.listener.LocalPort());
    EXPECT_TRUE(runUntil(station.reactor, [&] { return free.State() == connected; }));
    EXPECT_EQ(station.connection.State(), connected);
}

TEST(Listener, aConnectionThatTheSystemCannotWatchIsClosedAndItsSocketStaysFree) {
    Station station;
    station.events.request = [&](Winsock&, std::uint32_t requestId) {
        const NoMoreWatches refused;
        EXPECT_FALSE(station.connection.Accept(requestId));
        EXPECT_FALSE(station.connection.Accept(requestId));
    };
    const Peer peer(station.listener.LocalPort());
    EXPECT_TRUE(runUntil(station.reactor, [&] { return peer.ended(); }));
    EXPECT_EQ(station.connection.State(), closed);
    EXPECT_EQ(station.listener.State(), listening);

    station.events.request = [&](Winsock&, std::uint32_t requestId) {
        EXPECT_TRUE(station.connection.Accept(requestId));
    };
    const Peer next = station.connect();
    next.send("x");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.arrivals.empty(); }));
}

TEST(Listener, anUnknownRequestIsNotAccepted) {
    Station station;
    EXPECT_FALSE(station.connection.Accept(0));
    EXPECT_FALSE(station.connection.Accept(77));
    EXPECT_EQ(station.connection.State(), closed);
}

TEST(Listener, theListenerItselfMayBecomeTheConnection) {
    Station station;
    station.events.request = [](Winsock& socket, std::uint32_t requestId) {
        socket.Close();
        EXPECT_TRUE(socket.Accept(requestId));
    };
    const std::uint16_t port = station.listener.LocalPort();
    const Peer peer(port);
    EXPECT_TRUE(runUntil(station.reactor, [&] { return station.listener.State() == connected; }));
    EXPECT_FALSE(Peer(port).connected());
    peer.send("through");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.arrivals.empty(); }));
    EXPECT_EQ(station.events.arrivals.front(), "through");
}

TEST(Listener, destroyingTheListenerWithinARequestIsSafe) {
    Station station;
    auto listener = std::make_unique<Winsock>(station.reactor, station.events);
    ASSERT_FALSE(listener->Listen());
    station.events.request = [&](Winsock&, std::uint32_t requestId) {
        listener.reset();
        EXPECT_TRUE(station.connection.Accept(requestId));
    };
    const Peer peer(listener->LocalPort());
    EXPECT_TRUE(runUntil(station.reactor, [&] { return station.connection.State() == connected; }));
}

TEST(Listener, takes300ConnectionsAtOnce) {
    Station station;
    std::vector<std::unique_ptr<Winsock>> sockets;
    station.events.request = [&](Winsock&, std::uint32_t requestId) {
        sockets.push_back(std::make_unique<Winsock>(station.reactor, station.events));
        EXPECT_TRUE(sockets.back()->Accept(requestId));
    };
    station.events.arrival = [](Winsock& socket, auto data) { EXPECT_TRUE(socket.SendData(data)); };
    std::vector<Peer> peers;
    for (int i = 0; i < 300; ++i) {
        peers.emplace_back(station.listener.LocalPort());
        peers.back().send(std::to_string(i));
    }
    EXPECT_TRUE(runUntil(station.reactor, [&] { return station.events.arrivals.size() == 300; }));
    for (std::size_t i = 0; i < peers.size(); ++i)
        EXPECT_EQ(peers[i].await(std::to_string(i).size()), std::to_string(i));
    EXPECT_FALSE(wouldWake(station.reactor));
}

TEST(Listener, reportsOneRequestAtATimeAlsoInNestedTurns) {
    Station station;
    std::vector<std::unique_ptr<Winsock>> sockets;
    bool reporting = false;
    station.events.request = [&](Winsock&, std::uint32_t requestId) {
        EXPECT_FALSE(reporting);
        reporting = true;
        for (int i = 0; i < 10; ++i)
            station.reactor.turn();
        reporting = false;
        sockets.push_back(std::make_unique<Winsock>(station.reactor, station.events));
        EXPECT_TRUE(sockets.back()->Accept(requestId));
    };
    std::vector<Peer> peers;
    peers.reserve(40);
    for (int i = 0; i < 40; ++i)
        peers.emplace_back(station.listener.LocalPort());
    EXPECT_TRUE(runUntil(station.reactor, [&] { return sockets.size() == 40; }));
}

TEST(Listener, waitsWithoutSpinningWhileDescriptorsAreExhausted) {
    Station station;
    const Peer first = station.connect();
    std::optional<Peer> second;
    const DescriptorLimit limit(1); // one more: the peer's own
    EXPECT_LE(runOutOfDescriptors(station, second), 2);
    EXPECT_EQ(station.listener.State(), listening);
    EXPECT_EQ(station.events.requests.size(), 1U);
}

TEST(Listener, servesItsConnectionsWhileDescriptorsAreExhausted) {
    Station station;
    const Peer first = station.connect();
    std::optional<Peer> second;
    const DescriptorLimit limit(1);
    runOutOfDescriptors(station, second);
    first.send("still here");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.arrivals.empty(); }));
}

TEST(Listener, acceptsAtOnceWhenOneOfItsSocketsIsClosed) {
    Station station;
    const Peer first = station.connect();
    std::optional<Peer> second;
    const DescriptorLimit limit(1);
    runOutOfDescriptors(station, second);
    station.connection.Close();
    EXPECT_TRUE(wouldWake(station.reactor));
    station.reactor.turn();
    EXPECT_EQ(station.connection.State(), connected);
}

TEST(Listener, acceptsAfterAWhileWhenADescriptorIsFreedElsewhere) {
    Station station;
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    Descriptor elsewhere(ends[0]);
    Descriptor alsoElsewhere(ends[1]);
    std::optional<Peer> peer;
    const DescriptorLimit limit(1);
    runOutOfDescriptors(station, peer);
    EXPECT_TRUE(station.events.requests.empty());
    elsewhere.reset();
    alsoElsewhere.reset();
    EXPECT_TRUE(runUntil(station.reactor, [&] { return station.connection.State() == connected; }));
}

TEST(Listener, refusesToListenWithoutADescriptorAndSaysSo) {
    Station station;
    Winsock another(station.reactor, station.events);
    const DescriptorLimit limit(0);
    EXPECT_EQ(another.Listen(), std::errc::too_many_files_open);
    EXPECT_EQ(another.State(), error);
}
