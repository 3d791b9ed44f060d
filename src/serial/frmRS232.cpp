#include "serial/frmRS232.h"

#include "platform/text/CodePage.h"
#include "platform/window/Controles.h"
#include "platform/window/PaginaManual.h"
#include "platform/window/VistaTexto.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include <chrono>

using namespace std::chrono_literals;

namespace {

// A text box under its label.
QWidget* conRotulo(VistaTexto* vista) {
    auto* panel = new QWidget;
    auto* rotulo = new QLabel(vista->accessibleName() + u':');
    rotulo->setBuddy(vista);
    auto* columna = new QVBoxLayout(panel);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(rotulo);
    columna->addWidget(vista);
    return panel;
}

// A reading as the operator can read it: characters without a shape as their code in angle brackets, of a long one the
// beginning.
QString legible(std::string_view lectura) {
    constexpr std::size_t maximo = 60;
    QString texto;
    for (const QChar c : deUtf8(text::utf8FromAnsi(lectura.substr(0, maximo))))
        texto += c.isPrint() ? QString(c) : QStringLiteral("<%1>").arg(c.unicode());
    return lectura.size() > maximo ? texto + QChar(0x2026) : texto;
}

} // namespace

frmRS232::frmRS232(const QString& carpeta, Ajustes& ajustes, LogSerie& log, MotorSerie& motor, const Reloj& reloj,
                   QWidget* parent)
    : QWidget(parent, Qt::Window), ajustes_(ajustes), log_(log), motor_(motor), reloj_(reloj), comm_(carpeta, this) {
    crearControles();
    comm_.setObjectName(QStringLiteral("MSComm"));
    connect(&comm_, &MSComm::OnComm, this, &frmRS232::MSComm_OnComm);
    connect(&comm_, &MSComm::perdido, this, [this](const QString& causa) {
        escribirFallo("OnComm", "", causa.toStdString());
        cerradoPor(causa.toStdString());
    });

    // A step that is logged may open a box, in which characters arrive.
    SetearConfig();
    recepcion_.emplace(
        leerMarcaFin(ajustes_, log_), ajustes_, motor_, [this] { return comm_.Input(); },
        static_cast<SalidaSerie&>(*this));

    timerLimpiarBuffer_.setObjectName(QStringLiteral("timerLimpiarBuffer"));
    timerLimpiarBuffer_.setInterval(3000ms);
    connect(&timerLimpiarBuffer_, &QTimer::timeout, this, [this] { recepcion_->alCallar(); });
    timerEstado_.setObjectName(QStringLiteral("timerEstado"));
    connect(&timerEstado_, &QTimer::timeout, this, &frmRS232::timerEstado_Timer);
    timerEstado_.start(5000ms);
    timerEstado_Timer();
    if (llegoAntes_)
        MSComm_OnComm();
}

void frmRS232::crearControles() {
    setObjectName(QStringLiteral("frmRS232"));
    setWindowTitle(QStringLiteral("RS232"));
    ponerPaginaManual(*this, "puerto-serie.md");

    txtConfigRS232_ = nombrado(new QLineEdit, "txtConfigRS232", QStringLiteral("Configuración"));
    txtConfigRS232_->setReadOnly(true);
    lblEstado_ = nombrado(new QLabel, "lblEstado", QStringLiteral("Estado del puerto"));
    lblEstado_->setAlignment(Qt::AlignCenter);
    lblEstado_->setAutoFillBackground(true);
    lblEstado_->setMargin(fontMetrics().height() / 4);
    lblEstado_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("  CLOSE  ")));
    auto* btnAbrir = crearBoton(this, "BtnAbrirPuerto", QStringLiteral("Abrir Puerto"));
    auto* btnOcultar = crearBoton(this, "BtnOcultar", QStringLiteral("Ocultar"));
    txtInputCom_ = nombrado(new VistaTexto, "TxtInputCom", QStringLiteral("Texto recibido"));
    txtTramas_ = nombrado(new VistaTexto, "txtTramas", QStringLiteral("Tramas interpretadas"));

    auto* rotulo = new QLabel(txtConfigRS232_->accessibleName() + u':');
    rotulo->setBuddy(txtConfigRS232_);
    auto* arriba = new QHBoxLayout;
    arriba->addWidget(rotulo);
    arriba->addWidget(txtConfigRS232_, 1);
    arriba->addWidget(lblEstado_);
    arriba->addWidget(btnAbrir);
    arriba->addWidget(btnOcultar);
    auto* textos = new QSplitter(Qt::Vertical);
    textos->setChildrenCollapsible(false);
    textos->addWidget(conRotulo(txtInputCom_));
    textos->addWidget(conRotulo(txtTramas_));
    auto* columna = new QVBoxLayout(this);
    lblCausaCierre_ = crearAviso(this, "lblCausaCierre", QStringLiteral("Por qué está cerrado el puerto"));
    lblRechazo_ = crearAviso(this, "lblRechazo", QStringLiteral("Última lectura rechazada"));
    columna->addLayout(arriba);
    columna->addWidget(lblCausaCierre_);
    columna->addWidget(lblRechazo_);
    columna->addWidget(textos, 1);
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 28);

    setTabOrder(txtConfigRS232_, btnAbrir);
    setTabOrder(btnAbrir, btnOcultar);
    setTabOrder(btnOcultar, txtInputCom_);
    setTabOrder(txtInputCom_, txtTramas_);
    connect(btnAbrir, &QPushButton::clicked, this, [this] {
        SetearConfig();
        avisar(*lblRechazo_, {});
        timerEstado_Timer();
    });
    connect(btnOcultar, &QPushButton::clicked, this, &QWidget::hide);
}

