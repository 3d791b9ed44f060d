#include "platform/net/Winsock.h"

#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <cstring>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <utility>

namespace {

constexpr int listenBacklog = 4096;
constexpr int requestsPerTurn = 64;
constexpr std::size_t gatherLimit = 65536;

void setOption(const Descriptor& socket, int level, int option, int value) {
    setsockopt(socket.number(), level, option, &value, sizeof value);
}

// Set on the listener, since accepted sockets inherit them and so cost no further system call.
void setListenerOptions(const Descriptor& socket) {
    setOption(socket, SOL_SOCKET, SO_REUSEADDR, 1);
    setOption(socket, IPPROTO_TCP, TCP_NODELAY, 1);
    setOption(socket, SOL_SOCKET, SO_KEEPALIVE, 1); // a peer that vanished is noticed after about two minutes
    setOption(socket, IPPROTO_TCP, TCP_KEEPIDLE, 60);
    setOption(socket, IPPROTO_TCP, TCP_KEEPINTVL, 10);
    setOption(socket, IPPROTO_TCP, TCP_KEEPCNT, 6);
}

// An IPv4 peer of an IPv6 listener bears its address in the last four bytes.
std::string addressText(const sockaddr_storage& peer) {
    std::array<char, INET6_ADDRSTRLEN> text{};
    if (peer.ss_family == AF_INET) {
        inet_ntop(AF_INET, &reinterpret_cast<const sockaddr_in&>(peer).sin_addr, text.data(), text.size());
    } else {
        const in6_addr& address = reinterpret_cast<const sockaddr_in6&>(peer).sin6_addr;
        if (IN6_IS_ADDR_V4MAPPED(&address))
            inet_ntop(AF_INET, &address.s6_addr[12], text.data(), text.size());
        else
            inet_ntop(AF_INET6, &address, text.data(), text.size());
    }
    return text.data();
}

std::uint16_t portOf(const sockaddr_storage& address) {
    return ntohs(address.ss_family == AF_INET ? reinterpret_cast<const sockaddr_in&>(address).sin_port
                                              : reinterpret_cast<const sockaddr_in6&>(address).sin6_port);
}

std::error_code lastError() {
    return {errno, std::system_category()};
}

sockaddr_in6 anyIPv6(std::uint16_t port) {
    sockaddr_in6 local{};
    local.sin6_family = AF_INET6;
    local.sin6_addr = in6addr_any;
    local.sin6_port = htons(port);
    return local;
}

sockaddr_in anyIPv4(std::uint16_t port) {
    sockaddr_in local{};
    local.sin_family = AF_INET;
    local.sin_addr.s_addr = htonl(INADDR_ANY);
    local.sin_port = htons(port);
    return local;
}

template <typename Address>
std::error_code bindTo(const Descriptor& socket, const Address& local) {
    setListenerOptions(socket);
    if (bind(socket.number(), reinterpret_cast<const sockaddr*>(&local), sizeof local) != 0)
        return lastError();
    return {};
}

WinsockEndpoint endpointOf(const Descriptor& socket, decltype(getsockname)* ask) {
    sockaddr_storage end{};
    socklen_t size = sizeof end;
    WinsockEndpoint endpoint;
    if (ask(socket.number(), reinterpret_cast<sockaddr*>(&end), &size) != 0)
        return endpoint;
    endpoint.port = portOf(end);
    if (end.ss_family == AF_INET6) {
        std::memcpy(endpoint.address.data(), &reinterpret_cast<const sockaddr_in6&>(end).sin6_addr, 16);
    } else {
        endpoint.address[10] = endpoint.address[11] = 0xFF;
        std::memcpy(endpoint.address.data() + 12, &reinterpret_cast<const sockaddr_in&>(end).sin_addr, 4);
    }
    return endpoint;
}

// The call may succeed later on the same connection.
bool isPassing(int error) {
    return error == EAGAIN || error == EINTR || error == ENOBUFS || error == ENOMEM;
}

} // namespace

void WinsockEvents::onConnectionRequest(Winsock& /*socket*/, std::uint32_t /*requestId*/) {}
void WinsockEvents::onDataArrival(Winsock& /*socket*/, std::span<const std::uint8_t> /*data*/) {}
std::span<std::uint8_t> WinsockEvents::roomForArrival(Winsock& /*socket*/) {
    return {};
}
void WinsockEvents::onClose(Winsock& /*socket*/) {}
void WinsockEvents::onSendComplete(Winsock& /*socket*/) {}

Winsock::Winsock(Reactor& reactor, WinsockEvents& events, int index)
    : reactor_(reactor), events_(events), index_(index) {}

