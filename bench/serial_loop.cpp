// The serial link beside `cat`: bytes a second from one end of a pseudo-terminal pair through the receive loop, with
// readings of the default length and the window shown, and the processor time that a line of 115,200 bits a second
// takes. Usage: serial_loop [ROUNDS]
//
// The two readers take turns, so that what else the machine does falls upon both; the ratio is the median of the ratios
// of neighbouring rounds. The script engine is left out: its time belongs to the user's script.
#include "ajustes/Ajustes.h"
#include "serial/frmRS232.h"

#include <QApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <pty.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <termios.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

constexpr std::size_t bytesARound = 2'000'000;
constexpr auto paceTime = 5s;
constexpr std::string_view reading = "240517123456\n\r";

// One end of a pseudo-terminal pair, and the path of the other.
class Pair {
public:
    Pair() {
        char name[64] = {};
        termios raw = {};
        ::cfmakeraw(&raw);
        if (::openpty(&master_, &slave_, name, &raw, nullptr) != 0)
            throw std::runtime_error("no pseudo-terminal");
        path_ = QString::fromLocal8Bit(name);
    }
    ~Pair() {
        ::close(slave_);
        ::close(master_);
    }
    Pair(const Pair&) = delete;
    Pair& operator=(const Pair&) = delete;

    const QString& path() const { return path_; }
    int slave() const { return slave_; }

    // Writes so many bytes of readings. The pair holds a few thousand, so this takes as long as reading them.
    void write(std::size_t bytes) const {
        std::string block;
        while (block.size() < 4096)
            block += reading;
        while (bytes > 0) {
            const ssize_t written = ::write(master_, block.data(), std::min(bytes, block.size()));
            if (written <= 0)
                throw std::runtime_error("the pseudo-terminal takes nothing");
            bytes -= static_cast<std::size_t>(written);
        }
    }

private:
    int master_ = -1;
    int slave_ = -1;
    QString path_;
};

// `cat` reading one end of a pair.
class Cat {
public:
    explicit Cat(const Pair& pair) : pid_(::fork()) {
        if (pid_ != 0)
            return;
        ::dup2(pair.slave(), STDIN_FILENO);
        ::dup2(::open("/dev/null", O_WRONLY), STDOUT_FILENO);
        ::execlp("cat", "cat", nullptr);
        std::_Exit(127);
    }
    ~Cat() {
        ::kill(pid_, SIGTERM);
        ::waitpid(pid_, nullptr, 0);
    }
    Cat(const Cat&) = delete;
    Cat& operator=(const Cat&) = delete;

private:
    pid_t pid_;
};

class Defaults final : public Ajustes {
public:
    virtual ~Defaults() = default;
    std::string leerConfiguracion(const Clave& clave) override { return std::string(clave.porDefecto); }
    void escribirConfiguracion(const Clave&, std::string_view) override {}
    char16_t signoDecimal() const override { return u','; }
};

class Stderr final : public LogSerie {
public:
    virtual ~Stderr() = default;
    void escribirLog(std::string_view, std::string_view mensaje, std::string_view, std::string_view error) override {
        std::fprintf(stderr, "%s: %s\n", std::string(mensaje).c_str(), std::string(error).c_str());
    }
};

class NoEngine final : public MotorSerie {
public:
    virtual ~NoEngine() = default;
    void AddCode(std::string_view) override {}
};

// The window with a device on its port.
struct Station {
    Station() {
        QFile::link(pair.path(), folder.filePath(QStringLiteral("com1")));
        window = std::make_unique<frmRS232>(folder.path(), settings, log, engine);
        window->show();
    }

    Pair pair;
    QTemporaryDir folder;
    Defaults settings;
    Stderr log;
    NoEngine engine;
    std::unique_ptr<frmRS232> window;
};

double seconds(Clock::duration time) {
    return std::chrono::duration<double>(time).count();
}

// Bytes a second that the reader takes while `turn` lets it work in this thread.
template <typename Turn>
double rate(const Pair& pair, Turn turn) {
    const auto start = Clock::now();
    std::atomic<bool> done = false;
    std::thread device([&] {
        pair.write(bytesARound);
        done = true;
    });
    while (!done)
        turn();
    device.join();
    return static_cast<double>(bytesARound) / seconds(Clock::now() - start);
}

double threadTime() {
    rusage usage = {};
    ::getrusage(RUSAGE_THREAD, &usage);
    const auto one = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return one(usage.ru_utime) + one(usage.ru_stime);
}

// Share of one processor that a line of 115,200 bits (11,520 characters) a second takes.
double shareAt115200(const Pair& pair) {
    constexpr auto step = 10ms;
    std::atomic<bool> done = false;
    std::thread device([&] {
        const auto start = Clock::now();
        for (int i = 1; Clock::now() - start < paceTime; ++i) {
            pair.write(115);
            std::this_thread::sleep_until(start + i * step);
        }
        done = true;
    });
    const double before = threadTime();
    const auto start = Clock::now();
    while (!done)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double share = (threadTime() - before) / seconds(Clock::now() - start);
    device.join();
    return share;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void measure(int rounds) {
    std::vector<double> ratios;
    std::vector<double> rates;
    const Pair catPair;
    const Cat cat(catPair);
    for (int i = 0; i < rounds; ++i) {
        const double beside = rate(catPair, [] { std::this_thread::sleep_for(1ms); });
        const Station station;
        rates.push_back(rate(station.pair, [] { QCoreApplication::processEvents(QEventLoop::AllEvents, 10); }));
        ratios.push_back(rates.back() / beside);
    }
    std::printf("receive loop beside cat: %.3f of its bytes a second (%.1f MB/s)\n", median(ratios),
                median(rates) / 1e6);
    const Station station;
    std::printf("processor time at 115,200 bits a second: %.2f %%\n", shareAt115200(station.pair) * 100);
}

} // namespace

int main(int argc, char** argv) {
    try {
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
        const QApplication application(argc, argv);
        measure(argc > 1 ? std::atoi(argv[1]) : 9);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
