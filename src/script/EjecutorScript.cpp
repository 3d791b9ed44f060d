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

// Holds a mark up while something lasts, however it ends.
class EnCurso {
public:
    explicit EnCurso(bool& marca) : marca_(marca) { marca_ = true; }
    ~EnCurso() { marca_ = false; }
    EnCurso(const EnCurso&) = delete;
    EnCurso& operator=(const EnCurso&) = delete;

private:
    bool& marca_;
};

} // namespace

EjecutorScript::EjecutorScript(vbs::ScriptControl& motor, const Modulo_Codigo& codigo, EntornoScript& entorno,
                               Eventos& eventos)
    : motor_(motor), codigo_(codigo), entorno_(entorno), eventos_(eventos) {}

void EjecutorScript::ejecucion_timers(double num) {
    if (num == TIMER_SCRIPT)
        ejecutarScript();
}

void EjecutorScript::ejecucionPedidaPorScript(double num) {
    if (num == TIMER_SCRIPT && !enPasada_)
        entorno_.aplazarPasada();
}

void EjecutorScript::ejecutarScript() {
    if (enPasada_)
        return;
    if (!eventos_.enElFondo()) {
        entorno_.aplazarPasada();
        return;
    }
    pasar();
    for (int vez = 0; vez < 3; ++vez)
        eventos_.dejarPasarEventos();
}

void EjecutorScript::pasar() {
    const EnCurso enCurso(enPasada_);
    const std::string texto = textoDelScript(codigo_.rutaParaLeer());
    motor_.clearError();
    if (entorno_.ejecucionActiva())
        motor_.addCode(texto);
    ultimoError_ = motor_.error();
    entorno_.mostrarResultado(ultimoError_.number == 0);
}
