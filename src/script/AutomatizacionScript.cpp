#include "script/AutomatizacionScript.h"

#include "ajustes/Claves.h"
#include "platform/events/Eventos.h"
#include "platform/text/Numbers.h"
#include "platform/window/Controles.h"
#include "platform/window/MsgBox.h"
#include "registers/ErrorEjecucion.h"
#include "script/BarraEjecucion.h"
#include "script/FalloScript.h"
#include "script/FrmEdicionCodigo.h"
#include "script/PeriodoScript.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>

#include <cmath>
#include <cstdio>
#include <string>

AutomatizacionScript::AutomatizacionScript(Esclavos& esclavos, Ajustes& ajustes,
                                           const std::filesystem::path& carpetaPrograma, Eventos& eventos,
                                           const Reloj& reloj, const Ventana& ventana, std::chrono::milliseconds limite)
    : QObject(&ventana.principal), ajustes_(ajustes), eventos_(eventos), reloj_(reloj), ventana_(ventana),
      host_(&ventana.principal, ventana.sinPantalla, reloj), codigo_(ajustes, carpetaPrograma),
      mw_(vbs::makeObject<ObjetoMW>(esclavos, [this](double num) { ejecutor_.ejecucionPedidaPorScript(num); })),
      ScriptControl1_(host_), ejecutor_(ScriptControl1_, codigo_, *this, eventos_, reloj) {
    ScriptControl1_.setTimeout(limite);
    host_.alParar([this] { detener(); });
    prepararTimers();
    connect(&ventana_.chScript, &QCheckBox::toggled, this, &AutomatizacionScript::clicChScript);
    ventana_.chScript.installEventFilter(this);
}

void AutomatizacionScript::prepararTimers() {
    timerScript_.setObjectName(QStringLiteral("timerScript"));
    timerScript_.setTimerType(Qt::PreciseTimer);
    connect(&timerScript_, &QTimer::timeout, this, &AutomatizacionScript::alVencer);
    timerAplazada_.setObjectName(QStringLiteral("timerAplazada"));
    timerAplazada_.setSingleShot(true);
    connect(&timerAplazada_, &QTimer::timeout, this, &AutomatizacionScript::alVencer);
}

AutomatizacionScript::~AutomatizacionScript() {
    delete editor_;
}

FrmEdicionCodigo& AutomatizacionScript::editor() {
    if (!editor_)
        editor_ = new FrmEdicionCodigo(codigo_, ajustes_, ventana_.chScript, ejecutor_, eventos_, &ventana_.principal);
    editor_->mostrarFallo(ejecutor_.ultimoError());
    return *editor_;
}

int AutomatizacionScript::lineaDe(const vbs::ScriptFailure& fallo) const {
    return editor_ ? editor_->lineaDe(fallo) : static_cast<int>(fallo.line);
}

void AutomatizacionScript::iniciar() {
    ScriptControl1_.addObject(u"mw", vbs::Ref<vbs::Object>(mw_.get()));
    const std::string ejecutar = ajustes_.leerConfiguracion(claves::ejecutar);
    const double marcada = text::readNumber(ejecutar, ajustes_.signoDecimal()).value_or(0);
    ventana_.chScript.setChecked(std::nearbyint(marcada) == 1);
}

// What makes the click fail is told to the user, and the timer stays as it was.
void AutomatizacionScript::clicChScript() {
    try {
        ajustes_.escribirConfiguracion(claves::ejecutar, ventana_.chScript.isChecked() ? "1" : "0");
        const char16_t signo = ajustes_.signoDecimal();
        const double periodo = periodoDeTexto(ajustes_.leerConfiguracion(claves::periodo), signo);
        armarTimer(periodo);
        ventana_.lblBaseDeTiempo.setText(
            QString::fromStdString("Intervalo: " + text::writeNumber(periodo, signo) + " Milisegundos"));
    } catch (const ErrorEjecucion& error) {
        if (ventana_.sinPantalla)
            std::fprintf(stderr, "esclavo-modbus: %s: %s\n", claves::periodo.nombre.data(), error.what());
        else
            avisarMsgBox(&ventana_.principal, QString::fromUtf8(error.what()), vbCritical);
    }
}

void AutomatizacionScript::armarTimer(double periodo) {
    if (ventana_.chScript.isChecked()) {
        timerScript_.start(intervaloDeTimer(periodo));
    } else {
        timerScript_.stop();
        timerAplazada_.stop();
    }
}

void AutomatizacionScript::alVencer() {
    if (!puedePasar_ || reposando())
        return;
    const Reloj::Instante comienzo = reloj_.instante();
    ejecucion_timers(EjecutorScript::TIMER_SCRIPT);
    if (timerScript_.isActive() && (reposando() || reloj_.instante() - comienzo >= timerScript_.intervalAsDuration()))
        timerScript_.start();
}

bool AutomatizacionScript::ejecucionActiva() const {
    return ventana_.chScript.isChecked();
}

void AutomatizacionScript::mostrarResultado(bool sinError) {
    if (const auto atencion = host_.terminarPasada(); atencion != HostScript::Atencion::ninguna)
        reposo_ = reloj_.instante() + (atencion == HostScript::Atencion::parada ? pausaTrasParada : pausaTrasCuadro);
    if (editor_)
        editor_->mostrarFallo(ejecutor_.ultimoError());
    contarFallo();
    if (ponerFondoDeEstado(ventana_.chScript, sinError))
        contarPasada();
}

// Notes when the script failed; the box tells of another error at once, not only to who points at it.
void AutomatizacionScript::contarFallo() {
    const vbs::ScriptFailure& fallo = ejecutor_.ultimoError();
    if (fallo.number != 0)
        horaDelFallo_ = reloj_.hora();
    if (fallo == fallo_)
        return;
    fallo_ = fallo;
    contarPasada();
}

// What the colour means, in words.
void AutomatizacionScript::contarPasada() {
    const Pasadas& pasadas = ejecutor_.pasadas();
    if (fallo_.number == 0 && pasadas.cuantas == 0)
        return;
    const QString texto =
        fallo_.number != 0
            ? textoDeFallo(QStringLiteral("Con error a las ") + textoDeHora(horaDelFallo_), fallo_, lineaDe(fallo_))
            : QStringLiteral("Sin errores. Pasadas: %1; la última duró %2")
                  .arg(QString::number(pasadas.cuantas), textoDeDuracion(pasadas.ultima));
    ventana_.chScript.setToolTip(texto);
    ventana_.chScript.setAccessibleDescription(texto);
}

// The figures are put together when somebody asks for them, not in every pass.
bool AutomatizacionScript::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == &ventana_.chScript && evento->type() == QEvent::ToolTip)
        contarPasada();
    return QObject::eventFilter(objeto, evento);
}

void AutomatizacionScript::aplazarPasada() {
    timerAplazada_.start();
}
