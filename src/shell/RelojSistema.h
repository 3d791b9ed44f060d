// The local wall clock as the monitors show it.
#pragma once

#include "modbus/Peticiones.h"

#include <array>
#include <ctime>

// Formats once a second at most: within the same second the text is handed out again.
class RelojSistema final : public Reloj {
public:
    std::string_view hora() override;

private:
    std::time_t segundo_ = -1;
    std::array<char, 9> texto_{};
};
