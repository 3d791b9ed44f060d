#include "shell/FrmPrincipal.h"

#include "ajustes/Claves.h"
#include "bridge/FrmConexionesPuentes.h"
#include "modbus/VistaMonitor.h"
#include "platform/window/Contraste.h"
#include "platform/window/Controles.h"
#include "platform/window/MsgBox.h"
#include "platform/window/PaginaManual.h"
#include "registers/AccionesRegistros.h"
#include "registers/FrmMW.h"
#include "registers/VistaPagina.h"
#include "script/FrmEdicionCodigo.h"
#include "serial/frmRS232.h"
#include "shell/AyudaContextual.h"
#include "shell/BarraEstado.h"
#include "shell/ControlesPrincipal.h"
#include "shell/FrmAbout.h"
#include "shell/FrmEstadisticas.h"
#include "shell/FrmTxRx.h"
#include "shell/SeRepiteProgramaEnRunTime.h"
#include "shell/TeclaManual.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>
#include <QTreeWidget>

#include <cstdio>
#include <filesystem>
#include <utility>

namespace {

constexpr std::chrono::milliseconds periodoCambioPuerto{5000};
constexpr std::chrono::milliseconds periodoAux{1000};
constexpr Clave VER{.nombre = "VER"}; // claves::ver as a second instance spells it
constexpr int tablasIniciales = 12;
constexpr double ultimoRegistroInicial = 499;

// Colours a text; on a dark theme it gets a light ground, on which the colour can be read.
void colorear(QWidget& control, const QColor& color) {
    const QColor fondo = fondoDeEstado(QApplication::palette());
    QPalette paleta;
    paleta.setColor(QPalette::WindowText, color);
    if (fondo.isValid())
        paleta.setColor(QPalette::Window, fondo);
    control.setAutoFillBackground(fondo.isValid());
    control.setPalette(paleta);
}

void mostrarDelante(QWidget& ventana) {
    ventana.show();
    ventana.raise();
    ventana.activateWindow();
}

} // namespace

FrmPrincipal::FrmPrincipal(Estacion& estacion)
    : estacion_(estacion), controles_(std::make_unique<ControlesPrincipal>(*this, estacion.monitores.escrituras())) {
    setObjectName(QStringLiteral("FrmPrincipal"));
    setWindowTitle(QStringLiteral("Trelvano"));
    resize(1180, 760);
    TimerCambioPuerto_.setObjectName(QStringLiteral("TimerCambioPuerto"));
    TimerCambioPuerto_.setInterval(periodoCambioPuerto);
    timerAux_.setObjectName(QStringLiteral("timerAux"));
    timerAux_.setInterval(periodoAux);
    conectarControles();
    conectarTeclado();
    teclaManual_ = std::make_unique<TeclaManual>(*this);
    crearMenus();
    crearBarraEstado();
    repartirPaginasDelManual();
    estacion_.esclavos.observar(this);
    estacion_.abrirVentana(
        *this, {*this, *controles_->chScript, *controles_->lblBaseDeTiempo, estacion_.arranque.sinPantalla});
}

FrmPrincipal::~FrmPrincipal() {
    estacion_.esclavos.observar(nullptr);
    estacion_.cerrarVentana();
    // While the members live that the children's last signals reach.
    qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

void FrmPrincipal::conectarControles() {
    auto& c = *controles_;
    connect(c.TabStrip1, &QTabBar::currentChanged, this, &FrmPrincipal::seleccionarPestana);
    connect(c.ChRxTx, &QCheckBox::toggled, this, &FrmPrincipal::alternarTxRx);
    connect(c.BtnBorrarTextosRXTX, &QPushButton::clicked, this, [this] { estacion_.monitores.borrarTramas(); });
    connect(c.BtnEdicionCodigo, &QPushButton::clicked, this, &FrmPrincipal::editarCodigo);
    connect(c.BtnBorrar, &QPushButton::clicked, this, [this] { estacion_.monitores.borrarEscrituras(); });
    connect(c.BtnOcultar, &QPushButton::clicked, this, &FrmPrincipal::ocultar);
    connect(c.BtnCerrar, &QPushButton::clicked, this, &FrmPrincipal::apagar);
    connect(c.Command1, &QPushButton::clicked, this, &FrmPrincipal::mostrarAbout);
    connect(c.Command2, &QPushButton::clicked, this, &FrmPrincipal::mostrarPuentes);
    connect(c.btnVerFormularioRS232, &QPushButton::clicked, this, &FrmPrincipal::mostrarSerie);
    connect(&TimerCambioPuerto_, &QTimer::timeout, this, &FrmPrincipal::comprobarPuertoYVisibilidad);
}

void FrmPrincipal::conectarTeclado() {
    const auto siguiente = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Tab), this);
    const auto anterior = new QShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), this);
    connect(siguiente, &QShortcut::activated, this, [this] { cambiarEsclavo(1); });
    connect(anterior, &QShortcut::activated, this, [this] { cambiarEsclavo(-1); });
}

