#include "modbus/VistaTxRx.h"

#include <algorithm>

VistaTxRx::VistaTxRx(Monitores& monitores, QWidget* padre)
    : VistaMonitor(monitores.todas(), padre), monitores_(monitores) {}

void VistaTxRx::filtrar(const FiltroTramas& filtro) {
    filtro_ = filtro;
    empezarOtraVez();
}

std::string VistaTxRx::mostrable(std::string_view lineas, std::size_t lugar) {
    if (filtro_.todo())
        return std::string(lineas);
    const auto marcas = monitores_.marcas();
    auto marca = std::lower_bound(marcas.begin(), marcas.end(), lugar,
                                  [](const MarcaTrama& una, std::size_t donde) { return una.lugar < donde; });
    std::string texto;
    for (; marca != marcas.end(); ++marca) {
        if (!filtro_.pasa(*marca))
            continue;
        const auto siguiente = marca + 1;
        const std::size_t fin = siguiente == marcas.end() ? lugar + lineas.size() : siguiente->lugar;
        const std::string_view linea = lineas.substr(marca->lugar - lugar, fin - marca->lugar);
        texto += filtro_.hexadecimal ? tramaEnHexadecimal(linea) : std::string(linea);
    }
    return texto;
}
