#include "platform/profile/Perfil.h"

#include "platform/profile/ArchivoBytes.h"
#include "platform/profile/LineaTexto.h"
#include "platform/text/CodePage.h"

#include <algorithm>

namespace {

// Another program may save the file between reading and writing; after so many times the key is written all the same.
constexpr int intentosDeEscritura = 10;

constexpr std::string_view marcaUtf8 = "\xEF\xBB\xBF";

bool empiezaCon(std::string_view linea, char marca) {
    return sinBlancos(linea).starts_with(marca);
}

// The name between the brackets of a heading line.
std::optional<std::string_view> nombreDeSeccion(std::string_view linea) {
    const std::size_t cierre = linea.find(']');
    if (!empiezaCon(linea, '[') || cierre == std::string_view::npos)
        return std::nullopt;
    const std::size_t apertura = linea.find('[');
    return sinBlancos(linea.substr(apertura + 1, cierre - apertura - 1));
}

// What stands after the equals sign, to the end of the line, when the line sets this key.
std::optional<std::string_view> valorCrudo(std::string_view linea, std::string_view clave) {
    const std::size_t igual = linea.find('=');
    if (igual == std::string_view::npos || empiezaCon(linea, ';') || empiezaCon(linea, '['))
        return std::nullopt;
    if (!text::equalAnsiNoCase(sinBlancos(linea.substr(0, igual)), clave))
        return std::nullopt;
    return linea.substr(igual + 1);
}

struct Lugar {
    std::optional<std::string_view> valor; // a view into the text: everything after the equals sign of the key's line
    std::size_t finDeSeccion = 0;          // offset after the section's last line that is not blank; 0: no such section
};

Lugar buscar(std::string_view texto, std::string_view seccion, std::string_view clave) {
    seccion = sinBlancos(seccion);
    clave = sinBlancos(clave);
    Lugar lugar;
    bool dentro = false;
    bool enLaPrimera = false; // new keys go to the first section of the name
    std::string_view resto = texto;
    if (resto.starts_with(marcaUtf8))
        resto.remove_prefix(marcaUtf8.size());
    while (!resto.empty()) {
        const std::string_view linea = tomarLinea(resto).contenido;
        if (const auto nombre = nombreDeSeccion(linea)) {
            dentro = text::equalAnsiNoCase(*nombre, seccion);
            enLaPrimera = dentro && lugar.finDeSeccion == 0;
        } else if (dentro && (lugar.valor = valorCrudo(linea, clave))) {
            return lugar;
        }
        if (enLaPrimera && !sinBlancos(linea).empty())
            lugar.finDeSeccion = texto.size() - resto.size();
    }
    return lugar;
}

std::string_view sinComillas(std::string_view valor) {
    const bool par =
        valor.size() >= 2 && (valor.front() == '"' || valor.front() == '\'') && valor.front() == valor.back();
    return par ? valor.substr(1, valor.size() - 2) : valor;
}

// The line end in use: the first one in the text.
std::string_view finDeLinea(std::string_view texto) {
    if (texto.empty())
        return "\r\n";
    const std::string_view fin = tomarLinea(texto).fin;
    return fin.empty() ? "\r\n" : fin;
}

std::string conLineas(std::string_view texto, std::size_t lugar, const std::string& lineas) {
    std::string nuevo(texto.substr(0, lugar));
    if (!nuevo.empty() && nuevo.back() != '\n' && nuevo.back() != '\r')
        nuevo += finDeLinea(texto);
    nuevo += lineas;
    nuevo += texto.substr(lugar);
    return nuevo;
}

std::string conValorCambiado(std::string_view texto, std::string_view crudo, std::string_view valor) {
    const std::string_view limpio = sinBlancos(crudo);
    if (limpio == valor || sinComillas(limpio) == valor)
        return std::string(texto);
    std::size_t inicio = static_cast<std::size_t>(crudo.data() - texto.data());
    const std::size_t final = inicio + crudo.size();
    // The blanks after the equals sign stay, unless the value brings its own.
    if (!valor.empty() && valor == sinBlancos(valor) && !limpio.empty())
        inicio += crudo.find(limpio);
    std::string nuevo(texto.substr(0, inicio));
    nuevo += valor;
    nuevo += texto.substr(final);
    return nuevo;
}

} // namespace

std::optional<std::string> leerValor(std::string_view texto, std::string_view seccion, std::string_view clave) {
    const Lugar lugar = buscar(texto, seccion, clave);
    if (!lugar.valor)
        return std::nullopt;
    return std::string(sinComillas(sinBlancos(*lugar.valor)));
}

std::string conValor(std::string_view texto, std::string_view seccion, std::string_view clave, std::string_view valor) {
    const Lugar lugar = buscar(texto, seccion, clave);
    if (lugar.valor)
        return conValorCambiado(texto, *lugar.valor, valor);
    const std::string_view fin = finDeLinea(texto);
    std::string lineas;
    if (lugar.finDeSeccion == 0)
        lineas.append("[").append(seccion).append("]").append(fin);
    lineas.append(clave).append("=").append(valor).append(fin);
    return conLineas(texto, lugar.finDeSeccion == 0 ? texto.size() : lugar.finDeSeccion, lineas);
}

std::string GetPrivateProfileStringA(std::string_view seccion, std::string_view clave, std::string_view porDefecto,
                                     std::size_t tamano, const std::filesystem::path& archivo) {
    std::string texto;
    leerBytes(archivo, texto); // after an error the text is empty, and the key missing
    std::string valor = leerValor(texto, seccion, clave)
                            .value_or(std::string(porDefecto.substr(0, porDefecto.find_last_not_of(' ') + 1)));
    valor.resize(std::min(valor.size(), tamano == 0 ? 0 : tamano - 1));
    return valor;
}

std::error_code WritePrivateProfileStringA(std::string_view seccion, std::string_view clave, std::string_view valor,
                                           const std::filesystem::path& archivo) {
    for (int intento = 1;; ++intento) {
        std::string texto;
        if (const std::error_code error = leerBytes(archivo, texto);
            error && error != std::errc::no_such_file_or_directory)
            return error;
        const std::string nuevo = conValor(texto, seccion, clave, valor);
        if (nuevo == texto)
            return {};
        if (intento == intentosDeEscritura)
            return reemplazarBytes(archivo, nuevo);
        const std::error_code error = reemplazarBytesLeidos(archivo, texto, nuevo);
        if (error != std::errc::resource_unavailable_try_again)
            return error;
    }
}