void FrmPrincipal::crearMenus() {
    acciones_ = new AccionesRegistros(estacion_.esclavos, estacion_.anotaciones, *this);
    connect(acciones_, &AccionesRegistros::destinoElegido, this, &FrmPrincipal::irARegistro);
    auto* barra = new QMenuBar(this);
    barra->setObjectName(QStringLiteral("menuPrincipal"));
    // One drawn elsewhere is reached through a bus and a thread, which end the program when no descriptor is left.
    barra->setNativeMenuBar(false);
    acciones_->agregarA(*barra->addMenu(QStringLiteral("&Registros")));
    QMenu* const ver = barra->addMenu(QStringLiteral("&Ver"));
    ver->addAction(QStringLiteral("&Estadísticas"), Qt::CTRL | Qt::Key_I, this, &FrmPrincipal::mostrarEstadisticas);
    // The key is TeclaManual's, everywhere; here it is only told.
    barra->addMenu(QStringLiteral("&Ayuda"))->addAction(QStringLiteral("&Manual\tF1"), this, [this] {
        teclaManual_->abrir(QStringLiteral("indice.md"));
    });
    layout()->setMenuBar(barra);
}

// Where F1 leads, from the window and from those of its controls that have a page of their own.
void FrmPrincipal::repartirPaginasDelManual() {
    auto& c = *controles_;
    ponerPaginaManual(*this, "inicio.md");
    ponerPaginaManual(*c.ListView1, "primer-maestro.md");
    ponerPaginaManual(*c.TabStrip1, "cuadricula.md");
    ponerPaginaManual(*c.txtEscrituras, "monitores.md#escrituras");
    ponerPaginaManual(*c.BtnBorrar, "monitores.md#escrituras");
    ponerPaginaManual(*c.chScript, "scripts.md#las-pasadas");
    ponerPaginaManual(*c.BtnEdicionCodigo, "editor.md");
    ponerPaginaManual(*c.ChRxTx, "monitores.md#la-ventana-txrx");
    ponerPaginaManual(*c.BtnBorrarTextosRXTX, "monitores.md#tramas");
    ponerPaginaManual(*c.Command2, "puente.md");
    ponerPaginaManual(*c.btnVerFormularioRS232, "puerto-serie.md");
    ponerPaginaManual(*c.BtnOcultar, "inicio.md#ocultar-y-volver-a-mostrar");
    ponerPaginaManual(*c.BtnCerrar, "inicio.md#cerrar");
}

void FrmPrincipal::crearBarraEstado() {
    auto* barra = new BarraEstado(estacion_, this);
    ponerPaginaManual(*barra, "estado.md");
    connect(barra, &BarraEstado::errorPulsado, this, &FrmPrincipal::verErrorDelScript);
    layout()->addWidget(barra);
    setTabOrder(controles_->BtnCerrar, &barra->botonError());
}

