#include "serial/InterpreteTramas.h"

#include "ajustes/Claves.h"
#include "platform/text/CodePage.h"
#include "platform/text/Numbers.h"
#include "serial/Modulo_RS232.h"

#include <algorithm>

namespace {

constexpr std::string_view finDeLinea = "\r\n";

// `cuantos` characters from a position (from 1) on, or as many as there are.
std::string_view parte(std::string_view texto, std::size_t posicion, std::size_t cuantos = std::string_view::npos) {
    return texto.substr(std::min(posicion - 1, texto.size()), cuantos);
}

} // namespace

std::string InterpreteTramas::interpretarTrama(std::string_view trama) {
    std::string validez;
    try {
        validez = leerValidez();
    } catch (const std::exception& error) {
        throw LecturaRechazada(trama.substr(0, marca_.buscar(trama)), error.what());
    }
    std::string listado;
    for (std::size_t desde = 0; desde <= trama.size();) {
        const std::size_t hasta = std::min(marca_.buscar(trama, desde), trama.size());
        const std::string_view lectura = trama.substr(desde, hasta - desde);
        if (!lectura.empty()) {
            listado.append(lectura).append(finDeLinea);
            darValor_A_Variable(lectura, validez);
        }
        desde = hasta + marca_.texto().size();
    }
    return listado;
}

void InterpreteTramas::darValor_A_Variable(std::string_view lectura, std::string_view validez) {
    try {
        motor_.AddCode(text::utf8FromAnsi(asignaciones(lectura, validez)));
    } catch (const std::exception& error) {
        throw LecturaRechazada(lectura, error.what());
    }
}

// The blanks after the equals signs are uneven on purpose.
std::string InterpreteTramas::asignaciones(std::string_view lectura, std::string_view validez) {
    std::string texto;
    texto.reserve(lectura.size() + validez.size() + 40); // the words around them
    texto.append("AA =").append(parte(lectura, 1, 2)).append(finDeLinea);
    texto.append("MM =").append(parte(lectura, 3, 2)).append(finDeLinea);
    texto.append("DD = ").append(parte(lectura, 5, 2)).append(finDeLinea);
    texto.append("ID = ").append(parte(lectura, 7)).append(finDeLinea);
    texto.append("VALIDEZ = ").append(validez).append(finDeLinea);
    return texto;
}

// Read for every frame text, so that a change of the file takes effect with the next one.
std::string InterpreteTramas::leerValidez() {
    return text::writeNumber(numeroDeAjuste(ajustes_.leerConfiguracion(claves::validez), ajustes_.signoDecimal()));
}
