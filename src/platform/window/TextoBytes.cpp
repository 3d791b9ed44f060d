#include "platform/window/TextoBytes.h"

#include "platform/text/CodePage.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

const std::array<char16_t, 256>& caracteres() {
    static const std::array<char16_t, 256> tabla = [] {
        std::array<char16_t, 256> nueva{};
        for (std::size_t b = 0; b < nueva.size(); ++b)
            nueva[b] = text::fromAnsi(static_cast<std::uint8_t>(b));
        nueva['\r'] = u'\n';
        return nueva;
    }();
    return tabla;
}

constexpr std::size_t porMirada = 4096; // bytes looked through for one kind of line end and then for the other

void agregarCelda(std::u16string& destino, std::uint8_t b) {
    static constexpr char16_t cifras[] = u"0123456789ABCDEF";
    destino.push_back(u'[');
    if (b >= 16)
        destino.push_back(cifras[b / 16]);
    destino.push_back(cifras[b % 16]);
    destino.push_back(u']');
}

} // namespace

void TextoBytes::agregar(std::string_view ansi) {
    anexar(ansi, false);
}

void TextoBytes::agregarBloque(std::span<const std::uint8_t> bloque) {
    if (bloque.empty())
        return;
    anexar({reinterpret_cast<const char*>(bloque.data()), bloque.size()}, true);
    trozos_.back()->esFin.back() = true;
}

std::span<std::uint8_t> TextoBytes::sitio() {
    if (trozos_.empty())
        return {};
    auto& ultimos = trozos_.back()->bytes;
    if (ultimos.capacity() - ultimos.size() < maximoSitio)
        return {};
    return {reinterpret_cast<std::uint8_t*>(ultimos.data() + ultimos.size()), maximoSitio};
}

void TextoBytes::borrar() {
    trozos_.clear();
    size_ = sinFinDesde_ = sinFinHasta_ = 0;
}

// A short text stays small, a long one grows without copying.
std::shared_ptr<TextoBytes::Trozo> TextoBytes::trozoNuevo() const {
    auto nuevo = std::make_shared<Trozo>();
    if (size_ > 0)
        nuevo->bytes.reserve(porTrozo);
    if (trozos_.size() >= trozosPequenos)
        TramoMemoria::enUnaPagina(nuevo->bytes.data());
    return nuevo;
}

void TextoBytes::anexar(std::string_view bytes, bool celdas) {
    while (!bytes.empty()) {
        if (size_ == trozos_.size() * porTrozo)
            trozos_.push_back(trozoNuevo());
        Trozo& trozo = *trozos_.back();
        const std::string_view parte = bytes.substr(0, porTrozo - trozo.bytes.size());
        if (celdas && trozo.esCelda.empty()) {
            if (trozos_.size() > 1) {
                trozo.esCelda.reserve(porTrozo);
                trozo.esFin.reserve(porTrozo);
            }
            trozo.esCelda.resize(trozo.bytes.size());
        }
        const bool enSuSitio = parte.data() == trozo.bytes.data() + trozo.bytes.size() &&
                               parte.size() <= trozo.bytes.capacity() - trozo.bytes.size();
        if (enSuSitio)
            trozo.bytes.resize(trozo.bytes.size() + parte.size()); // sets none of them
        else
            trozo.bytes.insert(trozo.bytes.end(), parte.begin(), parte.end());
        if (celdas || !trozo.esCelda.empty()) {
            trozo.esCelda.resize(trozo.bytes.size(), celdas);
            trozo.esFin.resize(trozo.bytes.size());
        }
        size_ += parte.size();
        bytes.remove_prefix(parte.size());
    }
}

std::size_t TextoBytes::inicioLinea(std::size_t posicion) const {
    if (posicion >= sinFinDesde_ && posicion <= sinFinHasta_)
        return sinFinDesde_;
    const bool sigue = posicion > sinFinHasta_;
    const std::size_t desde = sigue ? sinFinHasta_ : 0;
    std::size_t inicio = trasUltimoFin(desde, posicion);
    if (inicio == desde && sigue)
        inicio = sinFinDesde_;
    if (posicion == size_ && size_ > 0 && en(size_ - 1) == '\r')
        return inicio; // not kept: that CR may yet turn out to be half of a line end
    sinFinDesde_ = inicio;
    sinFinHasta_ = posicion;
    return inicio;
}

// The position after the last line end in [desde, hasta), or `desde` without any. Characters are looked through by
// stretches: there may be a hundred million without a line end, or all with one of the two.
std::size_t TextoBytes::trasUltimoFin(std::size_t desde, std::size_t hasta) const {
    while (hasta > desde) {
        const std::size_t primera =
            std::max({desde, (hasta - 1) / porTrozo * porTrozo, hasta - std::min(hasta, porMirada)});
        const Trozo& trozo = trozoDe(primera);
        if (trozo.esCelda.empty()) {
            const char* const datos = trozo.bytes.data() + primera % porTrozo;
            const std::string_view tramo(datos, hasta - primera);
            const auto* const cr = static_cast<const char*>(memrchr(datos, '\r', tramo.size()));
            const auto* const lf = static_cast<const char*>(memrchr(datos, '\n', tramo.size()));
            const char* const fin = std::max(cr, lf);
            if (fin == nullptr) {
                hasta = primera;
                continue;
            }
            hasta = primera + static_cast<std::size_t>(fin - datos) + 1;
        }
        if (terminaLinea(hasta - 1))
            return hasta;
        --hasta;
    }
    return desde;
}

void TextoBytes::texto(std::size_t desde, std::size_t hasta, std::u16string& destino,
                       std::vector<std::size_t>* dondes) const {
    const auto& tabla = caracteres();
    while (desde < hasta) {
        const Trozo& trozo = trozoDe(desde);
        const std::size_t fin = std::min(hasta, (desde / porTrozo + 1) * porTrozo);
        if (trozo.esCelda.empty() && crLf_ == CrLf::dosFines && dondes == nullptr) {
            const std::size_t antes = destino.size();
            destino.resize(antes + (fin - desde));
            std::transform(trozo.bytes.begin() + static_cast<std::ptrdiff_t>(desde % porTrozo),
                           trozo.bytes.begin() + static_cast<std::ptrdiff_t>(desde % porTrozo + (fin - desde)),
                           destino.begin() + static_cast<std::ptrdiff_t>(antes),
                           [&tabla](char c) { return tabla[static_cast<std::uint8_t>(c)]; });
            desde = fin;
            continue;
        }
        for (; desde < fin; ++desde) {
            if (hexadecimal(desde))
                agregarCelda(destino, en(desde));
            else if (en(desde) != '\r' || terminaLinea(desde))
                destino.push_back(tabla[en(desde)]);
            if (hexadecimal(desde) && finDeBloque(desde))
                destino.push_back(u'\n');
            if (dondes != nullptr)
                dondes->resize(destino.size(), desde);
        }
    }
}

std::u16string TextoBytes::texto(std::size_t desde, std::size_t hasta) const {
    std::u16string destino;
    destino.reserve(hasta - desde);
    texto(desde, hasta, destino);
    return destino;
}
