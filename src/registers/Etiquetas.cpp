#include "registers/Etiquetas.h"

#include "registers/Esclavos.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace {

constexpr std::string_view blancos = " \t";
constexpr std::size_t maxLinea = 2000; // bytes

std::string_view recortado(std::string_view texto) {
    const std::size_t desde = texto.find_first_not_of(blancos);
    if (desde == std::string_view::npos)
        return {};
    return texto.substr(desde, texto.find_last_not_of(blancos) - desde + 1);
}

char separadorDe(std::string_view texto) {
    const std::size_t donde = texto.find_first_of(";,\t");
    return donde == std::string_view::npos ? ';' : texto[donde];
}

// Takes the first line off the text. It ends in "\n", "\r\n" or "\r".
std::string_view quitarLinea(std::string_view& texto) {
    const std::size_t fin = std::min(texto.find_first_of("\r\n"), texto.size());
    const std::string_view linea = texto.substr(0, fin);
    texto.remove_prefix(fin);
    texto.remove_prefix(texto.substr(0, 2) == "\r\n" ? 2 : std::min<std::size_t>(1, texto.size()));
    return linea;
}

// The fields of a line; a quote inside quotes is written twice. Empty when a quote is not closed.
std::optional<std::vector<std::string>> campos(std::string_view linea, char separador) {
    std::vector<std::string> partes(1);
    bool citado = false;
    for (std::size_t i = 0; i < linea.size(); ++i) {
        const char c = linea[i];
        if (c == '"' && citado && i + 1 < linea.size() && linea[i + 1] == '"') {
            partes.back() += linea[++i];
        } else if (c == '"') {
            citado = !citado;
        } else if (c == separador && !citado) {
            partes.emplace_back();
        } else {
            partes.back() += c;
        }
    }
    if (citado)
        return {};
    for (std::string& parte : partes)
        parte = std::string(recortado(parte));
    return partes;
}

std::optional<int> numeroHasta(std::string_view texto, int maximo) {
    int numero = 0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), numero);
    return error == std::errc() && fin == texto.data() + texto.size() && numero >= 0 && numero <= maximo
               ? std::optional(numero)
               : std::nullopt;
}

constexpr int maxDireccion = static_cast<int>(Esclavos::maxRegistros) - 1;

} // namespace

std::vector<std::string> Etiquetas::leer(std::string_view texto) {
    etiquetas_.clear();
    std::vector<std::string> faltas;
    const char separador = separadorDe(texto);
    bool primera = true;
    for (std::size_t linea = 1; !texto.empty(); ++linea) {
        const std::string_view entera = recortado(quitarLinea(texto));
        if (entera.empty() || entera.front() == '#')
            continue;
        const auto falta = [&](std::string_view que) {
            faltas.push_back("etiquetas.csv, línea " + std::to_string(linea) + ": " + std::string(que));
        };
        const bool encabezado = std::exchange(primera, false) && (entera.front() < '0' || entera.front() > '9');
        if (entera.size() > maxLinea) {
            falta("la línea es demasiado larga");
            continue;
        }
        if (encabezado && entera.front() != '-')
            continue;
        const auto partes = campos(entera, separador);
        if (!partes) {
            falta("las comillas no se cierran");
            continue;
        }
        const auto esclavo = numeroHasta((*partes)[0], Esclavos::maxNumero);
        const auto direccion = partes->size() > 1 ? numeroHasta((*partes)[1], maxDireccion) : std::nullopt;
        const auto campo = [&](std::size_t i) { return i < partes->size() ? (*partes)[i] : std::string(); };
        if (!esclavo)
            falta("el esclavo no es un número de 0 a " + std::to_string(Esclavos::maxNumero));
        else if (!direccion)
            falta("la dirección no es un número desde 0");
        else if (campo(2).empty())
            falta("falta el nombre");
        else if (!etiquetas_.try_emplace({*esclavo, *direccion}, Etiqueta{campo(2), campo(3), campo(4)}).second)
            falta("ese registro ya tiene nombre");
    }
    return faltas;
}

const Etiqueta* Etiquetas::de(int esclavo, int direccion) const {
    const auto encontrada = etiquetas_.find({esclavo, direccion});
    return encontrada != etiquetas_.end() ? &encontrada->second : nullptr;
}
