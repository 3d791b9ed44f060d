#include "registers/TablaCsv.h"

#include "platform/text/Numbers.h"

namespace {

// A text as a CSV field; one that a spreadsheet would take for a formula stays a text.
void agregarTexto(std::string& csv, const std::string& texto) {
    csv += ";\"";
    if (!texto.empty() && std::string("=+-@").find(texto.front()) != std::string::npos)
        csv += '\'';
    for (const char c : texto) {
        csv += c;
        if (c == '"')
            csv += '"';
    }
    csv += '"';
}

} // namespace

std::string tablaComoCsv(const Esclavos& esclavos, int esclavo, const Etiquetas& etiquetas, char16_t separadorDecimal) {
    if (!esclavos.existe(esclavo))
        return {};
    std::string csv = "direccion;valor;nombre;unidad;nota\r\n";
    int direccion = 0;
    for (const double valor : esclavos.valores(esclavo)) {
        csv += std::to_string(direccion) + ";" + text::writeNumber(valor, separadorDecimal);
        if (const Etiqueta* etiqueta = etiquetas.de(esclavo, direccion)) {
            agregarTexto(csv, etiqueta->nombre);
            agregarTexto(csv, etiqueta->unidad);
            agregarTexto(csv, etiqueta->nota);
        } else {
            csv += ";;;";
        }
        csv += "\r\n";
        ++direccion;
    }
    return csv;
}
