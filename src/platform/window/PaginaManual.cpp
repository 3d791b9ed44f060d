#include "platform/window/PaginaManual.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QVariant>
#include <QWidget>

namespace {
constexpr const char* propiedad = "paginaManual";
}

void ponerPaginaManual(QWidget& control, const char* pagina) {
    control.setProperty(propiedad, QString::fromUtf8(pagina));
}

QString paginaManualDe(const QWidget* control) {
    for (; control != nullptr; control = control->parentWidget())
        if (QString pagina = control->property(propiedad).toString(); !pagina.isEmpty())
            return pagina;
    return {};
}

void pedirManual(QWidget& control) {
    QKeyEvent tecla(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &tecla);
}
