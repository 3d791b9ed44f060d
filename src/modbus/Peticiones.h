// Request handling: takes one arrival of bytes from a master, walks through its frames and answers them from the
// register store, writing a line for each into the monitors.
//
// It keeps nothing from one arrival to the next: a request split over two arrivals is not understood. Any fault (an
// index past the end of the arrival, a slave without a page, a failed send) ends the arrival at once and silently;
// what was already stored, shown or sent stays so.
//
// Frames follow the Modbus Application Protocol's layout; several answers differ from it on purpose, and each place
// says so.
#pragma once

#include "modbus/Contadores.h"
#include "modbus/HoraDeLinea.h"
#include "modbus/Monitores.h"
#include "platform/clock/Reloj.h"
#include "registers/Esclavos.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// What the handler needs of the connection that an arrival came from.
class Conexion {
public:
    virtual bool conectada() const = 0;                               // socket state 7
    virtual std::string_view direccionRemota() const = 0;             // dotted text
    virtual bool enviar(std::span<const std::uint8_t> respuesta) = 0; // false: the send failed

    virtual ExtremosTcp extremos() const { return {}; } // asked once, when its first bytes are kept

    std::uint64_t peticiones = 0; // that came on it; Peticiones counts them
    std::uint32_t numero = 0;     // under which its bytes are kept in Trafico; 0: none yet

protected:
    ~Conexion() = default;
};

class Peticiones {
public:
    // All borrowed.
    Peticiones(Esclavos& esclavos, Monitores& monitores, const Reloj& reloj);

    // Handles one arrival of any length, 0 included. Never throws.
    void atender(std::span<const std::uint8_t> llegada, Conexion& conexion) noexcept;

    // The requests to that slave number, from 0 to 255, since the start or the last ponerACero().
    const Contadores& contadores(int esclavo) const { return contadores_[static_cast<std::size_t>(esclavo)]; }
    // Those of all slaves and of arrivals too short to name one.
    Contadores total() const;
    void ponerACero() { contadores_ = {}; }

    static constexpr int numerosDeEsclavo = 256; // that a frame can name

private:
    using Bytes = std::span<const std::uint8_t>;

    // How the handling of one frame ended.
    enum class Fin { siguiente, llegadaTerminada };

    // Why a frame is answered with an exception.
    enum class Rechazo { ninguno, funcion, desbordamiento };

    void recorrer(Bytes llegada, Conexion& conexion);
    void contar(Bytes resto, Conexion& conexion);
    Fin atenderTrama(Bytes llegada, std::size_t i, Conexion& conexion);
    static Rechazo examinar(Bytes trama);
    Fin atenderLectura(Bytes peticion, Pagina& pagina, Conexion& conexion);
    Fin atenderEscritura(Bytes peticion, Pagina& pagina, Conexion& conexion);
    void responderExcepcion(Bytes llegada, std::size_t i, Rechazo rechazo, Conexion& conexion);

    void anotarEscritura(Bytes peticion, const Conexion& conexion);
    std::string& empezarLinea(std::string_view titulo);
    void terminarLinea(int esclavo, ClaseTrama clase);
    bool enviar(Conexion& conexion, Bytes respuesta);
    void guardar(Conexion& conexion, Trafico::Sentido sentido, Bytes bytes);

    Esclavos& esclavos_;
    Monitores& monitores_;
    const Reloj& reloj_;
    HoraDeLinea hora_{reloj_};
    std::array<Contadores, numerosDeEsclavo + 1> contadores_{}; // the last: of arrivals that name no slave
    std::string linea_; // reused, so that a line allocates nothing once it has grown
};
