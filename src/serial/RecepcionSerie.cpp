#include "serial/RecepcionSerie.h"

#include <exception>

void RecepcionSerie::alRecibir() {
    try {
        recibir();
    } catch (const LecturaRechazada& rechazo) {
        salida_.rechazar(rechazo.lectura(), rechazo.what());
    } catch (const std::exception& fallo) {
        salida_.rechazar({}, fallo.what());
    }
    instantanea_ = cortador_.version();
}

void RecepcionSerie::recibir() {
    std::string trama;
    std::string trozo = Input_();
    do {
        cortador_.agregar(trozo);
        salida_.agregarRecibido(trozo);
        cortador_.cortar(trama);
        if (!trama.empty())
            salida_.agregarListado(interprete_.interpretarTrama(trama));
        trozo = Input_();
    } while (!trozo.empty());
}

void RecepcionSerie::alCallar() {
    if (cortador_.version() == instantanea_)
        cortador_.vaciar();
}