Winsock::~Winsock() {
    Close();
}

void Winsock::Close() {
    flush();
    release();
    state_ = WinsockState::closed;
}

std::uint16_t Winsock::LocalPort() const {
    sockaddr_storage local{};
    socklen_t size = sizeof local;
    if (!descriptor_ || getsockname(descriptor_.number(), reinterpret_cast<sockaddr*>(&local), &size) != 0)
        return localPort_;
    return portOf(local);
}

std::uint16_t Winsock::RemotePort() const {
    sockaddr_storage peer{};
    socklen_t size = sizeof peer;
    const bool known = state_ == WinsockState::connected &&
                       getpeername(descriptor_.number(), reinterpret_cast<sockaddr*>(&peer), &size) == 0;
    return known ? portOf(peer) : std::uint16_t{0};
}

WinsockEndpoint Winsock::LocalEndpoint() const {
    return state_ == WinsockState::connected ? endpointOf(descriptor_, getsockname) : WinsockEndpoint{};
}

WinsockEndpoint Winsock::RemoteEndpoint() const {
    return state_ == WinsockState::connected ? endpointOf(descriptor_, getpeername) : WinsockEndpoint{};
}

std::error_code Winsock::Listen() {
    Close();
    const std::error_code failure = openListener();
    if (failure)
        release();
    state_ = failure ? WinsockState::error : WinsockState::listening;
    return failure;
}

std::error_code Winsock::openListener() {
    if (const std::error_code failure = bindToPort())
        return failure;
    if (listen(descriptor_.number(), listenBacklog) != 0)
        return lastError();
    watch_ = reactor_.add(descriptor_.number(), *this, Reactor::Interest::read);
    return reactor_.alive(watch_) ? std::error_code() : lastError();
}

