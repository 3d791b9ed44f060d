#include "shell/TextosEstado.h"

#include <QDateTime>

namespace {

constexpr long long segundosPorDia = 86400;

} // namespace

QString textoDuracion(std::chrono::steady_clock::duration duracion) {
    const long long segundos = std::chrono::duration_cast<std::chrono::seconds>(duracion).count();
    const QString hora =
        QTime::fromMSecsSinceStartOfDay(static_cast<int>(segundos % segundosPorDia) * 1000).toString(u"HH:mm:ss");
    const long long dias = segundos / segundosPorDia;
    return dias == 0 ? hora : QStringLiteral("%1 d %2").arg(dias).arg(hora);
}

QString textoInstante(std::chrono::steady_clock::time_point instante, const QString& formato) {
    const auto hace = std::chrono::steady_clock::now() - instante;
    return QDateTime::currentDateTime()
        .addMSecs(-std::chrono::duration_cast<std::chrono::milliseconds>(hace).count())
        .toString(formato);
}
