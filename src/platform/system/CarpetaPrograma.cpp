#include "platform/system/CarpetaPrograma.h"

#include <string_view>

std::filesystem::path rutaEjecutable() {
    // The kernel marks a file that was replaced or removed while the program runs (an update) at the end of its name.
    constexpr std::string_view marcaDeBorrado = " (deleted)";
    std::filesystem::path ruta = std::filesystem::read_symlink("/proc/self/exe");
    if (ruta.native().ends_with(marcaDeBorrado) && !std::filesystem::exists(ruta))
        return ruta.native().substr(0, ruta.native().size() - marcaDeBorrado.size());
    return ruta;
}

std::filesystem::path carpetaPrograma() {
    return rutaEjecutable().parent_path();
}
