#include "platform/window/BarraBusqueda.h"

#include "platform/window/Controles.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

BarraBusqueda::BarraBusqueda(DondeBuscar& donde, QWidget* padre, bool puedeReemplazar)
    : QWidget(padre), donde_(donde), txtBuscar_(campo("txtBuscar", QStringLiteral("Buscar"))),
      chMayusculas_(
          boton("chMayusculas", QStringLiteral("Aa"), QStringLiteral("Distinguir mayúsculas y minúsculas (Alt+M)"))),
      mensaje_(nombrado(new QLabel(this), "lblBusqueda")) {
    setObjectName(QStringLiteral("barraBusqueda"));
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
    chMayusculas_->setCheckable(true);
    chMayusculas_->setShortcut(Qt::ALT | Qt::Key_M);
    auto* anterior = boton("btnAnterior", QStringLiteral("▲"), QStringLiteral("Anterior (Mayús+F3)"));
    auto* siguiente = boton("btnSiguiente", QStringLiteral("▼"), QStringLiteral("Siguiente (F3)"));
    auto* cerrarla = boton("btnCerrarBusqueda", QStringLiteral("✕"), QStringLiteral("Cerrar la búsqueda (Esc)"));
    auto* fila = new QHBoxLayout;
    fila->addWidget(txtBuscar_, 1);
    for (QWidget* const control :
         {static_cast<QWidget*>(mensaje_), static_cast<QWidget*>(chMayusculas_), static_cast<QWidget*>(anterior),
          static_cast<QWidget*>(siguiente), static_cast<QWidget*>(cerrarla)})
        fila->addWidget(control);
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(4, 2, 4, 2);
    columna->setSpacing(2);
    columna->addLayout(fila);
    if (puedeReemplazar)
        columna->addWidget(crearFilaDeReemplazo());

    connect(anterior, &QToolButton::clicked, this, [this] { buscar(false); });
    connect(siguiente, &QToolButton::clicked, this, [this] { buscar(true); });
    connect(cerrarla, &QToolButton::clicked, this, &BarraBusqueda::cerrar);
    connect(txtBuscar_, &QLineEdit::textChanged, this, &BarraBusqueda::resaltar);
    connect(chMayusculas_, &QToolButton::toggled, this, &BarraBusqueda::resaltar);
    hide();
}

QLineEdit* BarraBusqueda::campo(const char* nombre, const QString& rotulo) {
    auto* nuevo = nombrado(new QLineEdit(this), nombre, rotulo);
    nuevo->setPlaceholderText(rotulo);
    nuevo->setClearButtonEnabled(true);
    return nuevo;
}

QToolButton* BarraBusqueda::boton(const char* nombre, const QString& texto, const QString& ayuda) {
    auto* nuevo = nombrado(new QToolButton(this), nombre, ayuda);
    nuevo->setText(texto);
    nuevo->setToolTip(ayuda);
    nuevo->setAutoRaise(true);
    nuevo->setFocusPolicy(Qt::StrongFocus);
    return nuevo;
}

QWidget* BarraBusqueda::crearFilaDeReemplazo() {
    filaReemplazo_ = new QWidget(this);
    txtReemplazar_ = campo("txtReemplazar", QStringLiteral("Reemplazar por"));
    auto* uno =
        boton("btnReemplazar", QStringLiteral("Reemplazar"), QStringLiteral("Reemplaza este y busca otro (Intro)"));
    auto* todos = boton("btnReemplazarTodo", QStringLiteral("Reemplazar todo"),
                        QStringLiteral("Reemplaza todos; Ctrl+Z lo deshace de una vez"));
    auto* fila = new QHBoxLayout(filaReemplazo_);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addWidget(txtReemplazar_, 1);
    for (QToolButton* const boton : {uno, todos}) {
        boton->setAutoRaise(false);
        boton->setAccessibleName(boton->text());
        fila->addWidget(boton);
    }
    connect(uno, &QToolButton::clicked, this, &BarraBusqueda::reemplazar);
    connect(todos, &QToolButton::clicked, this, &BarraBusqueda::reemplazarTodo);
    return filaReemplazo_;
}

void BarraBusqueda::abrir(bool conReemplazo) {
    if (const QString elegido = donde_.seleccionParaBuscar(); !elegido.isEmpty())
        txtBuscar_->setText(elegido);
    if (filaReemplazo_ != nullptr)
        filaReemplazo_->setVisible(conReemplazo);
    mensaje_->clear();
    donde_.mostrarBarra(true);
    resaltar();
    txtBuscar_->setFocus();
    txtBuscar_->selectAll();
}

void BarraBusqueda::cerrar() {
    donde_.resaltar({}, caja());
    donde_.mostrarBarra(false);
}

Qt::CaseSensitivity BarraBusqueda::caja() const {
    return chMayusculas_->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

void BarraBusqueda::resaltar() {
    mensaje_->clear();
    donde_.resaltar(txtBuscar_->text(), caja());
}

void BarraBusqueda::buscar(bool adelante) {
    if (txtBuscar_->text().isEmpty())
        return abrir(filaReemplazo_ != nullptr && filaReemplazo_->isVisible());
    decir(QStringLiteral("Buscando…"));
    donde_.buscar(txtBuscar_->text(), caja(), adelante);
}

void BarraBusqueda::mostrarResultado(Resultado resultado) {
    switch (resultado) {
    case Resultado::hallado:
        return decir({});
    case Resultado::haLlegadoAlFinal:
        return decir(QStringLiteral("Desde el principio"));
    case Resultado::haLlegadoAlPrincipio:
        return decir(QStringLiteral("Desde el final"));
    case Resultado::noHallado:
        return decir(QStringLiteral("No se encuentra"));
    }
}

void BarraBusqueda::reemplazar() {
    if (txtBuscar_->text().isEmpty())
        return;
    donde_.reemplazar(txtBuscar_->text(), txtReemplazar_->text(), caja());
    buscar(true);
}

void BarraBusqueda::reemplazarTodo() {
    if (txtBuscar_->text().isEmpty())
        return;
    const int veces = donde_.reemplazarTodo(txtBuscar_->text(), txtReemplazar_->text(), caja());
    decir(veces == 0   ? QStringLiteral("No se encuentra")
          : veces == 1 ? QStringLiteral("1 reemplazo")
                       : QStringLiteral("%1 reemplazos").arg(veces));
}

void BarraBusqueda::decir(const QString& mensaje) {
    mensaje_->setText(mensaje);
}

void BarraBusqueda::keyPressEvent(QKeyEvent* evento) {
    const bool atras = evento->modifiers().testFlag(Qt::ShiftModifier);
    switch (evento->key()) {
    case Qt::Key_Escape:
        return cerrar();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return txtReemplazar_ != nullptr && txtReemplazar_->hasFocus() ? reemplazar() : buscar(!atras);
    case Qt::Key_F3:
        return buscar(!atras);
    default:
        QWidget::keyPressEvent(evento);
    }
}
