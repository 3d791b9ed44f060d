// The names of the running processes, as the kernel's process folder tells them.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// The executable name of every process under `raiz`, in no order; nothing when the folder cannot be read. A process
// that ends meanwhile or hides its name is left out.
std::optional<std::vector<std::string>> nombresDeProcesos(const std::filesystem::path& raiz = "/proc");
