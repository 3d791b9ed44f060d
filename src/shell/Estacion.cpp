#include "shell/Estacion.h"

#include "ajustes/Claves.h"
#include "platform/locale/SystemLocale.h"

#include <cstdio>
#include <utility>

namespace {

constexpr int descriptoresDeReserva = 16;

} // namespace

Estacion::Estacion(const std::filesystem::path& carpeta, Arranque conQue, const Reloj& conReloj)
    : reloj(conReloj), arranque(std::move(conQue)), config(carpeta, decimalSign()),
      escucha_(reactor, peticiones_, *this, eventos, arranque.rutaPrograma),
      avisador_(reactor.descriptor(), QSocketNotifier::Read),
      archivoEtiquetas_(config.rutaArchivo().parent_path(), anotaciones.etiquetas) {
    esclavos.observarCambios(&anotaciones.cambios);
    reactor.keepDescriptors(descriptoresDeReserva);
    QObject::connect(&avisador_, &QSocketNotifier::activated, &avisador_, [this] { reactor.turn(); });
}

void Estacion::abrirVentana(VentanaEstacion& ventana, const AutomatizacionScript::Ventana& controles) {
    ventana_ = &ventana;
    script_ = std::make_unique<AutomatizacionScript>(esclavos, config, config.rutaArchivo().parent_path(), eventos,
                                                     reloj, controles, arranque.limiteScript);
    decir(avisoCarpeta_, arranque.avisoCarpeta);
    enlaceSerie_ = std::make_unique<EnlaceSerie>(controles.principal, config, script_->ScriptControl1(),
                                                 std::filesystem::path(arranque.rutaPrograma).filename().string(),
                                                 arranque.depurar, reloj);
}

void Estacion::cerrarVentana() {
    enlaceSerie_.reset();
    script_.reset();
    ventana_ = nullptr;
}

void Estacion::comprobarPuerto() {
    escucha_.levantarEscucha();
    escucha_.refrescarConexiones();
    decir(avisoConfig_, config.fallo());
    decir(avisoEtiquetas_, archivoEtiquetas_.comprobar());
}

void Estacion::ponerPeticionesACero() {
    peticiones_.ponerACero();
    escucha_.ponerACero();
}

// A file that cannot be read for the moment, for want of a descriptor or because its folder is away, moves no listener.
double Estacion::leerPuerto() {
    const bool vale = !config.ilegible();
    const double leido = config.leerNumero(claves::puerto).value_or(0);
    if (vale)
        ultimoPuerto_ = leido;
    return ultimoPuerto_.value_or(leido);
}

void Estacion::guardarPuerto(double puerto) {
    config.escribirNumero(claves::puerto, puerto);
}

void Estacion::mostrarPuerto(const std::string& texto) {
    if (ventana_ != nullptr)
        ventana_->mostrarPuerto(texto);
}

void Estacion::mostrarEscuchando(bool escuchando) {
    if (ventana_ != nullptr)
        ventana_->mostrarEscuchando(escuchando);
}

bool Estacion::esDelPuente(double puerto) const {
    return puerto == Puente::puertoLado1 || puerto == Puente::puertoLado2;
}

void Estacion::anunciar(const std::string& texto) {
    std::fprintf(stderr, "esclavo-modbus: %s\n", texto.c_str());
}

void Estacion::avisar(const std::string& motivo) {
    decir(avisoPuerto_, motivo);
}

// Sets one of the notices; a new one goes to stderr, and the window shows all that there are.
void Estacion::decir(std::string& aviso, const std::string& texto) {
    if (aviso == texto)
        return;
    aviso = texto;
    if (!texto.empty())
        std::fprintf(stderr, "esclavo-modbus: %s\n", texto.c_str());
    std::string todos;
    for (const std::string* const otro : {&avisoCarpeta_, &avisoConfig_, &avisoPuerto_, &avisoEtiquetas_})
        if (!otro->empty())
            todos += (todos.empty() ? "" : "\n") + *otro;
    if (ventana_ != nullptr)
        ventana_->mostrarAviso(todos);
}

void Estacion::agregarFila() {
    if (ventana_ != nullptr)
        ventana_->agregarFila();
}

void Estacion::mostrarFila(std::size_t fila, const std::string& ip, const std::string& estado) {
    if (ventana_ != nullptr)
        ventana_->mostrarFila(fila, ip, estado);
}
