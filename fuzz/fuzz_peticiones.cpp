// The request handler on any arrivals. The input is a row of arrivals for one station, each with four bytes before it:
// switches, the slave whose check boxes they set, and the arrival's length (high byte first).
//
// Whatever arrives: every answer has a length and a header that an answer can have, and tables, slaves and monitor
// texts stay within what requests alone can reach.

#include "modbus/Peticiones.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>

namespace {

using Bytes = std::span<const std::uint8_t>;

void exigir(bool cumplido, const char* que) {
    if (cumplido)
        return;
    std::fprintf(stderr, "violated: %s\n", que);
    std::abort();
}

void comprobarRespuesta(Bytes respuesta) {
    exigir(respuesta.size() >= 9 && respuesta.size() <= 9 + 2 * 126, "an answer has 9 to 261 bytes");
    exigir(respuesta[5] == respuesta.size() - 6, "the length byte counts what follows it");
    switch (respuesta[7]) {
    case 3:
    case 4:
        exigir(respuesta.size() % 2 == 1 && respuesta[8] == respuesta.size() - 9, "a read answer is 9 + 2n bytes");
        break;
    case 6:
        exigir(respuesta.size() == 12 && respuesta[6] == 1, "a write answer is 12 bytes from unit 1");
        break;
    case 128:
        exigir(respuesta.size() == 9 && respuesta[6] == 0, "an exception is 9 bytes from unit 0");
        exigir(respuesta[8] == 1 || respuesta[8] == 2, "an exception has code 1 or 2");
        break;
    default:
        exigir(false, "an answer has a function that is answered");
    }
}

class Maestro final : public Conexion {
public:
    explicit Maestro(std::uint8_t interruptores)
        : abierta_((interruptores & 2) == 0), enviosBuenos_((interruptores & 4) == 0 ? -1 : 1) {}

    bool conectada() const override { return abierta_; }
    std::string_view direccionRemota() const override { return "192.168.0.10"; }
    bool enviar(Bytes respuesta) override {
        comprobarRespuesta(respuesta);
        return enviosBuenos_-- != 0;
    }

private:
    bool abierta_;
    int enviosBuenos_; // -1: no send fails
};

class RelojParado final : public Reloj {
public:
    Instante instante() const override { return {}; }
    Hora hora() const override { return {}; }
    std::time_t segundo() const override { return 0; }
};

void comprobarLimites(const Esclavos& esclavos, Monitores& monitores) {
    exigir(esclavos.limite() <= 255, "a unit is one byte");
    exigir(monitores.escrituras().texto().size() <= TextoMonitor::limitePorDefecto, "the writes monitor is bounded");
    exigir(monitores.todas().texto().size() <= TextoMonitor::limitePorDefecto, "the common monitor is bounded");
    for (int n = 0; n <= esclavos.limite(); ++n) {
        if (!esclavos.existe(n))
            continue;
        exigir(monitores.tramas(n).texto().size() <= TextoMonitor::limitePorDefecto, "a frame monitor is bounded");
        const auto valores = esclavos.valores(n);
        exigir(valores.size() >= 100 && valores.size() <= 65535 + 126 + 1, "a table ends at address + quantity");
        exigir(std::all_of(valores.begin(), valores.end(), [](double v) { return v >= 0 && v <= 65535; }),
               "a register holds a word");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cantidad) {
    Bytes resto(datos, cantidad);
    Esclavos esclavos;
    Monitores monitores;
    RelojParado reloj;
    Peticiones peticiones(esclavos, monitores, reloj);
    esclavos.crearEsclavo(1, 0, 99);
    esclavos.crearEsclavo(4, 0, 99);

    while (resto.size() >= 4) {
        const std::uint8_t interruptores = resto[0];
        if (Pagina* pagina = esclavos.pagina(resto[1])) {
            pagina->recibir = (interruptores & 16) == 0;
            pagina->responder = (interruptores & 32) == 0;
            pagina->recibirEscrituras = (interruptores & 64) == 0;
            pagina->responderEscrituras = (interruptores & 128) == 0;
        }
        const std::size_t longitud = std::min<std::size_t>(resto[2] * 256U + resto[3], resto.size() - 4);
        monitores.verTxRx = (interruptores & 1) != 0;
        Maestro maestro(interruptores);
        peticiones.atender(resto.subspan(4, longitud), maestro);
        resto = resto.subspan(4 + longitud);
    }
    comprobarLimites(esclavos, monitores);
    return 0;
}
