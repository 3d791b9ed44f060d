#include "platform/window/InputBox.h"

#include "platform/window/Controles.h"
#include "platform/window/PaginaManual.h"

#include <QAbstractButton>
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

QInputDialog* crearPregunta(QWidget& ventana, const char* nombre, const QString& titulo, const QString& rotulo,
                            const char* paginaManual) {
    auto* dialogo = nombrado(new QInputDialog(&ventana), nombre);
    dialogo->setAttribute(Qt::WA_DeleteOnClose);
    dialogo->setWindowTitle(titulo);
    dialogo->setLabelText(rotulo);
    dialogo->setOkButtonText(QStringLiteral("&Aceptar"));
    dialogo->setCancelButtonText(QStringLiteral("&Cancelar"));
    const auto botones = dialogo->findChildren<QAbstractButton*>();
    for (auto* boton : botones)
        boton->setIcon(QIcon()); // as in all other windows
    ponerPaginaManual(*dialogo, paginaManual);
    return dialogo;
}
