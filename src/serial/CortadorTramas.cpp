#include "serial/CortadorTramas.h"

void CortadorTramas::agregar(std::string_view trozo) {
    if (trozo.empty())
        return;
    buffer_.append(trozo);
    ++version_;
}

void CortadorTramas::cortar(std::string& trama) {
    std::size_t tomados = 0;
    for (std::size_t marca = marca_.buscar(buffer_, buscado_); marca != std::string::npos;
         marca = marca_.buscar(buffer_, tomados)) {
        trama.append(buffer_, tomados, marca + 1 - tomados).append(marca_.texto());
        tomados = marca + 1;
    }
    if (tomados > 0) {
        buffer_.erase(0, tomados); // the next frame takes all that stays, so each character moves once at most
        ++version_;
    }
    buscado_ = buffer_.empty() ? 0 : buffer_.size() - 1;
}

void CortadorTramas::vaciar() {
    if (buffer_.empty())
        return;
    buffer_ = std::string();
    buscado_ = 0;
    ++version_;
}
