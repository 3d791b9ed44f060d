// The station as a whole: a request with "Ver TX/RX" on, a minute of it, window events under load, memory of full
// tables, start, idle. Usage: station_figures ESCLAVO-MODBUS BARE-WINDOW [SECONDS-OF-LOAD]
#include "BareLoop.h"
#include "Masters.h"
#include "ServerProcess.h"
#include "StationWindow.h"

#include <algorithm>
#include <arpa/inet.h>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <netinet/in.h>
#include <stdexcept>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
namespace fs = std::filesystem;

namespace {

double quantile(std::vector<double> values, double share) {
    if (values.empty())
        throw std::runtime_error("nothing was measured");
    const auto rank = static_cast<std::ptrdiff_t>(share * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), values.begin() + rank, values.end());
    return values[static_cast<std::size_t>(rank)];
}

double costOfASlice(const ServerProcess& server, Masters& masters) {
    const auto before = server.processorTime();
    const std::size_t requests = masters.run(50ms);
    return static_cast<double>((server.processorTime() - before).count()) / static_cast<double>(requests);
}

void txRxCost(const ServerProcess& bare) {
    const ServerProcess station(serveStationWithTxRx);
    Masters measured(station.port(), 16);
    Masters reference(bare.port(), 16);
    std::vector<double> ratios;
    costOfASlice(station, measured);
    for (int i = 0; i < 60; ++i) {
        const double base = costOfASlice(bare, reference);
        ratios.push_back(costOfASlice(station, measured) / base);
    }
    std::printf("peticiones 16 maestros, \"Ver TX/RX\" marcado: %.2f (objetivo 1.30)\n", quantile(ratios, 0.5));
}

void loadWithTxRx(std::chrono::seconds length) {
    StationReport& report = stationReport();
    const ServerProcess station(serveStationWithTxRx);
    Masters masters(station.port(), 16);
    std::size_t requests = masters.run(2s); // fills the monitors once
    const std::int64_t before = report.residentBytes;
    requests += masters.run(length);
    const auto stopped = Clock::now().time_since_epoch();
    std::this_thread::sleep_for(1s); // what is late has come by then
    const double late = static_cast<double>(report.monitorChanged - std::chrono::nanoseconds(stopped).count()) / 1e9;
    std::printf("%lld s con \"Ver TX/RX\": %.1f millones de peticiones, memoria %+.1f MB (objetivo 2), "
                "retraso del monitor %.3f s (objetivo 0.1)\n",
                static_cast<long long>(length.count()), static_cast<double>(requests) / 1e6,
                static_cast<double>(report.residentBytes - before) / 1e6, std::max(late, 0.0));
}

void eventWaits(ServerProcess::Body body, const char* name) {
    StationReport& report = stationReport();
    const ServerProcess station(body);
    Masters masters(station.port(), 64);
    masters.run(500ms);
    report.waits = 0;
    report.keys = 0;
    masters.run(5s);
    std::vector<double> waits(report.eventWait.begin(),
                              report.eventWait.begin() + static_cast<std::ptrdiff_t>(report.waits.load()));
    std::printf("espera de un evento de ventana, 64 maestros, %s: p50 %.1f ms, p99 %.1f ms (objetivo 10)\n", name,
                quantile(waits, 0.5) / 1e6, quantile(waits, 0.99) / 1e6);
    std::vector<double> keys(report.keyAnswer.begin(),
                             report.keyAnswer.begin() + static_cast<std::ptrdiff_t>(report.keys.load()));
    std::printf(
        "respuesta a una tecla, 64 maestros, %s: p50 %.1f ms, p99 %.1f ms, la más lenta %.1f ms (objetivo 20)\n", name,
        quantile(keys, 0.5) / 1e6, quantile(keys, 0.99) / 1e6, quantile(keys, 1) / 1e6);
}

