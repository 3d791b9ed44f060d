#pragma once

#include "platform/net/Reactor.h"
#include "platform/net/SendQueue.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <system_error>

class Winsock;

// The state numbers of the socket control. Only closed, listening, connected, closing and error are ever reached.
enum class WinsockState : std::uint8_t {
    closed = 0,
    open = 1,
    listening = 2,
    connectionPending = 3,
    resolvingHost = 4,
    hostResolved = 5,
    connecting = 6,
    connected = 7,
    closing = 8,
    error = 9,
};

// An address and a port; an IPv4 address in its IPv6 form, ::ffff:a.b.c.d.
struct WinsockEndpoint {
    std::array<std::uint8_t, 16> address{};
    std::uint16_t port = 0;
};

// What a Winsock reports, always from within Reactor::turn() and never from an operation of the socket. Every call may
// close or destroy any socket, the reporting one included, and may run another turn; none may throw.
class WinsockEvents {
public:
    virtual ~WinsockEvents() = default;
    // A peer wants to connect to the listening `socket`: Accept(requestId) on any closed socket of the reactor before
    // this returns, or the connection is closed. Until it is accepted the same listener reports no other request; a
    // handler that runs another turn after that may be called again inside itself.
    virtual void onConnectionRequest(Winsock& socket, std::uint32_t requestId);
    // One arrival: what one read of the connection gave, 1 to 65,536 bytes, valid until this returns. With another
    // turn within, a further arrival of the same socket may be reported inside this one.
    virtual void onDataArrival(Winsock& socket, std::span<const std::uint8_t> data);
    // Where to read the next arrival of the connection, for whoever keeps all of it and would copy it there: up to
    // 65,536 bytes are used. They stay the owner's, who by the end of onDataArrival knows how many were. Empty: an
    // arrival is read into memory of the reactor's.
    virtual std::span<std::uint8_t> roomForArrival(Winsock& socket);
    // The connection has ended: State() is closing (the peer closed it) or error (reset, vanished). Told once.
    virtual void onClose(Winsock& socket);
    // What SendData had to keep has all been taken by the kernel. Not told when nothing had to be kept.
    virtual void onSendComplete(Winsock& socket);
};

// The socket control: a TCP socket that listens or serves one accepted connection, over IPv4 and, where the system
// has it, IPv6. Operations that bear a capital letter are those that the logic above is written in; the others are
// additions. It never blocks.
//
//     Winsock listener(reactor, events);
//     listener.LocalPort(502);
//     if (const std::error_code failure = listener.Listen()) …
//
// An arrival's answers leave together when its event returns. While bytes wait for a slow peer nothing more is read
// from it, so a peer that sends and never reads costs the answers of one arrival.
class Winsock final : private Reactor::Handler {
public:
    // Both are borrowed and outlive the socket. `index` is the element number in an array of controls.
    Winsock(Reactor& reactor, WinsockEvents& events, int index = 0);
    // Closes; no event is reported.
    ~Winsock() override;
    Winsock(const Winsock&) = delete;
    Winsock& operator=(const Winsock&) = delete;

    int Index() const { return index_; }
    WinsockState State() const { return state_; }

    // Ends listening or the connection and makes the socket closed, from any state. What the kernel has taken is still
    // delivered, unless the peer has sent what was not read: then the system ends with a reset. The rest is dropped.
    // No event is reported.
    void Close();

    // Sets the port for the next Listen; 0 = any free one.
    void LocalPort(std::uint16_t port) { localPort_ = port; }
    // The port in fact used while listening or connected, else the one that was set.
    std::uint16_t LocalPort() const;

    // Closes, then listens on LocalPort() of every local address. On failure (address_in_use, permission_denied …) the
    // state is error.
    [[nodiscard]] std::error_code Listen();

    // Takes the connection of an onConnectionRequest that is under way. False, and nothing is changed, when this
    // socket is listening or connected or the request was already taken; false and closed when the system refuses to
    // watch it.
    bool Accept(std::uint32_t requestId);

    // Address of the last peer as text, an IPv4 one dotted: of the connection, also after it ended; of a listener, who
    // requested last.
    const std::string& RemoteHostIP() const { return remoteHostIP_; }

    // The peer's port while connected, else 0.
    std::uint16_t RemotePort() const;

    // Both ends of the connection; all zero while not connected.
    WinsockEndpoint LocalEndpoint() const;
    WinsockEndpoint RemoteEndpoint() const;

    // The arrival that is being reported; empty at any other time and after Close.
    std::span<const std::uint8_t> GetData() const { return arrival_; }

    // Sends, or keeps what the kernel does not take at once. False when the connection does not stand or breaks now:
    // the data is lost. Called within the socket's own onDataArrival the data may leave only when that returns.
    [[nodiscard]] bool SendData(std::span<const std::uint8_t> data);

    // Bytes given to SendData that the kernel has not taken.
    std::size_t bytesPending() const { return queue_.size(); }
    // Gives what the arrival under way has gathered to the kernel now.
    void flush();

    // While paused no arrival is reported and the end of the peer's stream is not noticed; a reset is, and drops what
    // was not read. A new connection is not paused.
    void pauseReading(bool paused);
    // For a relay: keep reading although bytes wait for the peer. The caller then bounds them by pausing who sends
    // them. Off at first; kept by Close.
    void readWhileSending(bool enabled);

private:
    void onReadable() override;
    void onWritable() override;
    void onHangUp() override;
    void onNestedTurn() override;

    std::error_code openListener();
    std::error_code bindToPort();
    void takeRequests();
    bool reportRequest(Descriptor connection, std::string address);
    void readArrival();
    void reportArrival(std::span<const std::uint8_t> data);
    std::size_t sendNow(std::span<const std::uint8_t> data);
    void breakConnection();
    void endConnection(WinsockState state);
    void release();
    void watchWhatIsWanted();

    Reactor& reactor_;
    WinsockEvents& events_;
    int index_;
    WinsockState state_ = WinsockState::closed;
    Descriptor descriptor_;
    Reactor::Watch watch_;
    std::uint16_t localPort_ = 0;
    std::string remoteHostIP_;
    std::span<const std::uint8_t> arrival_;
    SendQueue queue_;
    bool kernelFull_ = false;    // bytes wait until the kernel reports room
    bool streamEnded_ = false;   // the peer has closed its side, and bytes still wait for it
    std::uint32_t reported_ = 0; // the connection request that is being reported, the innermost
    bool paused_ = false;
    bool readWhileSending_ = false;
};
