#include "registers/Pegado.h"

#include "registers/NumeroLocal.h"
#include "registers/ValorAMano.h"

#include <QStringList>

#include <vector>

namespace {

constexpr int maxCitado = 40; // characters of a bad cell in the message

struct Destino {
    int direccion;
    double valor;
};

} // namespace

QString pegarRegistros(Esclavos& esclavos, int esclavo, int direccion, const QString& texto) {
    QString limpio = texto;
    limpio.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    while (limpio.endsWith(QLatin1Char('\n')))
        limpio.chop(1);
    if (limpio.trimmed().isEmpty())
        return QStringLiteral("El portapapeles no tiene números");
    std::vector<Destino> destinos;
    const int columna = direccion % Pagina::registrosPorFila;
    int principio = direccion; // of the row
    for (const QString& fila : limpio.split(QLatin1Char('\n'))) {
        const QStringList campos = fila.split(QLatin1Char('\t'));
        if (columna + campos.size() > Pagina::registrosPorFila)
            return QStringLiteral("Lo que se pega no cabe: la cuadrícula tiene diez columnas");
        for (int i = 0; i < campos.size(); ++i) {
            if (campos[i].trimmed().isEmpty())
                continue;
            const auto valor = numeroLocal(campos[i]);
            if (!valor)
                return QStringLiteral("«%1» no es un número").arg(campos[i].trimmed().left(maxCitado));
            if (!cabeAMano(*valor))
                return QStringLiteral("%1: %2").arg(campos[i].trimmed().left(maxCitado),
                                                    QLatin1String(valorFueraDeRango));
            if (esclavos.valorSiExiste(esclavo, principio + i) == nullptr)
                return QStringLiteral("La MW %1 del PLC %2 no existe").arg(principio + i).arg(esclavo);
            destinos.push_back({principio + i, *valor});
        }
        principio += Pagina::registrosPorFila;
    }
    for (const Destino& destino : destinos)
        escribirAMano(esclavos, esclavo, destino.direccion, destino.valor);
    return {};
}
