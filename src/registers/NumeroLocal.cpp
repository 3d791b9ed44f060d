#include "registers/NumeroLocal.h"

#include "registers/Palabra.h"

#include <QLocale>

#include <cmath>

QString textoLocal(double x) {
    const char signo = QLocale().decimalPoint().at(0).toLatin1(); // 0 when the sign is outside Latin-1
    return QString::fromStdString(textoDeNumero(x, signo != 0 ? signo : '.'));
}

std::optional<double> numeroLocal(const QString& texto) {
    QLocale local;
    local.setNumberOptions(QLocale::RejectGroupSeparator);
    bool valido = false;
    const double x = local.toDouble(texto.trimmed(), &valido);
    return valido && std::isfinite(x) ? std::optional(x) : std::nullopt;
}
