// Peers that read slowly or not at all.
#include "tests/platform/net/Peer.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>

using enum WinsockState;

namespace {

constexpr int smallBuffer = 4096;

// A byte for each position of a stream, so that a lost, doubled or moved block shows.
std::uint8_t patternAt(std::size_t position) {
    return static_cast<std::uint8_t>((position * 2654435761U) >> 13U);
}

std::vector<std::uint8_t> pattern(std::size_t from, std::size_t count) {
    std::vector<std::uint8_t> bytes(count);
    for (std::size_t i = 0; i < count; ++i)
        bytes[i] = patternAt(from + i);
    return bytes;
}

bool followsPattern(const std::string& data, std::size_t from) {
    const std::vector<std::uint8_t> expected = pattern(from, data.size());
    return std::memcmp(data.data(), expected.data(), data.size()) == 0;
}

const std::string block(60'000, 'b');

// Sends blocks until the kernel takes no more; returns how many bytes were given.
std::size_t fill(Winsock& socket) {
    std::size_t given = 0;
    while (socket.bytesPending() == 0 && socket.SendData(bytesOf(block)))
        given += block.size();
    return given;
}

} // namespace

TEST(BackPressure, a100MegabyteStreamArrivesWholeThroughASlowPeer) {
    constexpr std::size_t total = 100'000'000;
    Station station;
    const Peer peer = station.connect(smallBuffer * 16);
    std::size_t given = 0;
    const auto giveMore = [&](Winsock& socket) {
        while (given < total && socket.bytesPending() == 0) {
            const std::vector<std::uint8_t> bytes = pattern(given, std::min<std::size_t>(777'777, total - given));
            ASSERT_TRUE(socket.SendData(bytes));
            given += bytes.size();
        }
    };
    station.events.sendComplete = giveMore;
    giveMore(station.connection);
    std::size_t received = 0;
    bool intact = true;
    EXPECT_TRUE(runUntil(station.reactor, [&] {
        for (std::string data = peer.receive(); !data.empty() && intact; data = peer.receive()) {
            intact = followsPattern(data, received);
            received += data.size();
        }
        return received == total || !intact;
    }));
    EXPECT_TRUE(intact);
    EXPECT_EQ(received, total);
    EXPECT_GT(station.events.sendsCompleted, 1);
    EXPECT_EQ(station.connection.bytesPending(), 0U);
}

TEST(BackPressure, nothingIsReadWhileBytesWaitForThePeer) {
    Station station;
    const Peer peer = station.connect(smallBuffer);
    fill(station.connection);
    ASSERT_GT(station.connection.bytesPending(), 0U);
    peer.send("question");
    EXPECT_FALSE(wouldWake(station.reactor));
    station.reactor.turn();
    EXPECT_TRUE(station.events.arrivals.empty());
    EXPECT_TRUE(runUntil(station.reactor, [&] {
        peer.receive();
        return !station.events.arrivals.empty();
    }));
    EXPECT_EQ(station.events.sendsCompleted, 1);
}

TEST(BackPressure, aPeerThatNeverReadsCostsOneBoundedQueue) {
    Station station;
    const std::string answer(261, 'a');
    station.events.arrival = [&](Winsock& socket, auto data) {
        for (std::size_t i = 0; i < data.size() / 12; ++i)
            EXPECT_TRUE(socket.SendData(bytesOf(answer)));
    };
    const Peer peer = station.connect(smallBuffer);
    const std::string questions(65'532, 'q');
    std::size_t most = 0;
    for (int refused = 0; refused < 100;) {
        refused = peer.sendSome(bytesOf(questions)) == 0 ? refused + 1 : 0;
        station.reactor.turn();
        most = std::max(most, station.connection.bytesPending());
    }
    EXPECT_GT(most, 0U);
    EXPECT_LE(most, answer.size() * (65'536 / 12));
    EXPECT_FALSE(wouldWake(station.reactor));
    EXPECT_EQ(station.connection.State(), connected);
}

TEST(BackPressure, bytesSentBehindAQueueKeepTheirOrder) {
    Station station;
    const Peer peer = station.connect(smallBuffer);
    const std::size_t given = fill(station.connection);
    ASSERT_TRUE(station.connection.SendData(bytesOf("tail")));
    std::string received;
    EXPECT_TRUE(runUntil(station.reactor, [&] {
        received += peer.receive();
        return received.size() == given + 4;
    }));
    EXPECT_EQ(received.substr(given), "tail");
}

TEST(BackPressure, aPeerThatVanishesWithBytesWaitingEndsTheConnection) {
    Station station;
    Peer peer = station.connect(smallBuffer);
    fill(station.connection);
    peer.reset();
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.closes.empty(); }));
    EXPECT_EQ(station.events.closes, std::vector{error});
    EXPECT_EQ(station.connection.bytesPending(), 0U);
    EXPECT_EQ(station.events.sendsCompleted, 0);
    EXPECT_FALSE(wouldWake(station.reactor));
}

TEST(BackPressure, closingDropsWhatWaits) {
    Station station;
    const Peer peer = station.connect(smallBuffer);
    fill(station.connection);
    station.connection.Close();
    EXPECT_EQ(station.connection.bytesPending(), 0U);
    EXPECT_EQ(station.connection.State(), closed);
    EXPECT_FALSE(wouldWake(station.reactor));
}

TEST(BackPressure, aPausedSocketReportsNothingAndWakesNobody) {
    Station station;
    const Peer peer = station.connect();
    station.connection.pauseReading(true);
    peer.send("wait");
    peer.halfClose();
    EXPECT_FALSE(wouldWake(station.reactor));
    station.reactor.turn();
    EXPECT_TRUE(station.events.arrivals.empty());
    station.connection.pauseReading(false);
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.closes.empty(); }));
    EXPECT_EQ(station.events.arrivals, std::vector<std::string>{"wait"});
    EXPECT_EQ(station.events.closes, std::vector{closing});
}

