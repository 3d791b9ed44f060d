#include "shell/Modulo_DEBUG.h"

#include "platform/profile/ArchivoBytes.h"
#include "platform/profile/Archivos.h"
#include "platform/text/CodePage.h"

#include <array>
#include <exception>
#include <string_view>

namespace {

std::string formateada(const std::tm& hora, const char* formato) {
    std::array<char, 64> texto{};
    return {texto.data(), std::strftime(texto.data(), texto.size(), formato, &hora)};
}

// CR LF, CR and LF become one blank each.
void aplanar(std::string& texto) {
    for (std::size_t i = texto.find("\r\n"); i != std::string::npos; i = texto.find("\r\n", i))
        texto.replace(i, 2, " ");
    for (char& c : texto)
        if (c == '\r' || c == '\n')
            c = ' ';
}

} // namespace

Modulo_DEBUG::Modulo_DEBUG(EntornoDebug& entorno, bool depurar) : entorno_(entorno), depurar_(depurar) {}

void Modulo_DEBUG::escribirLog(bool& escrito, const std::string& origen, std::string mensaje, std::string detalle,
                               std::string descError) noexcept {
    escrito = false;
    // The callers are error paths already: whatever fails here ends its step and nothing else.
    try {
        aplanar(descError);
        aplanar(detalle);
        aplanar(mensaje);
        escrito = anotar(origen + ">" + mensaje + ">" + detalle + ", DescError:" + descError);
    } catch (const std::exception&) {
        escrito = false;
    }
    try {
        if (depurar_ && !descError.empty())
            entorno_.mostrarErrorCritico(descError, "Debug");
    } catch (const std::exception&) {
        return;
    }
}

bool Modulo_DEBUG::anotar(const std::string& texto) {
    const std::filesystem::path carpeta = entorno_.carpetaPrograma() / "LOGS_Trelvano";
    std::error_code error; // a folder that could not be made shows when its files are opened
    if (!existeArchivo(carpeta))
        std::filesystem::create_directory(carpeta, error);
    const std::string ejecutable = entorno_.nombreEjecutable();
    const std::string global = formateada(entorno_.ahora(), "%y%m%d") + " Archivo_Log_Global.txt";
    const std::string propio = formateada(entorno_.ahora(), "%y%m%d") + " " + ejecutable + " ArchivoLog.txt";
    const std::string linea = text::ansiFromUtf8("Log: " + formateada(entorno_.ahora(), "%d/%m/%Y %H:%M:%S") + "," +
                                                 ejecutable + "," + texto) +
                              "\r\n";
    const bool enGlobal = !anexarBytes(carpeta / global, linea);
    const bool enPropio = !anexarBytes(carpeta / propio, linea);
    return enGlobal && enPropio;
}
