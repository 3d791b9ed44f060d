#include "platform/window/VistaTexto.h"

#include "platform/window/BarraMonitor.h"

#include <QFontDatabase>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>

using namespace std::chrono_literals;

namespace {

constexpr auto entreTurnos = 30ms;
constexpr int margen = 4; // pixels round the text
constexpr int porPasoDeRueda = 120;

} // namespace

VistaTexto::VistaTexto(QWidget* parent, TextoBytes::CrLf crLf) : QPlainTextEdit(parent), texto_(crLf) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setLineWrapMode(NoWrap); // the document is for reading; rows are broken by this class
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    letra_ = LetraFija(font());
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setCursor(Qt::IBeamCursor);
    turno_.setSingleShot(true);
    connect(&turno_, &QTimer::timeout, this, &VistaTexto::refrescar);
    espejo_.setSingleShot(true);
    connect(&espejo_, &QTimer::timeout, this, &VistaTexto::reflejar);
    connect(&busquedaTurno_, &QTimer::timeout, this, &VistaTexto::seguirBuscando);
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, &VistaTexto::alAccionarBarra);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &VistaTexto::alMoverCursorDelDocumento);
    connect(this, &QPlainTextEdit::selectionChanged, this, &VistaTexto::alMoverCursorDelDocumento);
}

VistaTexto::~VistaTexto() = default;

void VistaTexto::agregar(std::string_view ansi) {
    if (ansi.empty())
        return;
    texto_.agregar(ansi);
    cambiado();
}

void VistaTexto::agregarBloque(std::span<const std::uint8_t> bloque) {
    texto_.agregarBloque(bloque);
    cambiado();
}

void VistaTexto::cambiado() {
    if (pausada())
        return;
    if (!turno_.isActive())
        turno_.start(entreTurnos);
}

void VistaTexto::borrar() {
    if (pausada())
        congelado_->borrar();
    empezarDeNuevo();
    ponerAlDia();
}

void VistaTexto::empezarDeNuevo() {
    texto_.borrar();
    if (pausada() && !congelado_->empty())
        return;
    arriba_ = fondo_ = ancla_ = posicion_ = 0;
    sigue_ = true;
    espejoEntero_ = false;
    porBuscar_ = 0;
    cambiado();
}

void VistaTexto::ponerAlDia() {
    refrescar();
    reflejarTodo();
}

QString VistaTexto::texto() const {
    return QString::fromStdU16String(bytes().texto(0, bytes().size()));
}

void VistaTexto::pausar(bool pausa) {
    if (pausa == pausada())
        return;
    refrescar();
    if (pausa)
        congelado_ = texto_;
    else
        congelado_.reset();
    arriba_ = std::min(arriba_, bytes().size());
    ancla_ = std::min(ancla_, bytes().size());
    posicion_ = std::min(posicion_, bytes().size());
    espejoEntero_ = false;
    refrescar();
    Q_EMIT pausaCambiada(pausa);
}

QString VistaTexto::rotuloDeEstado() const {
    return pausada() ? QStringLiteral("EN PAUSA") : QString();
}

int VistaTexto::columnas() const {
    return static_cast<int>((viewport()->width() - 2 * margen) / letra_.ancho());
}

int VistaTexto::filasVisibles() const {
    return std::max(1, (viewport()->height() - 2 * margen) / fontMetrics().height());
}

// Takes in what was appended.
void VistaTexto::refrescar() {
    turno_.stop();
    fondo_ = medirFondo();
    if (sigue_)
        arriba_ = fondo_;
    ponerBarra();
    viewport()->update();
    if (!espejo_.isActive())
        espejo_.start(espera_);
}

// First byte of the first row when the last one stands at the bottom.
std::size_t VistaTexto::medirFondo() const {
    const FilasTexto todas = filas();
    return todas.porEncima(todas.de(bytes().size()), filasVisibles() - 1).desde;
}

std::size_t VistaTexto::finDePantalla() const {
    const FilasTexto todas = filas();
    FilaTexto fila = todas.desde(arriba_);
    for (int n = filasVisibles(); n > 0 && !todas.esUltima(fila); --n)
        fila = todas.desde(fila.hasta);
    return fila.hasta;
}

