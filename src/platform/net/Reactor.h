#pragma once

#include "platform/clock/Reloj.h"
#include "platform/posix/Descriptor.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <sys/epoll.h>
#include <vector>

// One epoll descriptor that watches all sockets of the program, for use inside another event loop:
//
//     watch reactor.descriptor() for reading; when it is readable call reactor.turn().
//
// Level-triggered: what one turn leaves is reported again by the next. A handler may remove or destroy any watched
// socket, its own included, and may run turn() again; it may not destroy the reactor and may not throw. One thread.
class Reactor {
public:
    // What a watched descriptor calls. Each call may be the last one: the handler may be destroyed during it.
    class Handler {
    public:
        virtual ~Handler() = default;
        // There is something to read (or to accept), or the stream has ended.
        virtual void onReadable() = 0;
        // The kernel takes bytes again.
        virtual void onWritable() {}
        // The connection is dead in both directions, told when reading is not watched. Comes again until removed.
        virtual void onHangUp() {}
        // The call of this handler that is under way has started another turn: the time to send what was held back.
        virtual void onNestedTurn() {}
    };

    enum class Interest : std::uint8_t { none = 0, read = 1, write = 2, readWrite = 3 };

    // Names one registration for as long as it lasts; never names a later one. The default names none.
    struct Watch {
        std::uint32_t slot = 0;
        std::uint32_t generation = 0;
    };

    // A connection that was taken from the kernel and that nobody has accepted yet.
    struct Incoming {
        Descriptor descriptor;
        std::string address; // of the peer, as text
    };

    static constexpr std::chrono::microseconds turnBudget{4000};
    static constexpr std::size_t receiveSize = 65536;
    // Turns within turns, the outermost included; a deeper one returns at once, so that a peer cannot use up the
    // stack.
    static constexpr std::size_t maxNesting = 8;

    // The clock is borrowed. Throws std::system_error when the system refuses the descriptors.
    explicit Reactor(const Reloj& clock = relojDelSistema());
    ~Reactor() = default;
    Reactor(const Reactor&) = delete;
    Reactor& operator=(const Reactor&) = delete;

    // Readable while a watched descriptor is ready.
    int descriptor() const { return epoll_.number(); }

    // Serves what is ready without blocking, until nothing is or `budget` is over (a handler is never interrupted).
    // Returns whether more may be ready.
    bool turn(std::chrono::microseconds budget = turnBudget);

    // About when the handler call under way began. Costs nothing: the turn reads the clock anyway.
    Reloj::Instante callTime() const { return callTime_; }

    // Watches a descriptor. The handler is borrowed until remove(). Alive unless the system refuses (errno says why).
    [[nodiscard]] Watch add(int descriptor, Handler& handler, Interest interest);
    // Costs nothing when the interest is already so. The watch must be alive.
    void change(Watch watch, Interest interest);
    // No call reaches the handler afterwards. A watch that is not alive is ignored.
    void remove(Watch watch);
    bool alive(Watch watch) const { return find(watch) != nullptr; }

    // Listeners leave so many descriptors to the rest of the program: files, and threads of its libraries, which end it
    // when they get none. 0 at first.
    void keepDescriptors(int spare) { spareDescriptors_ = spare; }
    // How many connections a listener may take now.
    int descriptorsToTake() const;

    // Stops watching a listener for which the system has no descriptor left, until descriptorFreed() or for 100 ms.
    void waitForDescriptor(Watch listener);
    // A descriptor was closed: listeners that wait are watched again.
    void descriptorFreed();

    // Keeps a connection until take() or withdraw(); returns its request number, never used twice and never 0.
    std::uint32_t offer(Incoming incoming);
    // Whether the connection of that number is still kept.
    bool offered(std::uint32_t requestId) const;
    // The connection of that number, once.
    std::optional<Incoming> take(std::uint32_t requestId);
    // Closes the connection of that number unless it was taken.
    void withdraw(std::uint32_t requestId) { take(requestId); }

    // receiveSize bytes for the handler call that is under way; nested turns have buffers of their own.
    std::span<std::uint8_t> receiveBuffer();

private:
    struct Slot {
        Handler* handler = nullptr;
        int descriptor = -1;
        std::uint32_t generation = 0;
        Interest interest = Interest::none;
    };
    struct Offer {
        std::uint32_t requestId;
        Incoming incoming;
    };
    class RetryTimer final : public Handler {
    public:
        explicit RetryTimer(Reactor& reactor) : reactor_(reactor) {}
        void onReadable() override;

    private:
        Reactor& reactor_;
    };

    const Slot* find(Watch watch) const;
    Handler* handlerFor(Watch watch, Interest interest) const;
    bool refill();
    void dispatch(const epoll_event& event);

    const Reloj& clock_;
    Descriptor epoll_;
    int spareDescriptors_ = 0;
    Descriptor timer_;
    RetryTimer retryTimer_{*this};
    std::vector<Slot> slots_;
    std::vector<std::uint32_t> freeSlots_;
    // Shared by nested turns: an inner turn goes on where the outer one stands, so each event is served once. What a
    // turn leaves is served first by the next; asking the kernel again would favour the same sockets every time.
    std::array<epoll_event, 128> batch_;
    std::size_t batchNext_ = 0;
    std::size_t batchEnd_ = 0;
    Watch current_;
    std::size_t depth_ = 0;
    Reloj::Instante callTime_;
    std::array<std::unique_ptr<std::uint8_t[]>, maxNesting> receiveBuffers_;
    std::vector<Watch> waiting_;
    std::vector<Offer> offers_;
    std::uint32_t lastRequestId_ = 0;
};
