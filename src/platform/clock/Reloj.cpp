#include "platform/clock/Reloj.h"

namespace {

class RelojDelSistema final : public Reloj {
public:
    Instante instante() const override { return std::chrono::steady_clock::now(); }
    Hora hora() const override { return std::chrono::system_clock::now(); }
    std::time_t segundo() const override { return std::time(nullptr); }
};

} // namespace

const Reloj& relojDelSistema() {
    static const RelojDelSistema reloj;
    return reloj;
}
