#include "script/ArchivoCodigo.h"

#include "platform/profile/ArchivoBytes.h"
#include "platform/profile/Archivos.h"

namespace {

std::optional<std::string> bytesDe(const std::filesystem::path& ruta) {
    std::string bytes;
    if (leerBytes(ruta, bytes))
        return std::nullopt;
    return bytes;
}

} // namespace

std::string ArchivoCodigo::cargar() {
    ruta_ = codigo_.rutaParaLeer();
    conocido_.reset();
    if (!existeArchivo(ruta_))
        return {};
    std::string texto = leerArchivoTexto(ruta_);
    conocido_ = bytesDe(ruta_);
    return texto;
}

bool ArchivoCodigo::cambiadoEnDisco() const {
    const auto enDisco = bytesDe(codigo_.rutaParaGuardar());
    return enDisco && enDisco != conocido_;
}

void ArchivoCodigo::guardar(std::string_view texto) {
    ruta_ = codigo_.rutaParaGuardar();
    escribirArchivoTexto(ruta_, texto);
    conocido_ = bytesDe(ruta_);
}
