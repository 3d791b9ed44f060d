// The listener and the pool of connections: takes masters in, hands their arrivals to the request handler.
//
// One listening socket, and a growing array of connection sockets of which element 0 exists from the start. Elements
// are reused, the lowest free one first, and never removed; an element's index is its row in the connection list. A
// socket is free from the moment its connection is known to have ended.
#pragma once

#include "modbus/Peticiones.h"
#include "platform/events/Eventos.h"
#include "platform/net/Winsock.h"

#include <queue>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// What the listener needs of the window and the settings.
class EntornoEscucha {
public:
    virtual double leerPuerto() = 0; // PUERTO_VALOR, default 502; 0 when it is not a number
    virtual void guardarPuerto(double puerto) = 0;
    virtual void mostrarPuerto(const std::string& texto) = 0; // caption of LblPuertoLocal
    virtual void mostrarEscuchando(bool escuchando) = 0;      // its colour
    virtual bool esDelPuente(double puerto) const = 0;        // the bridge of this station uses that port
    virtual void avisar(const std::string& motivo) = 0;       // what is wrong with the port (UTF-8); empty: nothing is
    virtual void anunciar(const std::string& texto) = 0;      // the station has begun to listen (UTF-8)
    virtual void agregarFila() = 0;                           // an empty row at the end of the connection list
    virtual void mostrarFila(std::size_t fila, const std::string& ip, const std::string& estado) = 0; // row from 0

protected:
    ~EntornoEscucha() = default;
};

// A master that is connected.
struct Maestro {
    using Instante = Reloj::Instante;

    std::string direccion; // dotted text
    std::uint16_t puerto;  // its own, not the station's
    Instante desde;
    std::optional<Instante> ultima; // arrival; nothing before the first
    std::uint64_t peticiones;
};

class Escucha final : private WinsockEvents {
public:
    // All borrowed. `rutaPrograma` is the executable, named in the advice about ports below 1024.
    Escucha(Reactor& reactor, Peticiones& peticiones, EntornoEscucha& entorno, Eventos& eventos,
            std::string rutaPrograma);
    ~Escucha() override;

    // Listens on the configured port unless it does so already, and writes the port in use back to the settings. Run
    // at start and on every tick of TimerCambioPuerto. A refused port is tried again by the next call. A port of the
    // bridge is listened on where it is free, with a notice.
    void levantarEscucha();

    // Brings the rows of the connection list and the colour of the port label up to date.
    void refrescarConexiones();

    bool escuchando() const { return WinSockEscucha_.State() == WinsockState::listening; }
    std::size_t conexiones() const { return WinSockLevantados_.size(); }

    // The masters that are connected now, in the order of their rows.
    std::vector<Maestro> maestros() const;
    std::size_t conectados() const;
    // Begins to count the requests of each connection anew.
    void ponerACero();

private:
    class Levantado;

    void onConnectionRequest(Winsock& socket, std::uint32_t requestId) override;
    void onDataArrival(Winsock& socket, std::span<const std::uint8_t> data) override;
    void onClose(Winsock& socket) override;

    void aceptarConexion(std::uint32_t requestId);
    std::size_t tomarLibre();
    void liberar(Levantado& levantado);
    void asegurarFila(std::size_t j);
    std::string abrirPuerto(double puerto);
    void avisar(std::string motivo);

    Reactor& reactor_;
    Peticiones& peticiones_;
    EntornoEscucha& entorno_;
    Eventos& eventos_;
    std::string rutaPrograma_;
    Winsock WinSockEscucha_;
    std::vector<std::unique_ptr<Levantado>> WinSockLevantados_;
    std::priority_queue<std::size_t, std::vector<std::size_t>, std::greater<>> libres_; // indices, the lowest on top
    std::size_t filas_ = 0;
    double puertoEnUso_ = 0; // 0 until the first start
    std::string aviso_;
};
