#include "platform/window/LugarVentanas.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QStringList>
#include <QStyle>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

namespace {

// Longer than the window manager takes to put a new window in its place, which is no change of the operator's.
constexpr std::chrono::milliseconds pausa{700};
constexpr const char* lugarConocido = "lugarConocido"; // of a window: what is kept, or where it came up

bool esVentana(const QWidget& ventana) {
    const Qt::WindowType tipo = ventana.windowType();
    return ventana.isWindow() && (tipo == Qt::Window || tipo == Qt::Dialog);
}

QString textoDe(const QRect& lugar) {
    return QStringLiteral("%1,%2,%3,%4").arg(lugar.x()).arg(lugar.y()).arg(lugar.width()).arg(lugar.height());
}

// Nothing when the text is none of textoDe().
std::optional<QRect> lugarDe(const QString& texto) {
    const QStringList partes = texto.split(u',');
    if (partes.size() != 4)
        return std::nullopt;
    int numeros[4] = {};
    for (int i = 0; i < 4; ++i) {
        bool bien = false;
        numeros[i] = partes[i].trimmed().toInt(&bien);
        if (!bien || numeros[i] < -QWIDGETSIZE_MAX || numeros[i] > QWIDGETSIZE_MAX)
            return std::nullopt;
    }
    const QRect lugar(numeros[0], numeros[1], numeros[2], numeros[3]);
    return lugar.isValid() ? std::optional(lugar) : std::nullopt;
}

} // namespace

QRect dentroDe(const QRect& disponible, const QRect& lugar) {
    const QSize tamano = lugar.size().boundedTo(disponible.size());
    return {std::clamp(lugar.x(), disponible.x(), disponible.x() + disponible.width() - tamano.width()),
            std::clamp(lugar.y(), disponible.y(), disponible.y() + disponible.height() - tamano.height()),
            tamano.width(), tamano.height()};
}

LugarVentanas::LugarVentanas(Leer leer, Guardar guardar) : leer_(std::move(leer)), guardar_(std::move(guardar)) {
    reloj_.setSingleShot(true);
    reloj_.setInterval(pausa);
    connect(&reloj_, &QTimer::timeout, this, &LugarVentanas::guardarCambiadas);
}

bool LugarVentanas::eventFilter(QObject* objeto, QEvent* evento) {
    const QEvent::Type tipo = evento->type();
    if ((tipo != QEvent::Show && tipo != QEvent::Move && tipo != QEvent::Resize) || !objeto->isWidgetType())
        return false;
    auto& ventana = *static_cast<QWidget*>(objeto);
    if (!esVentana(ventana))
        return false;
    if (tipo == QEvent::Show && !evento->spontaneous())
        colocar(ventana);
    reloj_.start();
    return false;
}

void LugarVentanas::colocar(QWidget& ventana) const {
    const auto guardado =
        ventana.objectName().isEmpty() ? std::optional<QRect>() : lugarDe(leer_(ventana.objectName()));
    const QRect lugar = guardado.value_or(ventana.geometry());
    const QScreen* const enSuLugar = guardado ? QGuiApplication::screenAt(lugar.center()) : nullptr;
    const QScreen* const pantalla = enSuLugar != nullptr ? enSuLugar : ventana.screen();
    // The frame that the window manager adds is not known before the window is there; the style's stands for it.
    const int titulo = ventana.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &ventana);
    const int borde = ventana.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &ventana);
    const QRect disponible = pantalla->availableGeometry().adjusted(borde, titulo, -borde, -borde);
    const QRect corregido = dentroDe(disponible, lugar);
    if (guardado)
        ventana.setGeometry(corregido);
    else if (corregido.size() != lugar.size())
        ventana.resize(corregido.size());
    ventana.setProperty(lugarConocido, QVariant());
}

void LugarVentanas::guardarCambiadas() {
    const auto ventanas = QApplication::topLevelWidgets();
    for (QWidget* const ventana : ventanas) {
        if (!ventana->isVisible() || !esVentana(*ventana) || ventana->objectName().isEmpty() ||
            ventana->isMinimized() || ventana->isMaximized() || ventana->isFullScreen())
            continue;
        const QRect antes = ventana->property(lugarConocido).toRect();
        if (antes == ventana->geometry())
            continue;
        ventana->setProperty(lugarConocido, ventana->geometry());
        if (antes.isValid())
            guardar_(ventana->objectName(), textoDe(ventana->geometry()));
    }
}
