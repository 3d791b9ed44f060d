#include "script/BarraScript.h"

#include "platform/window/Controles.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>

#include <utility>

namespace {

constexpr int margen = 6;

// What works or acts on behalf of somebody; painting, layout and what windows need to live are not among it.
bool esTrabajo(QEvent::Type tipo) {
    switch (tipo) {
    case QEvent::Timer:
    case QEvent::SockAct:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::TabletMove:
    case QEvent::InputMethod:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

} // namespace

BarraScript::BarraScript(QWidget& ventana, std::function<void()> parar)
    : QFrame(&ventana), parar_(std::move(parar)), texto_(nombrado(new QLabel, "lblScriptLleva")) {
    setObjectName(QStringLiteral("BarraScript"));
    setAccessibleName(QStringLiteral("Script en marcha"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    auto* boton = crearBoton(this, "BtnPararScript", QStringLiteral("&Parar"));
    connect(boton, &QPushButton::clicked, this, [this] { parar_(); });
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(2 * margen, margen, 2 * margen, margen);
    fila->addWidget(texto_);
    fila->addWidget(boton);
    hide();
}

void BarraScript::atender(std::chrono::seconds desdeElComienzo) {
    texto_->setText(QStringLiteral("El script lleva %1 s —").arg(desdeElComienzo.count()));
    colocar();
    show();
    raise();
    QCoreApplication::instance()->installEventFilter(this);
    const auto salida = qScopeGuard([this] { QCoreApplication::instance()->removeEventFilter(this); });
    QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
}

void BarraScript::colocar() {
    adjustSize();
    move((parentWidget()->width() - width()) / 2, margen);
}

bool BarraScript::esSuya(QObject* objeto) const {
    for (const QObject* o = objeto; o != nullptr; o = o->parent())
        if (o == this)
            return true;
    return false;
}

bool BarraScript::eventFilter(QObject* objeto, QEvent* evento) {
    // A native window hands its input on to the control that it is meant for: that is where it is looked at.
    if (objeto->isWindowType() || esSuya(objeto))
        return false;
    if (evento->type() == QEvent::Close) {
        evento->ignore();
        parar_();
        QMetaObject::invokeMethod(objeto, "close", Qt::QueuedConnection);
        return true;
    }
    return esTrabajo(evento->type());
}
