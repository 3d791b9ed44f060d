#include "bridge/FrmConexionesPuentes.h"

#include "platform/events/Eventos.h"
#include "platform/text/Numbers.h"
#include "platform/window/Contraste.h"
#include "platform/window/VistaTexto.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace {

constexpr std::chrono::milliseconds periodoVerificacion{1000};
constexpr int entreZonas = 10; // pixels between the parts of the window, which can be dragged there

QColor colorDe(ColorPuerto color) {
    switch (color) {
    case ColorPuerto::verde:
        return {0, 128, 0};
    case ColorPuerto::azul:
        return {0, 0, 128};
    case ColorPuerto::amarillo:
        return {255, 255, 0};
    case ColorPuerto::rojo:
        break;
    }
    return {255, 0, 0};
}

QTreeWidgetItem* nodo(QTreeWidgetItem* padre, const QString& clave, const QString& texto) {
    auto* elemento = new QTreeWidgetItem(padre, {texto});
    elemento->setData(0, Qt::UserRole, clave);
    return elemento;
}

} // namespace

FrmConexionesPuentes::FrmConexionesPuentes(QWidget& principal, Reactor& reactor, Eventos& eventos, double puerto1,
                                           double puerto2)
    : QWidget(&principal, Qt::Window), puente_(reactor, *this, eventos, puerto1, puerto2) {
    setObjectName(QStringLiteral("FrmConexionesPuentes"));
    setWindowTitle(QStringLiteral("Conexion Puente"));
    setWindowIcon(principal.windowIcon());
    crearArbol();
    auto* divisor = new QSplitter(Qt::Horizontal, this);
    divisor->addWidget(TreeView1_);
    divisor->addWidget(crearMonitores());
    divisor->setStretchFactor(1, 1);
    divisor->setHandleWidth(entreZonas);
    divisor->setSizes({180, 620});
    auto* diseno = new QVBoxLayout(this);
    diseno->addWidget(divisor, 1);
    diseno->addWidget(crearBotones());
    resize(860, 520);

    timerVerificarEstado_.setObjectName(QStringLiteral("timerVerificarEstado"));
    connect(&timerVerificarEstado_, &QTimer::timeout, this, [this] { puente_.verificarEstado(); });
    timerVerificarEstado_.start(periodoVerificacion);
}

FrmConexionesPuentes::~FrmConexionesPuentes() = default;

void FrmConexionesPuentes::crearArbol() {
    TreeView1_ = new QTreeWidget(this);
    TreeView1_->setObjectName(QStringLiteral("TreeView1"));
    TreeView1_->setAccessibleName(QStringLiteral("Conexiones y puertos"));
    TreeView1_->header()->hide();
    auto* raiz = new QTreeWidgetItem(TreeView1_, {QStringLiteral("CONEXIONES")});
    raiz->setData(0, Qt::UserRole, QStringLiteral("N"));
    auto* conexion = nodo(raiz, QStringLiteral("N1"), QStringLiteral("1"));
    nodosPuerto_ = {nodo(conexion, QStringLiteral("N.1.1"), QString::number(puente_.puerto(Lado::uno))),
                    nodo(conexion, QStringLiteral("N.1.2"), QString::number(puente_.puerto(Lado::dos)))};
    TreeView1_->expandAll();
}

QWidget* FrmConexionesPuentes::crearMonitores() {
    auto* divisor = new QSplitter(Qt::Vertical, this);
    const std::array nombres{QStringLiteral("txtTramas(0)"), QStringLiteral("txtTramas2(0)")};
    for (const Lado lado : {Lado::uno, Lado::dos}) {
        const auto i = static_cast<std::size_t>(lado);
        auto* grupo = new QWidget(divisor);
        auto* titulo = new QLabel(QStringLiteral("Recibido en el puerto %1").arg(puente_.puerto(lado)), grupo);
        txtTramas_[i] = new VistaTexto(grupo, TextoBytes::CrLf::dosFines);
        txtTramas_[i]->setObjectName(nombres[i]);
        txtTramas_[i]->setAccessibleName(titulo->text());
        titulo->setBuddy(txtTramas_[i]);
        auto* diseno = new QVBoxLayout(grupo);
        diseno->setContentsMargins(0, 0, 0, 0);
        diseno->addWidget(titulo);
        diseno->addWidget(txtTramas_[i], 1);
        divisor->addWidget(grupo);
    }
    divisor->setChildrenCollapsible(false);
    divisor->setHandleWidth(entreZonas);
    return divisor;
}

