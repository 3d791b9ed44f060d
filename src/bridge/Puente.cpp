#include "bridge/Puente.h"

Puente::Extremo::Extremo(Reactor& reactor, WinsockEvents& eventos, double puertoLocal)
    : puerto(puertoLocal), socket(reactor, eventos) {
    socket.LocalPort(static_cast<std::uint16_t>(puertoLocal));
    socket.readWhileSending(true); // each direction flows by itself; contener() bounds what waits
}

Puente::Puente(Reactor& reactor, Eventos& eventos, double puerto1, double puerto2)
    : eventos_(eventos), lados_{Extremo(reactor, *this, puerto1), Extremo(reactor, *this, puerto2)} {}

void Puente::verificarEstado() {
    verificarLado(Lado::uno);
    verificarLado(Lado::dos);
    contener();
}

void Puente::verificarLado(Lado lado) {
    const WinsockState leido = socket(lado).State();
    switch (leido) {
    case WinsockState::connected:
        colorear(lado, ColorPuerto::verde);
        return;
    case WinsockState::listening:
        colorear(lado, ColorPuerto::azul);
        return;
    case WinsockState::connecting:
        colorear(lado, ColorPuerto::amarillo);
        return;
    default:
        break;
    }
    // Read again on purpose: a state that changes between the two readings is left for the next check.
    if (socket(lado).State() != leido)
        return;
    colorear(lado, ColorPuerto::rojo);
    ponerAEscuchar(lado);
}

void Puente::colorear(Lado lado, ColorPuerto color) {
    if (ventana_ != nullptr)
        ventana_->colorear(lado, color);
}

void Puente::ponerAEscuchar(Lado lado) {
    socket(lado).Close();
    socket(lado).LocalPort(static_cast<std::uint16_t>(puerto(lado)));
    const std::error_code fallo = socket(lado).Listen();
    if (fallo && ventana_ != nullptr)
        ventana_->puertoRechazado(lado, fallo);
}

void Puente::onConnectionRequest(Winsock& socket, std::uint32_t requestId) {
    socket.Close();
    socket.Accept(requestId);
}

std::span<std::uint8_t> Puente::roomForArrival(Winsock& origen) {
    return ventana_ != nullptr && !ventana_->stop() ? ventana_->sitio(ladoDe(origen)) : std::span<std::uint8_t>();
}

void Puente::onDataArrival(Winsock& origen, std::span<const std::uint8_t> bloque) {
    const Lado lado = ladoDe(origen);
    if (lado == Lado::uno && conEcho()) {
        enviar(Lado::uno, bloque);
        socket(Lado::uno).flush(); // what it gathers would leave after the relayed block
    }
    enviar(otro(lado), bloque);
    contener();
    mostrarBloque(lado, bloque);
}

void Puente::enviar(Lado lado, std::span<const std::uint8_t> bloque) {
    // A connection that breaks in this very send loses the block as one that broke before it would.
    if (socket(lado).State() == WinsockState::connected)
        static_cast<void>(socket(lado).SendData(bloque));
}

void Puente::onClose(Winsock&) {
    contener();
}

void Puente::onSendComplete(Winsock&) {
    contener();
}

// Side 1 feeds side 2 and, by its echo, itself; side 2 feeds side 1.
void Puente::contener() {
    const bool lento1 = socket(Lado::uno).bytesPending() > maxPendiente;
    const bool lento2 = socket(Lado::dos).bytesPending() > maxPendiente;
    socket(Lado::uno).pauseReading(lento2 || (lento1 && conEcho()));
    socket(Lado::dos).pauseReading(lento1);
}

// Pending events run when the block is shown and not between its bytes: it becomes text only when the monitor is
// painted, and so the texts of two blocks never interleave.
void Puente::mostrarBloque(Lado lado, std::span<const std::uint8_t> bloque) {
    if (ventana_ == nullptr)
        return;
    const bool hexadecimal = ventana_->modbus();
    if (hexadecimal && lado == Lado::uno)
        primerByteModbus_ = bloque.front();
    if (ventana_->stop())
        return;
    ventana_->mostrar(lado, bloque, hexadecimal);
    eventos_.dejarPasarEventos();
}