// The bar counts bytes: the rows of a large text are never counted. Beyond two thousand million it stays at its end.
void VistaTexto::ponerBarra() {
    static constexpr std::size_t tope = std::numeric_limits<int>::max();
    const auto enBarra = [](std::size_t posicion) { return static_cast<int>(std::min(posicion, tope)); };
    QScrollBar& barra = *verticalScrollBar();
    const bool antes = std::exchange(moviendoBarra_, true);
    barra.setRange(0, enBarra(fondo_));
    barra.setPageStep(std::max(1, enBarra(bytes().size() - fondo_)));
    barra.setSingleStep(std::max(1, columnas()));
    barra.setValue(enBarra(arriba_));
    moviendoBarra_ = antes;
}

void VistaTexto::ponerArriba(std::size_t posicion) {
    fondo_ = medirFondo();
    const bool seguia = sigue_;
    sigue_ = posicion >= fondo_;
    arriba_ = sigue_ ? fondo_ : filas().de(posicion).desde;
    if (!moviendoBarra_)
        ponerBarra();
    viewport()->update();
    if (!espejoEntero_ && !espejo_.isActive())
        espejo_.start(espera_);
    if (sigue_ && !seguia)
        soltada();
}

void VistaTexto::desplazar(int cuantas) {
    const FilasTexto todas = filas();
    FilaTexto fila = todas.porEncima(todas.desde(arriba_), -cuantas);
    for (; cuantas > 0 && !todas.esUltima(fila); --cuantas)
        fila = todas.desde(fila.hasta);
    ponerArriba(fila.desde);
}

void VistaTexto::moverAlFinal() {
    ancla_ = posicion_ = bytes().size();
    sigue_ = true;
}

// Steps of the bar are rows and pages, whatever they hold.
void VistaTexto::alAccionarBarra(int accion) {
    switch (accion) {
    case QAbstractSlider::SliderSingleStepAdd:
        return desplazar(1);
    case QAbstractSlider::SliderSingleStepSub:
        return desplazar(-1);
    case QAbstractSlider::SliderPageStepAdd:
        return desplazar(filasVisibles() - 1);
    case QAbstractSlider::SliderPageStepSub:
        return desplazar(1 - filasVisibles());
    default:
        return;
    }
}

// The base class's own scrolling is for its document, which is not what is painted.
void VistaTexto::scrollContentsBy(int, int) {
    if (moviendoBarra_ || sincronizando_)
        return;
    moviendoBarra_ = true; // the bar stays where it was dragged to
    ponerArriba(static_cast<std::size_t>(std::max(0, verticalScrollBar()->value())));
    moviendoBarra_ = false;
}

void VistaTexto::wheelEvent(QWheelEvent* evento) {
    const int delta = evento->angleDelta().y();
    if (delta != 0)
        desplazar(-static_cast<int>(std::lround(3.0 * delta / porPasoDeRueda)));
    evento->accept();
}

void VistaTexto::resizeEvent(QResizeEvent* evento) {
    moviendoBarra_ = true; // by the base class, for its document
    QPlainTextEdit::resizeEvent(evento);
    moviendoBarra_ = false;
    arriba_ = filas().de(std::min(arriba_, bytes().size())).desde;
    colocarBarras();
    refrescar();
}

void VistaTexto::changeEvent(QEvent* evento) {
    moviendoBarra_ = true;
    QPlainTextEdit::changeEvent(evento);
    moviendoBarra_ = false;
    if (evento->type() != QEvent::FontChange)
        return;
    letra_ = LetraFija(font());
    refrescar();
}

void VistaTexto::showEvent(QShowEvent* evento) {
    if (botones_ == nullptr) {
        heredar(*(botones_ = new BarraMonitor(*this)));
        botones_->show();
        colocarBarras();
    }
    moviendoBarra_ = true; // by the base class, for its document
    QPlainTextEdit::showEvent(evento);
    moviendoBarra_ = false;
    ponerAlDia();
}
