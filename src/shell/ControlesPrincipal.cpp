#include "shell/ControlesPrincipal.h"

#include "modbus/VistaMonitor.h"
#include "platform/window/Controles.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyle>
#include <QTabBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int entreGrupos = 10; // pixels

} // namespace

ControlesPrincipal::ControlesPrincipal(QWidget& ventana, TextoMonitor& escrituras) {
    auto* divisor = nombrado(new QSplitter(Qt::Horizontal, &ventana), "divisorPrincipal");
    divisor->addWidget(columnaIzquierda(divisor));
    divisor->addWidget(columnaDerecha(divisor, escrituras));
    divisor->setStretchFactor(0, 1);
    divisor->setStretchFactor(1, 0);
    divisor->setChildrenCollapsible(false);
    divisor->setHandleWidth(entreGrupos);
    // Wide enough at first for both columns of the connection list and for a line of the writes monitor.
    const int linea = txtEscrituras->fontMetrics().horizontalAdvance(
        QStringLiteral("00:00:00 Ingreso de Escritura. IP:000.000.000.000"));
    divisor->setSizes({3 * linea, linea + 3 * ventana.style()->pixelMetric(QStyle::PM_ScrollBarExtent)});

    auto* diseno = new QVBoxLayout(&ventana);
    diseno->addWidget(divisor);
    ordenarTabulacion();
}

QWidget* ControlesPrincipal::columnaIzquierda(QWidget* padre) {
    auto* columna = new QWidget(padre);
    TabStrip1 = nombrado(new QTabBar(columna), "TabStrip1", QStringLiteral("Esclavos"));
    TabStrip1->setUsesScrollButtons(true);
    TabStrip1->setElideMode(Qt::ElideNone);
    TabStrip1->setExpanding(false);
    paginas = nombrado(new QStackedWidget(columna), "paginas");

    auto* diseno = new QVBoxLayout(columna);
    diseno->setContentsMargins(0, 0, 0, 0);
    diseno->setSpacing(0);
    diseno->addWidget(TabStrip1);
    diseno->addWidget(paginas, 1);
    return columna;
}

QWidget* ControlesPrincipal::columnaDerecha(QWidget* padre, TextoMonitor& escrituras) {
    auto* columna = new QWidget(padre);
    auto* diseno = new QVBoxLayout(columna);
    diseno->setContentsMargins(0, 0, 0, 0);
    grupoConexiones(*diseno, columna);
    diseno->addSpacing(entreGrupos);
    grupoEscrituras(*diseno, columna, escrituras);
    diseno->addSpacing(entreGrupos);
    grupoScript(*diseno, columna);
    diseno->addSpacing(entreGrupos);
    grupoBotones(*diseno, columna);
    return columna;
}

void ControlesPrincipal::grupoConexiones(QVBoxLayout& columna, QWidget* padre) {
    auto* cabecera = new QHBoxLayout;
    cabecera->addWidget(crearTitulo(padre, "Label3", QStringLiteral("Conexiones")));
    cabecera->addStretch(1);
    LblPuertoLocal = crearTitulo(padre, "LblPuertoLocal", QStringLiteral("Puerto:"));
    LblPuertoLocal->setMargin(2);
    LblPuertoLocal->setAccessibleDescription(QStringLiteral("Puerto TCP en el que escucha la estación"));
    cabecera->addWidget(LblPuertoLocal);

    ListView1 = nombrado(new QTreeWidget(padre), "ListView1", QStringLiteral("Conexiones"));
    ListView1->setRootIsDecorated(false);
    ListView1->setUniformRowHeights(true);
    ListView1->setAllColumnsShowFocus(true);
    ListView1->setColumnCount(0);

    lblDDEAviso = crearAviso(padre, "lblDDEAviso");
    columna.addLayout(cabecera);
    columna.addWidget(lblDDEAviso);
    columna.addWidget(ListView1, 2);
}

void ControlesPrincipal::grupoEscrituras(QVBoxLayout& columna, QWidget* padre, TextoMonitor& escrituras) {
    auto* cabecera = new QHBoxLayout;
    auto* Label1 = crearTitulo(padre, "Label1", QStringLiteral("Escrituras:"));
    cabecera->addWidget(Label1);
    cabecera->addStretch(1);
    BtnBorrar = crearBoton(padre, "BtnBorrar", QStringLiteral("Borrar Escrituras"),
                           QStringLiteral("Vacía el monitor de escrituras"));
    cabecera->addWidget(BtnBorrar);

    txtEscrituras = nombrado(new VistaMonitor(escrituras, padre), "txtEscrituras", QStringLiteral("Escrituras"));
    Label1->setBuddy(txtEscrituras);
    columna.addLayout(cabecera);
    columna.addWidget(txtEscrituras, 3);
}

