#include "registers/FuenteRegistros.h"

#include "registers/NumeroLocal.h"
#include "registers/Palabra.h"

std::optional<double> FuenteRegistros::valor(int fila, int columna) const {
    const auto valores = esclavos_.valores(pagina_.numero());
    if (const auto ajena = pagina_.ajena(direccion(fila, columna)))
        return ajena;
    const auto i = static_cast<std::size_t>(direccion(fila, columna));
    return i < valores.size() ? std::optional(valores[i]) : std::nullopt;
}

QString FuenteRegistros::encabezado(int fila, int columna) const {
    if (fila > 0)
        return QString::number(direccion(fila, 1));
    if (columna > 0)
        return QStringLiteral("+%1").arg(columna - 1);
    return QStringLiteral("MW - PLC %1").arg(pagina_.numero());
}

QString FuenteRegistros::texto(int fila, int columna) const {
    if (fila == 0 || columna == 0)
        return encabezado(fila, columna);
    const auto x = valor(fila, columna);
    return x ? textoLocal(*x) : QString();
}

QString FuenteRegistros::sugerencia(int fila, int columna) const {
    if (fila == 0 || columna == 0)
        return {};
    const auto x = valor(fila, columna);
    if (!x)
        return {};
    const int palabra = entero32(*x);
    QString bits = QStringLiteral("%1").arg(palabra, 16, 2, QLatin1Char('0'));
    for (const int corte : {12, 8, 4})
        bits.insert(corte, QLatin1Char(' '));
    return QStringLiteral("Registro: %1\nSin signo: %2\nCon signo: %3\nHexadecimal: %4\nBits: %5")
        .arg(QString::number(direccion(fila, columna)), textoLocal(*x), textoLocal(SIGNINT(palabra)),
             QStringLiteral("%1").arg(palabra, 4, 16, QLatin1Char('0')).toUpper(), bits);
}
