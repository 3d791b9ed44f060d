#include "modbus/Trafico.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {
constexpr std::uint32_t bitEnviado = 0x80000000U;
}

std::uint32_t Trafico::nuevaConexion(const ExtremosTcp& extremos) {
    if (extremos_.size() == maximasConexiones) {
        extremos_.pop_front();
        ++primera_;
    }
    extremos_.push_back(extremos);
    return primera_ + static_cast<std::uint32_t>(extremos_.size()) - 1;
}

void Trafico::anotar(std::int64_t cuando, std::uint32_t conexion, Sentido sentido,
                     std::span<const std::uint8_t> bytes) {
    if (!anillo_)
        anillo_.reset(new std::uint8_t[maximo]); // not cleared: its pages come as they are written
    const std::size_t hacenFalta = sizeof(Cabecera) + bytes.size();
    while (maximo - ocupados_ < hacenFalta)
        soltarPrimero();
    const Cabecera cabecera{cuando, conexion,
                            static_cast<std::uint32_t>(bytes.size()) | (sentido == Sentido::enviado ? bitEnviado : 0U)};
    escribir(&cabecera, sizeof cabecera);
    escribir(bytes.data(), bytes.size());
    ++paquetes_;
}

void Trafico::escribir(const void* datos, std::size_t cuantos) {
    const auto* origen = static_cast<const std::uint8_t*>(datos);
    const std::size_t desde = (primero_ + ocupados_) % maximo;
    const std::size_t hastaElFinal = std::min(cuantos, maximo - desde);
    std::memcpy(anillo_.get() + desde, origen, hastaElFinal);
    std::memcpy(anillo_.get(), origen + hastaElFinal, cuantos - hastaElFinal);
    ocupados_ += cuantos;
}

void Trafico::leer(std::size_t desde, void* datos, std::size_t cuantos) const {
    auto* destino = static_cast<std::uint8_t*>(datos);
    desde %= maximo;
    const std::size_t hastaElFinal = std::min(cuantos, maximo - desde);
    std::memcpy(destino, anillo_.get() + desde, hastaElFinal);
    std::memcpy(destino + hastaElFinal, anillo_.get(), cuantos - hastaElFinal);
}

void Trafico::soltarPrimero() {
    Cabecera cabecera{};
    leer(primero_, &cabecera, sizeof cabecera);
    const std::size_t entero = sizeof cabecera + (cabecera.largo & ~bitEnviado);
    primero_ = (primero_ + entero) % maximo;
    ocupados_ -= entero;
    --paquetes_;
}

void Trafico::borrar() {
    anillo_.reset();
    primero_ = ocupados_ = paquetes_ = 0;
}

void Trafico::recorrer(const std::function<void(const Paquete&)>& visita) const {
    std::vector<std::uint8_t> bytes;
    std::size_t lugar = primero_;
    for (std::size_t n = 0; n < paquetes_; ++n) {
        Cabecera cabecera{};
        leer(lugar, &cabecera, sizeof cabecera);
        bytes.resize(cabecera.largo & ~bitEnviado);
        leer(lugar + sizeof cabecera, bytes.data(), bytes.size());
        lugar += sizeof cabecera + bytes.size();
        if (conocida(cabecera.conexion))
            visita({cabecera.cuando, cabecera.conexion,
                    (cabecera.largo & bitEnviado) != 0 ? Sentido::enviado : Sentido::recibido, bytes});
    }
}
