#include "platform/window/MsgBox.h"

#include <QMessageBox>
#include <QPushButton>

namespace {

QMessageBox::Icon icono(int estilo) {
    switch (estilo & 0x70) {
    case vbCritical:
        return QMessageBox::Critical;
    case vbExclamation:
        return QMessageBox::Warning;
    case vbInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

} // namespace

void MsgBox(QWidget* padre, const QString& texto, int estilo, const QString& titulo) {
    QMessageBox caja(icono(estilo), titulo, texto, QMessageBox::NoButton, padre);
    caja.setTextFormat(Qt::PlainText);
    caja.setDefaultButton(caja.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole));
    if ((estilo & vbSystemModal) != 0) {
        caja.setWindowModality(Qt::ApplicationModal);
        caja.setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    caja.exec();
}
