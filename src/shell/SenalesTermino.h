// SIGTERM and SIGINT as an event of the window system, so that they end the program the way its button does.
#pragma once

#include "platform/posix/Descriptor.h"

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <memory>

class SenalesTermino final {
public:
    // Keeps the signals waiting until an object of this class takes them. To be called before the window system
    // starts threads: the signals would end the program at once through a thread that does not block them.
    static void retener();

    // From now on both signals, those that came since retener() too, call `enElActo` at once, in the middle of
    // whatever the thread is doing (so only what a signal handler may do), and then `alLlegar` from the event loop.
    // One object at a time.
    SenalesTermino(std::function<void()> enElActo, std::function<void()> alLlegar);
    ~SenalesTermino();
    SenalesTermino(const SenalesTermino&) = delete;
    SenalesTermino& operator=(const SenalesTermino&) = delete;

private:
    static void atender(int senal);

    std::function<void()> enElActo_;
    std::function<void()> alLlegar_;
    Descriptor lectura_; // ends of the pipe that wakes the event loop
    Descriptor escritura_;
    std::unique_ptr<QSocketNotifier> avisador_;
};
