#include "platform/window/BarraHallar.h"

#include "platform/window/VistaTexto.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QToolButton>

BarraHallar::BarraHallar(VistaTexto& vista)
    : QWidget(&vista), vista_(vista), patron_(new QLineEdit(this)), resultado_(new QLabel(this)) {
    setObjectName(QStringLiteral("barraHallar"));
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
    patron_->setObjectName(QStringLiteral("txtBuscar"));
    patron_->setAccessibleName(QStringLiteral("Buscar"));
    patron_->setPlaceholderText(QStringLiteral("Buscar"));
    patron_->setClearButtonEnabled(true);
    resultado_->setObjectName(QStringLiteral("lblBusqueda"));
    const auto boton = [this](const char* nombre, const QString& texto, const QString& ayuda) {
        auto* nuevo = new QToolButton(this);
        nuevo->setObjectName(QLatin1String(nombre));
        nuevo->setText(texto);
        nuevo->setToolTip(ayuda);
        nuevo->setAccessibleName(ayuda);
        nuevo->setAutoRaise(true);
        nuevo->setFocusPolicy(Qt::StrongFocus);
        return nuevo;
    };
    auto* anterior = boton("BtnAnterior", QStringLiteral("▲"), QStringLiteral("Anterior (Mayús+F3)"));
    auto* siguiente = boton("BtnSiguiente", QStringLiteral("▼"), QStringLiteral("Siguiente (F3)"));
    auto* cerrarBarra = boton("BtnCerrarBusqueda", QStringLiteral("✕"), QStringLiteral("Cerrar (Esc)"));
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(4, 2, 4, 2);
    fila->addWidget(patron_, 1);
    fila->addWidget(resultado_);
    fila->addWidget(anterior);
    fila->addWidget(siguiente);
    fila->addWidget(cerrarBarra);
    connect(patron_, &QLineEdit::textChanged, this, [this](const QString& texto) {
        vista_.resaltar(texto);
        resultado_->clear();
    });
    connect(anterior, &QToolButton::clicked, this, [this] { buscar(false); });
    connect(siguiente, &QToolButton::clicked, this, [this] { buscar(true); });
    connect(cerrarBarra, &QToolButton::clicked, this, &BarraHallar::cerrar);
    connect(&vista_, &VistaTexto::busquedaTerminada, this,
            [this](bool hallado) { resultado_->setText(hallado ? QString() : QStringLiteral("No se encuentra")); });
}

void BarraHallar::abrir(const QString& texto) {
    if (!texto.isEmpty() && !texto.contains(u'\n'))
        patron_->setText(texto);
    vista_.resaltar(patron_->text());
    colocar();
    show();
    patron_->setFocus();
    patron_->selectAll();
}

void BarraHallar::cerrar() {
    vista_.resaltar({});
    hide();
    vista_.setFocus();
}

void BarraHallar::colocar() {
    const QRect zona = vista_.viewport()->geometry();
    const int alto = sizeHint().height();
    setGeometry(zona.left(), zona.bottom() + 1 - alto, zona.width(), alto);
}

void BarraHallar::buscar(bool adelante) {
    resultado_->setText(QStringLiteral("Buscando…"));
    vista_.buscar(patron_->text(), adelante);
}

void BarraHallar::keyPressEvent(QKeyEvent* evento) {
    const bool atras = (evento->modifiers() & Qt::ShiftModifier) != 0;
    switch (evento->key()) {
    case Qt::Key_Escape:
        return cerrar();
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F3:
        return buscar(!atras);
    default:
        QWidget::keyPressEvent(evento);
    }
}
