// What the request handler's tests put in the place of a socket and a clock, and the frames they send.
#pragma once

#include "RelojDePrueba.h"
#include "modbus/Peticiones.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

using Bytes = std::vector<std::uint8_t>;

// A socket that keeps what is sent on it.
class ConexionFalsa final : public Conexion {
public:
    bool conectada() const override { return abierta; }
    std::string_view direccionRemota() const override { return remota; }
    bool enviar(std::span<const std::uint8_t> respuesta) override {
        if (enviosBuenos == 0)
            return false;
        --enviosBuenos;
        enviadas.emplace_back(respuesta.begin(), respuesta.end());
        return true;
    }

    bool abierta = true;
    int enviosBuenos = -1; // sends that succeed before every further one fails; -1: all succeed
    std::string remota = "10.0.0.7";
    std::vector<Bytes> enviadas;
};

inline std::uint8_t byteAlto(int palabra) {
    return static_cast<std::uint8_t>(palabra / 256);
}

inline std::uint8_t byteBajo(int palabra) {
    return static_cast<std::uint8_t>(palabra % 256);
}

// A request of 12 bytes with transaction id 0x0102 and length 6. `ultimo` is the quantity or the value.
inline Bytes peticion(int unidad, int funcion, int direccion, int ultimo) {
    return {1,
            2,
            0,
            0,
            0,
            6,
            static_cast<std::uint8_t>(unidad),
            static_cast<std::uint8_t>(funcion),
            byteAlto(direccion),
            byteBajo(direccion),
            byteAlto(ultimo),
            byteBajo(ultimo)};
}

inline Bytes lectura(int unidad, int direccion, int cantidad) {
    return peticion(unidad, 3, direccion, cantidad);
}

inline Bytes escritura(int unidad, int direccion, int valor) {
    return peticion(unidad, 6, direccion, valor);
}

// Frames back to back, as one arrival.
inline Bytes operator+(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}
