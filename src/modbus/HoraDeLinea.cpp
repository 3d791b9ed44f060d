#include "modbus/HoraDeLinea.h"

std::string_view HoraDeLinea::texto() {
    const std::time_t ahora = reloj_.segundo();
    if (ahora != segundo_) {
        segundo_ = ahora;
        std::tm local{};
        localtime_r(&ahora, &local);
        std::strftime(texto_.data(), texto_.size(), "%H:%M:%S", &local);
    }
    return {texto_.data(), texto_.size() - 1};
}
