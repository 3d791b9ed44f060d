#include "shell/SenalesTermino.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

// A signal handler gets no argument of ours: this is how it finds its object.
std::atomic<SenalesTermino*> actual{nullptr};
static_assert(std::atomic<SenalesTermino*>::is_always_lock_free);

sigset_t deTermino() {
    sigset_t senales;
    sigemptyset(&senales);
    sigaddset(&senales, SIGTERM);
    sigaddset(&senales, SIGINT);
    return senales;
}

void instalar(void (*manejador)(int)) {
    struct sigaction accion {};
    accion.sa_handler = manejador;
    accion.sa_mask = deTermino();
    accion.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &accion, nullptr);
    sigaction(SIGINT, &accion, nullptr);
}

} // namespace

void SenalesTermino::retener() {
    const sigset_t senales = deTermino();
    pthread_sigmask(SIG_BLOCK, &senales, nullptr);
}

SenalesTermino::SenalesTermino(std::function<void()> enElActo, std::function<void()> alLlegar)
    : enElActo_(std::move(enElActo)), alLlegar_(std::move(alLlegar)) {
    int extremos[2] = {-1, -1};
    if (pipe2(extremos, O_NONBLOCK | O_CLOEXEC) == 0) {
        lectura_ = Descriptor(extremos[0]);
        escritura_ = Descriptor(extremos[1]);
    }
    avisador_ = std::make_unique<QSocketNotifier>(lectura_.number(), QSocketNotifier::Read);
    QObject::connect(avisador_.get(), &QSocketNotifier::activated, avisador_.get(), [this] {
        char leidos[16];
        while (read(lectura_.number(), leidos, sizeof leidos) > 0) {
        }
        alLlegar_();
    });
    actual = this;
    instalar(&SenalesTermino::atender);
    const sigset_t senales = deTermino();
    pthread_sigmask(SIG_UNBLOCK, &senales, nullptr);
}

SenalesTermino::~SenalesTermino() {
    retener();
    actual = nullptr;
    instalar(SIG_DFL);
}

void SenalesTermino::atender(int /*senal*/) {
    const int errorAnterior = errno;
    if (const SenalesTermino* const senales = actual) {
        senales->enElActo_();
        const char aviso = 0;
        [[maybe_unused]] const ssize_t escrito = write(senales->escritura_.number(), &aviso, 1);
    }
    errno = errorAnterior;
}
