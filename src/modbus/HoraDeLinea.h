// The local time as the monitors' lines show it.
#pragma once

#include "platform/clock/Reloj.h"

#include <array>
#include <ctime>
#include <string_view>

// Formats once a second at most: within the same second the text is handed out again.
class HoraDeLinea {
public:
    explicit HoraDeLinea(const Reloj& reloj) : reloj_(reloj) {} // borrowed

    std::string_view texto(); // "HH:mm:ss", valid until the next call

private:
    const Reloj& reloj_;
    std::time_t segundo_ = -1;
    std::array<char, 9> texto_{};
};
