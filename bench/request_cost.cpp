// The station's processor time a request beside a bare epoll loop that answers the same bytes, with 1, 16, 256 and 1000
// masters in closed loop, and its growth from 16 to 1000 masters. Usage: request_cost PROGRAM [SLICES]
//
// The two servers take turns in slices of a twentieth of a second, so that what else the machine does falls upon both;
// a row is the median of the ratios of neighbouring slices.
#include "BareLoop.h"
#include "Masters.h"
#include "ServerProcess.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <vector>

using namespace std::chrono_literals;

namespace {

// A server, the masters that load it, and what its requests have cost.
class Side {
public:
    Side(const ServerProcess& server, std::size_t masters) : server_(server), masters_(server.port(), masters) {}

    // Runs one slice; returns nanoseconds of the server's processor time a request.
    double slice() {
        const auto before = server_.processorTime();
        const std::size_t requests = masters_.run(50ms);
        const auto used = server_.processorTime() - before;
        costs_.push_back(static_cast<double>(used.count()) / static_cast<double>(requests));
        return costs_.back();
    }
    double cost() const { return quantile(costs_, 0.5); }
    double latency(double share) const {
        std::vector<double> nanoseconds;
        nanoseconds.reserve(masters_.latencies().size());
        for (const auto latency : masters_.latencies())
            nanoseconds.push_back(static_cast<double>(latency.count()));
        return quantile(std::move(nanoseconds), share);
    }

    static double quantile(std::vector<double> values, double share) {
        const auto rank = static_cast<std::ptrdiff_t>(share * static_cast<double>(values.size() - 1));
        std::nth_element(values.begin(), values.begin() + rank, values.end());
        return values[static_cast<std::size_t>(rank)];
    }

private:
    const ServerProcess& server_;
    Masters masters_;
    std::vector<double> costs_;
};

double medianRatio(Side& measured, Side& reference, int slices) {
    measured.slice(); // not counted: fills caches and lets slow-started connections open up
    reference.slice();
    std::vector<double> ratios;
    for (int i = 0; i < slices; ++i) {
        const double base = reference.slice();
        ratios.push_back(measured.slice() / base);
    }
    return Side::quantile(std::move(ratios), 0.5);
}

void printDetail(const char* name, const Side& side) {
    std::printf("    %-10s %6.2f us/peticion, latencia p50 %.0f us, p99 %.0f us\n", name, side.cost() / 1000,
                side.latency(0.5) / 1000, side.latency(0.99) / 1000);
}

void compareWithBareLoop(const ServerProcess& station, const ServerProcess& bare, std::size_t masters, int slices) {
    Side measured(station, masters);
    Side reference(bare, masters);
    const double ratio = medianRatio(measured, reference, slices);
    std::printf("peticiones %zu maestros: %.2f (objetivo 1.15)\n", masters, ratio);
    printDetail("estación", measured);
    printDetail("bucle", reference);
    std::fflush(stdout);
}

double growth(const ServerProcess& server, int slices) {
    Side many(server, 1000);
    Side few(server, 16);
    return medianRatio(many, few, slices);
}

void compareWithItself(const ServerProcess& station, const ServerProcess& bare, int slices) {
    std::printf("crecimiento de 16 a 1000 maestros: %.2f (objetivo 1.20; bucle %.2f)\n", growth(station, slices),
                growth(bare, slices));
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("usage: request_cost PROGRAM [SLICES]\n", stderr);
        return 2;
    }
    const int slices = argc > 2 ? std::atoi(argv[2]) : 40;
    try {
        const ServerProcess bare(serveBareLoop);
        const ServerProcess station{std::filesystem::path(argv[1])};
        for (const std::size_t masters : {1U, 16U, 256U, 1000U})
            compareWithBareLoop(station, bare, masters, slices);
        compareWithItself(station, bare, slices);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "request_cost: %s\n", failure.what());
        return 1;
    }
}
