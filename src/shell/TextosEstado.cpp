#include "shell/TextosEstado.h"

#include "platform/window/Controles.h"

#include <QTime>

namespace {

constexpr long long segundosPorDia = 86400;

} // namespace

QString textoDuracion(Reloj::Instante::duration duracion) {
    const long long segundos = std::chrono::duration_cast<std::chrono::seconds>(duracion).count();
    const QString hora =
        QTime::fromMSecsSinceStartOfDay(static_cast<int>(segundos % segundosPorDia) * 1000).toString(u"HH:mm:ss");
    const long long dias = segundos / segundosPorDia;
    return dias == 0 ? hora : QStringLiteral("%1 d %2").arg(dias).arg(hora);
}

QString textoInstante(const Reloj& reloj, Reloj::Instante instante, const QString& formato) {
    const auto hace = std::chrono::duration_cast<Reloj::Hora::duration>(reloj.instante() - instante);
    return textoDeHora(reloj.hora() - hace, formato);
}