void frmRS232::SetearConfig() {
    configuracion_ = ConfiguracionRS232::leer(ajustes_);
    const auto intentar = [this](std::string_view propiedad, const auto& asignacion) {
        try {
            asignacion();
        } catch (const std::exception& error) {
            escribirFallo("SetearConfig", propiedad, error.what());
        }
    };
    intentar("CommPort", [this] { comm_.setCommPort(configuracion_.CommPort()); });
    intentar("Settings", [this] { comm_.setSettings(configuracion_.Settings()); });
    intentar("InputLen", [this] { comm_.setInputLen(0); });
    intentar("RThreshold", [this] { comm_.setRThreshold(1); });
    intentar("SThreshold", [this] { comm_.setSThreshold(1); });
    intentar("PortOpen", [this] { abrirPuerto(); });
    txtConfigRS232_->setText(deUtf8("Com: " + configuracion_.NomCOM + " / " + comm_.Settings()));
}

void frmRS232::abrirPuerto() {
    try {
        comm_.setPortOpen(true);
    } catch (const std::exception& error) {
        if (!comm_.PortOpen())
            cerradoPor(error.what());
        throw;
    }
}

QString frmRS232::conHora(const QString& texto) const {
    return textoDeHora(reloj_.hora()) + u' ' + texto;
}

void frmRS232::cerradoPor(std::string_view causa) {
    causaCierre_ = conHora(deUtf8(causa));
    timerEstado_Timer();
}

std::string frmRS232::conAjustes(std::string_view operacion) const {
    return std::string(operacion) + ": Com:" + configuracion_.NomCOM + "/" + configuracion_.Settings();
}

void frmRS232::escribirFallo(std::string_view operacion, std::string_view detalle, std::string_view descripcion) {
    log_.escribirLog("RS232", conAjustes(operacion), detalle, descripcion);
}

void frmRS232::MSComm_OnComm() {
    if (!recepcion_) {
        llegoAntes_ = true;
        return;
    }
    timerLimpiarBuffer_.stop();
    recepcion_->alRecibir();
    timerLimpiarBuffer_.start();
}

void frmRS232::timerEstado_Timer() {
    const bool abierto = comm_.PortOpen();
    ponerFondoDeEstado(*lblEstado_, abierto);
    lblEstado_->setText(abierto ? QStringLiteral("OPEN") : QStringLiteral("CLOSE"));
    if (abierto)
        causaCierre_.clear();
    lblEstado_->setToolTip(causaCierre_);
    avisar(*lblCausaCierre_, causaCierre_);
}

void frmRS232::agregarRecibido(std::string_view trozo) {
    txtInputCom_->agregar(trozo);
}

void frmRS232::agregarListado(std::string_view listado) {
    txtTramas_->agregar(listado);
}

void frmRS232::rechazar(std::string_view lectura, std::string_view causa) {
    const QString que = legible(lectura);
    const std::uint64_t veces =
        fallosRecepcion_.anotar(conAjustes("OnComm"), que.toStdString(), causa, reloj_.instante());
    QString texto = lectura.empty() ? QStringLiteral("No se pudo leer el puerto: ")
                                    : QStringLiteral("Lectura rechazada «") + que + QStringLiteral("»: ");
    texto += deUtf8(causa);
    if (veces > 1)
        texto += QStringLiteral(" (%1 veces)").arg(veces);
    avisar(*lblRechazo_, conHora(texto));
}
