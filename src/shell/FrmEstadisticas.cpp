#include "shell/FrmEstadisticas.h"

#include "platform/window/Controles.h"
#include "platform/window/PaginaManual.h"
#include "shell/AyudaContextual.h"
#include "shell/Estacion.h"
#include "shell/TextosEstado.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int columnaDesde = 2; // of the masters

QTreeWidget* tabla(QWidget* padre, const char* nombre, const QString& titulo, const QStringList& columnas) {
    auto* lista = nombrado(new QTreeWidget(padre), nombre, titulo);
    lista->setRootIsDecorated(false);
    lista->setUniformRowHeights(true);
    lista->setAllColumnsShowFocus(true);
    lista->setHeaderLabels(columnas);
    lista->header()->setStretchLastSection(false);
    lista->header()->setSectionResizeMode(QHeaderView::Stretch);
    for (int columna = 1; columna < columnas.size(); ++columna)
        lista->headerItem()->setTextAlignment(columna, Qt::AlignRight | Qt::AlignVCenter);
    return lista;
}

// Writes a row, made if it is not there yet.
void ponerFila(QTreeWidget& lista, int fila, const QStringList& celdas) {
    QTreeWidgetItem* elemento = lista.topLevelItem(fila);
    if (elemento == nullptr) {
        lista.addTopLevelItem(new QTreeWidgetItem);
        elemento = lista.topLevelItem(fila);
        for (int columna = 1; columna < lista.columnCount(); ++columna)
            elemento->setTextAlignment(columna, Qt::AlignRight | Qt::AlignVCenter);
    }
    for (int columna = 0; columna < celdas.size(); ++columna)
        elemento->setText(columna, celdas[columna]);
}

void recortar(QTreeWidget& lista, int filas) {
    while (lista.topLevelItemCount() > filas)
        delete lista.takeTopLevelItem(lista.topLevelItemCount() - 1);
}

QString enTexto(const QTreeWidget& lista) {
    QString texto = lista.accessibleName() + u'\n';
    const auto agregar = [&](const QTreeWidgetItem& fila) {
        for (int columna = 0; columna < lista.columnCount(); ++columna)
            texto += (columna > 0 ? QStringLiteral("\t") : QString()) + fila.text(columna);
        texto += u'\n';
    };
    agregar(*lista.headerItem());
    for (int fila = 0; fila < lista.topLevelItemCount(); ++fila)
        agregar(*lista.topLevelItem(fila));
    return texto;
}

QStringList fila(const QString& nombre, const Contadores& cuentas) {
    return {nombre, QString::number(cuentas.lecturas), QString::number(cuentas.escrituras),
            QString::number(cuentas.excepciones), QString::number(cuentas.sinRespuesta())};
}

} // namespace

