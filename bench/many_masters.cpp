// Ten thousand masters on one machine, each asking once a second, and a window that can be used meanwhile: latency of
// the answers, wait of a window event, processor time and memory. Usage: many_masters [MASTERS] [SECONDS]
// Exit status 1: an answer was wrong or never came, or half of the window's events waited for more than half a second;
// 77: the system does not allow that many descriptors.
#include "Masters.h"
#include "ServerProcess.h"
#include "StationWindow.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <sys/resource.h>
#include <vector>

using namespace std::chrono_literals;

namespace {

// This process and the station hold a descriptor for every master.
bool allowDescriptors(rlim_t wanted) {
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = std::max(limit.rlim_cur, wanted);
    limit.rlim_max = std::max(limit.rlim_max, wanted); // which only root may raise
    return setrlimit(RLIMIT_NOFILE, &limit) == 0;
}

template <typename Value>
double milliseconds(std::vector<Value> values, double share) {
    const auto rank = static_cast<std::ptrdiff_t>(share * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), values.begin() + rank, values.end());
    return static_cast<double>(std::chrono::nanoseconds(values[static_cast<std::size_t>(rank)]).count()) / 1e6;
}

void measure(std::size_t count, std::size_t seconds) {
    StationReport& report = stationReport();
    const ServerProcess station(serveStation);
    const double before = static_cast<double>(report.residentBytes);
    Masters masters(station.port(), count);
    masters.runPaced(1s, 2); // until every one has been accepted
    report.waits = 0;
    const std::size_t first = masters.latencies().size();
    const auto used = station.processorTime();
    const std::size_t leftOut = masters.runPaced(1s, seconds);
    const std::chrono::duration<double> share = station.processorTime() - used;
    const std::vector<std::chrono::nanoseconds> latencies(masters.latencies().begin() + static_cast<long>(first),
                                                          masters.latencies().end());
    const std::vector<std::chrono::nanoseconds> waits = [&] {
        std::vector<std::chrono::nanoseconds> result;
        for (std::size_t i = 0; i < report.waits; ++i)
            result.emplace_back(report.eventWait[i]);
        return result;
    }();
    std::printf("%zu maestros, una petición por segundo cada uno, %zu s: %zu respuestas, %zu fuera de plazo, p50 %.2f "
                "ms, p99 %.1f ms, "
                "máximo %.0f ms\n",
                count, seconds, latencies.size(), leftOut, milliseconds(latencies, 0.5), milliseconds(latencies, 0.99),
                milliseconds(latencies, 1));
    std::printf("espera de un evento de ventana: p50 %.1f ms, p99 %.1f ms, máximo %.0f ms\n", milliseconds(waits, 0.5),
                milliseconds(waits, 0.99), milliseconds(waits, 1));
    std::printf("procesador %.0f %%, memoria por maestro %.1f kB\n", 100 * share.count() / static_cast<double>(seconds),
                (static_cast<double>(report.residentBytes) - before) / 1e3 / static_cast<double>(count));
    if (milliseconds(waits, 0.5) > 500)
        throw std::runtime_error("the window is not usable");
}

} // namespace

int main(int argc, char** argv) {
    try {
        const std::size_t count = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 10'000;
        if (!allowDescriptors(count + 200)) {
            std::fputs("many_masters: omitido: el sistema no permite tantos descriptores\n", stderr);
            return 77;
        }
        stationReport();
        measure(count, argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 20);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "many_masters: %s\n", failure.what());
        return 1;
    }
}
