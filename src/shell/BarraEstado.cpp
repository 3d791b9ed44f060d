#include "shell/BarraEstado.h"

#include "platform/window/Controles.h"
#include "script/BarraEjecucion.h"
#include "script/FalloScript.h"
#include "shell/Estacion.h"
#include "shell/TextosEstado.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QTextDocument>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr int separacion = 14;         // pixels between two fields
constexpr int margenBoton = 12;        // round the text of the button
constexpr int letrasMinimasError = 22; // of the error's text that fields of less weight leave it

struct Descripcion {
    const char* nombre;
    const char* ayuda;
};

constexpr Descripcion descripciones[] = {
    {"lblMaestros", "Maestros conectados ahora"},
    {"lblRitmo", "Peticiones por segundo, de todos los maestros, en el último medio segundo"},
    {"lblLecturas", "Lecturas contestadas"},
    {"lblEscrituras", "Escrituras contestadas"},
    {"lblExcepciones", "Peticiones contestadas con una excepción: función que no se sirve o demasiados registros"},
    {"lblSinRespuesta", "Peticiones sin respuesta: casilla \"Recibir\" o \"Responder\" sin marcar, registro que no "
                        "existe, trama incompleta o maestro que ya no está"},
    {"lblPasadas", "Pasadas del script: cuántas, lo que duró la última y lo que duró la más larga, con la espera en "
                   "los cuadros que abrió"},
    {"lblEnMarcha", "Tiempo desde que arrancó la estación"},
};

// `linea` as the editor numbers it.
QString textoDeError(const Pasadas& pasadas, int linea) {
    return textoDeFallo(pasadas.fallaAhora() ? QStringLiteral("Error") : QStringLiteral("Último error"), pasadas.error,
                        linea);
}

QString ayudaDeError(const Pasadas& pasadas, int linea) {
    const QString cuando =
        pasadas.fallaAhora()
            ? QStringLiteral("La última pasada del script falló.")
            : QStringLiteral("Falló la pasada %1; la última terminó sin errores.").arg(pasadas.pasadaConError);
    return textoDeError(pasadas, linea) + u'\n' + cuando + QStringLiteral("\nPulse para ver la línea en el editor.");
}

} // namespace

BarraEstado::BarraEstado(Estacion& estacion, QWidget* padre)
    : QWidget(padre), estacion_(estacion), BtnErrorScript_(crearBoton(this, "BtnErrorScript", QString())) {
    nombrado(this, "BarraEstado", QStringLiteral("Estado"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    for (int i = 0; i < cuantosCampos; ++i) {
        auto* etiqueta = campos_[static_cast<std::size_t>(i)] = nombrado(new QLabel(this), descripciones[i].nombre);
        etiqueta->setToolTip(QString::fromUtf8(descripciones[i].ayuda));
        etiqueta->setAccessibleDescription(etiqueta->toolTip());
    }
    BtnErrorScript_->setFlat(true);
    QFont subrayada = BtnErrorScript_->font(); // as what can be pressed without the frame of a button
    subrayada.setUnderline(true);
    BtnErrorScript_->setFont(subrayada);
    BtnErrorScript_->setCursor(Qt::PointingHandCursor);
    BtnErrorScript_->setAutoDefault(false);
    BtnErrorScript_->hide();
    connect(BtnErrorScript_, &QPushButton::clicked, this, &BarraEstado::errorPulsado);
    reloj_.setObjectName(QStringLiteral("relojEstado"));
    reloj_.setInterval(periodo);
    connect(&reloj_, &QTimer::timeout, this, &BarraEstado::refrescar);
}

QSize BarraEstado::sizeHint() const {
    return {0, fontMetrics().height() + 8};
}

void BarraEstado::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    muestra_.reset();
    refrescar();
    reloj_.start();
}

void BarraEstado::hideEvent(QHideEvent* evento) {
    QWidget::hideEvent(evento);
    reloj_.stop();
}

void BarraEstado::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    acomodar();
}

