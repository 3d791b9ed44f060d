// Who writes a register.
#pragma once

#include <cstdint>

enum class Autor : std::uint8_t { nadie, maestro, script, mano };
