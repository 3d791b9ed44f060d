#include "registers/FrmGrafica.h"

#include "platform/window/Controles.h"
#include "platform/window/DialogoGuardar.h"
#include "platform/window/MsgBox.h"
#include "platform/window/PaginaManual.h"
#include "registers/NumeroLocal.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSaveFile>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

struct Tiempo {
    int segundos;
    const char16_t* titulo;
};
constexpr std::array<Tiempo, 7> tiempos{{
    {10, u"10 segundos"},
    {30, u"30 segundos"},
    {60, u"1 minuto"},
    {300, u"5 minutos"},
    {600, u"10 minutos"},
    {1800, u"30 minutos"},
    {3600, u"1 hora"},
}};
constexpr int tiempoInicial = 2;

QString titulo(const Etiquetas& etiquetas, const FrmGrafica::Registro& registro) {
    const QString numero = QStringLiteral("%1:%2").arg(registro.esclavo).arg(registro.direccion);
    const Etiqueta* etiqueta = etiquetas.de(registro.esclavo, registro.direccion);
    return etiqueta != nullptr ? QStringLiteral("%1 (%2)").arg(QString::fromStdString(etiqueta->nombre), numero)
                               : numero;
}

} // namespace

FrmGrafica::FrmGrafica(const Esclavos& esclavos, Anotaciones& anotaciones, std::span<const Registro> registros,
                       QWidget* padre)
    : QWidget(padre, Qt::Window), anotaciones_(anotaciones) {
    for (const Registro& r : registros.first(std::min(registros.size(), VistaGrafica::maxLineas))) {
        const Etiqueta* etiqueta = anotaciones.etiquetas.de(r.esclavo, r.direccion);
        const QString unidad = etiqueta != nullptr ? QString::fromStdString(etiqueta->unidad) : QString();
        lineas_.push_back({r.esclavo, r.direccion, titulo(anotaciones.etiquetas, r), unidad, {}});
        if (const double* valor = esclavos.valorSiExiste(r.esclavo, r.direccion))
            lineas_.back().historia.anotar(anotaciones.cambios.hora(), *valor);
    }
    construir();
    anotaciones_.cambios.agregar(this);
}

FrmGrafica::~FrmGrafica() {
    anotaciones_.cambios.quitar(this);
}

void FrmGrafica::construir() {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("FrmGrafica"));
    setWindowTitle(QStringLiteral("Gráfica"));
    ponerPaginaManual(*this, "grafica.md");
    vista_ = new VistaGrafica(lineas_, [this] { return anotaciones_.cambios.hora(); });
    cmbTiempo_ = nombrado(new QComboBox, "cmbTiempo", QStringLiteral("Tiempo que se muestra"));
    for (const Tiempo& tiempo : tiempos)
        cmbTiempo_->addItem(QString::fromUtf16(tiempo.titulo));
    cmbTiempo_->setCurrentIndex(tiempoInicial);
    connect(cmbTiempo_, &QComboBox::currentIndexChanged, this, [this](int cual) {
        vista_->ponerVentana(std::int64_t{tiempos[static_cast<std::size_t>(cual)].segundos} * 1000);
    });
    chPausa_ = crearCasilla(this, "chPausa", QStringLiteral("&Pausa"),
                            QStringLiteral("Detiene el dibujo; los cambios se siguen anotando"));
    connect(chPausa_, &QCheckBox::toggled, vista_, &VistaGrafica::pausar);
    auto* imagen = crearBoton(this, "btnImagen", QStringLiteral("Guardar &imagen…"));
    connect(imagen, &QPushButton::clicked, this, &FrmGrafica::guardarImagen);
    auto* csv = crearBoton(this, "btnCsv", QStringLiteral("&Exportar CSV…"));
    connect(csv, &QPushButton::clicked, this, &FrmGrafica::guardarCsv);

    auto* mandos = new QHBoxLayout;
    auto* rotulo = new QLabel(QStringLiteral("&Tiempo:"));
    rotulo->setBuddy(cmbTiempo_);
    mandos->addWidget(rotulo);
    mandos->addWidget(cmbTiempo_);
    mandos->addWidget(chPausa_);
    mandos->addStretch();
    mandos->addWidget(imagen);
    mandos->addWidget(csv);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(vista_, 1);
    todo->addLayout(mandos);
    QWidget* const orden[] = {vista_, cmbTiempo_, chPausa_, imagen, csv};
    for (std::size_t i = 1; i < std::size(orden); ++i)
        setTabOrder(orden[i - 1], orden[i]);
    vista_->setFocus();
}

