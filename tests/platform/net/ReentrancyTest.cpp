// Callbacks that close or destroy sockets or run the reactor again.
#include "tests/platform/net/Peer.h"

#include <gtest/gtest.h>
#include <memory>

using enum WinsockState;

namespace {

// A station with several accepted connections, each with its peer.
struct Crowd : Station {
    explicit Crowd(std::size_t count) {
        events.request = [this](Winsock&, std::uint32_t requestId) {
            sockets.push_back(std::make_unique<Winsock>(reactor, events, static_cast<int>(sockets.size())));
            EXPECT_TRUE(sockets.back()->Accept(requestId));
        };
        for (std::size_t i = 0; i < count; ++i) {
            peers.emplace_back(listener.LocalPort());
            EXPECT_TRUE(runUntil(reactor, [&] { return sockets.size() == i + 1; }));
        }
    }

    std::vector<std::unique_ptr<Winsock>> sockets;
    std::vector<Peer> peers;
};

} // namespace

TEST(Reentrancy, aSocketMayDestroyItselfWithinItsArrival) {
    Crowd crowd(1);
    crowd.events.arrival = [&](Winsock& socket, auto data) {
        EXPECT_TRUE(socket.SendData(data));
        crowd.sockets[0].reset();
        EXPECT_EQ(textOf(data), "end"); // the arrival outlives its socket
    };
    crowd.peers[0].send("end");
    EXPECT_TRUE(runUntil(crowd.reactor, [&] { return !crowd.sockets[0]; }));
    EXPECT_EQ(crowd.peers[0].await(3), "end");
}

TEST(Reentrancy, aSocketMayDestroyItselfWithinItsCloseEvent) {
    Crowd crowd(1);
    crowd.events.closed = [&](Winsock&) { crowd.sockets[0].reset(); };
    crowd.peers[0].close();
    EXPECT_TRUE(runUntil(crowd.reactor, [&] { return !crowd.sockets[0]; }));
    EXPECT_FALSE(wouldWake(crowd.reactor));
}

TEST(Reentrancy, aSocketMayDestroyItselfWhenItsQueueIsEmptyAgain) {
    Crowd crowd(1);
    const std::string block(60'000, 'b');
    while (crowd.sockets[0]->bytesPending() == 0)
        ASSERT_TRUE(crowd.sockets[0]->SendData(bytesOf(block)));
    crowd.events.sendComplete = [&](Winsock&) { crowd.sockets[0].reset(); };
    EXPECT_TRUE(runUntil(crowd.reactor, [&] {
        crowd.peers[0].receive();
        return !crowd.sockets[0];
    }));
}

TEST(Reentrancy, aSocketDestroyedByAnotherReportsNothingMore) {
    Crowd crowd(20);
    crowd.events.arrival = [&](Winsock& socket, auto) {
        for (auto& other : crowd.sockets)
            if (other.get() != &socket)
                other.reset();
    };
    for (const Peer& peer : crowd.peers)
        peer.send("x"); // all are ready in the same turn, and the first one ends the others
    EXPECT_TRUE(runUntil(crowd.reactor, [&] { return !crowd.events.arrivals.empty(); }));
    while (wouldWake(crowd.reactor))
        crowd.reactor.turn();
    EXPECT_EQ(crowd.events.arrivals.size(), 1U);
    EXPECT_TRUE(crowd.events.closes.empty());
}

TEST(Reentrancy, aSocketClosedByAnotherServesANewPeerInTheSameEvent) {
    Crowd crowd(2);
    std::vector<int> arrivedAt;
    crowd.events.arrival = [&](Winsock& socket, auto data) {
        arrivedAt.push_back(socket.Index());
        if (textOf(data) != "old")
            return;
        crowd.sockets[1 - static_cast<std::size_t>(socket.Index())]->Close();
    };
    crowd.events.request = [&](Winsock&, std::uint32_t requestId) {
        for (auto& socket : crowd.sockets)
            if (socket->State() == closed)
                socket->Accept(requestId);
    };
    crowd.peers[0].send("old");
    crowd.peers[1].send("old");
    EXPECT_TRUE(runUntil(crowd.reactor, [&] { return !arrivedAt.empty(); }));
    while (wouldWake(crowd.reactor))
        crowd.reactor.turn();
    EXPECT_EQ(arrivedAt.size(), 1U);
    const Peer next(crowd.listener.LocalPort());
    next.send("new");
    EXPECT_TRUE(runUntil(crowd.reactor, [&] { return arrivedAt.size() == 2; }));
    EXPECT_NE(arrivedAt[0], arrivedAt[1]);
    EXPECT_EQ(crowd.events.arrivals.back(), "new");
}

TEST(Reentrancy, aSocketMayServeAnotherConnectionWhenItsArrivalReturns) {
    Station station;
    Peer first = station.connect();
    std::unique_ptr<Peer> second;
    station.events.arrival = [&](Winsock& socket, auto) {
        if (second)
            return;
        EXPECT_TRUE(socket.SendData(bytesOf("for the first")));
        socket.Close();
        second = std::make_unique<Peer>(station.listener.LocalPort());
        while (socket.State() != connected)
            station.reactor.turn();
        EXPECT_TRUE(socket.SendData(bytesOf("for the second")));
        EXPECT_EQ(second->await(14), "for the second"); // not gathered: the arrival was another connection's
    };
    first.send("x");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return second != nullptr; }));
    EXPECT_EQ(first.await(13), "for the first");
    EXPECT_EQ(station.connection.State(), connected);
}

