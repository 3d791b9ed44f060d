#include "serial/RecepcionSerie.h"

void RecepcionSerie::alRecibir() {
    ventana_.vigilarSilencio(false);
    std::string trama;
    std::string trozo = ventana_.Input();
    do {
        cortador_.agregar(trozo);
        ventana_.agregarRecibido(trozo);
        cortador_.cortar(trama);
        if (!trama.empty())
            ventana_.interpretarTrama(trama);
        trozo = ventana_.Input();
    } while (!trozo.empty());
    instantanea_ = cortador_.version();
    ventana_.vigilarSilencio(true);
}

void RecepcionSerie::alCallar() {
    if (cortador_.version() != instantanea_)
        return;
    cortador_.vaciar();
    instantanea_ = cortador_.version();
}
