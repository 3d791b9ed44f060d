#include "registers/NumeroLocal.h"

#include "platform/locale/SystemLocale.h"
#include "platform/text/Numbers.h"

QString textoLocal(double x) {
    return QString::fromStdString(text::writeNumber(x, decimalSign()));
}

std::optional<double> numeroLocal(const QString& texto) {
    return text::readNumber(texto.toStdString(), decimalSign());
}
