// Offsets, limits and texts of the frames on the wire: the MBAP header (transaction id, protocol id, length, unit id)
// and the function codes of the Modbus Application Protocol that the station serves. Two-byte numbers are big-endian.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace trama {

// Offsets from the start of a frame.
inline constexpr std::size_t longitudAlta = 4;
inline constexpr std::size_t longitudBaja = 5;
inline constexpr std::size_t unidad = 6;
inline constexpr std::size_t funcion = 7;
inline constexpr std::size_t direccion = 8;
inline constexpr std::size_t cantidad = 10; // functions 3 and 4
inline constexpr std::size_t valor = 10;    // function 6
inline constexpr std::size_t cuenta = 8;    // of a read answer: its byte count
inline constexpr std::size_t datos = 9;     // of a read answer

inline constexpr std::size_t longitudPeticion = 12; // header, unit, function, address, quantity or value
inline constexpr std::size_t longitudExcepcion = 9;

// The bytes that the length field does not count: a frame is 6 + length bytes long.
inline constexpr std::size_t previosALongitud = 6;

inline constexpr std::uint8_t leerMantenidos = 3;
inline constexpr std::uint8_t leerEntrada = 4;
inline constexpr std::uint8_t escribirUno = 6;

// A read of this many registers or more is refused.
inline constexpr int limiteCantidad = 127;

// Six digits on purpose: no address that a frame can carry reaches it.
inline constexpr int limiteDireccion = 655536;

// The longest read answer: 126 registers.
inline constexpr std::size_t maxRespuesta = datos + 2 * (limiteCantidad - 1);

inline int palabra(std::span<const std::uint8_t> bytes, std::size_t i) {
    return bytes[i] * 256 + bytes[i + 1];
}

// Decimal bytes as the monitors show them.
void conBlancoDelante(std::string& texto, std::span<const std::uint8_t> bytes);   // " 0 1 0"
void conBlancoDetras(std::string& texto, std::span<const std::uint8_t> bytes);    // "0 1 0 "
void separadosPorBlanco(std::string& texto, std::span<const std::uint8_t> bytes); // "0 1 0"

} // namespace trama
