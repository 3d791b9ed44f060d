// The road of a request takes no memory from the heap.
#include "tests/platform/net/Peer.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <new>

namespace {

std::size_t allocations = 0;

class Echo final : public WinsockEvents {
public:
    void onConnectionRequest(Winsock& listener, std::uint32_t requestId) override {
        listener.Close();
        listener.Accept(requestId);
    }
    void onDataArrival(Winsock& socket, std::span<const std::uint8_t> data) override {
        answered += socket.SendData(data) ? 1 : 0;
    }
    int answered = 0;
};

} // namespace

// Not inlined: the compiler would see one of a pair and miss the other.
void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}

TEST(Allocation, aRequestAndItsAnswerTakeNoneAfterTheFirst) {
    Reactor reactor;
    Echo echo;
    Winsock socket(reactor, echo);
    ASSERT_FALSE(socket.Listen());
    const Peer peer(socket.LocalPort());
    ASSERT_TRUE(runUntil(reactor, [&] { return socket.State() == WinsockState::connected; }));
    peer.send("first");
    std::string answer;
    ASSERT_TRUE(runUntil(reactor, [&] { return (answer += peer.receive()) == "first"; }));

    const std::size_t before = allocations;
    while (echo.answered < 1000) {
        peer.send("again");
        reactor.turn();
        peer.receive(8); // short enough for a string without memory of its own
    }
    EXPECT_EQ(allocations, before);
}
