// The bridge: joins two TCP clients that connect to two local ports. What arrives on one side is passed on unchanged to
// the other, may be echoed (side 1), and is shown as text.
//
// A side listens until a client comes; the listener then becomes the connection, so each side serves one client at a
// time. When the client leaves, the next state check (once a second) listens again. A block that finds no client on
// the other side is dropped. When a side reads slowly the other is read no faster: nothing is lost or reordered, and
// what waits stays bounded.
#pragma once

#include "platform/events/Eventos.h"
#include "platform/net/Winsock.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

enum class Lado : std::uint8_t { uno = 0, dos = 1 };

// What the colour of a port's node tells.
enum class ColorPuerto : std::uint8_t { verde, azul, amarillo, rojo }; // connected, listening, connecting, else

// What the bridge needs of its window.
class VentanaPuente {
public:
    virtual bool echo() const = 0;   // side 1 sends every block back to its own client
    virtual bool modbus() const = 0; // blocks are shown as hexadecimal, one a line
    virtual bool stop() const = 0;   // the monitors are left as they are
    // Where that monitor will keep what it shows next; what is shown from there need not be copied. Empty: nowhere.
    virtual std::span<std::uint8_t> sitio(Lado lado) = 0;
    // Appends the block to the monitor of that side: as characters, or as hexadecimal on a line of its own.
    virtual void mostrar(Lado lado, std::span<const std::uint8_t> bloque, bool hexadecimal) = 0;
    virtual void colorear(Lado lado, ColorPuerto color) = 0;
    // The port could not be opened. Told at every failed attempt.
    virtual void puertoRechazado(Lado lado, const std::error_code& fallo) = 0;

protected:
    ~VentanaPuente() = default;
};

class Puente final : private WinsockEvents {
public:
    static constexpr double puertoLado1 = 500;
    static constexpr double puertoLado2 = 501;

    // Bytes that may wait for a slow side before the one that feeds it is no longer read.
    static constexpr std::size_t maxPendiente = 256 * 1024;

    // Both borrowed. Nothing listens before the first verificarEstado().
    Puente(Reactor& reactor, Eventos& eventos, double puerto1 = puertoLado1, double puerto2 = puertoLado2);

    // From here on the bridge shows itself in this window and asks it for the operator's switches; null: in none, with
    // every switch off.
    void mostrarEn(VentanaPuente* ventana) { ventana_ = ventana; }

    // The state check, run once a second: colours both nodes, and opens the port of a side that is neither listening
    // nor connected.
    void verificarEstado();

    double puerto(Lado lado) const { return lados_[indice(lado)].puerto; }
    WinsockState estado(Lado lado) const { return lados_[indice(lado)].socket.State(); }

    // Bytes that wait for the client of that side: at most maxPendiente and the blocks of one turn.
    std::size_t pendiente(Lado lado) const { return lados_[indice(lado)].socket.bytesPending(); }

    // First byte of the last block of side 1 that was shown as hexadecimal.
    double primerByteModbus() const { return primerByteModbus_; }

private:
    struct Extremo {
        Extremo(Reactor& reactor, WinsockEvents& eventos, double puertoLocal);
        double puerto;
        Winsock socket;
    };

    static std::size_t indice(Lado lado) { return static_cast<std::size_t>(lado); }
    static Lado otro(Lado lado) { return lado == Lado::uno ? Lado::dos : Lado::uno; }
    Winsock& socket(Lado lado) { return lados_[indice(lado)].socket; }
    Lado ladoDe(const Winsock& socket) const { return &socket == &lados_[0].socket ? Lado::uno : Lado::dos; }

    void onConnectionRequest(Winsock& socket, std::uint32_t requestId) override;
    void onDataArrival(Winsock& socket, std::span<const std::uint8_t> data) override;
    std::span<std::uint8_t> roomForArrival(Winsock& socket) override;
    void onClose(Winsock& socket) override;
    void onSendComplete(Winsock& socket) override;

    bool conEcho() const { return ventana_ != nullptr && ventana_->echo(); }
    void colorear(Lado lado, ColorPuerto color);
    void verificarLado(Lado lado);
    void ponerAEscuchar(Lado lado);
    void enviar(Lado lado, std::span<const std::uint8_t> bloque);
    void contener();
    void mostrarBloque(Lado lado, std::span<const std::uint8_t> bloque);

    VentanaPuente* ventana_ = nullptr; // borrowed
    Eventos& eventos_;
    std::array<Extremo, 2> lados_;
    double primerByteModbus_ = 0;
};
