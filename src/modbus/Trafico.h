// What passed on the wire while "Ver TX/RX" was on: arrivals and answers as bytes, with their time and connection.
//
// Bounded: the newest `maximo` bytes, headers included, are kept; what is older gives way. Nothing is allocated before
// the first note.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <span>

// An address and port; an IPv4 address in its IPv6 form (::ffff:a.b.c.d).
struct ExtremoTcp {
    std::array<std::uint8_t, 16> direccion{};
    std::uint16_t puerto = 0;
};

struct ExtremosTcp {
    ExtremoTcp maestro;
    ExtremoTcp estacion;
};

class Trafico {
public:
    static constexpr std::size_t maximo = std::size_t{4} << 20;
    static constexpr std::size_t maximasConexiones = 4096; // whose ends are remembered

    enum class Sentido : std::uint8_t { recibido, enviado };

    struct Paquete {
        std::int64_t cuando; // microseconds since 1970, UTC
        std::uint32_t conexion;
        Sentido sentido;
        std::span<const std::uint8_t> bytes; // valid during the call
    };

    // A number for a connection, never 0. An old one may be forgotten: conocida() tells.
    std::uint32_t nuevaConexion(const ExtremosTcp& extremos);
    bool conocida(std::uint32_t conexion) const {
        return conexion >= primera_ && conexion < primera_ + extremos_.size();
    }
    const ExtremosTcp& extremos(std::uint32_t conexion) const { return extremos_[conexion - primera_]; }

    // Up to 65,536 bytes of a known connection.
    void anotar(std::int64_t cuando, std::uint32_t conexion, Sentido sentido, std::span<const std::uint8_t> bytes);
    void borrar();

    std::size_t paquetes() const { return paquetes_; }
    std::size_t ocupados() const { return ocupados_; } // bytes
    // In the order in which they came; those whose connection is forgotten are left out.
    void recorrer(const std::function<void(const Paquete&)>& visita) const;

private:
    struct Cabecera {
        std::int64_t cuando;
        std::uint32_t conexion;
        std::uint32_t largo; // the highest bit: sent
    };

    void escribir(const void* datos, std::size_t cuantos);
    void leer(std::size_t desde, void* datos, std::size_t cuantos) const;
    void soltarPrimero();

    std::unique_ptr<std::uint8_t[]> anillo_;
    std::size_t primero_ = 0; // where the oldest note begins
    std::size_t ocupados_ = 0;
    std::size_t paquetes_ = 0;
    std::deque<ExtremosTcp> extremos_;
    std::uint32_t primera_ = 1; // the number of the first of them
};
