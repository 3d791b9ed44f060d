// Search and search bar of a VistaTexto.
#include "platform/window/BarraMonitor.h"
#include "platform/window/VistaTexto.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto turnoDeBusqueda = 8ms;
constexpr std::size_t maximoPatron = 1000; // bytes of a selection that is looked for

} // namespace

void VistaTexto::abrirBusqueda() {
    if (barra_ == nullptr)
        heredar(*(barra_ = new BarraBusqueda(*this, this)));
    barra_->abrir();
}

// What the window has given its controls holds for those that come later, too: the help topic.
void VistaTexto::heredar(QWidget& parte) const {
    QList<QWidget*> todas = parte.findChildren<QWidget*>();
    todas << &parte;
    for (const QByteArray& nombre : dynamicPropertyNames())
        for (QWidget* const una : todas)
            una->setProperty(nombre, property(nombre));
}

void VistaTexto::buscarOtraVez(bool adelante) {
    if (barra_ == nullptr)
        return abrirBusqueda();
    barra_->buscar(adelante);
}

QString VistaTexto::seleccionParaBuscar() const {
    const auto [desde, hasta] = std::minmax(ancla_, posicion_);
    if (hasta - desde > maximoPatron)
        return {};
    const QString elegido = seleccion();
    return elegido.contains(u'\n') ? QString() : elegido;
}

// The bar takes its room from the text: no row is hidden behind it.
void VistaTexto::mostrarBarra(bool mostrada) {
    const bool seguia = sigue_;
    barraALaVista_ = mostrada;
    colocarBarras();
    if (seguia)
        ponerArriba(bytes().size());
    if (!mostrada)
        setFocus(); // before the bar goes, or the focus would pass through the control behind it
    barra_->setVisible(mostrada);
}

void VistaTexto::colocarBarras() {
    const int ancho = botones_ != nullptr ? botones_->sizeHint().width() : 0;
    const int alto = barraALaVista_ ? barra_->sizeHint().height() : 0;
    setViewportMargins(0, 0, ancho, alto);
    const QRect zona = viewport()->geometry();
    if (botones_ != nullptr)
        botones_->setGeometry(zona.right() + 1, zona.top(), ancho, zona.height());
    if (barraALaVista_)
        barra_->setGeometry(zona.left(), zona.bottom() + 1, zona.width() + ancho, alto);
}

void VistaTexto::resaltar(const QString& patron, Qt::CaseSensitivity caja) {
    resaltado_ = BusquedaTexto(patron.toStdU16String(), caja == Qt::CaseSensitive);
    viewport()->update();
}

// Searched is once round the text, and the first piece a second time: the selection lies within it.
void VistaTexto::buscar(const QString& patron, Qt::CaseSensitivity caja, bool adelante) {
    busqueda_ = BusquedaTexto(patron.toStdU16String(), caja == Qt::CaseSensitive);
    adelante_ = adelante;
    buscadoHasta_ = std::min(ancla_, posicion_);
    if (adelante && haySeleccion())
        ++buscadoHasta_;
    porBuscar_ = busqueda_.empty() ? 0 : bytes().size() + 1;
    seguirBuscando();
}

void VistaTexto::seguirBuscando() {
    const QDeadlineTimer plazo(turnoDeBusqueda);
    const std::size_t fin = bytes().size();
    while (porBuscar_ > 0 && !plazo.hasExpired()) {
        if (adelante_ && buscadoHasta_ >= fin)
            buscadoHasta_ = 0;
        else if (!adelante_ && (buscadoHasta_ == 0 || buscadoHasta_ > fin))
            buscadoHasta_ = fin;
        const std::size_t desde =
            adelante_ ? buscadoHasta_ : buscadoHasta_ - std::min(buscadoHasta_, BusquedaTexto::pieza);
        const std::size_t hasta = adelante_ ? std::min(fin, desde + BusquedaTexto::pieza) : buscadoHasta_;
        const auto hallazgos = busqueda_.en(bytes(), desde, hasta);
        if (!hallazgos.empty()) {
            const auto& hallazgo = adelante_ ? hallazgos.front() : hallazgos.back();
            porBuscar_ = 0;
            busquedaTurno_.stop();
            mover(hallazgo.desde, false);
            mover(hallazgo.hasta, true);
            return terminarBusqueda(true);
        }
        porBuscar_ -= std::min(porBuscar_, std::max<std::size_t>(hasta - desde, 1));
        buscadoHasta_ = adelante_ ? hasta : desde;
    }
    if (porBuscar_ > 0)
        return busquedaTurno_.start(0);
    busquedaTurno_.stop();
    terminarBusqueda(false);
}

void VistaTexto::terminarBusqueda(bool hallado) {
    if (barra_ != nullptr)
        barra_->mostrarResultado(hallado ? BarraBusqueda::Resultado::hallado : BarraBusqueda::Resultado::noHallado);
    Q_EMIT busquedaTerminada(hallado);
}
