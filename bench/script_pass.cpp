// What script passes cost the masters: a pass of 1,000 statements with 200 register calls every 10 ms while 64 masters
// in closed loop load the station. Usage: script_pass ESCLAVO-MODBUS [ROUNDS]
//
// Three servers take turns in slices of a tenth of a second: the bare loop, the station, and the station with a
// script; each is held while it is not its turn. A figure is the median of the ratios of neighbouring slices.
#include "BareLoop.h"
#include "Masters.h"
#include "ServerProcess.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

constexpr std::size_t masterCount = 64;
constexpr std::uint8_t shownUnit = 1; // its page is in front: what a script writes there is painted, too
constexpr std::uint8_t hiddenUnit = 5;
constexpr std::uint8_t firstRegister = 100; // of those that the script works on: each grows by one in every pass

// 100 blocks of ten statements, two of which call the store.
std::string scriptText(int unit) {
    std::ostringstream text;
    for (int address = firstRegister; address < firstRegister + 100; ++address) {
        text << "valor = mw.leer(" << unit << ", " << address
             << ")\r\n"
                "suma = suma + valor\r\n"
                "If suma > 1000000 Then suma = 0\r\n"
                "cuenta = cuenta + 1\r\n"
                "resto = cuenta Mod 100\r\n"
                "raiz = Sqr(resto) * 2\r\n"
                "texto = \"paso \" & resto\r\n"
                "If Len(texto) > 6 Then largos = largos + 1 Else largos = 0\r\n"
                "valor = (valor + 1) Mod 65536\r\n"
                "mw.escribir "
             << unit << ", " << address << ", valor\r\n";
    }
    return text.str();
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

struct Slice {
    double p99;  // of the latencies, ns
    double cost; // processor time a request, ns
    double requests;
    double processor; // time used, ns
    double wall;      // time passed, ns
};

// One server and its masters; held outside its own slices.
class Side {
public:
    explicit Side(const ServerProcess& server) : server_(server), masters_(server.port(), masterCount) { slice(); }

    Slice slice() {
        server_.resume();
        const auto began = Clock::now();
        const auto before = server_.processorTime();
        const auto first = static_cast<std::ptrdiff_t>(masters_.latencies().size());
        const auto requests = static_cast<double>(masters_.run(100ms));
        const auto processor = static_cast<double>((server_.processorTime() - before).count());
        const auto wall = static_cast<double>(std::chrono::nanoseconds(Clock::now() - began).count());
        server_.pause();
        std::vector<std::chrono::nanoseconds> latencies(masters_.latencies().begin() + first,
                                                        masters_.latencies().end());
        const auto rank = latencies.begin() + static_cast<std::ptrdiff_t>(latencies.size() * 99 / 100);
        std::nth_element(latencies.begin(), rank, latencies.end());
        return {static_cast<double>(rank->count()), processor / requests, requests, processor, wall};
    }

private:
    const ServerProcess& server_;
    Masters masters_;
};

struct Figures {
    std::vector<double> besideBare, besideStation, stationBesideBare, share, bareP99, scriptP99;

    void add(const Slice& bare, const Slice& station, const Slice& script) {
        besideBare.push_back(script.p99 / bare.p99);
        besideStation.push_back(script.p99 / station.p99);
        stationBesideBare.push_back(station.p99 / bare.p99);
        // What the requests do not explain. Painting what the script wrote counts too.
        share.push_back((script.processor - script.requests * station.cost) / script.wall);
        bareP99.push_back(bare.p99);
        scriptP99.push_back(script.p99);
    }

    void print() const {
        std::printf("latencia p99, 64 maestros, una pasada cada 10 ms, junto al bucle: %.2f (objetivo 1.50)\n",
                    median(besideBare));
        // Where other programs want the processors too, the slices that they spared tell more.
        const double quietBare = *std::min_element(bareP99.begin(), bareP99.end());
        const double quietScript = *std::min_element(scriptP99.begin(), scriptP99.end());
        std::printf("la misma, la mejor rodaja de cada uno: %.2f (%.0f us; bucle %.0f us)\n", quietScript / quietBare,
                    quietScript / 1000, quietBare / 1000);
        std::printf("la misma junto a la estación sin script: %.2f (sin script, junto al bucle: %.2f)\n",
                    median(besideStation), median(stationBesideBare));
        std::printf("procesador de las pasadas con 64 maestros: %.2f %%\n", 100 * median(share));
    }
};

// A station whose script runs every 10 ms.
class ScriptedStation {
public:
    ScriptedStation(const std::filesystem::path& program, std::uint8_t unit)
        : unit_(unit), server_(program, {.settings = "Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=10\r\n",
                                         .script = scriptText(unit)}) {}

    const ServerProcess& server() const { return server_; }

    // Passes in a second while `work` goes on, and the processor time of each if they are all that it does.
    template <typename Work>
    void countPasses(const char* name, Work work) const {
        const auto began = Clock::now();
        const auto used = server_.processorTime();
        const std::uint16_t before = readRegister(server_.port(), unit_, firstRegister);
        work();
        const auto passes = static_cast<std::uint16_t>(readRegister(server_.port(), unit_, firstRegister) - before);
        const std::chrono::duration<double> processor = server_.processorTime() - used;
        const std::chrono::duration<double> wall = Clock::now() - began;
        if (passes == 0)
            throw std::runtime_error("no pass runs: the script's register does not change");
        std::printf("pasadas por segundo, %s: %.1f (pedidas 100), procesador de la estación %.2f %%\n", name,
                    passes / wall.count(), 100 * processor / wall);
    }

private:
    std::uint8_t unit_;
    ServerProcess server_;
};

void measure(const std::filesystem::path& program, int rounds) {
    const auto rest = [] { std::this_thread::sleep_for(5s); };
    // First: without passes the figures under load would mean nothing.
    ScriptedStation(program, hiddenUnit).countPasses("sin maestros, página oculta", rest);
    const ScriptedStation scripted(program, shownUnit);
    scripted.countPasses("sin maestros, página a la vista", rest);

    const ServerProcess bare(serveBareLoop);
    const ServerProcess station(program);
    Figures figures;
    {
        Side onBare(bare);
        Side onStation(station);
        Side onScripted(scripted.server());
        for (int i = 0; i < rounds; ++i) {
            const Slice first = onBare.slice();
            const Slice second = onStation.slice();
            figures.add(first, second, onScripted.slice());
        }
    }
    figures.print();
    scripted.server().resume();
    Masters masters(scripted.server().port(), masterCount);
    scripted.countPasses("64 maestros, página a la vista", [&masters] { masters.run(3s); });
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("usage: script_pass ESCLAVO-MODBUS [ROUNDS]\n", stderr);
        return 2;
    }
    try {
        measure(argv[1], argc > 2 ? std::atoi(argv[2]) : 60);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "script_pass: %s\n", failure.what());
        return 1;
    }
}
