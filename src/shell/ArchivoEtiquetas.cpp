#include "shell/ArchivoEtiquetas.h"

#include "platform/profile/ArchivoBytes.h"
#include "platform/text/Encoding.h"

#include <utility>
#include <vector>

namespace {

constexpr std::size_t maxFaltas = 3; // told in full; more are counted

std::string resumen(const std::vector<std::string>& faltas) {
    std::string texto;
    for (std::size_t i = 0; i < faltas.size() && i < maxFaltas; ++i)
        texto += (i > 0 ? "; " : "") + faltas[i];
    if (faltas.size() > maxFaltas)
        texto += "; y " + std::to_string(faltas.size() - maxFaltas) + " más";
    return texto;
}

} // namespace

const std::string& ArchivoEtiquetas::comprobar() {
    std::error_code error;
    const auto fecha = std::filesystem::last_write_time(ruta_, error);
    if (error) {
        if (std::exchange(leido_, false))
            etiquetas_.leer("");
        falta_.clear();
        return falta_;
    }
    const auto tamano = std::filesystem::file_size(ruta_, error);
    if (leido_ && fecha == fecha_ && tamano == tamano_)
        return falta_;
    fecha_ = fecha;
    tamano_ = tamano;
    leido_ = true;
    std::string bytes;
    if (const std::error_code fallo = leerBytes(ruta_, bytes))
        falta_ = "No se pudo leer " + ruta_.string();
    else
        falta_ = resumen(etiquetas_.leer(text::decoded(bytes)));
    return falta_;
}
