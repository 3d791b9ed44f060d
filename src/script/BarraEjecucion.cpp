#include "script/BarraEjecucion.h"

#include "platform/window/Controles.h"
#include "script/Ejemplos.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QPushButton>

QString textoDeDuracion(std::chrono::nanoseconds duracion) {
    const double milisegundos = std::chrono::duration<double, std::milli>(duracion).count();
    const QLocale local;
    if (milisegundos >= 1000)
        return local.toString(milisegundos / 1000, 'f', 2) + QStringLiteral(" s");
    return local.toString(milisegundos, 'f',
                          milisegundos >= 100  ? 0
                          : milisegundos >= 10 ? 1
                                               : 2) +
           QStringLiteral(" ms");
}

BarraEjecucion::BarraEjecucion(const EjecutorScript& ejecutor, QCheckBox& chScript, QWidget* padre)
    : QWidget(padre), ejecutor_(ejecutor) {
    chEjecutar_ = crearCasilla(this, "chEjecutar", QStringLiteral("&Ejecutar"),
                               QStringLiteral("Pone el script en marcha y lo para (F5)"));
    chEjecutar_->setChecked(chScript.isChecked());
    connect(&chScript, &QCheckBox::toggled, chEjecutar_, &QCheckBox::setChecked);
    connect(chEjecutar_, &QCheckBox::toggled, &chScript, &QCheckBox::setChecked);
    lblTiempos_ = nombrado(new QLabel(this), "lblTiempos", QStringLiteral("Tiempos del script"));
    lblTiempos_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblTiempos_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblTiempos_->setToolTip(
        QStringLiteral("Lo que duran las pasadas del script en marcha, y cuánto tardó en compilarse "
                       "el texto de esta ventana"));
    btnPanel_ = crearBoton(this, "btnPanel", QStringLiteral("&Variables y consola"),
                           QStringLiteral("Enseña o esconde las variables y la consola del script (F6)"));
    btnPanel_->setCheckable(true);
    connect(btnPanel_, &QPushButton::toggled, this, &BarraEjecucion::panelPedido);

    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addWidget(chEjecutar_);
    fila->addSpacing(fontMetrics().averageCharWidth());
    fila->addWidget(lblTiempos_, 1);
    crearEjemplos(*fila);
    fila->addWidget(btnPanel_);
    connect(&reloj_, &QTimer::timeout, this, [this] {
        mostrarTiempos();
        Q_EMIT pulsado();
    });
    mostrarTiempos();
}

void BarraEjecucion::crearEjemplos(QHBoxLayout& fila) {
    auto* boton = crearBoton(this, "btnEjemplos", QStringLiteral("E&jemplos"),
                             QStringLiteral("Pone en el texto uno de los scripts de ejemplo"));
    auto* menu = new QMenu(boton);
    menu->setObjectName(QStringLiteral("menuEjemplos"));
    menu->setToolTipsVisible(true);
    const auto todos = ejemplos();
    for (const Ejemplo& ejemplo : todos) {
        QAction* const accion = menu->addAction(ejemplo.titulo);
        accion->setToolTip(ejemplo.descripcion);
        connect(accion, &QAction::triggered, this, [this, texto = ejemplo.texto] { Q_EMIT ejemploPedido(texto); });
    }
    boton->setMenu(menu);
    fila.addWidget(boton);
}

void BarraEjecucion::alternarEjecucion() {
    chEjecutar_->toggle();
}

void BarraEjecucion::alternarPanel() {
    btnPanel_->toggle();
}

void BarraEjecucion::mostrarCompilacion(std::optional<std::chrono::nanoseconds> duracion) {
    compilacion_ = duracion;
    mostrarTiempos();
}

void BarraEjecucion::mostrarTiempos() {
    const Pasadas& pasadas = ejecutor_.pasadas();
    QString texto = QStringLiteral("Sin pasadas todavía");
    if (pasadas.cuantas > 0)
        texto = QStringLiteral("Pasadas: %1, la última %2, la más larga %3")
                    .arg(QString::number(pasadas.cuantas), textoDeDuracion(pasadas.ultima),
                         textoDeDuracion(pasadas.maxima));
    if (compilacion_)
        texto += QStringLiteral("; compilar: ") + textoDeDuracion(*compilacion_);
    if (texto != lblTiempos_->text())
        lblTiempos_->setText(texto);
}

void BarraEjecucion::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    mostrarTiempos();
    reloj_.start(pulso);
}

void BarraEjecucion::hideEvent(QHideEvent* evento) {
    QWidget::hideEvent(evento);
    reloj_.stop();
}
