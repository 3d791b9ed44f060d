#include "registers/VistaGrafica.h"

#include "registers/NumeroLocal.h"
#include "registers/TrazosGrafica.h"

#include <QDateTime>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr std::int64_t menorPausa = 50; // ms between two repaints
constexpr std::int64_t mayorPausa = 250;
constexpr int divisiones = 5; // of either axis, about
constexpr int margenAbajo = 22;
constexpr int margenDerecho = 12;

} // namespace

VistaGrafica::VistaGrafica(const std::vector<LineaGrafica>& lineas, std::function<std::int64_t()> ahora, QWidget* padre)
    : QWidget(padre), lineas_(lineas), ahora_(std::move(ahora)) {
    setObjectName(QStringLiteral("vistaGrafica"));
    setAccessibleName(QStringLiteral("Gráfica de registros"));
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    ponerVentana(ventana_);
    connect(&repintado_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
}

QColor VistaGrafica::color(std::size_t linea, bool fondoOscuro) {
    const Trazo& trazo = trazos[linea % trazos.size()];
    return QColor::fromRgb(fondoOscuro ? trazo.oscuro : trazo.claro);
}

bool VistaGrafica::fondoOscuro() const {
    return palette().color(QPalette::Base).lightness() < 128;
}

void VistaGrafica::ponerVentana(std::int64_t milisegundos) {
    ventana_ = std::clamp<std::int64_t>(milisegundos, 10'000, HistoriaRegistro::maxEdad);
    ajustarRitmo();
    update();
}

// As often as the drawing moves on by a pixel, within what the eye and the legend need.
void VistaGrafica::ajustarRitmo() {
    const std::int64_t porColumna = ventana_ / std::max(1, marco().width());
    repintado_.setInterval(static_cast<int>(std::clamp(porColumna, menorPausa, mayorPausa)));
}

void VistaGrafica::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    ajustarRitmo();
}

void VistaGrafica::pausar(bool pausa) {
    parada_ = pausa ? std::optional(ahora_()) : std::nullopt;
    update();
}

void VistaGrafica::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    repintado_.start();
}

void VistaGrafica::hideEvent(QHideEvent* evento) {
    QWidget::hideEvent(evento);
    repintado_.stop();
}

QRect VistaGrafica::marco() const {
    const QFontMetrics letra = fontMetrics();
    const int izquierda = letra.horizontalAdvance(QStringLiteral("-00000,0")) + 10;
    const int filas = (static_cast<int>(lineas_.size()) + 1) / 2;
    const int arriba = filas * (letra.height() + 2) + 8;
    return rect().adjusted(izquierda, arriba, -margenDerecho, -margenAbajo);
}

VistaGrafica::Escala VistaGrafica::escala(std::int64_t desde, std::int64_t hasta) const {
    std::optional<Escala> todas;
    for (const LineaGrafica& linea : lineas_) {
        const auto hallados = linea.historia.extremos(desde, hasta + 1);
        if (!hallados)
            continue;
        todas = todas ? Escala{std::min(todas->minimo, hallados->minimo), std::max(todas->maximo, hallados->maximo), 1}
                      : Escala{hallados->minimo, hallados->maximo, 1};
    }
    return redonda(todas.value_or(Escala{0, 1, 1}));
}

// A scale that holds those values and whose marks are round numbers: 1, 2 or 5 and zeros apart.
VistaGrafica::Escala VistaGrafica::redonda(const Escala& valores) {
    const double tramo = std::max(valores.maximo - valores.minimo, 1e-9);
    const double crudo = (valores.maximo > valores.minimo ? tramo : 2) / divisiones;
    const double potencia = std::pow(10, std::floor(std::log10(crudo)));
    const double cifra = crudo / potencia;
    const double paso = (cifra <= 1 ? 1 : cifra <= 2 ? 2 : cifra <= 5 ? 5 : 10) * potencia;
    Escala e{std::floor(valores.minimo / paso) * paso, std::ceil(valores.maximo / paso) * paso, paso};
    if (e.minimo == valores.minimo) // so that no line lies on the edge
        e.minimo -= paso;
    if (e.maximo == valores.maximo)
        e.maximo += paso;
    return e;
}

double VistaGrafica::y(double valor, const Escala& escala, const QRect& marco) const {
    return marco.bottom() - (valor - escala.minimo) / (escala.maximo - escala.minimo) * marco.height();
}

