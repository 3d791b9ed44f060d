#include "script/EjecutorScript.h"

#include "platform/profile/Archivos.h"
#include "platform/text/Utf.h"

#include <algorithm>
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
                               Eventos& eventos, const Reloj& reloj)
    : motor_(motor), codigo_(codigo), entorno_(entorno), eventos_(eventos), reloj_(reloj) {}

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
        ejecutar(texto);
    ultimoError_ = motor_.error();
    entorno_.mostrarResultado(ultimoError_.number == 0);
}

void EjecutorScript::ejecutar(const std::string& texto) {
    ponerConsola(texto);
    const Reloj::Instante comienzo = reloj_.instante();
    motor_.addCode(texto);
    pasadas_.ultima = reloj_.instante() - comienzo;
    pasadas_.maxima = std::max(pasadas_.maxima, pasadas_.ultima);
    ++pasadas_.cuantas;
    if (motor_.error().number == 0)
        return;
    pasadas_.error = motor_.error();
    pasadas_.pasadaConError = pasadas_.cuantas;
}

// A script may use the name WScript for what it likes; only one that does not gets the console under it.
void EjecutorScript::ponerConsola(const std::string& texto) {
    if (texto == textoVisto_)
        return;
    textoVisto_ = texto;
    const UsoDeWScript uso = usoDeWScript(text::toUtf16(texto));
    if (uso == UsoDeWScript::Miembros && !consolaPuesta_)
        motor_.addObject(u"WScript", vbs::Ref<vbs::Object>(consola_.get()));
    else if (uso == UsoDeWScript::Propio && consolaPuesta_)
        motor_.removeObject(u"WScript");
    if (uso != UsoDeWScript::Ninguno)
        consolaPuesta_ = uso == UsoDeWScript::Miembros;
}
