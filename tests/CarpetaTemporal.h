// A folder of its own for one test, removed with all that is in it; and whole files in one line.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

class CarpetaTemporal {
public:
    CarpetaTemporal() {
        std::string plantilla = (std::filesystem::temp_directory_path() / "esclavo-XXXXXX").string();
        if (::mkdtemp(plantilla.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        ruta_ = plantilla;
    }
    ~CarpetaTemporal() {
        std::error_code error;
        std::filesystem::permissions(ruta_, std::filesystem::perms::owner_all, error);
        std::filesystem::remove_all(ruta_, error);
    }
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;

    const std::filesystem::path& ruta() const { return ruta_; }
    std::filesystem::path operator/(const std::string& nombre) const { return ruta_ / nombre; }

private:
    std::filesystem::path ruta_;
};

inline void escribirArchivo(const std::filesystem::path& ruta, std::string_view bytes) {
    std::ofstream(ruta, std::ios::binary) << bytes;
}

inline std::string contenidoDe(const std::filesystem::path& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(archivo), {}};
}