QWidget* FrmConexionesPuentes::crearBotones() {
    auto* fila = new QWidget(this);
    auto* diseno = new QHBoxLayout(fila);
    diseno->setContentsMargins(0, 0, 0, 0);
    const auto casilla = [&](const char* nombre, const QString& texto, const QString& ayuda) {
        auto* control = new QCheckBox(texto, fila);
        control->setObjectName(QLatin1String(nombre));
        control->setToolTip(ayuda);
        diseno->addWidget(control);
        return control;
    };
    const auto boton = [&](const char* nombre, const QString& texto, const QString& ayuda) {
        auto* control = new QPushButton(texto, fila);
        control->setObjectName(QLatin1String(nombre));
        control->setToolTip(ayuda);
        diseno->addWidget(control);
        return control;
    };
    chEcho_ =
        casilla("chEcho", QStringLiteral("Echo"), QStringLiteral("Devuelve al cliente del lado 1 todo lo que envía"));
    chModbus_ = casilla("chModbus", QStringLiteral("modbus"),
                        QStringLiteral("Muestra los bytes en hexadecimal, un bloque por línea"));
    chStop_ = casilla("chStop", QStringLiteral("stop"),
                      QStringLiteral("Detiene los monitores; el puente sigue pasando datos"));
    diseno->addStretch(1);
    connect(boton("Command1", QStringLiteral("borrar"), QStringLiteral("Vacía los dos monitores")),
            &QPushButton::clicked, this, &FrmConexionesPuentes::borrar);
    connect(boton("Command2", QStringLiteral("ocultar"), QStringLiteral("Oculta esta ventana; el puente sigue")),
            &QPushButton::clicked, this, &QWidget::hide);
    return fila;
}

void FrmConexionesPuentes::borrar() {
    for (VistaTexto* monitor : txtTramas_)
        monitor->borrar();
}

bool FrmConexionesPuentes::echo() const {
    return chEcho_->isChecked();
}

bool FrmConexionesPuentes::modbus() const {
    return chModbus_->isChecked();
}

bool FrmConexionesPuentes::stop() const {
    return chStop_->isChecked();
}

void FrmConexionesPuentes::mostrar(Lado lado, std::span<const std::uint8_t> bloque, bool hexadecimal) {
    VistaTexto& monitor = *txtTramas_[static_cast<std::size_t>(lado)];
    if (hexadecimal)
        monitor.agregarBloque(bloque);
    else
        monitor.agregar({reinterpret_cast<const char*>(bloque.data()), bloque.size()});
}

void FrmConexionesPuentes::colorear(Lado lado, ColorPuerto color) {
    const auto i = static_cast<std::size_t>(lado);
    for (QTreeWidgetItem* elemento : nodosPuerto_) {
        QFont negrita = elemento->font(0);
        negrita.setBold(true);
        elemento->setFont(0, negrita);
    }
    nodosPuerto_[i]->setForeground(0, colorDe(color));
    const QColor fondo = fondoDeEstado(palette());
    nodosPuerto_[i]->setBackground(0, fondo.isValid() ? QBrush(fondo) : QBrush());
    if (color == ColorPuerto::azul || color == ColorPuerto::verde)
        ultimoFallo_[i].clear();
}

// The operator sees the red node; whoever reads stderr learns why, once for each cause.
void FrmConexionesPuentes::puertoRechazado(Lado lado, const std::error_code& fallo) {
    const auto i = static_cast<std::size_t>(lado);
    if (ultimoFallo_[i] == fallo)
        return;
    ultimoFallo_[i] = fallo;
    std::fprintf(stderr, "esclavo-modbus: puente: no se puede abrir el puerto %s: %s\n",
                 text::writeNumber(puente_.puerto(lado)).c_str(),
                 fallo == std::errc::address_in_use      ? "está ocupado por otro programa"
                 : fallo == std::errc::permission_denied ? "sin permiso para puertos menores que 1024"
                                                         : fallo.message().c_str());
}
