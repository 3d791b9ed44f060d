#include "script/EjecutorScript.h"

#include "platform/profile/Archivos.h"

#include <string>

namespace {

// A script that is missing or cannot be read is an empty one.
std::string textoDelScript(const std::filesystem::path& ruta) {
    try {
        return leerArchivoTexto(ruta);
    } catch (const ErrorArchivo&) {
        return {};
    }
}

} // namespace

EjecutorScript::EjecutorScript(vbs::ScriptControl& motor, const Modulo_Codigo& codigo, EntornoScript& entorno)
    : motor_(motor), codigo_(codigo), entorno_(entorno) {}

void EjecutorScript::ejecucion_timers(double num) {
    if (num == TIMER_SCRIPT)
        ejecutarScript();
}

void EjecutorScript::ejecutarScript() {
    if (enPasada_)
        return;
    enPasada_ = true;
    const std::string texto = textoDelScript(codigo_.rutaParaLeer());
    motor_.clearError();
    if (entorno_.ejecucionActiva())
        motor_.addCode(texto);
    ultimoError_ = motor_.error();
    entorno_.mostrarResultado(ultimoError_.number == 0);
    for (int vez = 0; vez < 3; ++vez)
        entorno_.dejarPasarEventos();
    enPasada_ = false;
}