void FrmGrafica::registroEscrito(int esclavo, int direccion, double antes, double ahora, Autor /*autor*/) {
    for (LineaGrafica& linea : lineas_) {
        if (linea.direccion != direccion || linea.esclavo != esclavo)
            continue;
        // A register that came into being after the window: what it held until now is known only now.
        if (linea.historia.tramos().empty())
            linea.historia.anotar(anotaciones_.cambios.hora(), antes);
        if (antes != ahora)
            linea.historia.anotar(anotaciones_.cambios.hora(), ahora);
    }
}

QString FrmGrafica::comoCsv() const {
    const std::int64_t hasta = vista_->fin();
    const std::int64_t desde = hasta - vista_->ventana();
    std::vector<std::int64_t> cuando;
    for (const LineaGrafica& linea : lineas_)
        for (const HistoriaRegistro::Tramo& tramo : linea.historia.tramos())
            if (tramo.desde <= hasta)
                cuando.push_back(std::max(tramo.desde, desde));
    std::sort(cuando.begin(), cuando.end());
    cuando.erase(std::unique(cuando.begin(), cuando.end()), cuando.end());
    QString texto = QStringLiteral("fecha;hora");
    for (const LineaGrafica& linea : lineas_) {
        QString citado = linea.titulo;
        texto += QStringLiteral(";\"%1\"").arg(citado.replace(QLatin1Char('"'), QStringLiteral("\"\"")));
    }
    texto += QStringLiteral("\r\n");
    std::vector<std::size_t> empezados(lineas_.size()); // of each line: how many of its values began by then
    std::int64_t segundo = -1;
    QString hora; // without its thousandths: most of the work, and the same for many rows
    for (const std::int64_t t : cuando) {
        if (std::exchange(segundo, t / 1000) != t / 1000)
            hora = QDateTime::fromMSecsSinceEpoch(t).toString(QStringLiteral("dd/MM/yyyy;HH:mm:ss."));
        texto += hora + QString::number(1000 + t % 1000).mid(1);
        for (std::size_t i = 0; i < lineas_.size(); ++i) {
            const auto& tramos = lineas_[i].historia.tramos();
            while (empezados[i] < tramos.size() && tramos[empezados[i]].desde <= t)
                ++empezados[i];
            texto += QLatin1Char(';');
            if (empezados[i] > 0)
                texto += textoLocal(tramos[empezados[i] - 1].ultimo);
        }
        texto += QStringLiteral("\r\n");
    }
    return texto;
}

// Asks for a file beside the rest of the program's work, and then writes it.
void FrmGrafica::pedirArchivo(const QString& titulo, const QString& filtro, const QString& sufijo, Escritor escribir) {
    auto* dialogo = crearDialogoGuardar(*this, titulo, filtro, QStringLiteral("grafica.") + sufijo);
    connect(dialogo, &QFileDialog::fileSelected, this, [this, escribir](const QString& archivo) {
        QSaveFile salida(archivo);
        if (!salida.open(QIODevice::WriteOnly) || !(this->*escribir)(salida) || !salida.commit())
            avisarMsgBox(this, QStringLiteral("No se pudo guardar %1: %2").arg(archivo, salida.errorString()),
                         vbExclamation);
    });
    dialogo->open();
}

bool FrmGrafica::escribirImagen(QIODevice& salida) const {
    return vista_->grab().save(&salida, "PNG");
}

bool FrmGrafica::escribirCsv(QIODevice& salida) const {
    const QByteArray bytes = QByteArrayLiteral("\xEF\xBB\xBF") + comoCsv().toUtf8();
    return salida.write(bytes) == bytes.size();
}

void FrmGrafica::guardarImagen() {
    pedirArchivo(QStringLiteral("Guardar imagen"), QStringLiteral("Imágenes PNG (*.png)"), QStringLiteral("png"),
                 &FrmGrafica::escribirImagen);
}

void FrmGrafica::guardarCsv() {
    pedirArchivo(QStringLiteral("Exportar CSV"), QStringLiteral("Texto CSV (*.csv)"), QStringLiteral("csv"),
                 &FrmGrafica::escribirCsv);
}