bool FrmPrincipal::cargar() {
    ponerAyudaContextual(*this);
    hide();
    if (estacion_.arranque.instanciaPrevia) {
        rechazarSegundaInstancia();
        return false;
    }
    // The result is of no use: the single-instance rule rests on the previous instance alone.
    SeRepiteProgramaEnRunTime(std::filesystem::path(estacion_.arranque.rutaPrograma).filename().string());
    estacion_.script().iniciar();
    estacion_.eventos.dejarPasarEventos();
    controles_->ListView1->setHeaderLabels({QStringLiteral("IP"), QStringLiteral("ESTADO")});
    controles_->ListView1->setColumnWidth(0, fontMetrics().horizontalAdvance(QStringLiteral("  000.000.000.000  ")));
    estacion_.eventos.dejarPasarEventos();
    crearTablasIniciales();
    controles_->TabStrip1->setCurrentIndex(1);
    for (int vez = 0; vez < 5; ++vez)
        estacion_.eventos.dejarPasarEventos();
    comprobarPuertoYVisibilidad();
    TimerCambioPuerto_.start();
    atenderLineaDeComandos();
    cargarPuentes();
    if (!isVisible() && !estacion_.arranque.sinPantalla)
        std::fputs(
            "esclavo-modbus: la ventana está oculta; la muestran ver=1 en Sis_Config.ini y un arranque con view.\n",
            stderr);
    estacion_.script().empezarPasadas();
    return !apagada_;
}

void FrmPrincipal::rechazarSegundaInstancia() {
    const QString mensaje = QStringLiteral("Programa en ejecucion");
    // Where nobody can close a message box, waiting for it would never end.
    if (estacion_.arranque.sinPantalla)
        std::fprintf(stderr, "esclavo-modbus: %s\n", qUtf8Printable(mensaje));
    else
        MsgBox(nullptr, mensaje, vbCritical + vbSystemModal, QStringLiteral("Esclavo Modbus"));
    if (!apagada_)
        estacion_.config.escribirConfiguracion(VER, "1");
}

void FrmPrincipal::crearTablasIniciales() {
    for (int tabla = 0; tabla < tablasIniciales; ++tabla)
        estacion_.esclavos.crearEsclavo(tabla, 0, ultimoRegistroInicial);
}

void FrmPrincipal::atenderLineaDeComandos() {
    if (!estacion_.arranque.lineaDeComandos.contains(QLatin1String("view"), Qt::CaseInsensitive))
        return;
    estacion_.config.escribirConfiguracion(claves::ver, "1");
    show();
}

void FrmPrincipal::editarCodigo() {
    FrmEdicionCodigo& editor = estacion_.script().editor();
    ponerAyudaContextual(editor);
    mostrarDelante(editor);
}

void FrmPrincipal::verErrorDelScript() {
    editarCodigo();
    estacion_.script().editor().irAlFallo(estacion_.script().pasadas().error);
}

void FrmPrincipal::mostrarEstadisticas() {
    if (!frmEstadisticas_)
        frmEstadisticas_ = new FrmEstadisticas(estacion_, *this);
    mostrarDelante(*frmEstadisticas_);
}

void FrmPrincipal::cargarPuentes() {
    if (!frmPuentes_)
        frmPuentes_ = new FrmConexionesPuentes(*this, estacion_.puente);
}

void FrmPrincipal::mostrarPuentes() {
    cargarPuentes();
    mostrarDelante(*frmPuentes_);
}

void FrmPrincipal::mostrarAbout() {
    if (!frmAbout_)
        frmAbout_ = new FrmAbout(*this);
    mostrarDelante(*frmAbout_);
}

void FrmPrincipal::mostrarSerie() {
    mostrarDelante(estacion_.enlaceSerie().formulario());
}

void FrmPrincipal::comprobarPuertoYVisibilidad() {
    estacion_.comprobarPuerto();
    aplicarVisibilidad();
}

void FrmPrincipal::aplicarVisibilidad() {
    if (std::exchange(visibilidadAplicada_, true) && estacion_.config.ilegible())
        return;
    if (estacion_.config.leerConfiguracion(claves::ver) != "1")
        hide();
    else if (!isVisible())
        show();
}

void FrmPrincipal::ocultar() {
    estacion_.config.escribirConfiguracion(claves::ver, "0");
    hide();
}

void FrmPrincipal::closeEvent(QCloseEvent* evento) {
    evento->accept();
    apagar();
}

void FrmPrincipal::apagar() {
    apagada_ = true;
    TimerCambioPuerto_.stop();
    detenerScript();
    // Hidden, not deleted: a message box of theirs may still be on the stack. They end with this window.
    estacion_.enlaceSerie().ocultar();
    if (frmMW_)
        frmMW_->hide();
    hide();
    QCoreApplication::exit(0);
}

