// Whether a program runs more than once, judged by the names in the process list.
#pragma once

#include <filesystem>
#include <string_view>

// True when at least two running processes have `nombre` in their name, without regard to the case of ASCII letters.
// False when the process list (`raiz`, the kernel's process folder) cannot be read.
bool SeRepiteProgramaEnRunTime(std::string_view nombre, const std::filesystem::path& raiz = "/proc");
