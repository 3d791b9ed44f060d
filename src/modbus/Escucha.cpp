#include "modbus/Escucha.h"

#include "registers/Palabra.h"

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
    bool enviar(std::span<const std::uint8_t> respuesta) override { return socket.SendData(respuesta); }

    bool libre() const { return !conectada() && socket.State() != WinsockState::connecting; }

    Winsock socket;
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

Escucha::Escucha(Reactor& reactor, Peticiones& peticiones, EntornoEscucha& entorno, std::string rutaPrograma)
    : reactor_(reactor), peticiones_(peticiones), entorno_(entorno), rutaPrograma_(std::move(rutaPrograma)),
      WinSockEscucha_(reactor, *this) {
    agregarLevantado();
}

Escucha::~Escucha() = default;

void Escucha::levantarEscucha() {
    const double puerto = entorno_.leerPuerto();
    if (!escuchando() || puerto != puertoEnUso_) {
        WinSockEscucha_.Close();
        std::string motivo = abrirPuerto(puerto);
        entorno_.mostrarPuerto("Puerto: " + textoDeNumero(puerto, '.'));
        puertoEnUso_ = puerto;
        avisar(std::move(motivo));
    }
    entorno_.guardarPuerto(puertoEnUso_);
}

// Returns why it could not, or nothing.
std::string Escucha::abrirPuerto(double puerto) {
    const double entero = std::nearbyint(puerto);
    const std::string texto = textoDeNumero(puerto, '.');
    if (!(entero >= 1 && entero <= 65535))
        return "El puerto " + texto + " no es válido: escriba en PUERTO_VALOR un número de 1 a 65535.";
    WinSockEscucha_.LocalPort(static_cast<std::uint16_t>(entero));
    const std::error_code fallo = WinSockEscucha_.Listen();
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

// The walk does not stop at the first free socket: every free one is closed and asked, and all but the first are
// refused the request, which changes nothing. A socket that got a connection while events passed keeps it.
void Escucha::aceptarConexion(std::uint32_t requestId) {
    bool encontrado = false;
    for (std::size_t j = 0; j < WinSockLevantados_.size(); ++j) {
        if (!WinSockLevantados_[j]->libre())
            continue;
        WinSockLevantados_[j]->socket.Close();
        entorno_.dejarPasarEventos();
        WinSockLevantados_[j]->socket.LocalPort(0);
        for (int vez = 0; vez < 8; ++vez)
            entorno_.dejarPasarEventos();
        encontrado = WinSockLevantados_[j]->socket.Accept(requestId) || encontrado;
        asegurarFila(j);
    }
    if (encontrado)
        return;
    agregarLevantado();
    const std::size_t nuevo = WinSockLevantados_.size() - 1;
    WinSockLevantados_[nuevo]->socket.LocalPort(0);
    entorno_.dejarPasarEventos();
    WinSockLevantados_[nuevo]->socket.Accept(requestId);
    asegurarFila(nuevo);
}

void Escucha::agregarLevantado() {
    WinsockEvents& eventos = *this;
    WinSockLevantados_.push_back(std::make_unique<Levantado>(reactor_, eventos, WinSockLevantados_.size()));
}

void Escucha::asegurarFila(std::size_t j) {
    if (filas_ > j)
        return;
    ++filas_;
    entorno_.agregarFila();
}

void Escucha::onDataArrival(Winsock& socket, std::span<const std::uint8_t> data) {
    peticiones_.atender(data, *WinSockLevantados_[static_cast<std::size_t>(socket.Index())]);
}

void Escucha::onClose(Winsock& socket) {
    socket.Close();
    entorno_.dejarPasarEventos();
    socket.LocalPort(0);
    entorno_.dejarPasarEventos();
}

void Escucha::refrescarConexiones() {
    for (std::size_t j = 0; j < filas_; ++j) {
        const Winsock& socket = WinSockLevantados_[j]->socket;
        entorno_.mostrarFila(j, socket.RemoteHostIP(), textoDeEstado(socket.State()));
    }
    entorno_.mostrarEscuchando(escuchando());
}
