#include "script/Modulo_Codigo.h"

#include "ajustes/Claves.h"
#include "platform/profile/Archivos.h"
#include "platform/text/Case.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace {

// Of bytes of UTF-8, one of them ASCII.
bool igualSinCaja(char a, char b) {
    const auto minuscula = [](char c) { return text::toLower(static_cast<unsigned char>(c)); };
    return minuscula(a) == minuscula(b);
}

} // namespace

Modulo_Codigo::Modulo_Codigo(Ajustes& ajustes, std::filesystem::path carpetaPrograma)
    : ajustes_(ajustes), carpetaPrograma_(std::move(carpetaPrograma)) {}

std::filesystem::path Modulo_Codigo::rutaParaLeer() const {
    const auto proyecto = rutaProyecto();
    if (!existeArchivo(proyecto))
        return rutaDelPrograma();
    const auto candidato = rutaScriptDeProyecto(proyecto);
    return existeArchivo(candidato) ? candidato : rutaDelPrograma();
}

std::filesystem::path Modulo_Codigo::rutaParaGuardar() const {
    const auto proyecto = rutaProyecto();
    return existeArchivo(proyecto) ? rutaScriptDeProyecto(proyecto) : rutaDelPrograma();
}

std::filesystem::path Modulo_Codigo::rutaProyecto() const {
    return ajustes_.leerConfiguracion(claves::rutaProyecto);
}

std::filesystem::path Modulo_Codigo::rutaDelPrograma() const {
    return carpetaPrograma_ / "codigoTrelvano.txt";
}

std::filesystem::path rutaScriptDeProyecto(const std::filesystem::path& proyecto) {
    constexpr std::string_view extensionProyecto = ".zqp";
    constexpr std::string_view extensionScript = ".KOVAScrip";
    std::string ruta = proyecto.string();
    auto desde = ruta.begin();
    for (;;) {
        const auto hallado =
            std::search(desde, ruta.end(), extensionProyecto.begin(), extensionProyecto.end(), igualSinCaja);
        if (hallado == ruta.end())
            return ruta;
        const auto posicion = static_cast<std::size_t>(hallado - ruta.begin());
        ruta.replace(posicion, extensionProyecto.size(), extensionScript);
        desde = ruta.begin() + static_cast<std::ptrdiff_t>(posicion + extensionScript.size());
    }
}
