#include "platform/window/DialogoGuardar.h"

#include <QFileDialog>
#include <QFileInfo>

QFileDialog* crearDialogoGuardar(QWidget& ventana, const QString& titulo, const QString& filtro,
                                 const QString& nombre) {
    auto* dialogo = new QFileDialog(&ventana, titulo, QString(), filtro);
    dialogo->setAttribute(Qt::WA_DeleteOnClose);
    dialogo->setOption(QFileDialog::DontUseNativeDialog); // in Spanish on every desktop
    dialogo->setAcceptMode(QFileDialog::AcceptSave);
    dialogo->setDefaultSuffix(QFileInfo(nombre).suffix());
    dialogo->selectFile(nombre);
    if (auto* lugares = dialogo->findChild<QWidget*>(QStringLiteral("sidebar"))) // "Equipo" whole
        lugares->setMinimumWidth(lugares->fontMetrics().averageCharWidth() * 16);
    return dialogo;
}
