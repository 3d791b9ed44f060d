// Turns: their bounds, fairness and idleness.
#include "RelojDePrueba.h"
#include "tests/platform/net/Peer.h"

#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <sys/eventfd.h>

using namespace std::chrono_literals;

namespace {

// A descriptor that stays ready, and counts how often it is served.
class AlwaysReady final : public Reactor::Handler {
public:
    explicit AlwaysReady(Reactor& reactor) : reactor_(reactor), descriptor_(eventfd(1, EFD_NONBLOCK | EFD_CLOEXEC)) {
        watch = reactor.add(descriptor_.number(), *this, Reactor::Interest::read);
        EXPECT_TRUE(reactor.alive(watch));
    }
    ~AlwaysReady() override { reactor_.remove(watch); }
    AlwaysReady(const AlwaysReady&) = delete;
    AlwaysReady& operator=(const AlwaysReady&) = delete;

    void onReadable() override {
        ++served;
        if (work)
            work();
    }

    Reactor::Watch watch;
    int served = 0;
    std::function<void()> work;

private:
    Reactor& reactor_;
    Descriptor descriptor_;
};

} // namespace

TEST(Reactor, anIdleTurnReturnsAtOnceAndReportsNothing) {
    Station station;
    EXPECT_FALSE(wouldWake(station.reactor));
    EXPECT_FALSE(station.reactor.turn());
}

TEST(Reactor, anIdleConnectionWakesNobody) {
    Station station;
    const Peer peer = station.connect();
    EXPECT_FALSE(wouldWake(station.reactor));
    EXPECT_FALSE(station.reactor.turn());
}

TEST(Reactor, aTurnEndsWhenItsBudgetIsOver) {
    RelojDePrueba clock;
    Reactor reactor(clock);
    AlwaysReady busy(reactor);
    busy.work = [&] { clock.pasar(600us); };
    EXPECT_TRUE(reactor.turn(2ms));
    EXPECT_EQ(busy.served, 4); // the budget is asked about after each handler
    EXPECT_TRUE(reactor.turn(2ms));
    EXPECT_EQ(busy.served, 8);
}

TEST(Reactor, theTimeOfACallIsAboutWhenItBegan) {
    RelojDePrueba clock;
    Reactor reactor(clock);
    AlwaysReady busy(reactor);
    std::vector<Reloj::Instante> times;
    busy.work = [&] {
        clock.pasar(1ms);
        times.push_back(reactor.callTime());
    };
    const Reloj::Instante start = clock.instante();
    EXPECT_TRUE(reactor.turn(3ms));
    EXPECT_EQ(times, (std::vector{start, start + 1ms, start + 2ms}));
}

TEST(Reactor, whatATurnLeavesIsServedBeforeWhatWasServed) {
    Reactor reactor;
    std::vector<std::unique_ptr<AlwaysReady>> many;
    many.reserve(300);
    for (int i = 0; i < 300; ++i)
        many.push_back(std::make_unique<AlwaysReady>(reactor));
    for (std::size_t turn = 0; turn < many.size(); ++turn)
        EXPECT_TRUE(reactor.turn(0us)); // one handler each
    for (const auto& ready : many)
        EXPECT_EQ(ready->served, 1);
}

TEST(Reactor, aRemovedHandlerIsNotServed) {
    Reactor reactor;
    AlwaysReady removed(reactor);
    reactor.remove(removed.watch);
    EXPECT_FALSE(reactor.alive(removed.watch));
    EXPECT_FALSE(reactor.turn());
    EXPECT_EQ(removed.served, 0);
}

TEST(Reactor, aReusedPlaceDoesNotReviveAnOldWatch) {
    Reactor reactor;
    auto first = std::make_unique<AlwaysReady>(reactor);
    const Reactor::Watch old = first->watch;
    first.reset();
    const AlwaysReady second(reactor);
    EXPECT_EQ(second.watch.slot, old.slot);
    EXPECT_FALSE(reactor.alive(old));
    EXPECT_TRUE(reactor.alive(second.watch));
}

TEST(Reactor, aHandlerWithoutInterestIsNotServed) {
    Reactor reactor;
    AlwaysReady silent(reactor);
    reactor.change(silent.watch, Reactor::Interest::none);
    EXPECT_FALSE(wouldWake(reactor));
    EXPECT_FALSE(reactor.turn());
    reactor.change(silent.watch, Reactor::Interest::read);
    EXPECT_TRUE(reactor.turn(0us));
    EXPECT_EQ(silent.served, 1);
}

TEST(Reactor, refusesADescriptorThatTheSystemCannotWatch) {
    Reactor reactor;
    struct : Reactor::Handler {
        void onReadable() override {}
    } handler;
    EXPECT_FALSE(reactor.alive(reactor.add(-1, handler, Reactor::Interest::read)));
    EXPECT_EQ(errno, EBADF);
}

TEST(Reactor, theDefaultWatchIsNotAlive) {
    const Reactor reactor;
    EXPECT_FALSE(reactor.alive({}));
}
