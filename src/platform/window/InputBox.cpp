#include "platform/window/InputBox.h"

#include <QInputDialog>
#include <QPointer>
#include <QScopeGuard>

QString InputBox(QWidget* padre, const QString& pregunta, const QString& titulo, const QString& inicial) {
    // Not on the stack: the parent may end while the box is open, and takes it along.
    const QPointer<QInputDialog> caja = new QInputDialog(padre);
    const auto alSalir = qScopeGuard([&caja] { delete caja; });
    caja->setWindowTitle(titulo);
    caja->setLabelText(pregunta);
    caja->setTextValue(inicial);
    caja->setOkButtonText(QStringLiteral("Aceptar"));
    caja->setCancelButtonText(QStringLiteral("Cancelar"));
    return caja->exec() == QDialog::Accepted && caja ? caja->textValue() : QString();
}
