#include "shell/SenalesTermino.h"

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

sigset_t deTermino() {
    sigset_t senales;
    sigemptyset(&senales);
    sigaddset(&senales, SIGTERM);
    sigaddset(&senales, SIGINT);
    return senales;
}

} // namespace

void SenalesTermino::retener() {
    const sigset_t senales = deTermino();
    sigprocmask(SIG_BLOCK, &senales, nullptr);
}

SenalesTermino::SenalesTermino(std::function<void()> alLlegar) : alLlegar_(std::move(alLlegar)) {
    retener();
    const sigset_t senales = deTermino();
    descriptor_ = signalfd(-1, &senales, SFD_NONBLOCK | SFD_CLOEXEC);
    avisador_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
    QObject::connect(avisador_.get(), &QSocketNotifier::activated, avisador_.get(), [this] {
        signalfd_siginfo leida{};
        while (read(descriptor_, &leida, sizeof leida) == static_cast<ssize_t>(sizeof leida)) {
        }
        alLlegar_();
    });
}

SenalesTermino::~SenalesTermino() {
    avisador_.reset();
    close(descriptor_);
}
