// One connection: its operations, events and states.
#include "tests/platform/net/Peer.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

using enum WinsockState;

TEST(Winsock, isClosedAtFirst) {
    Station station;
    EXPECT_EQ(station.connection.State(), closed);
    EXPECT_EQ(station.connection.Index(), 1);
    EXPECT_EQ(station.connection.RemoteHostIP(), "");
    EXPECT_TRUE(station.connection.GetData().empty());
}

TEST(Winsock, stateNumbersAreThoseOfTheControl) {
    EXPECT_EQ(static_cast<int>(closed), 0);
    EXPECT_EQ(static_cast<int>(listening), 2);
    EXPECT_EQ(static_cast<int>(connecting), 6);
    EXPECT_EQ(static_cast<int>(connected), 7);
    EXPECT_EQ(static_cast<int>(closing), 8);
    EXPECT_EQ(static_cast<int>(error), 9);
}

TEST(Winsock, reportsTheRemoteAddressAsDottedText) {
    Station station;
    const Peer peer = station.connect();
    EXPECT_EQ(station.connection.RemoteHostIP(), "127.0.0.1");
    EXPECT_EQ(station.connection.LocalPort(), station.listener.LocalPort());
}

TEST(Winsock, answersWithinAnArrival) {
    Station station;
    station.events.arrival = [](Winsock& socket, auto data) { EXPECT_TRUE(socket.SendData(data)); };
    const Peer peer = station.connect();
    peer.send("hola");
    std::string answer;
    EXPECT_TRUE(runUntil(station.reactor, [&] { return (answer += peer.receive()) == "hola"; }));
}

TEST(Winsock, givesTheArrivalByGetDataToo) {
    Station station;
    std::string got;
    station.events.arrival = [&](Winsock& socket, auto) { got = textOf(socket.GetData()); };
    const Peer peer = station.connect();
    peer.send("abc");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return got == "abc"; }));
    EXPECT_TRUE(station.connection.GetData().empty());
}

TEST(Winsock, oneReadIsOneArrival) {
    Station station;
    const Peer peer = station.connect();
    peer.send("first");
    peer.send("second");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.arrivals.empty(); }));
    EXPECT_EQ(station.events.arrivals, std::vector<std::string>{"firstsecond"});
}

TEST(Winsock, anArrivalHasAtMost65536Bytes) {
    Station station;
    const Peer peer = station.connect();
    const std::string block(200'000, 'x');
    std::size_t sent = 0;
    std::size_t received = 0;
    station.events.arrival = [&](Winsock&, auto data) {
        EXPECT_LE(data.size(), 65536U);
        received += data.size();
    };
    EXPECT_TRUE(runUntil(station.reactor, [&] {
        sent += peer.sendSome(bytesOf(block).subspan(sent));
        return received == block.size();
    }));
    EXPECT_GE(station.events.arrivals.size(), 4U);
}

TEST(Winsock, answersOfOneArrivalLeaveTogether) {
    Station station;
    const Peer peer = station.connect();
    station.events.arrival = [&](Winsock& socket, auto) {
        EXPECT_TRUE(socket.SendData(bytesOf("one ")));
        EXPECT_TRUE(socket.SendData(bytesOf("two")));
        EXPECT_EQ(socket.bytesPending(), 7U);
        EXPECT_EQ(peer.receive(), "");
    };
    peer.send("?");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.arrivals.empty(); }));
    EXPECT_EQ(station.connection.bytesPending(), 0U);
    EXPECT_EQ(peer.await(7), "one two");
}

TEST(Winsock, aVeryLongAnswerDoesNotWaitForTheEndOfItsArrival) {
    Station station;
    const Peer peer = station.connect();
    constexpr std::size_t piece = 1000;
    constexpr std::size_t pieces = 300;
    std::size_t most = 0;
    station.events.arrival = [&](Winsock& socket, auto) {
        for (std::size_t i = 0; i < pieces; ++i) {
            EXPECT_TRUE(socket.SendData(bytesOf(std::string(piece, 'x'))));
            peer.receive(); // so that the kernel has room
            most = std::max(most, socket.bytesPending());
        }
    };
    peer.send("?");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.arrivals.empty(); }));
    EXPECT_LT(most, pieces * piece / 2);
}

TEST(Winsock, flushSendsInTheMiddleOfAnArrival) {
    Station station;
    const Peer peer = station.connect();
    std::string duringArrival;
    station.events.arrival = [&](Winsock& socket, auto) {
        EXPECT_TRUE(socket.SendData(bytesOf("now")));
        socket.flush();
        duringArrival = peer.await(3);
    };
    peer.send("?");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return duringArrival == "now"; }));
}

TEST(Winsock, sendsAtOnceOutsideAnArrival) {
    Station station;
    const Peer peer = station.connect();
    EXPECT_TRUE(station.connection.SendData(bytesOf("first ")));
    EXPECT_TRUE(station.connection.SendData(bytesOf("second")));
    EXPECT_EQ(peer.await(12), "first second");
}