TEST(Reentrancy, aNestedTurnLeavesTheOuterArrivalIntact) {
    Crowd crowd(2);
    crowd.events.arrival = [&](Winsock& socket, std::span<const std::uint8_t> data) {
        if (textOf(data) != "outer")
            return;
        crowd.peers[1].send("inner");
        while (crowd.events.arrivals.size() < 2)
            crowd.reactor.turn();
        EXPECT_EQ(textOf(data), "outer");
        EXPECT_EQ(textOf(socket.GetData()), "outer");
    };
    crowd.peers[0].send("outer");
    EXPECT_TRUE(runUntil(crowd.reactor, [&] { return crowd.events.arrivals.size() == 2; }));
    EXPECT_EQ(crowd.events.arrivals.back(), "inner");
}

TEST(Reentrancy, anArrivalWithinAnArrivalOfTheSameSocketKeepsBothIntactAndTheAnswersInOrder) {
    Crowd crowd(1);
    crowd.events.arrival = [&](Winsock& socket, std::span<const std::uint8_t> data) {
        EXPECT_TRUE(socket.SendData(data));
        if (textOf(data) == "outer ") {
            crowd.peers[0].send("inner ");
            while (crowd.events.arrivals.size() < 2)
                crowd.reactor.turn();
            EXPECT_EQ(textOf(socket.GetData()), "outer ");
            EXPECT_TRUE(socket.SendData(bytesOf("after")));
        }
    };
    crowd.peers[0].send("outer ");
    EXPECT_TRUE(runUntil(crowd.reactor, [&] { return crowd.events.arrivals.size() == 2; }));
    EXPECT_EQ(crowd.peers[0].await(17), "outer inner after");
}

TEST(Reentrancy, aNestedTurnSendsWhatTheArrivalHasGathered) {
    Crowd crowd(1);
    std::string duringArrival;
    crowd.events.arrival = [&](Winsock& socket, auto) {
        EXPECT_TRUE(socket.SendData(bytesOf("echo")));
        crowd.reactor.turn();
        duringArrival = crowd.peers[0].await(4);
    };
    crowd.peers[0].send("x");
    EXPECT_TRUE(runUntil(crowd.reactor, [&] { return !crowd.events.arrivals.empty(); }));
    EXPECT_EQ(duringArrival, "echo");
}

TEST(Reentrancy, aSocketDestroyedByANestedTurnEndsItsOuterArrivalSafely) {
    Crowd crowd(2);
    crowd.events.arrival = [&](Winsock& socket, std::span<const std::uint8_t> data) {
        if (socket.Index() == 1) {
            crowd.sockets[0].reset();
            return;
        }
        EXPECT_TRUE(socket.SendData(data));
        crowd.peers[1].send("end the other");
        while (crowd.sockets[0])
            crowd.reactor.turn();
        EXPECT_EQ(textOf(data), "outer");
    };
    crowd.peers[0].send("outer");
    EXPECT_TRUE(runUntil(crowd.reactor, [&] { return !crowd.sockets[0]; }));
    EXPECT_EQ(crowd.peers[0].await(5), "outer");
}

TEST(Reentrancy, turnsNestOnlySoDeep) {
    Crowd crowd(2 * Reactor::maxNesting);
    std::size_t depth = 0;
    std::size_t deepest = 0;
    crowd.events.arrival = [&](Winsock&, auto) {
        deepest = std::max(deepest, ++depth);
        crowd.reactor.turn();
        --depth;
    };
    for (const Peer& peer : crowd.peers)
        peer.send("x");
    EXPECT_TRUE(runUntil(crowd.reactor, [&] { return crowd.events.arrivals.size() == crowd.peers.size(); }));
    EXPECT_EQ(deepest, Reactor::maxNesting);
}
