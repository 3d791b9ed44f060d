#include "registers/DestinoRegistro.h"

namespace {

std::optional<int> natural(const QString& texto) {
    bool valido = false;
    const int n = texto.trimmed().toInt(&valido);
    return valido && n >= 0 ? std::optional(n) : std::nullopt;
}

std::optional<DestinoRegistro> porNombre(const QString& buscado, const Etiquetas& etiquetas) {
    std::optional<DestinoRegistro> empieza;
    for (const auto& [registro, etiqueta] : etiquetas.todas()) {
        const QString nombre = QString::fromStdString(etiqueta.nombre);
        if (nombre.compare(buscado, Qt::CaseInsensitive) == 0)
            return DestinoRegistro{registro.first, registro.second};
        if (!empieza && nombre.startsWith(buscado, Qt::CaseInsensitive))
            empieza = DestinoRegistro{registro.first, registro.second};
    }
    return empieza;
}

} // namespace

std::optional<DestinoRegistro> leerDestino(const QString& texto, int esclavoActual, const Etiquetas& etiquetas) {
    const QString escrito = texto.trimmed();
    if (escrito.isEmpty())
        return {};
    if (const auto direccion = natural(escrito))
        return DestinoRegistro{esclavoActual, *direccion};
    const qsizetype dosPuntos = escrito.indexOf(QLatin1Char(':'));
    const auto esclavo = natural(escrito.left(dosPuntos));
    const auto direccion = natural(escrito.mid(dosPuntos + 1));
    if (dosPuntos >= 0 && esclavo && direccion)
        return DestinoRegistro{*esclavo, *direccion};
    return porNombre(escrito, etiquetas);
}
