// A server that answers read requests through our socket layer alone, woken as a window system's event loop would wake
// it: what request_cost reports for it is the cost of the layer. Usage: winsock_server PORT
#include "platform/net/Winsock.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <poll.h>
#include <vector>

namespace {

class Server final : public WinsockEvents {
public:
    explicit Server(Reactor& reactor) : reactor_(reactor) {}

    void onConnectionRequest(Winsock& /*socket*/, std::uint32_t requestId) override {
        connections_.push_back(std::make_unique<Winsock>(reactor_, *this));
        connections_.back()->Accept(requestId);
    }
    void onDataArrival(Winsock& socket, std::span<const std::uint8_t> data) override {
        if (data.size() < 12)
            return;
        std::array<std::uint8_t, 29> answer{};
        std::copy_n(data.begin(), 8, answer.begin());
        answer[5] = answer.size() - 6;
        answer[8] = answer.size() - 9;
        if (!socket.SendData(answer))
            std::fputs("winsock_server: an answer is lost\n", stderr);
    }
    void onClose(Winsock& socket) override {
        std::erase_if(connections_, [&](const auto& connection) { return connection.get() == &socket; });
    }

private:
    Reactor& reactor_;
    std::vector<std::unique_ptr<Winsock>> connections_;
};

} // namespace

int main(int argc, char** argv) {
    Reactor reactor;
    Server server(reactor);
    Winsock listener(reactor, server);
    listener.LocalPort(argc > 1 ? static_cast<std::uint16_t>(std::atoi(argv[1])) : 0);
    if (const std::error_code failure = listener.Listen()) {
        std::fprintf(stderr, "winsock_server: %s\n", failure.message().c_str());
        return 1;
    }
    pollfd watched{reactor.descriptor(), POLLIN, 0};
    while (poll(&watched, 1, -1) >= 0)
        reactor.turn();
}