FrmEstadisticas::FrmEstadisticas(Estacion& estacion, QWidget& principal)
    : QWidget(&principal, Qt::Window), estacion_(estacion),
      listaMaestros_(tabla(this, "listaMaestros", QStringLiteral("Maestros"),
                           {QStringLiteral("IP"), QStringLiteral("Puerto"), QStringLiteral("Conectado desde"),
                            QStringLiteral("Peticiones"), QStringLiteral("Última petición")})),
      listaEsclavos_(tabla(this, "listaEsclavos", QStringLiteral("Esclavos"),
                           {QStringLiteral("Esclavo"), QStringLiteral("Lecturas"), QStringLiteral("Escrituras"),
                            QStringLiteral("Excepciones"), QStringLiteral("Sin respuesta")})) {
    listaMaestros_->header()->setSectionResizeMode(columnaDesde, QHeaderView::Interactive);
    listaMaestros_->setColumnWidth(columnaDesde,
                                   fontMetrics().horizontalAdvance(QStringLiteral("  00/00/0000 00:00:00  ")));
    setObjectName(QStringLiteral("FrmEstadisticas"));
    setWindowTitle(QStringLiteral("Estadísticas"));
    ponerPaginaManual(*this, "estado.md#las-estadísticas");
    setWindowIcon(principal.windowIcon());
    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    const auto agregarBoton = [&](const char* nombre, const QString& texto, const QString& ayuda, auto accion) {
        auto* boton = crearBoton(this, nombre, texto, ayuda);
        connect(boton, &QPushButton::clicked, this, accion);
        botones->addWidget(boton);
    };
    agregarBoton("BtnCopiar", QStringLiteral("&Copiar"),
                 QStringLiteral("Copia las dos tablas como texto separado por tabuladores"), &FrmEstadisticas::copiar);
    agregarBoton("BtnPonerACero", QStringLiteral("&Poner a cero"),
                 QStringLiteral("Vuelve a contar desde cero las peticiones, aquí y en la barra de estado"),
                 &FrmEstadisticas::ponerACero);
    agregarBoton("BtnSalir", QStringLiteral("&Salir"), QStringLiteral("Cierra esta ventana (Esc)"), &QWidget::close);

    auto* columna = new QVBoxLayout(this);
    for (QTreeWidget* const lista : {listaMaestros_, listaEsclavos_}) {
        auto* rotulo = new QLabel(lista->accessibleName(), this);
        rotulo->setBuddy(lista);
        columna->addWidget(rotulo);
        columna->addWidget(lista, 1);
    }
    columna->addLayout(botones);
    reloj_.setObjectName(QStringLiteral("relojEstadisticas"));
    reloj_.setInterval(periodo);
    connect(&reloj_, &QTimer::timeout, this, &FrmEstadisticas::refrescar);
    resize(fontMetrics().averageCharWidth() * 100, fontMetrics().height() * 30);
    ponerAyudaContextual(*this);
}

void FrmEstadisticas::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    refrescar();
    reloj_.start();
}

void FrmEstadisticas::hideEvent(QHideEvent* evento) {
    QWidget::hideEvent(evento);
    reloj_.stop();
}

void FrmEstadisticas::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(evento);
}

void FrmEstadisticas::refrescar() {
    mostrarMaestros();
    mostrarEsclavos();
}

void FrmEstadisticas::mostrarMaestros() {
    int cuantos = 0;
    for (const Maestro& maestro : estacion_.escucha().maestros())
        ponerFila(
            *listaMaestros_, cuantos++,
            {deUtf8(maestro.direccion), QString::number(maestro.puerto),
             textoInstante(estacion_.reloj, maestro.desde, QStringLiteral("dd/MM/yyyy HH:mm:ss")),
             QString::number(maestro.peticiones),
             maestro.ultima ? textoInstante(estacion_.reloj, *maestro.ultima, QStringLiteral("HH:mm:ss")) : QString()});
    recortar(*listaMaestros_, cuantos);
}

// The last row is the sum, with the arrivals too short to name a slave.
void FrmEstadisticas::mostrarEsclavos() {
    int cuantos = 0;
    for (int numero = 0; numero < Peticiones::numerosDeEsclavo; ++numero)
        if (const Contadores& cuentas = estacion_.peticiones().contadores(numero); cuentas.peticiones > 0)
            ponerFila(*listaEsclavos_, cuantos++, fila(QStringLiteral("#%1").arg(numero), cuentas));
    ponerFila(*listaEsclavos_, cuantos++, fila(QStringLiteral("Todos"), estacion_.peticiones().total()));
    recortar(*listaEsclavos_, cuantos);
}

QString FrmEstadisticas::texto() const {
    return enTexto(*listaMaestros_) + u'\n' + enTexto(*listaEsclavos_);
}

void FrmEstadisticas::copiar() const {
    QGuiApplication::clipboard()->setText(texto());
}

void FrmEstadisticas::ponerACero() {
    estacion_.ponerPeticionesACero();
    refrescar();
}
