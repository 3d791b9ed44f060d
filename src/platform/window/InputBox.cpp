#include "platform/window/InputBox.h"

#include <QInputDialog>

QString InputBox(QWidget* padre, const QString& pregunta, const QString& titulo, const QString& inicial) {
    QInputDialog caja(padre);
    caja.setWindowTitle(titulo);
    caja.setLabelText(pregunta);
    caja.setTextValue(inicial);
    caja.setOkButtonText(QStringLiteral("Aceptar"));
    caja.setCancelButtonText(QStringLiteral("Cancelar"));
    return caja.exec() == QDialog::Accepted ? caja.textValue() : QString();
}