TEST(BackPressure, aResetIsNoticedWhilePaused) {
    Station station;
    Peer peer = station.connect();
    station.connection.pauseReading(true);
    peer.reset();
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.closes.empty(); }));
    EXPECT_EQ(station.connection.State(), error);
    EXPECT_FALSE(wouldWake(station.reactor));
}

TEST(BackPressure, aNewConnectionIsNotPaused) {
    Station station;
    {
        const Peer first = station.connect();
        station.connection.pauseReading(true);
        station.connection.Close();
    }
    const Peer second = station.connect();
    EXPECT_TRUE(station.connection.SendData(bytesOf("welcome")));
    second.send("x");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.arrivals.empty(); }));
}

TEST(BackPressure, aRelayMayReadWhileBytesWait) {
    Station station;
    const Peer peer = station.connect(smallBuffer);
    station.connection.readWhileSending(true);
    fill(station.connection);
    peer.send("question");
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.arrivals.empty(); }));
    EXPECT_GT(station.connection.bytesPending(), 0U);
}

TEST(BackPressure, theEndOfAStreamWaitsForWhatIsOwedToThePeer) {
    Station station;
    const Peer peer = station.connect(smallBuffer);
    station.connection.readWhileSending(true);
    const std::size_t given = fill(station.connection);
    peer.halfClose();
    std::size_t received = 0;
    station.reactor.turn();
    EXPECT_TRUE(station.events.closes.empty());
    EXPECT_FALSE(wouldWake(station.reactor));
    EXPECT_TRUE(runUntil(station.reactor, [&] {
        received += peer.receive().size();
        return received == given;
    }));
    EXPECT_TRUE(runUntil(station.reactor, [&] { return !station.events.closes.empty(); }));
    EXPECT_EQ(station.events.closes, std::vector{closing});
}

TEST(BackPressure, twoSocketsRelayInBothDirectionsWithBoundedQueues) {
    Station station;
    Winsock other(station.reactor, station.events, 2);
    station.events.request = [&](Winsock&, std::uint32_t requestId) {
        EXPECT_TRUE(station.connection.Accept(requestId) || other.Accept(requestId));
    };
    const Peer left = station.connect(smallBuffer);
    const Peer right(station.listener.LocalPort(), smallBuffer);
    ASSERT_TRUE(runUntil(station.reactor, [&] { return other.State() == connected; }));
    const auto across = [&](Winsock& socket) -> Winsock& { return &socket == &other ? station.connection : other; };
    station.connection.readWhileSending(true);
    other.readWhileSending(true);
    station.events.arrival = [&](Winsock& from, auto data) {
        ASSERT_TRUE(across(from).SendData(data));
        EXPECT_LE(across(from).bytesPending(), 65'536U);
        from.pauseReading(across(from).bytesPending() > 0);
    };
    station.events.sendComplete = [&](Winsock& to) { across(to).pauseReading(false); };

    constexpr std::size_t total = 8'000'000; // both sides write all of it before the right one reads a byte
    const std::vector<std::uint8_t> stream = pattern(0, total);
    std::size_t sentLeft = 0;
    std::size_t sentRight = 0;
    std::string gotLeft;
    std::string gotRight;
    EXPECT_TRUE(runUntil(station.reactor, [&] {
        sentLeft += left.sendSome(std::span(stream).subspan(sentLeft));
        sentRight += right.sendSome(std::span(stream).subspan(sentRight));
        gotLeft += left.receive();
        if (sentRight == total)
            gotRight += right.receive();
        return gotLeft.size() == total && gotRight.size() == total;
    }));
    EXPECT_TRUE(followsPattern(gotLeft, 0));
    EXPECT_TRUE(followsPattern(gotRight, 0));
}
