#include "registers/VistaPagina.h"

#include "platform/grid/MSFlexGrid.h"
#include "registers/MarcoControles.h"

#include <QCheckBox>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr qint64 entreRepintados = 17; // ms: at most 60 a second

} // namespace

VistaPagina::VistaPagina(const Esclavos& esclavos, Pagina& pagina, QWidget* txtTramas, QWidget* padre)
    : QWidget(padre), pagina_(pagina), fuente_(esclavos, pagina), cuadricula_(new MSFlexGrid(fuente_)) {
    nombrar(cuadricula_, "MSFlexGrid", QStringLiteral("Registros del esclavo %1"));
    nombrar(txtTramas, "txtTramas", QStringLiteral("Tramas del esclavo %1"));

    auto* abajo = new QWidget;
    auto* columna = new QVBoxLayout(abajo);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(crearMarco());
    columna->addWidget(txtTramas, 1);

    auto* divisor = new QSplitter(Qt::Vertical);
    divisor->setChildrenCollapsible(false);
    divisor->addWidget(cuadricula_);
    divisor->addWidget(abajo);
    divisor->setStretchFactor(0, 3);
    divisor->setStretchFactor(1, 2);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->addWidget(divisor);

    connect(cuadricula_, &MSFlexGrid::celdaActivada, this, [this](int fila, int col) {
        Q_EMIT celdaActivada(numero(), FuenteRegistros::direccion(fila, col), cuadricula_->TextMatrix(fila, col));
    });
    espera_.setSingleShot(true);
    connect(&espera_, &QTimer::timeout, this, &VistaPagina::ponerAlDia);
    pagina_.observar(this);
    pagina_.desmarcar();
}

VistaPagina::~VistaPagina() {
    pagina_.observar(nullptr);
    delete cuadricula_; // it asks its source until its end, so it goes before the members do
}

void VistaPagina::nombrar(QWidget* control, const char* nombre, const QString& nombreAccesible) const {
    control->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(nombre)).arg(numero()));
    control->setAccessibleName(nombreAccesible.arg(numero()));
}

QWidget* VistaPagina::crearMarco() {
    QCheckBox* recibir = crearCasilla("ChRecibir", QStringLiteral("Recibir Lecturas"), &Pagina::recibir);
    QCheckBox* responder = crearCasilla("ChResponder", QStringLiteral("Responder Lecturas"), &Pagina::responder);
    QCheckBox* recibirEscrituras =
        crearCasilla("ChRecibirEscrituras", QStringLiteral("Recibir Escrituras"), &Pagina::recibirEscrituras);
    QCheckBox* responderEscrituras =
        crearCasilla("ChResponderEscrituras", QStringLiteral("Responder Escrituras"), &Pagina::responderEscrituras);
    // Deliberate: only the boxes of the reads hang together. "Responder Escrituras" stays as it is.
    connect(recibir, &QCheckBox::toggled, responder, [responder](bool marcada) {
        if (!marcada)
            responder->setChecked(false);
    });
    auto* marco = new MarcoControles(QStringLiteral("Controles de #%1").arg(numero()),
                                     {recibir, responder, recibirEscrituras, responderEscrituras});
    nombrar(marco, "FrameControles", QStringLiteral("Controles de #%1"));
    return marco;
}

QCheckBox* VistaPagina::crearCasilla(const char* nombre, const QString& titulo, bool Pagina::*campo) {
    auto* casilla = new QCheckBox(titulo);
    nombrar(casilla, nombre, titulo + QStringLiteral(" del esclavo %1"));
    casilla->setChecked(pagina_.*campo);
    connect(casilla, &QCheckBox::toggled, this, [this, campo](bool marcada) { pagina_.*campo = marcada; });
    return casilla;
}

void VistaPagina::paginaCambiada(Pagina& /*pagina*/) {
    if (!isVisible())
        return; // stays marked until it is shown
    if (desdeUltima_.isValid())
        espera_.start(static_cast<int>(std::max<qint64>(0, entreRepintados - desdeUltima_.elapsed())));
    else
        espera_.start(0);
}

void VistaPagina::filasAgregadas(Pagina& /*pagina*/) {
    cuadricula_->agregarFilas();
}

void VistaPagina::ponerAlDia() {
    espera_.stop();
    pagina_.desmarcar();
    cuadricula_->refrescar();
    desdeUltima_.start();
}

void VistaPagina::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    if (pagina_.marcada())
        ponerAlDia();
}
