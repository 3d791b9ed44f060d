#include "platform/window/BarraMonitor.h"

#include "platform/window/Controles.h"
#include "platform/window/VistaTexto.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

using Dibujo = void (*)(QPainter& pintor, const QColor& tinta);

// Drawn on a field of 16 × 16, in the colour of the text around it: sharp at any size, legible on any theme.
class IconoDibujado final : public QIconEngine {
public:
    explicit IconoDibujado(Dibujo dibujo) : dibujo_(dibujo) {}

    void paint(QPainter* pintor, const QRect& caja, QIcon::Mode modo, QIcon::State) override {
        const auto grupo = modo == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor tinta = QGuiApplication::palette().color(grupo, QPalette::ButtonText);
        pintor->save();
        pintor->setRenderHint(QPainter::Antialiasing);
        pintor->translate(caja.topLeft());
        pintor->scale(caja.width() / 16.0, caja.height() / 16.0);
        pintor->setPen(QPen(tinta, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        dibujo_(*pintor, tinta);
        pintor->restore();
    }
    QPixmap pixmap(const QSize& tamano, QIcon::Mode modo, QIcon::State estado) override {
        QPixmap imagen(tamano);
        imagen.fill(Qt::transparent);
        QPainter pintor(&imagen);
        paint(&pintor, QRect({}, tamano), modo, estado);
        return imagen;
    }
    QIconEngine* clone() const override { return new IconoDibujado(dibujo_); }

private:
    Dibujo dibujo_;
};

void lupa(QPainter& pintor, const QColor&) {
    pintor.drawEllipse(QPointF(6.5, 6.5), 4.2, 4.2);
    pintor.drawLine(QPointF(9.8, 9.8), QPointF(14, 14));
}

void flechaABandeja(QPainter& pintor, const QColor&) {
    pintor.drawPolyline(QPolygonF({{2, 10}, {2, 14}, {14, 14}, {14, 10}}));
    pintor.drawLine(QPointF(8, 2), QPointF(8, 10));
    pintor.drawPolyline(QPolygonF({{5, 7}, {8, 10}, {11, 7}}));
}

void dosBarras(QPainter& pintor, const QColor& tinta) {
    pintor.fillRect(QRectF(4, 3, 3, 10), tinta);
    pintor.fillRect(QRectF(9, 3, 3, 10), tinta);
}

} // namespace

BarraMonitor::BarraMonitor(VistaTexto& monitor) : QWidget(&monitor) {
    setObjectName(QStringLiteral("barraMonitor"));
    setCursor(Qt::ArrowCursor);
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(1, 1, 1, 1);
    columna->setSpacing(0);
    const int lado = fontMetrics().ascent();
    const auto boton = [&](const char* nombre, Dibujo dibujo, const QString& rotulo, const QString& tecla) {
        auto* nuevo =
            nombrado(new QToolButton(this), nombre, QStringLiteral("%1: %2").arg(rotulo, monitor.accessibleName()));
        nuevo->setIcon(QIcon(new IconoDibujado(dibujo)));
        nuevo->setText(rotulo);
        nuevo->setToolTip(QStringLiteral("%1 (%2)").arg(rotulo, tecla));
        nuevo->setAutoRaise(true);
        nuevo->setFocusPolicy(Qt::NoFocus);
        nuevo->setIconSize({lado, lado});
        columna->addWidget(nuevo);
        return nuevo;
    };
    connect(boton("btnBuscarTexto", lupa, QStringLiteral("Buscar"), QStringLiteral("Ctrl+F")), &QToolButton::clicked,
            &monitor, &VistaTexto::abrirBusqueda);
    connect(boton("btnGuardarTexto", flechaABandeja, QStringLiteral("Guardar"), QStringLiteral("Ctrl+S")),
            &QToolButton::clicked, &monitor, &VistaTexto::guardar);
    auto* pausa = boton("btnPausarTexto", dosBarras, QStringLiteral("Pausa"), QStringLiteral("Ctrl+P"));
    pausa->setCheckable(true);
    connect(pausa, &QToolButton::toggled, &monitor, [&monitor](bool si) { monitor.pausar(si); });
    connect(&monitor, &VistaTexto::pausaCambiada, pausa, &QToolButton::setChecked);
    columna->addStretch(1);
}
