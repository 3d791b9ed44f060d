#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <sys/types.h>

// A server under measurement: a child process that listens on a free port of the loopback. It is ended, and its folder
// removed, with the object. Construction throws std::runtime_error when the server does not listen within ten seconds.
//
// Servers run on the first processor and the measuring process on the last, once a server was started: where the
// scheduler happens to put them would otherwise change the cost of a request threefold.
class ServerProcess {
public:
    using Body = void (*)(std::uint16_t port);

    // What a program finds in its folder besides itself.
    struct Extras {
        std::string settings; ///< lines for the section "Trelvano" of `Sis_Config.ini`, each ended by CR LF
        std::string script;   ///< text of `codigoTrelvano.txt`; empty: no such file
    };

    // A fork of this process that runs `body`.
    explicit ServerProcess(Body body);
    // A program, copied to a folder of its own beside a `Sis_Config.ini` that names the port, and started there with
    // the port as its argument and without a screen.
    explicit ServerProcess(const std::filesystem::path& program) : ServerProcess(program, Extras{}) {}
    ServerProcess(const std::filesystem::path& program, const Extras& extras);
    ~ServerProcess();
    ServerProcess(const ServerProcess&) = delete;
    ServerProcess& operator=(const ServerProcess&) = delete;

    std::uint16_t port() const { return port_; }
    // Processor time used so far by all its threads, user and system.
    std::chrono::nanoseconds processorTime() const;
    // Holds the process and lets it go on: a server that works of its own accord must not slow another's turn.
    void pause() const;
    void resume() const;

private:
    void waitUntilListening();
    void end() const;

    std::uint16_t port_;
    std::filesystem::path folder_;
    pid_t process_ = -1;
    clockid_t clock_{};
};
