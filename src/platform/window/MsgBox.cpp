#include "platform/window/MsgBox.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>

#include <map>
#include <vector>

namespace {

constexpr int mascaraBotones = 0xF;
constexpr int mascaraIcono = 0x70;
constexpr int mascaraPorDefecto = 0x300;

QMessageBox::Icon icono(int estilo) {
    switch (estilo & mascaraIcono) {
    case vbCritical:
        return QMessageBox::Critical;
    case vbQuestion:
        return QMessageBox::Question;
    case vbExclamation:
        return QMessageBox::Warning;
    case vbInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

std::vector<int> botonesDe(int estilo) {
    switch (estilo & mascaraBotones) {
    case vbOKCancel:
        return {vbOK, vbCancel};
    case vbAbortRetryIgnore:
        return {vbAbort, vbRetry, vbIgnore};
    case vbYesNoCancel:
        return {vbYes, vbNo, vbCancel};
    case vbYesNo:
        return {vbYes, vbNo};
    case vbRetryCancel:
        return {vbRetry, vbCancel};
    default:
        return {vbOK};
    }
}

QString textoDeBoton(int boton) {
    switch (boton) {
    case vbCancel:
        return QStringLiteral("Cancelar");
    case vbAbort:
        return QStringLiteral("&Anular");
    case vbRetry:
        return QStringLiteral("&Reintentar");
    case vbIgnore:
        return QStringLiteral("&Omitir");
    case vbYes:
        return QStringLiteral("&Sí");
    case vbNo:
        return QStringLiteral("&No");
    default:
        return QStringLiteral("Aceptar");
    }
}

using Botones = std::map<QAbstractButton*, int>;

Botones preparar(QMessageBox& caja, int estilo) {
    caja.setTextFormat(Qt::PlainText);
    const std::vector<int> botones = botonesDe(estilo);
    const std::size_t porDefecto = static_cast<std::size_t>(estilo & mascaraPorDefecto) >> 8U;
    Botones codigos;
    for (std::size_t i = 0; i < botones.size(); ++i) {
        // The same role for all keeps the order in which botonesDe() names them.
        QPushButton* const boton = caja.addButton(textoDeBoton(botones[i]), QMessageBox::ActionRole);
        codigos[boton] = botones[i];
        if (i == 0 || i == porDefecto)
            caja.setDefaultButton(boton);
        if (botones[i] == vbCancel || botones.size() == 1)
            caja.setEscapeButton(boton);
    }
    if ((estilo & vbSystemModal) != 0) {
        caja.setWindowModality(Qt::ApplicationModal);
        caja.setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    return codigos;
}

} // namespace

int MsgBox(QWidget* padre, const QString& texto, int estilo, const QString& titulo) {
    // Not on the stack: the parent may end while the box is open, and takes it along.
    const QPointer<QMessageBox> caja = new QMessageBox(icono(estilo), titulo, texto, QMessageBox::NoButton, padre);
    const auto alSalir = qScopeGuard([&caja] { delete caja; });
    const Botones codigos = preparar(*caja, estilo);
    caja->exec();
    const auto pulsado = caja ? codigos.find(caja->clickedButton()) : codigos.end();
    return pulsado != codigos.end() ? pulsado->second : vbCancel; // the program ends meanwhile
}

void avisarMsgBox(QWidget* padre, const QString& texto, int estilo, const QString& titulo) {
    auto* caja = new QMessageBox(icono(estilo), titulo, texto, QMessageBox::NoButton, padre);
    caja->setAttribute(Qt::WA_DeleteOnClose);
    caja->setWindowModality(Qt::ApplicationModal);
    preparar(*caja, estilo);
    caja->show();
}