void ControlesPrincipal::grupoScript(QVBoxLayout& columna, QWidget* padre) {
    auto* fila = new QHBoxLayout;
    chScript = crearCasilla(padre, "chScript", QStringLiteral("Ejecutar"),
                            QStringLiteral("Ejecuta el script periódicamente: verde, sin errores; rojo, con error"));
    chScript->setAutoFillBackground(true);
    chScript->setBackgroundRole(QPalette::Window); // a button's own would be Button, and stay as it is
    BtnEdicionCodigo =
        crearBoton(padre, "BtnEdicionCodigo", QStringLiteral("Editar"), QStringLiteral("Abre el editor del script"));
    lblBaseDeTiempo = nombrado(new QLabel(QStringLiteral("Tiempo:"), padre), "lblBaseDeTiempo");
    fila->addWidget(chScript);
    fila->addWidget(BtnEdicionCodigo);
    fila->addWidget(lblBaseDeTiempo, 1);
    columna.addWidget(crearTitulo(padre, "Label2", QStringLiteral("Codigo Script")));
    columna.addLayout(fila);
}

void ControlesPrincipal::grupoBotones(QVBoxLayout& columna, QWidget* padre) {
    ChRxTx = crearCasilla(padre, "ChRxTx", QStringLiteral("Ver TX/RX"),
                          QStringLiteral("Anota en los monitores cada trama recibida y enviada"));
    BtnBorrarTextosRXTX = crearBoton(padre, "BtnBorrarTextosRXTX", QStringLiteral("Borrar Tx/Rx"),
                                     QStringLiteral("Vacía los monitores de tramas de todos los esclavos"));
    Command2 = crearBoton(padre, "Command2", QStringLiteral("Puentes"),
                          QStringLiteral("Muestra el puente entre los puertos 500 y 501"));
    btnVerFormularioRS232 =
        crearBoton(padre, "btnVerFormularioRS232", QStringLiteral("RS232"), QStringLiteral("Muestra el puerto serie"));
    Command1 = crearBoton(padre, "Command1", QStringLiteral("About"), QStringLiteral("Acerca de este programa"));
    BtnOcultar = crearBoton(padre, "BtnOcultar", QStringLiteral("Ocultar"),
                            QStringLiteral("Oculta esta ventana; el esclavo sigue respondiendo"));
    BtnCerrar = crearBoton(padre, "BtnCerrar", QStringLiteral("Cerrar Esclavo"),
                           QStringLiteral("Termina el programa y cierra todas las conexiones"));
    Label4 = crearAviso(padre, "Label4");

    auto* rejilla = new QGridLayout;
    rejilla->addWidget(ChRxTx, 0, 0);
    rejilla->addWidget(BtnBorrarTextosRXTX, 0, 1, 1, 2);
    rejilla->addWidget(Command2, 1, 0);
    rejilla->addWidget(btnVerFormularioRS232, 1, 1);
    rejilla->addWidget(Command1, 1, 2);
    rejilla->addWidget(BtnOcultar, 2, 0);
    rejilla->addWidget(BtnCerrar, 2, 1, 1, 2);
    for (int c = 0; c < 3; ++c)
        rejilla->setColumnStretch(c, 1);
    columna.addWidget(Label4);
    columna.addLayout(rejilla);
}

void ControlesPrincipal::agregarPagina(QWidget& pagina, int numero) {
    paginas->addWidget(&pagina);
    QWidget* anterior = TabStrip1;
    for (const char* nombre :
         {"MSFlexGrid", "ChRecibir", "ChResponder", "ChRecibirEscrituras", "ChResponderEscrituras", "txtTramas"}) {
        auto* control = pagina.findChild<QWidget*>(nombreDeElemento(nombre, numero));
        QWidget::setTabOrder(anterior, control);
        anterior = control;
    }
    const int pestana = TabStrip1->addTab(QStringLiteral("#%1").arg(numero));
    TabStrip1->setTabData(pestana, QStringLiteral("T%1").arg(numero));
    TabStrip1->updateGeometry(); // a tab strip that is not visible does not say by itself that it grew
}

void ControlesPrincipal::ordenarTabulacion() const {
    QWidget* const orden[] = {
        TabStrip1, ListView1,           BtnBorrar, txtEscrituras,         chScript, BtnEdicionCodigo,
        ChRxTx,    BtnBorrarTextosRXTX, Command2,  btnVerFormularioRS232, Command1, BtnOcultar,
        BtnCerrar};
    for (std::size_t i = 1; i < std::size(orden); ++i)
        QWidget::setTabOrder(orden[i - 1], orden[i]);
}
