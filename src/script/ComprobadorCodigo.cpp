#include "script/ComprobadorCodigo.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace {
constexpr int pausaPorTrabajo = 10; // a tenth of the time at most goes into compiling
} // namespace

ComprobadorCodigo::ComprobadorCodigo(std::function<QString()> texto, std::function<qsizetype()> cuantos, QObject* padre)
    : QObject(padre), texto_(std::move(texto)), cuantos_(std::move(cuantos)) {
    reloj_.setSingleShot(true);
    connect(&reloj_, &QTimer::timeout, this, &ComprobadorCodigo::comprobar);
}

void ComprobadorCodigo::pedir() {
    if (cuantos_() <= maximo) {
        reloj_.start(std::max(pausa, std::chrono::duration_cast<std::chrono::milliseconds>(ultima_ * pausaPorTrabajo)));
    } else {
        reloj_.stop();
        Q_EMIT demasiadoLargo();
    }
}

void ComprobadorCodigo::comprobar() {
    reloj_.stop();
    const QString texto = texto_();
    QElapsedTimer reloj;
    reloj.start();
    motor_.check(
        std::u16string_view(reinterpret_cast<const char16_t*>(texto.utf16()), static_cast<std::size_t>(texto.size())));
    ultima_ = std::chrono::nanoseconds(reloj.nsecsElapsed());
    Q_EMIT comprobado(motor_.error());
}
