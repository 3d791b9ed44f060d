// SIGTERM and SIGINT as an event of the window system, so that they end the program the way its button does.
#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <memory>

class SenalesTermino final {
public:
    // From now on both signals call `alLlegar` from the event loop.
    explicit SenalesTermino(std::function<void()> alLlegar);
    ~SenalesTermino();
    SenalesTermino(const SenalesTermino&) = delete;
    SenalesTermino& operator=(const SenalesTermino&) = delete;

private:
    int descriptor_;
    std::function<void()> alLlegar_;
    std::unique_ptr<QSocketNotifier> avisador_;
};