void BarraEstado::changeEvent(QEvent* evento) {
    QWidget::changeEvent(evento);
    if (evento->type() == QEvent::FontChange || evento->type() == QEvent::StyleChange)
        acomodar();
}

void BarraEstado::refrescar() {
    campos_[maestros]->setText(QStringLiteral("Maestros: %1").arg(estacion_.escucha().conectados()));
    mostrarPeticiones();
    mostrarScript();
    campos_[enMarcha]->setText(QStringLiteral("En marcha: ") +
                               textoDuracion(estacion_.reloj.instante() - estacion_.inicio));
    acomodar();
}

void BarraEstado::mostrarPeticiones() {
    const Contadores total = estacion_.peticiones().total();
    const Reloj::Instante ahora = estacion_.reloj.instante();
    const std::chrono::duration<double> pasado = ahora - std::exchange(muestra_, ahora).value_or(ahora);
    // Set to zero meanwhile: there is nothing to compare with.
    const std::uint64_t nuevas = total.peticiones >= peticionesVistas_ ? total.peticiones - peticionesVistas_ : 0;
    peticionesVistas_ = total.peticiones;
    const double ritmoAhora = pasado.count() > 0 ? static_cast<double>(nuevas) / pasado.count() : 0;
    campos_[ritmo]->setText(QStringLiteral("%1 peticiones/s").arg(qRound64(ritmoAhora)));
    campos_[lecturas]->setText(QStringLiteral("Lecturas: %1").arg(total.lecturas));
    campos_[escrituras]->setText(QStringLiteral("Escrituras: %1").arg(total.escrituras));
    campos_[excepciones]->setText(QStringLiteral("Excepciones: %1").arg(total.excepciones));
    campos_[sinRespuesta]->setText(QStringLiteral("Sin respuesta: %1").arg(total.sinRespuesta()));
}

void BarraEstado::mostrarScript() {
    const Pasadas& vistas = estacion_.script().pasadas();
    QString texto = QStringLiteral("Pasadas: %1").arg(vistas.cuantas);
    if (vistas.cuantas > 0)
        texto += QStringLiteral(" (%1; máx. %2)").arg(textoDeDuracion(vistas.ultima), textoDeDuracion(vistas.maxima));
    campos_[pasadas]->setText(texto);
    if (vistas.error.number == 0)
        return;
    const int linea = estacion_.script().lineaDe(vistas.error);
    textoError_ = textoDeError(vistas, linea).simplified();
    BtnErrorScript_->setAccessibleName(textoError_);
    BtnErrorScript_->setToolTip(Qt::convertFromPlainText(ayudaDeError(vistas, linea)));
}

// The error first, then as many fields as there is room for; the error's text takes what they leave.
void BarraEstado::acomodar() {
    const int anchoError = textoError_.isEmpty() ? 0 : fontMetrics().horizontalAdvance(textoError_) + margenBoton;
    const int minimoError = std::min(anchoError, letrasMinimasError * fontMetrics().averageCharWidth() + margenBoton);
    int libre = width() - minimoError;
    int x = 0;
    bool caben = true;
    for (QLabel* const campo : campos_) {
        const int ancho = campo->sizeHint().width() + separacion;
        caben = caben && ancho <= libre;
        campo->setVisible(caben);
        if (!caben)
            continue;
        campo->setGeometry(x, 0, ancho - separacion, height());
        x += ancho;
        libre -= ancho;
    }
    BtnErrorScript_->setVisible(anchoError > 0);
    if (anchoError == 0)
        return;
    const int ancho = std::min(anchoError, width() - x);
    BtnErrorScript_->setGeometry(x, 0, ancho, height());
    const QString cabe = fontMetrics().elidedText(textoError_, Qt::ElideRight, ancho - margenBoton);
    BtnErrorScript_->setText(QString(cabe).replace(u'&', QLatin1String("&&")));
}
