#include "platform/window/BusquedaTexto.h"

#include <QChar>

#include <algorithm>

BusquedaTexto::BusquedaTexto(std::u16string_view patron, bool conCaja) : patron_(patron), conCaja_(conCaja) {
    doblar(patron_);
}

void BusquedaTexto::doblar(std::u16string& texto) const {
    if (!conCaja_)
        std::transform(texto.begin(), texto.end(), texto.begin(),
                       [](char16_t c) { return QChar(c).toLower().unicode(); });
}

std::vector<BusquedaTexto::Hallazgo> BusquedaTexto::en(const TextoBytes& texto, std::size_t desde,
                                                       std::size_t hasta) const {
    std::vector<Hallazgo> hallazgos;
    if (empty())
        return hallazgos;
    // An occurrence that begins in the last byte reaches over as many bytes more; a CR may show nothing.
    const std::size_t fin = std::min(texto.size(), hasta + 2 * patron_.size());
    std::u16string pajar = texto.texto(desde, fin);
    doblar(pajar);
    std::size_t hallado = pajar.find(patron_);
    if (hallado == std::u16string::npos)
        return hallazgos;
    std::u16string otraVez;
    std::vector<std::size_t> dondes; // only where something was found: it costs more than the search
    texto.texto(desde, fin, otraVez, &dondes);
    for (; hallado != std::u16string::npos && dondes[hallado] < hasta; hallado = pajar.find(patron_, hallado + 1))
        hallazgos.push_back({dondes[hallado], dondes[hallado + patron_.size() - 1] + 1});
    return hallazgos;
}
