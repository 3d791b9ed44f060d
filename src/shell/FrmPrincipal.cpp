#include "shell/FrmPrincipal.h"

#include "bridge/FrmConexionesPuentes.h"
#include "modbus/VistaMonitor.h"
#include "platform/window/Contraste.h"
#include "platform/window/MsgBox.h"
#include "registers/FrmMW.h"
#include "registers/Palabra.h"
#include "registers/VistaPagina.h"
#include "script/FrmEdicionCodigo.h"
#include "serial/frmRS232.h"
#include "shell/AyudaContextual.h"
#include "shell/ControlesPrincipal.h"
#include "shell/FrmAbout.h"
#include "shell/FrmTxRx.h"
#include "shell/Modulo_Config.h"
#include "shell/SeRepiteProgramaEnRunTime.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSocketNotifier>
#include <QStackedWidget>
#include <QTabBar>
#include <QTreeWidget>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>

namespace {

constexpr std::chrono::milliseconds periodoCambioPuerto{5000};
constexpr std::chrono::milliseconds periodoAux{1000};
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

FrmPrincipal::FrmPrincipal(Modulo_Config& config, Arranque arranque)
    : config_(config), arranque_(std::move(arranque)), escucha_(reactor_, peticiones_, *this, arranque_.rutaPrograma),
      controles_(std::make_unique<ControlesPrincipal>(*this, monitores_.escrituras())),
      script_(std::make_unique<AutomatizacionScript>(
          esclavos_, configuracionScript_, config_.rutaArchivo().parent_path(), eventos_,
          AutomatizacionScript::Ventana{*this, *controles_->chScript, *controles_->lblBaseDeTiempo,
                                        arranque_.sinPantalla},
          arranque_.limiteScript)),
      enlaceSerie_(std::make_unique<EnlaceSerie>(*this, config_, script_->ScriptControl1(),
                                                 std::filesystem::path(arranque_.rutaPrograma).filename().string(),
                                                 arranque_.depurar)) {
    setObjectName(QStringLiteral("FrmPrincipal"));
    setWindowTitle(QStringLiteral("Trelvano"));
    resize(1180, 760);
    TimerCambioPuerto_.setObjectName(QStringLiteral("TimerCambioPuerto"));
    TimerCambioPuerto_.setInterval(periodoCambioPuerto);
    timerAux_.setObjectName(QStringLiteral("timerAux"));
    timerAux_.setInterval(periodoAux);
    conectarControles();
    conectarTeclado();
    esclavos_.observar(this);
}

FrmPrincipal::~FrmPrincipal() {
    esclavos_.observar(nullptr);
    enlaceSerie_.reset();
    script_.reset();
    // The views borrow the store and the monitors, so they go first.
    qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

void FrmPrincipal::conectarControles() {
    auto& c = *controles_;
    connect(c.TabStrip1, &QTabBar::currentChanged, this, &FrmPrincipal::seleccionarPestana);
    connect(c.ChRxTx, &QCheckBox::toggled, this, &FrmPrincipal::alternarTxRx);
    connect(c.BtnBorrarTextosRXTX, &QPushButton::clicked, this, [this] { monitores_.borrarTramas(); });
    connect(c.BtnEdicionCodigo, &QPushButton::clicked, this, &FrmPrincipal::editarCodigo);
    connect(c.BtnBorrar, &QPushButton::clicked, this, [this] { monitores_.borrarEscrituras(); });
    connect(c.BtnOcultar, &QPushButton::clicked, this, &FrmPrincipal::ocultar);
    connect(c.BtnCerrar, &QPushButton::clicked, this, &FrmPrincipal::apagar);
    connect(c.Command1, &QPushButton::clicked, this, &FrmPrincipal::mostrarAbout);
    connect(c.Command2, &QPushButton::clicked, this, &FrmPrincipal::mostrarPuentes);
    connect(c.btnVerFormularioRS232, &QPushButton::clicked, this, &FrmPrincipal::mostrarSerie);
    connect(&TimerCambioPuerto_, &QTimer::timeout, this, &FrmPrincipal::comprobarPuertoYVisibilidad);

    auto* avisador = new QSocketNotifier(reactor_.descriptor(), QSocketNotifier::Read, this);
    connect(avisador, &QSocketNotifier::activated, this, [this] { reactor_.turn(); });
}

void FrmPrincipal::conectarTeclado() {
    const auto siguiente = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Tab), this);
    const auto anterior = new QShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), this);
    connect(siguiente, &QShortcut::activated, this, [this] { cambiarEsclavo(1); });
    connect(anterior, &QShortcut::activated, this, [this] { cambiarEsclavo(-1); });
}

bool FrmPrincipal::cargar() {
    ponerAyudaContextual(*this);
    hide();
    if (arranque_.instanciaPrevia) {
        rechazarSegundaInstancia();
        return false;
    }
    // The result is of no use: the single-instance rule rests on the previous instance alone.
    SeRepiteProgramaEnRunTime(std::filesystem::path(arranque_.rutaPrograma).filename().string());
    script_->iniciar();
    dejarPasarEventos();
    controles_->ListView1->setHeaderLabels({QStringLiteral("IP"), QStringLiteral("ESTADO")});
    controles_->ListView1->setColumnWidth(0, fontMetrics().horizontalAdvance(QStringLiteral("  000.000.000.000  ")));
    dejarPasarEventos();
    crearTablasIniciales();
    controles_->TabStrip1->setCurrentIndex(1);
    for (int vez = 0; vez < 5; ++vez)
        dejarPasarEventos();
    comprobarPuertoYVisibilidad();
    TimerCambioPuerto_.start();
    atenderLineaDeComandos();
    cargarPuentes();
    script_->empezarPasadas();
    return !apagada_;
}

