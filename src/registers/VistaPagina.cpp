#include "registers/VistaPagina.h"

#include "platform/grid/MSFlexGrid.h"
#include "platform/window/Controles.h"
#include "platform/window/PaginaManual.h"
#include "registers/MarcoControles.h"

#include <QCheckBox>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int entreRepintados = 17; // ms: at most 60 a second
constexpr int entreMatices = 100;   // ms between two shades of a colour that fades out
constexpr int matices = Anotaciones::tiempoResaltado / entreMatices + 1; // the last shade is none

} // namespace

VistaPagina::VistaPagina(const Esclavos& esclavos, Pagina& pagina, QWidget* txtTramas, QWidget* padre,
                         const Anotaciones* anotaciones)
    : QWidget(padre), pagina_(pagina), fuente_(esclavos, pagina, anotaciones), cuadricula_(new MSFlexGrid(fuente_)),
      anotaciones_(anotaciones) {
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
        Q_EMIT celdaActivada(numero(), FuenteRegistros::direccion(fila, col), fuente_.textoDecimal(fila, col));
    });
    connect(cuadricula_, &MSFlexGrid::pegado, this, [this](int fila, int col, const QString& texto) {
        Q_EMIT pegado(numero(), FuenteRegistros::direccion(fila, col), texto);
    });
    connect(cuadricula_, &MSFlexGrid::menuPedido, this, &VistaPagina::menuPedido);
    desvanecido_.setInterval(entreMatices);
    connect(&desvanecido_, &QTimer::timeout, this, &VistaPagina::desvanecer);
    espera_.setSingleShot(true);
    connect(&espera_, &QTimer::timeout, this, &VistaPagina::seguirPagina);
    pagina_.observar(this);
    pagina_.desmarcar();
}

VistaPagina::~VistaPagina() {
    pagina_.observar(nullptr);
    delete cuadricula_; // it asks its source until its end, so it goes before the members do
}

void VistaPagina::nombrar(QWidget* control, const char* nombre, const QString& nombreAccesible) const {
    nombrado(control, nombreDeElemento(nombre, numero()), nombreAccesible.arg(numero()));
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
    ponerPaginaManual(*marco, "cuadricula.md#las-casillas-de-un-esclavo");
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
    if (isVisible() && !espera_.isActive())
        espera_.start(0);
}

void VistaPagina::filasAgregadas(Pagina& /*pagina*/) {
    cuadricula_->agregarFilas();
}

// A hidden page stays marked until it is shown.
void VistaPagina::seguirPagina() {
    if (isVisible() && pagina_.marcada())
        ponerAlDia();
}

void VistaPagina::ponerAlDia() {
    pagina_.desmarcar();
    cuadricula_->refrescar();
    espera_.start(entreRepintados);
    matices_ = 0;
    if (anotaciones_ != nullptr && anotaciones_->resaltarCambios && isVisible() && !desvanecido_.isActive())
        desvanecido_.start();
}

void VistaPagina::desvanecer() {
    if (!isVisible() || ++matices_ > matices)
        desvanecido_.stop();
    cuadricula_->refrescar();
}

void VistaPagina::ponerFormato(FormatoRegistro formato) {
    fuente_.ponerFormato(formato);
    cuadricula_->medirTextos();
}

void VistaPagina::irA(int direccion) {
    cuadricula_->irA(direccion / Pagina::registrosPorFila + 1, direccion % Pagina::registrosPorFila + 1);
    enfocar();
}

void VistaPagina::enfocar() {
    cuadricula_->setFocus();
}

void VistaPagina::escribirAMano() {
    cuadricula_->activar();
}

void VistaPagina::copiar() const {
    cuadricula_->copiar();
}

void VistaPagina::pegar() {
    cuadricula_->pegar();
}

std::vector<int> VistaPagina::seleccion() const {
    std::vector<int> direcciones;
    for (const auto& [fila, columna] : cuadricula_->celdasSeleccionadas())
        if (!fuente_.textoDecimal(fila, columna).isEmpty())
            direcciones.push_back(FuenteRegistros::direccion(fila, columna));
    return direcciones;
}

void VistaPagina::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    if (pagina_.marcada())
        ponerAlDia();
}
