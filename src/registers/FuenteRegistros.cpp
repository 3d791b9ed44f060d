#include "registers/FuenteRegistros.h"

#include "platform/locale/SystemLocale.h"
#include "registers/NumeroLocal.h"
#include "registers/Palabra.h"

#include <QDateTime>
#include <QPalette>
#include <QStringList>

#include <algorithm>

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

QString FuenteRegistros::comoSeEscribe(int direccion, FormatoRegistro formato) const {
    return QString::fromStdString(textoDeRegistro(esclavos_.valores(pagina_.numero()),
                                                  static_cast<std::size_t>(direccion), formato, decimalSign()));
}

QString FuenteRegistros::texto(int fila, int columna) const {
    if (fila == 0 || columna == 0)
        return encabezado(fila, columna);
    if (formato_ != FormatoRegistro::decimal)
        return comoSeEscribe(direccion(fila, columna), formato_);
    return textoDecimal(fila, columna);
}

QString FuenteRegistros::textoMasAncho() const {
    switch (formato_) {
    case FormatoRegistro::conSigno:
        return QStringLiteral("-32768");
    case FormatoRegistro::binario:
        return QString(16, u'0');
    case FormatoRegistro::entero32:
    case FormatoRegistro::entero32Invertido:
        return QStringLiteral("-2147483648");
    case FormatoRegistro::flotante:
    case FormatoRegistro::flotanteInvertido:
        return QStringLiteral("-1,00000005e-38");
    default:
        return QStringLiteral("65535"); // hexadecimal is narrower
    }
}

QString FuenteRegistros::textoDecimal(int fila, int columna) const {
    const auto x = valor(fila, columna);
    return x ? textoLocal(*x) : QString();
}

QString FuenteRegistros::quienEscribio(int direccion) const {
    const auto escritura = anotaciones_->cambios.ultima(pagina_.numero(), direccion);
    if (!escritura)
        return {};
    const QString autor = escritura->autor == Autor::maestro  ? QStringLiteral("un maestro")
                          : escritura->autor == Autor::script ? QStringLiteral("el script")
                                                              : QStringLiteral("el operador");
    return QStringLiteral("Última escritura: %1, %2")
        .arg(autor, QDateTime::fromMSecsSinceEpoch(escritura->escrito).toString(QStringLiteral("HH:mm:ss")));
}

QString FuenteRegistros::sugerencia(int fila, int columna) const {
    if (fila == 0 || columna == 0)
        return {};
    const auto x = valor(fila, columna);
    if (!x)
        return {};
    const int cual = direccion(fila, columna);
    const int palabra = entero32(*x);
    QString bits = comoSeEscribe(cual, FormatoRegistro::binario);
    for (const int corte : {12, 8, 4})
        bits.insert(corte, QLatin1Char(' '));
    QStringList lineas;
    const Etiqueta* etiqueta = anotaciones_ != nullptr ? anotaciones_->etiquetas.de(pagina_.numero(), cual) : nullptr;
    if (etiqueta != nullptr) {
        lineas << QStringLiteral("Nombre: %1").arg(QString::fromStdString(etiqueta->nombre));
        if (!etiqueta->unidad.empty())
            lineas << QStringLiteral("Unidad: %1").arg(QString::fromStdString(etiqueta->unidad));
        if (!etiqueta->nota.empty())
            lineas << QStringLiteral("Nota: %1").arg(QString::fromStdString(etiqueta->nota));
    }
    lineas << QStringLiteral("Registro: %1").arg(cual) << QStringLiteral("Sin signo: %1").arg(textoLocal(*x))
           << QStringLiteral("Con signo: %1").arg(textoLocal(SIGNINT(palabra)))
           << QStringLiteral("Hexadecimal: %1").arg(comoSeEscribe(cual, FormatoRegistro::hexadecimal))
           << QStringLiteral("Bits: %1").arg(bits);
    if (cual % 2 == 0 && valor(fila, columna + 1)) {
        lineas << QStringLiteral("Con el siguiente, 32 bits: %1 (al revés %2)")
                      .arg(comoSeEscribe(cual, FormatoRegistro::entero32),
                           comoSeEscribe(cual, FormatoRegistro::entero32Invertido))
               << QStringLiteral("Con el siguiente, coma flotante: %1 (al revés %2)")
                      .arg(comoSeEscribe(cual, FormatoRegistro::flotante),
                           comoSeEscribe(cual, FormatoRegistro::flotanteInvertido));
    }
    if (const QString autor = anotaciones_ != nullptr ? quienEscribio(cual) : QString(); !autor.isEmpty())
        lineas << autor;
    return lineas.join(QLatin1Char('\n'));
}

QColor FuenteRegistros::fondo(int fila, int columna, const QPalette& paleta) const {
    if (anotaciones_ == nullptr || !anotaciones_->resaltarCambios)
        return {};
    const int cual = direccion(fila, columna);
    const auto edad = anotaciones_->cambios.desdeElCambio(pagina_.numero(), cual);
    if (!edad || *edad >= Anotaciones::tiempoResaltado)
        return {};
    const Autor autor = anotaciones_->cambios.ultima(pagina_.numero(), cual)->autor;
    const QColor tinte = autor == Autor::maestro  ? QColor(40, 120, 230)
                         : autor == Autor::script ? QColor(40, 170, 70)
                                                  : QColor(235, 140, 20);
    // Never more than this much of it, so that the text stays legible on light and on dark grounds.
    constexpr double masFuerte = 0.45;
    const double parte =
        masFuerte * (1 - static_cast<double>(std::max<std::int64_t>(0, *edad)) / Anotaciones::tiempoResaltado);
    const QColor base = paleta.color(QPalette::Base);
    const auto mezcla = [parte](int a, int b) { return static_cast<int>(a + (b - a) * parte); };
    return {mezcla(base.red(), tinte.red()), mezcla(base.green(), tinte.green()), mezcla(base.blue(), tinte.blue())};
}
