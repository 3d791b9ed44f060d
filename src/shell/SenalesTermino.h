// SIGTERM and SIGINT as an event of the window system, so that they end the program the way its button does.
#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <memory>

class SenalesTermino final {
public:
    // Keeps the signals waiting until an object of this class takes them. To be called before the window system
    // starts threads: the signals would end the program at once through a thread that does not block them.
    static void retener();

    // From now on both signals call `alLlegar` from the event loop, those that came since retener() too.
    explicit SenalesTermino(std::function<void()> alLlegar);
    ~SenalesTermino();
    SenalesTermino(const SenalesTermino&) = delete;
    SenalesTermino& operator=(const SenalesTermino&) = delete;

private:
    int descriptor_;
    std::function<void()> alLlegar_;
    std::unique_ptr<QSocketNotifier> avisador_;
};
