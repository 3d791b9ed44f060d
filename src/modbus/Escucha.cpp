#include "modbus/Escucha.h"

#include "platform/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <system_error>

// A connection socket and its face towards the request handler.
class Escucha::Levantado final : public Conexion {
public:
    Levantado(Reactor& reactor, WinsockEvents& eventos, std::size_t indice)
        : socket(reactor, eventos, static_cast<int>(indice)) {}

    bool conectada() const override { return socket.State() == WinsockState::connected; }
    std::string_view direccionRemota() const override { return socket.RemoteHostIP(); }
    ExtremosTcp extremos() const override {
        const WinsockEndpoint maestro = socket.RemoteEndpoint();
        const WinsockEndpoint estacion = socket.LocalEndpoint();
        return {{maestro.address, maestro.port}, {estacion.address, estacion.port}};
    }
    bool enviar(std::span<const std::uint8_t> respuesta) override { return socket.SendData(respuesta); }

    void empezar(Maestro::Instante ahora) {
        desde = ahora;
        ultima.reset();
        peticiones = 0;
        numero = 0;
    }

    Winsock socket;
    bool libre = false; // stands in the list of the free ones
    Maestro::Instante desde;
    std::optional<Maestro::Instante> ultima;
};

namespace {

const char* textoDeEstado(WinsockState estado) {
    switch (estado) {
    case WinsockState::connecting:
        return "Conectando...";
    case WinsockState::connected:
        return "Conectado";
    default:
        return "NO CONECTADO Y LIBRE";
    }
}

// Why the system refused the port, in words that help.
std::string motivoDeRechazo(const std::error_code& fallo, const std::string& puerto, const std::string& rutaPrograma) {
    if (fallo == std::errc::address_in_use)
        return "El puerto " + puerto + " está ocupado por otro programa.";
    if (fallo == std::errc::permission_denied)
        return "Sin permiso para abrir el puerto " + puerto + ". Ejecute: sudo setcap cap_net_bind_service=+ep '" +
               rutaPrograma + "'";
    if (fallo == std::errc::too_many_files_open || fallo == std::errc::too_many_files_open_in_system)
        return "No se puede abrir el puerto " + puerto + ": no quedan descriptores libres.";
    return "No se puede abrir el puerto " + puerto + ": " + fallo.message() + ".";
}

} // namespace

Escucha::Escucha(Reactor& reactor, Peticiones& peticiones, EntornoEscucha& entorno, Eventos& eventos,
                 std::string rutaPrograma)
    : reactor_(reactor), peticiones_(peticiones), entorno_(entorno), eventos_(eventos),
      rutaPrograma_(std::move(rutaPrograma)), WinSockEscucha_(reactor, *this) {
    liberar(*WinSockLevantados_[tomarLibre()]);
}

Escucha::~Escucha() = default;

void Escucha::levantarEscucha() {
    const double puerto = entorno_.leerPuerto();
    if (!escuchando() || puerto != puertoEnUso_) {
        WinSockEscucha_.Close();
        std::string motivo = abrirPuerto(puerto);
        entorno_.mostrarPuerto("Puerto: " + text::writeNumber(puerto));
        puertoEnUso_ = puerto;
        avisar(std::move(motivo));
    }
    entorno_.guardarPuerto(puertoEnUso_);
}

// Returns why it could not, or nothing.
std::string Escucha::abrirPuerto(double puerto) {
    const double entero = std::nearbyint(puerto);
    const std::string texto = text::writeNumber(puerto);
    if (!(entero >= 1 && entero <= 65535))
        return "El puerto " + texto + " no es válido: escriba en PUERTO_VALOR un número de 1 a 65535.";
    WinSockEscucha_.LocalPort(static_cast<std::uint16_t>(entero));
    const std::error_code fallo = WinSockEscucha_.Listen();
    if (!fallo)
        entorno_.anunciar("escucha en el puerto " + std::to_string(WinSockEscucha_.LocalPort()));
    if (entorno_.esDelPuente(entero) && (!fallo || fallo == std::errc::address_in_use))
        return "El puerto " + texto + " es del puente de esta estación" + (fallo ? "" : ", que se queda sin él") +
               ": escriba otro en PUERTO_VALOR.";
    return fallo ? motivoDeRechazo(fallo, texto, rutaPrograma_) : std::string();
}

void Escucha::avisar(std::string motivo) {
    if (motivo == aviso_)
        return;
    aviso_ = std::move(motivo);
    entorno_.avisar(aviso_);
}

void Escucha::onConnectionRequest(Winsock&, std::uint32_t requestId) {
    aceptarConexion(requestId);
}

// The lowest free socket takes the request. Events pass when the connection stands, since a handler that runs then may
// wait for a person; other masters come in meanwhile.
void Escucha::aceptarConexion(std::uint32_t requestId) {
    const std::size_t j = tomarLibre();
    Levantado& levantado = *WinSockLevantados_[j];
    levantado.socket.Close();
    levantado.socket.LocalPort(0);
    levantado.empezar(reactor_.callTime());
    if (!levantado.socket.Accept(requestId))
        liberar(levantado);
    asegurarFila(j);
    eventos_.dejarPasarEventos();
}

// A new element where none is free.
std::size_t Escucha::tomarLibre() {
    if (libres_.empty()) {
        WinsockEvents& eventos = *this;
        WinSockLevantados_.push_back(std::make_unique<Levantado>(reactor_, eventos, WinSockLevantados_.size()));
        return WinSockLevantados_.size() - 1;
    }
    const std::size_t menor = libres_.top();
    libres_.pop();
    WinSockLevantados_[menor]->libre = false;
    return menor;
}

void Escucha::liberar(Levantado& levantado) {
    if (!levantado.libre)
        libres_.push(static_cast<std::size_t>(levantado.socket.Index()));
    levantado.libre = true;
}

void Escucha::asegurarFila(std::size_t j) {
    if (filas_ > j)
        return;
    ++filas_;
    entorno_.agregarFila();
}

void Escucha::onDataArrival(Winsock& socket, std::span<const std::uint8_t> data) {
    Levantado& levantado = *WinSockLevantados_[static_cast<std::size_t>(socket.Index())];
    levantado.ultima = reactor_.callTime();
    peticiones_.atender(data, levantado);
}

void Escucha::onClose(Winsock& socket) {
    socket.Close();
    socket.LocalPort(0);
    liberar(*WinSockLevantados_[static_cast<std::size_t>(socket.Index())]);
    eventos_.dejarPasarEventos();
}

void Escucha::refrescarConexiones() {
    for (std::size_t j = 0; j < filas_; ++j) {
        const Winsock& socket = WinSockLevantados_[j]->socket;
        entorno_.mostrarFila(j, socket.RemoteHostIP(), textoDeEstado(socket.State()));
    }
    entorno_.mostrarEscuchando(escuchando());
}

std::vector<Maestro> Escucha::maestros() const {
    std::vector<Maestro> todos;
    for (const auto& uno : WinSockLevantados_)
        if (uno->conectada())
            todos.push_back(
                {uno->socket.RemoteHostIP(), uno->socket.RemotePort(), uno->desde, uno->ultima, uno->peticiones});
    return todos;
}

std::size_t Escucha::conectados() const {
    return static_cast<std::size_t>(std::count_if(WinSockLevantados_.begin(), WinSockLevantados_.end(),
                                                  [](const auto& uno) { return uno->conectada(); }));
}

void Escucha::ponerACero() {
    for (const auto& uno : WinSockLevantados_)
        uno->peticiones = 0;
}
