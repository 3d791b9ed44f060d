#include "shell/TeclaManual.h"

#include "platform/window/PaginaManual.h"
#include "shell/FrmManual.h"

#include <QApplication>
#include <QKeyEvent>

TeclaManual::TeclaManual(QWidget& principal) : principal_(principal) {
    QApplication::instance()->installEventFilter(this);
}

// While a box waits for its answer no other window takes input, unless it is a child of the box: the manual is made
// anew for it, and goes with it.
FrmManual& TeclaManual::manual() {
    QWidget* const caja = QApplication::activeModalWidget();
    QWidget* const padre = caja != nullptr ? caja : &principal_;
    if (!manual_ || manual_->parentWidget() != padre) {
        if (manual_)
            manual_->deleteLater();
        manual_ = new FrmManual(padre);
        manual_->setWindowIcon(principal_.windowIcon());
    }
    return *manual_;
}

void TeclaManual::abrir(const QString& pagina) {
    FrmManual& ventana = manual();
    ventana.abrir(pagina);
    ventana.show();
    ventana.raise();
    ventana.activateWindow();
}

bool TeclaManual::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress || !objeto->isWidgetType())
        return false;
    const auto& tecla = *static_cast<QKeyEvent*>(evento);
    if (tecla.key() != Qt::Key_F1 || tecla.modifiers() != Qt::NoModifier)
        return false;
    if (QWidget* const menu = QApplication::activePopupWidget())
        menu->close(); // it would keep every key for itself
    abrir(paginaManualDe(static_cast<QWidget*>(objeto)));
    return true;
}
