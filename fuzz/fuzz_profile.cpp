// The profile functions on any text. The input's first three lines are section, key and value, the rest is the text.
//
// Whatever the text: a value that can stand on a line is read back after it was written, writing it again changes
// nothing, every other key of the text keeps its value, and no line but the written one changes.

#include "platform/profile/LineaTexto.h"
#include "platform/profile/Perfil.h"
#include "platform/text/CodePage.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

void exigir(bool cumplido, const char* que) {
    if (cumplido)
        return;
    std::fprintf(stderr, "violated: %s\n", que);
    std::abort();
}

std::string_view tomarHastaSalto(std::string_view& resto) {
    const std::size_t salto = std::min(resto.find('\n'), resto.size());
    const std::string_view campo = resto.substr(0, salto);
    resto.remove_prefix(std::min(salto + 1, resto.size()));
    return campo;
}

bool contiene(std::string_view texto, std::string_view alguno) {
    return texto.find_first_of(alguno) != std::string_view::npos;
}

bool nombresRepresentables(std::string_view seccion, std::string_view clave) {
    const std::string_view limpia = sinBlancos(clave);
    return !contiene(seccion, "\r\n]") && !contiene(clave, "\r\n=") && !limpia.starts_with(';') &&
           !limpia.starts_with('[');
}

bool valorRepresentable(std::string_view valor) {
    const bool entreComillas =
        valor.size() >= 2 && valor.front() == valor.back() && (valor.front() == '"' || valor.front() == '\'');
    return !contiene(valor, "\r\n") && valor == sinBlancos(valor) && !entreComillas;
}

std::vector<std::string> lineasDe(std::string_view texto) {
    std::vector<std::string> lineas;
    while (!texto.empty())
        lineas.emplace_back(tomarLinea(texto).contenido);
    return lineas;
}

// Leaves out, at both ends, the lines that both texts have.
void quitarComunes(std::vector<std::string>& a, std::vector<std::string>& b) {
    while (!a.empty() && !b.empty() && a.front() == b.front()) {
        a.erase(a.begin());
        b.erase(b.begin());
    }
    while (!a.empty() && !b.empty() && a.back() == b.back()) {
        a.pop_back();
        b.pop_back();
    }
}

void comprobarLineas(std::string_view antes, std::string_view despues) {
    std::vector<std::string> viejas = lineasDe(antes);
    std::vector<std::string> nuevas = lineasDe(despues);
    quitarComunes(viejas, nuevas);
    const bool cambiada = viejas.size() == 1 && nuevas.size() == 1;
    const bool agregadas = viejas.empty() && nuevas.size() <= 2;
    exigir(cambiada || agregadas, "only the written line changes");
}

// Asks for everything that looks like a key, by the section line above it, before and after.
void comprobarOtras(std::string_view antes, std::string_view despues, std::string_view seccion,
                    std::string_view clave) {
    std::string otraSeccion;
    for (const std::string& linea : lineasDe(antes)) {
        const std::size_t abre = linea.find('[');
        const std::size_t cierra = linea.find(']');
        if (abre < cierra && cierra != std::string::npos)
            otraSeccion = linea.substr(abre + 1, cierra - abre - 1);
        const std::string otra = linea.substr(0, linea.find('='));
        const bool laMisma = text::equalAnsiNoCase(sinBlancos(otraSeccion), sinBlancos(seccion)) &&
                             text::equalAnsiNoCase(sinBlancos(otra), sinBlancos(clave));
        if (!laMisma)
            exigir(leerValor(antes, otraSeccion, otra) == leerValor(despues, otraSeccion, otra), "other keys stay");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cantidad) {
    std::string_view resto(reinterpret_cast<const char*>(datos), cantidad);
    const std::string_view seccion = tomarHastaSalto(resto);
    const std::string_view clave = tomarHastaSalto(resto);
    const std::string_view valor = tomarHastaSalto(resto);
    const std::string_view texto = resto;

    const std::string escrito = conValor(texto, seccion, clave, valor);
    if (!nombresRepresentables(seccion, clave) || contiene(valor, "\r\n"))
        return 0;
    comprobarLineas(texto, escrito);
    comprobarOtras(texto, escrito, seccion, clave);
    exigir(conValor(escrito, seccion, clave, valor) == escrito, "a second write changes nothing");
    if (valorRepresentable(valor))
        exigir(leerValor(escrito, seccion, clave) == valor, "the value is read back");
    return 0;
}
