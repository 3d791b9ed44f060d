#include "bridge/FrmConexionesPuentes.h"

#include "platform/window/Contraste.h"
#include "platform/window/Controles.h"
#include "platform/window/PaginaManual.h"
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
        return colores::verdeOscuro;
    case ColorPuerto::azul:
        return colores::azulOscuro;
    case ColorPuerto::amarillo:
        return colores::amarillo;
    case ColorPuerto::rojo:
        break;
    }
    return colores::rojo;
}

QString textoDe(ColorPuerto color) {
    switch (color) {
    case ColorPuerto::verde:
        return QStringLiteral("Conectado");
    case ColorPuerto::azul:
        return QStringLiteral("Espera a un cliente");
    case ColorPuerto::amarillo:
        return QStringLiteral("Conectando");
    case ColorPuerto::rojo:
        break;
    }
    return QStringLiteral("Cerrado: se abre en un segundo");
}

std::string causaDe(const std::error_code& fallo) {
    if (fallo == std::errc::address_in_use)
        return "ya está ocupado por otro programa o por el puerto de la estación";
    if (fallo == std::errc::permission_denied)
        return "sin permiso para puertos menores que 1024";
    return fallo.message();
}

QTreeWidgetItem* nodo(QTreeWidgetItem* padre, const QString& clave, const QString& texto) {
    auto* elemento = new QTreeWidgetItem(padre, {texto});
    elemento->setData(0, Qt::UserRole, clave);
    return elemento;
}

} // namespace

FrmConexionesPuentes::FrmConexionesPuentes(QWidget& principal, Puente& puente)
    : QWidget(&principal, Qt::Window), puente_(puente) {
    setObjectName(QStringLiteral("FrmConexionesPuentes"));
    setWindowTitle(QStringLiteral("Conexion Puente"));
    ponerPaginaManual(*this, "puente.md");
    setWindowIcon(principal.windowIcon());
    auto* divisor = new QSplitter(Qt::Horizontal, this);
    divisor->addWidget(crearPuertos());
    divisor->addWidget(crearMonitores());
    divisor->setStretchFactor(1, 1);
    divisor->setHandleWidth(entreZonas);
    divisor->setSizes({260, 620});
    auto* diseno = new QVBoxLayout(this);
    diseno->addWidget(divisor, 1);
    diseno->addWidget(crearBotones());
    resize(920, 520);

    timerVerificarEstado_.setObjectName(QStringLiteral("timerVerificarEstado"));
    connect(&timerVerificarEstado_, &QTimer::timeout, this, [this] { puente_.verificarEstado(); });
    timerVerificarEstado_.start(periodoVerificacion);
    puente_.mostrarEn(this);
}

FrmConexionesPuentes::~FrmConexionesPuentes() {
    puente_.mostrarEn(nullptr);
}

// The tree, and under it why a port is red.
QWidget* FrmConexionesPuentes::crearPuertos() {
    auto* columna = new QWidget(this);
    crearArbol();
    lblMotivos_ = crearAviso(columna, "lblMotivos", QStringLiteral("Por qué no se abre un puerto"));
    auto* diseno = new QVBoxLayout(columna);
    diseno->setContentsMargins(0, 0, 0, 0);
    diseno->addWidget(TreeView1_, 1);
    diseno->addWidget(lblMotivos_);
    return columna;
}

void FrmConexionesPuentes::crearArbol() {
    TreeView1_ = nombrado(new QTreeWidget(this), "TreeView1", QStringLiteral("Conexiones y puertos"));
    TreeView1_->header()->hide();
    TreeView1_->setColumnCount(2); // a port, and its state in words
    TreeView1_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    auto* raiz = new QTreeWidgetItem(TreeView1_, {QStringLiteral("CONEXIONES")});
    raiz->setData(0, Qt::UserRole, QStringLiteral("N"));
    auto* conexion = nodo(raiz, QStringLiteral("N1"), QStringLiteral("1"));
    nodosPuerto_ = {nodo(conexion, QStringLiteral("N.1.1"), QString::number(puente_.puerto(Lado::uno))),
                    nodo(conexion, QStringLiteral("N.1.2"), QString::number(puente_.puerto(Lado::dos)))};
    TreeView1_->expandAll();
}