std::int64_t VistaGrafica::tiempoEn(int x) const {
    const QRect m = marco();
    const double parte = std::clamp((x - m.left()) / static_cast<double>(std::max(1, m.width())), 0.0, 1.0);
    return fin() - ventana_ + static_cast<std::int64_t>(parte * static_cast<double>(ventana_));
}

void VistaGrafica::paintEvent(QPaintEvent* /*evento*/) {
    QPainter pintor(this);
    const QRect m = marco();
    if (m.width() < 20 || m.height() < 20)
        return;
    const Escala e = escala(fin() - ventana_, fin());
    pintarEjes(pintor, m, e);
    pintor.setClipRect(m.adjusted(0, -2, 1, 2));
    for (std::size_t i = 0; i < lineas_.size(); ++i)
        pintarLinea(pintor, m, e, i);
    pintor.setClipping(false);
    pintarCursor(pintor, m);
    pintarLeyenda(pintor, m);
    if (hasFocus()) {
        pintor.setPen(palette().color(QPalette::Highlight));
        pintor.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void VistaGrafica::pintarEjes(QPainter& pintor, const QRect& marco, const Escala& escala) const {
    QColor reja = palette().color(QPalette::Text);
    reja.setAlphaF(0.18F);
    const QColor letra = palette().color(QPalette::Text);
    const std::int64_t pasos = std::llround((escala.maximo - escala.minimo) / escala.paso);
    for (std::int64_t i = 0; i <= pasos; ++i) {
        const double valor = escala.minimo + static_cast<double>(i) * escala.paso;
        const int fila = static_cast<int>(y(valor, escala, marco));
        pintor.setPen(reja);
        pintor.drawLine(marco.left(), fila, marco.right(), fila);
        pintor.setPen(letra);
        const double marca = std::round(valor / escala.paso) * escala.paso;
        pintor.drawText(QRect(0, fila - 10, marco.left() - 6, 20), Qt::AlignRight | Qt::AlignVCenter,
                        textoLocal(std::round(marca * 1000) / 1000));
    }
    const std::int64_t entreHoras = ventana_ / divisiones;
    const std::int64_t principio = fin() - ventana_;
    for (std::int64_t cuando = (principio / entreHoras + 1) * entreHoras; cuando <= fin(); cuando += entreHoras) {
        const double parte = static_cast<double>(cuando - principio) / static_cast<double>(ventana_);
        const int columna = marco.left() + static_cast<int>(parte * marco.width());
        pintor.setPen(reja);
        pintor.drawLine(columna, marco.top(), columna, marco.bottom());
        pintor.setPen(letra);
        const QString hora = QDateTime::fromMSecsSinceEpoch(cuando).toString(QStringLiteral("HH:mm:ss"));
        const int ancho = fontMetrics().horizontalAdvance(hora) + 4;
        const int desde = std::clamp(columna - ancho / 2, 0, std::max(0, width() - ancho));
        pintor.drawText(QRect(desde, marco.bottom() + 3, ancho, margenAbajo - 4), Qt::AlignCenter, hora);
    }
}

// The least and the greatest value in each column of pixels, the one that held at its beginning included; empty before
// the first value.
VistaGrafica::Columnas VistaGrafica::columnas(const HistoriaRegistro& historia, int cuantas) const {
    const double porColumna = static_cast<double>(ventana_) / cuantas;
    const std::int64_t principio = fin() - ventana_;
    Columnas todas(static_cast<std::size_t>(cuantas));
    for (int columna = 0; columna < cuantas; ++columna) {
        const auto desde = principio + static_cast<std::int64_t>(columna * porColumna);
        const auto hasta = principio + static_cast<std::int64_t>((columna + 1) * porColumna);
        todas[static_cast<std::size_t>(columna)] = historia.extremos(desde, std::max(hasta, desde + 1));
    }
    return todas;
}

// One bar a column, from the least to the greatest value. Bars and no strokes: to stroke a dashed path that goes up and
// down in every column takes seconds. The dash goes by columns; a lone step is drawn whole, so that none gets lost.
void VistaGrafica::pintarLinea(QPainter& pintor, const QRect& marco, const Escala& escala, std::size_t cual) const {
    const Columnas todas = columnas(lineas_[cual].historia, marco.width());
    const auto cambia = [&](std::size_t columna) {
        return columna < todas.size() && todas[columna] && todas[columna]->minimo != todas[columna]->maximo;
    };
    const QColor tinta = color(cual, fondoOscuro());
    const int grueso = qRound(grosor(cual));
    for (std::size_t columna = 0; columna < todas.size(); ++columna) {
        const bool escalon = cambia(columna) && !cambia(columna - 1) && !cambia(columna + 1);
        if (!todas[columna] || !(escalon || conTinta(cual, columna / static_cast<std::size_t>(grueso))))
            continue;
        const int arriba = qRound(y(todas[columna]->maximo, escala, marco)) - grueso / 2;
        const int abajo = qRound(y(todas[columna]->minimo, escala, marco)) - grueso / 2 + grueso;
        pintor.fillRect(marco.left() + static_cast<int>(columna), arriba, escalon ? grueso : 1, abajo - arriba, tinta);
    }
}

void VistaGrafica::pintarCursor(QPainter& pintor, const QRect& marco) const {
    if (!cursor_ || *cursor_ < fin() - ventana_ || *cursor_ > fin())
        return;
    const double parte = static_cast<double>(*cursor_ - (fin() - ventana_)) / static_cast<double>(ventana_);
    const int x = marco.left() + static_cast<int>(parte * marco.width());
    pintor.setPen(QPen(palette().color(QPalette::Text), 1, Qt::DashLine));
    pintor.drawLine(x, marco.top(), x, marco.bottom());
    const QString hora = QDateTime::fromMSecsSinceEpoch(*cursor_).toString(QStringLiteral("HH:mm:ss.zzz"));
    QRect sitio = fontMetrics().boundingRect(hora).adjusted(-4, -2, 4, 2);
    sitio.moveTopLeft({x + sitio.width() > marco.right() ? x - sitio.width() : x, marco.top()});
    pintor.fillRect(sitio, palette().brush(QPalette::ToolTipBase));
    pintor.setPen(palette().color(QPalette::ToolTipText));
    pintor.drawText(sitio, Qt::AlignCenter, hora);
}

QString VistaGrafica::valorDeLeyenda(const LineaGrafica& linea) const {
    const auto valor = linea.historia.valorEn(cursor_.value_or(fin()));
    const QString texto = valor ? textoLocal(*valor) : QStringLiteral("sin dato");
    return linea.unidad.isEmpty() || !valor ? texto : texto + QLatin1Char(' ') + linea.unidad;
}

void VistaGrafica::pintarLeyenda(QPainter& pintor, const QRect& marco) const {
    const QFontMetrics letra = fontMetrics();
    const int ancho = marco.width() / 2;
    for (std::size_t i = 0; i < lineas_.size(); ++i) {
        const int x = marco.left() + static_cast<int>(i % 2) * ancho;
        const int fila = 4 + static_cast<int>(i / 2) * (letra.height() + 2);
        pintor.setPen(QPen(color(i, fondoOscuro()), grosor(i), trazos[i % trazos.size()].guion));
        pintor.drawLine(x, fila + letra.height() / 2, x + 26, fila + letra.height() / 2);
        pintor.setPen(palette().color(QPalette::Text));
        const QString texto = lineas_[i].titulo + QStringLiteral(" = ") + valorDeLeyenda(lineas_[i]);
        pintor.drawText(QRect(x + 32, fila, ancho - 36, letra.height()), Qt::AlignLeft | Qt::AlignVCenter,
                        letra.elidedText(texto, Qt::ElideRight, ancho - 36));
    }
    if (lineas_.empty())
        pintor.drawText(marco, Qt::AlignCenter, QStringLiteral("Ningún registro"));
}

void VistaGrafica::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton) {
        cursor_ = tiempoEn(evento->position().toPoint().x());
        update();
    } else if (evento->button() == Qt::MiddleButton) {
        cursor_.reset();
        update();
    }
}

void VistaGrafica::mouseMoveEvent(QMouseEvent* evento) {
    if (evento->buttons().testFlag(Qt::LeftButton)) {
        cursor_ = tiempoEn(evento->position().toPoint().x());
        update();
    }
}

void VistaGrafica::keyPressEvent(QKeyEvent* evento) {
    const std::int64_t paso = std::max<std::int64_t>(1, ventana_ / std::max(1, marco().width()));
    switch (evento->key()) {
    case Qt::Key_Left:
        cursor_ = std::max(cursor_.value_or(fin()) - paso, fin() - ventana_);
        break;
    case Qt::Key_Right:
        cursor_ = std::min(cursor_.value_or(fin()) + paso, fin());
        break;
    case Qt::Key_Escape:
        if (!cursor_) {
            QWidget::keyPressEvent(evento);
            return;
        }
        cursor_.reset();
        break;
    default:
        QWidget::keyPressEvent(evento);
        return;
    }
    update();
}
