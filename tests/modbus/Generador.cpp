#include "Generador.h"

#include <array>

namespace {

std::uint8_t alto(int palabra) {
    return static_cast<std::uint8_t>(palabra / 256);
}

std::uint8_t bajo(int palabra) {
    return static_cast<std::uint8_t>(palabra % 256);
}

} // namespace

int Generador::unidad() {
    constexpr std::array<int, 8> frecuentes{0, 1, 1, 2, 11, 20, 50, 255};
    return unoDe(200) ? hasta(255) : frecuentes[static_cast<std::size_t>(hasta(7))];
}

int Generador::direccion() {
    if (unoDe(2000))
        return 65535 - hasta(200);
    if (unoDe(20))
        return hasta(1500);
    return unoDe(3) ? 85 + hasta(30) : hasta(99);
}

int Generador::funcion() {
    constexpr std::array<int, 10> frecuentes{3, 3, 3, 3, 4, 4, 6, 6, 6, 16};
    return unoDe(30) ? hasta(255) : frecuentes[static_cast<std::size_t>(hasta(9))];
}

int Generador::cantidad() {
    if (unoDe(20))
        return 125 + hasta(3);
    return unoDe(100) ? hasta(65535) : hasta(hasta(30));
}

void Generador::agregarTrama(std::vector<std::uint8_t>& llegada) {
    const int f = funcion();
    const int d = direccion();
    const int q = f == 6 ? hasta(65535) : cantidad();
    int longitud = 6;
    int relleno = 0;
    if (f != 3 && f != 4 && f != 6) {
        relleno = hasta(40); // a longer second frame lets the exception of a later frame find its bytes
        longitud += unoDe(3) ? 0 : relleno;
    } else if (unoDe(40)) {
        longitud = unoDe(3) ? 255 : hasta(20);
    }
    llegada.insert(llegada.end(), {byte(), byte(), static_cast<std::uint8_t>(unoDe(20) ? byte() : 0), 0,
                                   static_cast<std::uint8_t>(unoDe(30) ? byte() : 0), bajo(longitud), bajo(unidad()),
                                   bajo(f), alto(d), bajo(d), alto(q), bajo(q)});
    for (int k = 0; k < relleno; ++k)
        llegada.push_back(byte());
}

std::vector<std::uint8_t> Generador::llegada() {
    std::vector<std::uint8_t> bytes;
    if (unoDe(50)) { // junk
        bytes.resize(static_cast<std::size_t>(hasta(unoDe(10) ? 2000 : 40)));
        for (std::uint8_t& b : bytes)
            b = unoDe(3) ? byte() : static_cast<std::uint8_t>(hasta(7));
        return bytes;
    }
    int tramas = unoDe(2) ? 1 : 1 + hasta(4);
    if (unoDe(2000))
        tramas = 100;
    for (int k = 0; k < tramas; ++k)
        agregarTrama(bytes);
    const auto tope = static_cast<int>(bytes.size()) - 1;
    if (unoDe(10)) // damaged
        bytes[static_cast<std::size_t>(hasta(tope))] = unoDe(8) ? byte() : bajo(hasta(7));
    if (unoDe(8)) // cut short
        bytes.resize(static_cast<std::size_t>(hasta(tope)));
    return bytes;
}