TEST(Winsock, sendingOnASocketThatIsNotConnectedFails) {
    Station station;
    EXPECT_FALSE(station.connection.SendData(bytesOf("x")));
    EXPECT_FALSE(station.listener.SendData(bytesOf("x")));
    EXPECT_EQ(station.connection.bytesPending(), 0U);
}

TEST(Winsock, sendingNothingSendsNothing) {
    Station station;
    const Peer peer = station.connect();
    EXPECT_TRUE(station.connection.SendData({}));
    EXPECT_FALSE(wouldWake(station.reactor));
    EXPECT_EQ(peer.receive(), "");
}

TEST(Winsock, anOrderlyEndIsClosingAndToldOnce) {
    Station station;
    Peer peer = station.connect();
    peer.close();
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.closes.empty(); }));
    EXPECT_FALSE(wouldWake(station.reactor));
    station.reactor.turn();
    EXPECT_EQ(station.events.closes, std::vector{closing});
    EXPECT_EQ(station.connection.State(), closing);
    EXPECT_FALSE(station.connection.SendData(bytesOf("x")));
}

TEST(Winsock, aResetIsAnErrorAndToldOnce) {
    Station station;
    Peer peer = station.connect();
    peer.reset();
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.closes.empty(); }));
    EXPECT_FALSE(wouldWake(station.reactor));
    EXPECT_EQ(station.events.closes, std::vector{error});
    EXPECT_EQ(station.connection.State(), error);
}

TEST(Winsock, aPeerThatEndsItsSideStillGetsItsAnswer) {
    Station station;
    station.events.arrival = [](Winsock& socket, auto data) { EXPECT_TRUE(socket.SendData(data)); };
    const Peer peer = station.connect();
    peer.send("last question");
    peer.halfClose();
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.closes.empty(); }));
    EXPECT_EQ(peer.await(13), "last question");
    EXPECT_FALSE(wouldWake(station.reactor));
}

TEST(Winsock, aSendOnAResetConnectionFailsWithoutASignalAndTheCloseFollows) {
    Station station;
    Peer peer = station.connect();
    peer.reset();
    EXPECT_TRUE(wouldWake(station.reactor)); // the reset has come, and no turn has seen it
    EXPECT_FALSE(station.connection.SendData(bytesOf("x")));
    EXPECT_EQ(station.connection.State(), error);
    EXPECT_TRUE(station.events.closes.empty());
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.closes.empty(); }));
    EXPECT_EQ(station.events.closes, std::vector{error});
    EXPECT_FALSE(wouldWake(station.reactor));
}

TEST(Winsock, sendingAfterThePeerHasGoneFailsWithoutASignal) {
    Station station;
    Peer peer = station.connect();
    peer.close();
    EXPECT_TRUE(station.connection.SendData(bytesOf("answered by a reset")));
    for (int i = 0; i < 10'000 && station.connection.SendData(bytesOf("a broken pipe")); ++i)
        poll(nullptr, 0, 1); // without protection a signal ends the process once the reset is here
    EXPECT_FALSE(station.connection.SendData(bytesOf("x")));
    EXPECT_EQ(station.connection.State(), error);
}

TEST(Winsock, aConnectionThatBrokeMayBeClosedBeforeItsCloseEvent) {
    Station station;
    Peer peer = station.connect();
    peer.reset();
    EXPECT_TRUE(awaitWake(station.reactor));
    EXPECT_FALSE(station.connection.SendData(bytesOf("x")));
    station.connection.Close();
    station.reactor.turn();
    EXPECT_EQ(station.connection.State(), closed);
    EXPECT_TRUE(station.events.closes.empty());
}

TEST(Winsock, closeEndsTheConnectionWithoutAnEvent) {
    Station station;
    const Peer peer = station.connect();
    station.connection.Close();
    EXPECT_EQ(station.connection.State(), closed);
    EXPECT_TRUE(runUntil(station.reactor, [&] { return peer.ended(); }));
    EXPECT_TRUE(station.events.closes.empty());
    EXPECT_EQ(station.connection.RemoteHostIP(), "127.0.0.1");
}

TEST(Winsock, aClosedSocketServesTheNextConnection) {
    Station station;
    Peer first = station.connect();
    first.close();
    station.events.closed = [](Winsock& socket) { socket.Close(); };
    EXPECT_TRUE(runUntil(station.reactor, [&] { return station.connection.State() == closed; }));
    const Peer second = station.connect();
    second.send("again");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.arrivals.empty(); }));
    EXPECT_EQ(station.events.arrivals.front(), "again");
}

TEST(Winsock, closingWithinAnArrivalStillSendsWhatWasAnswered) {
    Station station;
    station.events.arrival = [](Winsock& socket, auto) {
        EXPECT_TRUE(socket.SendData(bytesOf("bye")));
        socket.Close();
        EXPECT_TRUE(socket.GetData().empty());
    };
    const Peer peer = station.connect();
    peer.send("?");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return station.connection.State() == closed; }));
    EXPECT_EQ(peer.await(3), "bye");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return peer.ended(); }));
}