// One IPv6 socket takes both kinds of peers; where the system knows no IPv6, or has no address of it, IPv4 alone.
std::error_code Winsock::bindToPort() {
    descriptor_ = Descriptor(socket(AF_INET6, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (descriptor_) {
        setOption(descriptor_, IPPROTO_IPV6, IPV6_V6ONLY, 0);
        const std::error_code failure = bindTo(descriptor_, anyIPv6(localPort_));
        if (failure != std::errc::address_not_available)
            return failure;
    } else if (errno != EAFNOSUPPORT) {
        return lastError();
    }
    descriptor_ = Descriptor(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    return descriptor_ ? bindTo(descriptor_, anyIPv4(localPort_)) : lastError();
}

bool Winsock::Accept(std::uint32_t requestId) {
    if (descriptor_)
        return false;
    std::optional<Reactor::Incoming> incoming = reactor_.take(requestId);
    if (!incoming)
        return false;
    watch_ = reactor_.add(incoming->descriptor.number(), *this, Reactor::Interest::read);
    if (!reactor_.alive(watch_)) {
        state_ = WinsockState::closed;
        return false;
    }
    descriptor_ = std::move(incoming->descriptor);
    remoteHostIP_ = std::move(incoming->address);
    paused_ = false;
    state_ = WinsockState::connected;
    return true;
}

bool Winsock::SendData(std::span<const std::uint8_t> data) {
    if (state_ != WinsockState::connected)
        return false;
    const bool gather = !arrival_.empty();
    if (!gather && queue_.empty())
        data = data.subspan(sendNow(data)); // the common way of a relay: nothing is copied
    if (!data.empty() && state_ == WinsockState::connected)
        queue_.append(data);
    if (gather && queue_.size() >= gatherLimit)
        flush();
    watchWhatIsWanted();
    return state_ == WinsockState::connected;
}

void Winsock::flush() {
    if (state_ != WinsockState::connected || queue_.empty() || kernelFull_)
        return;
    queue_.drop(sendNow(queue_.front()));
    watchWhatIsWanted();
}

// One send; returns how many bytes the kernel took and notes when it has no more room.
std::size_t Winsock::sendNow(std::span<const std::uint8_t> data) {
    const ssize_t count = send(descriptor_.number(), data.data(), data.size(), MSG_NOSIGNAL);
    if (count < 0 && !isPassing(errno)) {
        breakConnection();
        return 0;
    }
    const std::size_t taken = count > 0 ? static_cast<std::size_t>(count) : 0;
    kernelFull_ = taken < data.size();
    return taken;
}

void Winsock::pauseReading(bool paused) {
    paused_ = paused;
    watchWhatIsWanted();
}

void Winsock::readWhileSending(bool enabled) {
    readWhileSending_ = enabled;
    watchWhatIsWanted();
}

void Winsock::onReadable() {
    if (state_ == WinsockState::connected)
        readArrival();
    else if (state_ != WinsockState::listening)
        endConnection(state_); // a send has found the connection broken
    else if (reactor_.offered(reported_))
        reactor_.change(watch_, Reactor::Interest::none); // until the request that is being reported is decided
    else
        takeRequests();
}

void Winsock::onWritable() {
    kernelFull_ = false;
    flush();
    if (state_ != WinsockState::connected || !queue_.empty())
        return;
    streamEnded_ = false;
    watchWhatIsWanted();
    events_.onSendComplete(*this);
}

void Winsock::onHangUp() {
    endConnection(WinsockState::error);
}

void Winsock::onNestedTurn() {
    flush();
}

void Winsock::takeRequests() {
    const int room = reactor_.descriptorsToTake();
    if (room <= 0) {
        reactor_.waitForDescriptor(watch_);
        return;
    }
    for (int count = 0; count < requestsPerTurn && count < room; ++count) {
        sockaddr_storage peer{};
        socklen_t size = sizeof peer;
        Descriptor connection(
            accept4(descriptor_.number(), reinterpret_cast<sockaddr*>(&peer), &size, SOCK_NONBLOCK | SOCK_CLOEXEC));
        if (!connection) {
            // Mostly EMFILE: the connection stays in the backlog, and asking again at once would only spin.
            if (errno != EAGAIN && errno != EINTR && errno != ECONNABORTED)
                reactor_.waitForDescriptor(watch_);
            return;
        }
        if (!reportRequest(std::move(connection), addressText(peer)))
            return;
    }
}

// Returns whether the listener still listens.
bool Winsock::reportRequest(Descriptor connection, std::string address) {
    Reactor& reactor = reactor_;
    const Reactor::Watch self = watch_;
    remoteHostIP_ = address;
    const std::uint32_t requestId = reactor.offer({std::move(connection), std::move(address)});
    const std::uint32_t outer = std::exchange(reported_, requestId);
    events_.onConnectionRequest(*this, requestId);
    reactor.withdraw(requestId);
    if (!reactor.alive(self))
        return false;
    reported_ = outer;
    reactor.change(self, Reactor::Interest::read);
    return true;
}

void Winsock::readArrival() {
    std::span<std::uint8_t> buffer = events_.roomForArrival(*this);
    if (buffer.empty())
        buffer = reactor_.receiveBuffer();
    buffer = buffer.first(std::min(buffer.size(), Reactor::receiveSize));
    const ssize_t count = recv(descriptor_.number(), buffer.data(), buffer.size(), 0);
    if (count > 0) {
        reportArrival(buffer.first(static_cast<std::size_t>(count)));
    } else if (count < 0) {
        if (!isPassing(errno))
            endConnection(WinsockState::error);
    } else if (queue_.empty()) {
        endConnection(WinsockState::closing);
    } else {
        streamEnded_ = true;
        watchWhatIsWanted();
    }
}

void Winsock::reportArrival(std::span<const std::uint8_t> data) {
    Reactor& reactor = reactor_;
    const Reactor::Watch self = watch_;
    const std::span<const std::uint8_t> outer = std::exchange(arrival_, data);
    events_.onDataArrival(*this, data);
    if (!reactor.alive(self))
        return; // closed, perhaps destroyed, perhaps serving another connection by now
    arrival_ = outer;
    flush();
}

// Leaves the close event to a later turn: the caller of SendData is told by its result.
void Winsock::breakConnection() {
    state_ = WinsockState::error;
    queue_.clear();
    kernelFull_ = false;
    shutdown(descriptor_.number(), SHUT_RDWR); // makes sure that the kernel reports a hang-up
}

void Winsock::endConnection(WinsockState state) {
    release();
    state_ = state;
    events_.onClose(*this);
}

void Winsock::release() {
    reactor_.remove(watch_);
    watch_ = {};
    queue_.clear();
    arrival_ = {};
    kernelFull_ = streamEnded_ = false;
    reported_ = 0;
    if (descriptor_) {
        descriptor_.reset();
        reactor_.descriptorFreed();
    }
}

void Winsock::watchWhatIsWanted() {
    if (!reactor_.alive(watch_) || state_ == WinsockState::listening)
        return;
    const bool read = !paused_ && !streamEnded_ && (readWhileSending_ || !kernelFull_);
    const auto bits = static_cast<unsigned>(read ? Reactor::Interest::read : Reactor::Interest::none) |
                      static_cast<unsigned>(kernelFull_ ? Reactor::Interest::write : Reactor::Interest::none);
    reactor_.change(watch_, static_cast<Reactor::Interest>(bits));
}
