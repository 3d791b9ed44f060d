#include "ServerProcess.h"

#include "Masters.h"

#include <csignal>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <sched.h>
#include <stdexcept>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

void runOnProcessor(std::size_t number) {
    cpu_set_t set;
    CPU_ZERO(&set);
    CPU_SET(number, &set);
    sched_setaffinity(0, sizeof set, &set); // where it is not allowed, the figures are only less steady
}

// What every server process does first.
void becomeServer() {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    runOnProcessor(0);
}

fs::path makeFolder(const fs::path& program, std::uint16_t port, const ServerProcess::Extras& extras) {
    std::string name = (fs::temp_directory_path() / "station-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("no temporary folder");
    fs::copy_file(program, fs::path(name) / program.filename());
    std::ofstream(fs::path(name) / "Sis_Config.ini") << "[Trelvano]\r\nPUERTO_VALOR=" << port << "\r\nver=1\r\n"
                                                     << extras.settings;
    if (!extras.script.empty())
        std::ofstream(fs::path(name) / "codigoTrelvano.txt") << extras.script;
    return name;
}

} // namespace

ServerProcess::ServerProcess(Body body) : port_(freePort()), process_(fork()) {
    if (process_ == 0) {
        becomeServer();
        body(port_);
        _exit(1);
    }
    waitUntilListening();
}

ServerProcess::ServerProcess(const fs::path& program, const Extras& extras)
    : port_(freePort()), folder_(makeFolder(program, port_, extras)), process_(fork()) {
    if (process_ == 0) {
        becomeServer();
        const std::string copy = (folder_ / program.filename()).string();
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        if (chdir(folder_.c_str()) == 0)
            execl(copy.c_str(), copy.c_str(), std::to_string(port_).c_str(), static_cast<char*>(nullptr));
        _exit(1);
    }
    waitUntilListening();
}

ServerProcess::~ServerProcess() {
    end();
}

void ServerProcess::end() const {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    std::error_code ignored;
    if (!folder_.empty())
        fs::remove_all(folder_, ignored);
}

void ServerProcess::waitUntilListening() {
    runOnProcessor(std::thread::hardware_concurrency() - 1);
    clock_getcpuclockid(process_, &clock_);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!accepts(port_)) {
        if (std::chrono::steady_clock::now() > deadline || waitpid(process_, nullptr, WNOHANG) != 0) {
            end();
            throw std::runtime_error("the server does not listen");
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

std::chrono::nanoseconds ServerProcess::processorTime() const {
    timespec used{};
    clock_gettime(clock_, &used);
    return std::chrono::seconds(used.tv_sec) + std::chrono::nanoseconds(used.tv_nsec);
}

void ServerProcess::pause() const {
    kill(process_, SIGSTOP);
}

void ServerProcess::resume() const {
    kill(process_, SIGCONT);
}
