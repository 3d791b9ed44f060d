#include "script/ComprobadorCodigo.h"

#include <algorithm>
#include <utility>

namespace {
constexpr int pausaPorTrabajo = 10; // a tenth of the time at most goes into compiling
} // namespace

ComprobadorCodigo::ComprobadorCodigo(std::function<QString()> texto, std::function<qsizetype()> cuantos,
                                     const Reloj& reloj, QObject* padre)
    : QObject(padre), texto_(std::move(texto)), cuantos_(std::move(cuantos)), tiempo_(reloj) {
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
    const Reloj::Instante comienzo = tiempo_.instante();
    motor_.check(
        std::u16string_view(reinterpret_cast<const char16_t*>(texto.utf16()), static_cast<std::size_t>(texto.size())));
    ultima_ = tiempo_.instante() - comienzo;
    Q_EMIT comprobado(motor_.error());
}
