#include "serial/MarcaFin.h"

#include "platform/text/Case.h"
#include "platform/text/CodePage.h"

namespace {

std::array<bool, 256> ambasCajas(unsigned char codigo) {
    const auto minuscula = [](std::size_t ansi) {
        return text::toLower(text::fromAnsi(static_cast<std::uint8_t>(ansi)));
    };
    std::array<bool, 256> iguales{};
    for (std::size_t otro = 0; otro < iguales.size(); ++otro)
        iguales.at(otro) = minuscula(otro) == minuscula(codigo);
    return iguales;
}

} // namespace

MarcaFin::MarcaFin(unsigned char primero, unsigned char segundo)
    : texto_{static_cast<char>(primero), static_cast<char>(segundo)}, esPrimero_(ambasCajas(primero)),
      esSegundo_(ambasCajas(segundo)) {}

std::size_t MarcaFin::buscar(std::string_view ansi, std::size_t desde) const {
    for (std::size_t i = desde; i + 1 < ansi.size(); ++i)
        if (esPrimero_[static_cast<unsigned char>(ansi[i])] && esSegundo_[static_cast<unsigned char>(ansi[i + 1])])
            return i;
    return std::string_view::npos;
}
