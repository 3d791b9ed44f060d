// Where the running program's file really is, links resolved.
#pragma once

#include <filesystem>

// The executable's file. Throws std::filesystem::filesystem_error when /proc is not there.
std::filesystem::path rutaEjecutable();

// The folder of that file, without a separator at the end.
std::filesystem::path carpetaPrograma();