void FrmPrincipal::esclavoCreado(Pagina& pagina) {
    const int numero = pagina.numero();
    auto* tramas = new VistaMonitor(estacion_.monitores.tramas(numero), nullptr, VistaMonitor::Seguimiento::siempre);
    auto* vista = new VistaPagina(estacion_.esclavos, pagina, tramas, controles_->paginas, &estacion_.anotaciones);
    connect(vista, &VistaPagina::celdaActivada, this, &FrmPrincipal::abrirFrmMW);
    acciones_->seguir(*vista);
    ponerPaginaManual(*vista, "cuadricula.md");
    ponerPaginaManual(*tramas, "monitores.md#tramas");
    vistas_[numero] = vista;
    ponerAyudaContextual(*vista);
    controles_->agregarPagina(*vista, numero);
    seleccionarPestana(controles_->TabStrip1->currentIndex());
}

void FrmPrincipal::seleccionarPestana(int indice) {
    const int numero = controles_->TabStrip1->tabText(indice).mid(1).toInt();
    if (const auto vista = vistas_.find(numero); vista != vistas_.end()) {
        controles_->paginas->setCurrentWidget(vista->second);
        acciones_->ponerPagina(vista->second);
    }
}

void FrmPrincipal::irARegistro(int esclavo, int direccion) {
    auto& pestanas = *controles_->TabStrip1;
    for (int i = 0; i < pestanas.count(); ++i)
        if (pestanas.tabText(i).mid(1).toInt() == esclavo)
            pestanas.setCurrentIndex(i);
    if (const auto vista = vistas_.find(esclavo); vista != vistas_.end())
        vista->second->irA(direccion);
}

void FrmPrincipal::cambiarEsclavo(int paso) {
    auto& pestanas = *controles_->TabStrip1;
    if (pestanas.count() > 0)
        pestanas.setCurrentIndex((pestanas.currentIndex() + paso + pestanas.count()) % pestanas.count());
}

void FrmPrincipal::abrirFrmMW(int esclavo, int direccion, const QString& texto) {
    if (!frmMW_) {
        frmMW_ = new FrmMW(estacion_.esclavos, this);
        frmMW_->setAttribute(Qt::WA_DeleteOnClose);
        ponerAyudaContextual(*frmMW_);
        ponerPaginaManual(*frmMW_, "cuadricula.md#escribir-un-registro-a-mano");
    }
    frmMW_->abrir(esclavo, direccion, texto);
}

void FrmPrincipal::alternarTxRx(bool ver) {
    estacion_.monitores.verTxRx = ver;
    if (ver && !frmTxRx_)
        frmTxRx_ = new FrmTxRx(*this, estacion_.monitores);
    if (!frmTxRx_)
        return;
    const bool activa = isActiveWindow();
    frmTxRx_->setVisible(ver);
    if (activa)
        activateWindow(); // some window systems make every new window the active one
}

void FrmPrincipal::mostrarPuerto(const std::string& texto) {
    controles_->LblPuertoLocal->setText(QString::fromStdString(texto));
}

void FrmPrincipal::mostrarEscuchando(bool escuchando) {
    colorear(*controles_->LblPuertoLocal, escuchando ? colores::verdeOscuro : colores::rojo);
    controles_->LblPuertoLocal->setToolTip(escuchando ? QStringLiteral("Abierto: los maestros se pueden conectar")
                                                      : QStringLiteral("Cerrado: los maestros no se pueden conectar"));
}

void FrmPrincipal::mostrarAviso(const std::string& texto) {
    avisar(*controles_->lblDDEAviso, deUtf8(texto));
    controles_->lblDDEAviso->setToolTip(deUtf8(texto));
}

void FrmPrincipal::agregarFila() {
    auto* fila = new QTreeWidgetItem(controles_->ListView1);
    QFont negrita = controles_->ListView1->font();
    negrita.setBold(true);
    for (int columna = 0; columna < 2; ++columna)
        fila->setFont(columna, negrita);
}

void FrmPrincipal::mostrarFila(std::size_t fila, const std::string& ip, const std::string& estado) {
    QTreeWidgetItem* const elemento = controles_->ListView1->topLevelItem(static_cast<int>(fila));
    elemento->setText(0, QString::fromStdString(ip));
    elemento->setText(1, QString::fromStdString(estado));
}