QWidget* FrmConexionesPuentes::crearMonitores() {
    auto* divisor = new QSplitter(Qt::Vertical, this);
    const std::array nombres{"txtTramas", "txtTramas2"};
    for (const Lado lado : {Lado::uno, Lado::dos}) {
        const auto i = static_cast<std::size_t>(lado);
        auto* grupo = new QWidget(divisor);
        auto* titulo = new QLabel(QStringLiteral("Recibido en el puerto %1").arg(puente_.puerto(lado)), grupo);
        txtTramas_[i] = nombrado(new VistaTexto(grupo, TextoBytes::CrLf::dosFines), nombreDeElemento(nombres[i], 0),
                                 titulo->text());
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
    chEcho_ = crearCasilla(fila, "chEcho", QStringLiteral("Echo"),
                           QStringLiteral("Devuelve al cliente del lado 1 todo lo que envía"));
    chModbus_ = crearCasilla(fila, "chModbus", QStringLiteral("modbus"),
                             QStringLiteral("Muestra los bytes en hexadecimal, un bloque por línea"));
    chStop_ = crearCasilla(fila, "chStop", QStringLiteral("stop"),
                           QStringLiteral("Detiene los monitores; el puente sigue pasando datos"));
    auto* borrar = crearBoton(fila, "Command1", QStringLiteral("borrar"), QStringLiteral("Vacía los dos monitores"));
    auto* ocultar =
        crearBoton(fila, "Command2", QStringLiteral("ocultar"), QStringLiteral("Oculta esta ventana; el puente sigue"));
    for (QWidget* const casilla : {chEcho_, chModbus_, chStop_})
        diseno->addWidget(casilla);
    diseno->addStretch(1);
    diseno->addWidget(borrar);
    diseno->addWidget(ocultar);
    connect(borrar, &QPushButton::clicked, this, &FrmConexionesPuentes::borrar);
    connect(ocultar, &QPushButton::clicked, this, &QWidget::hide);
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

std::span<std::uint8_t> FrmConexionesPuentes::sitio(Lado lado) {
    return txtTramas_[static_cast<std::size_t>(lado)]->sitio();
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
    nodosPuerto_[i]->setText(1, textoDe(color).section(u':', 0, 0)); // a colour is never the only sign
    const QColor fondo = fondoDeEstado(palette());
    nodosPuerto_[i]->setBackground(0, fondo.isValid() ? QBrush(fondo) : QBrush());
    if (color == ColorPuerto::azul || color == ColorPuerto::verde) {
        ultimoFallo_[i].clear();
        mostrarMotivo(lado, QString());
    }
    nodosPuerto_[i]->setToolTip(0, motivos_[i].isEmpty() ? textoDe(color) : motivos_[i]);
}

// What the red node says by its colour, in words; whoever reads stderr learns it once for each cause.
void FrmConexionesPuentes::puertoRechazado(Lado lado, const std::error_code& fallo) {
    const auto i = static_cast<std::size_t>(lado);
    if (ultimoFallo_[i] == fallo)
        return;
    ultimoFallo_[i] = fallo;
    const QString motivo = QStringLiteral("no se puede abrir el puerto %1: %2")
                               .arg(puente_.puerto(lado))
                               .arg(QString::fromStdString(causaDe(fallo)));
    std::fprintf(stderr, "esclavo-modbus: puente: %s\n", qUtf8Printable(motivo));
    mostrarMotivo(lado, motivo.at(0).toUpper() + motivo.mid(1));
}

void FrmConexionesPuentes::mostrarMotivo(Lado lado, const QString& motivo) {
    const auto i = static_cast<std::size_t>(lado);
    if (motivos_[i] == motivo)
        return;
    motivos_[i] = motivo;
    if (!motivo.isEmpty())
        nodosPuerto_[i]->setToolTip(0, motivo);
    QStringList todos(motivos_.begin(), motivos_.end());
    todos.removeAll(QString());
    avisar(*lblMotivos_, todos.join(u'\n'));
}