void FrmPrincipal::rechazarSegundaInstancia() {
    const QString mensaje = QStringLiteral("Programa en ejecucion");
    // Where nobody can close a message box, waiting for it would never end.
    if (arranque_.sinPantalla)
        std::fprintf(stderr, "esclavo-modbus: %s\n", qUtf8Printable(mensaje));
    else
        MsgBox(nullptr, mensaje, vbCritical + vbSystemModal, QStringLiteral("Esclavo Modbus"));
    if (!apagada_)
        config_.escribirConfiguracion("VER", "1");
}

void FrmPrincipal::crearTablasIniciales() {
    for (int tabla = 0; tabla < tablasIniciales; ++tabla)
        esclavos_.crearEsclavo(tabla, 0, ultimoRegistroInicial);
}

void FrmPrincipal::atenderLineaDeComandos() {
    if (!arranque_.lineaDeComandos.contains(QLatin1String("view"), Qt::CaseInsensitive))
        return;
    config_.escribirConfiguracion("ver", "1");
    show();
}

void FrmPrincipal::editarCodigo() {
    FrmEdicionCodigo& editor = script_->editor();
    ponerAyudaContextual(editor);
    mostrarDelante(editor);
}

void FrmPrincipal::cargarPuentes() {
    if (!frmPuentes_)
        frmPuentes_ = new FrmConexionesPuentes(*this, reactor_, eventos_);
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
    mostrarDelante(enlaceSerie_->formulario());
}

void FrmPrincipal::comprobarPuertoYVisibilidad() {
    escucha_.levantarEscucha();
    escucha_.refrescarConexiones();
    aplicarVisibilidad();
}

void FrmPrincipal::aplicarVisibilidad() {
    if (config_.leerConfiguracion("ver", "1") != "1")
        hide();
    else if (!isVisible())
        show();
}

void FrmPrincipal::ocultar() {
    config_.escribirConfiguracion("ver", "0");
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
    enlaceSerie_->ocultar();
    if (frmMW_)
        frmMW_->hide();
    hide();
    QCoreApplication::exit(0);
}

void FrmPrincipal::esclavoCreado(Pagina& pagina) {
    const int numero = pagina.numero();
    auto* tramas = new VistaMonitor(monitores_.tramas(numero));
    auto* vista = new VistaPagina(esclavos_, pagina, tramas, controles_->paginas);
    connect(vista, &VistaPagina::celdaActivada, this, &FrmPrincipal::abrirFrmMW);
    vistas_[numero] = vista;
    ponerAyudaContextual(*vista);
    controles_->agregarPagina(*vista, numero);
    seleccionarPestana(controles_->TabStrip1->currentIndex());
}

void FrmPrincipal::seleccionarPestana(int indice) {
    const int numero = controles_->TabStrip1->tabText(indice).mid(1).toInt();
    if (const auto vista = vistas_.find(numero); vista != vistas_.end())
        controles_->paginas->setCurrentWidget(vista->second);
}

void FrmPrincipal::cambiarEsclavo(int paso) {
    auto& pestanas = *controles_->TabStrip1;
    if (pestanas.count() > 0)
        pestanas.setCurrentIndex((pestanas.currentIndex() + paso + pestanas.count()) % pestanas.count());
}

void FrmPrincipal::abrirFrmMW(int esclavo, int direccion, const QString& texto) {
    if (!frmMW_) {
        frmMW_ = new FrmMW(esclavos_, this);
        frmMW_->setAttribute(Qt::WA_DeleteOnClose);
        ponerAyudaContextual(*frmMW_);
    }
    frmMW_->abrir(esclavo, direccion, texto);
}

void FrmPrincipal::alternarTxRx(bool ver) {
    monitores_.verTxRx = ver;
    if (ver && !frmTxRx_)
        frmTxRx_ = new FrmTxRx(*this, monitores_.todas());
    if (!frmTxRx_)
        return;
    const bool activa = isActiveWindow();
    frmTxRx_->setVisible(ver);
    if (activa)
        activateWindow(); // some window systems make every new window the active one
}

double FrmPrincipal::leerPuerto() {
    return config_.leerNumero("PUERTO_VALOR", "502").value_or(0);
}

void FrmPrincipal::guardarPuerto(double puerto) {
    config_.escribirConfiguracion("PUERTO_VALOR", textoDeNumero(puerto, '.'));
}

void FrmPrincipal::mostrarPuerto(const std::string& texto) {
    controles_->LblPuertoLocal->setText(QString::fromStdString(texto));
}

void FrmPrincipal::mostrarEscuchando(bool escuchando) {
    colorear(*controles_->LblPuertoLocal, escuchando ? QColor(0, 128, 0) : QColor(255, 0, 0));
}

void FrmPrincipal::avisar(const std::string& motivo) {
    controles_->lblDDEAviso->setText(QString::fromStdString(motivo));
    controles_->lblDDEAviso->setVisible(!motivo.empty());
    if (!motivo.empty())
        std::fprintf(stderr, "esclavo-modbus: %s\n", motivo.c_str());
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

void FrmPrincipal::dejarPasarEventos() {
    eventos_.dejarPasarEventos();
}
