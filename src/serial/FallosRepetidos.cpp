#include "serial/FallosRepetidos.h"

namespace {
constexpr std::uint64_t cadaVezMas = 10;
} // namespace

std::uint64_t FallosRepetidos::anotar(std::string_view operacion, std::string_view detalle,
                                      std::string_view descripcion, Hora ahora) {
    Cuenta& cuenta = cuentaDe(std::string(operacion).append("\n").append(descripcion), ahora);
    const std::uint64_t veces = ++cuenta.veces;
    if (veces < cuenta.proxima)
        return veces;
    cuenta.proxima *= cadaVezMas;
    std::string texto(descripcion);
    if (veces > 1)
        texto.append(" (").append(std::to_string(veces)).append(" veces)");
    log_.escribirLog("RS232", operacion, detalle, texto);
    return veces;
}

FallosRepetidos::Cuenta& FallosRepetidos::cuentaDe(const std::string& clave, Hora ahora) {
    std::erase_if(cuentas_, [ahora](const auto& entrada) { return ahora - entrada.second.primera >= vigencia; });
    const bool cabe = cuentas_.size() < maximo || cuentas_.contains(clave);
    return cuentas_.try_emplace(cabe ? clave : std::string(), Cuenta{ahora}).first->second;
}