int connectTo(std::uint16_t port) {
    const int connection = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (connect(connection, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
        throw std::runtime_error("connection refused");
    return connection;
}

// Reads the last registers of every slave, which makes its page and lets its table grow to 65,536 registers.
void fullTables() {
    StationReport& report = stationReport();
    const ServerProcess station(serveStation);
    std::this_thread::sleep_for(300ms);
    const std::int64_t before = report.residentBytes;
    const int connection = connectTo(station.port());
    const auto began = Clock::now();
    for (int slave = 0; slave < 256; ++slave) {
        const unsigned char request[12] = {0, 1, 0, 0, 0, 6, static_cast<unsigned char>(slave), 3, 0xFF, 0xF5, 0, 10};
        unsigned char answer[64];
        if (send(connection, request, sizeof request, MSG_NOSIGNAL) != sizeof request ||
            recv(connection, answer, 29, MSG_WAITALL) != 29)
            throw std::runtime_error("no answer");
    }
    const double seconds = std::chrono::duration<double>(Clock::now() - began).count();
    std::this_thread::sleep_for(1s);
    close(connection);
    const double bare = 256.0 * 65536 * 8;
    std::printf("memoria de 256 esclavos x 65536 registros con sus páginas: %.2f (objetivo 1.25), hechos en %.2f s\n",
                static_cast<double>(report.residentBytes - before) / bare, seconds);
}

// Starts a program without a screen; the caller waits for it.
pid_t launch(const fs::path& program) {
    const pid_t process = fork();
    if (process == 0) {
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
        execl(program.c_str(), program.c_str(), static_cast<char*>(nullptr));
        _exit(127);
    }
    return process;
}

double secondsToShown(const fs::path& program) {
    const auto began = Clock::now();
    int status = 0;
    waitpid(launch(program), &status, 0);
    if (status != 0)
        throw std::runtime_error(program.string() + " failed");
    return std::chrono::duration<double>(Clock::now() - began).count();
}

double secondsToListening(const fs::path& program, std::uint16_t port) {
    const auto began = Clock::now();
    const pid_t process = launch(program);
    while (!accepts(port) && Clock::now() - began < 10s)
        std::this_thread::sleep_for(500us);
    const double seconds = std::chrono::duration<double>(Clock::now() - began).count();
    kill(process, SIGTERM);
    waitpid(process, nullptr, 0);
    return seconds;
}

// Both are started alike, in turn.
void start(const fs::path& program, const fs::path& bareWindow) {
    const fs::path folder = fs::temp_directory_path() / ("station-start-" + std::to_string(getpid()));
    fs::create_directory(folder);
    fs::copy_file(program, folder / program.filename());
    const std::uint16_t port = freePort();
    std::ofstream(folder / "Sis_Config.ini") << "[Trelvano]\r\nPUERTO_VALOR=" << port << "\r\nver=1\r\n";

    std::vector<double> ratios;
    std::vector<double> station;
    secondsToShown(bareWindow);
    for (int i = 0; i < 21; ++i) {
        const double base = secondsToShown(bareWindow);
        station.push_back(secondsToListening(folder / program.filename(), port));
        ratios.push_back(station.back() / base);
    }
    std::printf("arranque hasta escuchar: %.2f, %.0f ms (objetivo 50)\n", quantile(ratios, 0.5),
                quantile(station, 0.5) * 1000);
    fs::remove_all(folder);
}

void idle(const char* program) {
    const ServerProcess station{std::filesystem::path(program)};
    std::this_thread::sleep_for(2s);
    const auto before = station.processorTime();
    const auto began = Clock::now();
    std::this_thread::sleep_for(20s);
    const std::chrono::duration<double> used = station.processorTime() - before;
    const std::chrono::duration<double> passed = Clock::now() - began;
    std::printf("procesador en reposo: %.3f %% (objetivo 0.2)\n", 100 * used / passed);
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("usage: station_figures ESCLAVO-MODBUS BARE-WINDOW [SECONDS-OF-LOAD]\n", stderr);
        return 2;
    }
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    try {
        stationReport();
        const ServerProcess bare(serveBareLoop);
        txRxCost(bare);
        eventWaits(serveStation, "\"Ver TX/RX\" sin marcar");
        eventWaits(serveStationWithTxRx, "\"Ver TX/RX\" marcado");
        fullTables();
        start(argv[1], argv[2]);
        idle(argv[1]);
        loadWithTxRx(std::chrono::seconds(argc > 3 ? std::atoi(argv[3]) : 60));
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "station_figures: %s\n", failure.what());
        return 1;
    }
}
