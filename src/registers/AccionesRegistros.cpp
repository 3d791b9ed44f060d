#include "registers/AccionesRegistros.h"

#include "platform/locale/SystemLocale.h"
#include "platform/window/Controles.h"
#include "platform/window/DialogoGuardar.h"
#include "platform/window/InputBox.h"
#include "platform/window/MsgBox.h"
#include "platform/window/PaginaManual.h"
#include "registers/FrmGrafica.h"
#include "registers/Pegado.h"
#include "registers/TablaCsv.h"
#include "registers/VistaPagina.h"

#include <QAction>
#include <QActionGroup>
#include <QCompleter>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPointer>
#include <QSaveFile>

AccionesRegistros::AccionesRegistros(Esclavos& esclavos, Anotaciones& anotaciones, QWidget& ventana)
    : QObject(&ventana), esclavos_(esclavos), anotaciones_(anotaciones), ventana_(ventana),
      irA_(crear(QStringLiteral("&Ir al registro…"), QStringLiteral("Ctrl+G"), &AccionesRegistros::irA)),
      exportar_(crear(QStringLiteral("&Exportar tabla…"), QStringLiteral("Ctrl+E"), &AccionesRegistros::exportar)),
      grafica_(crear(QStringLiteral("&Gráfica de la selección"), QStringLiteral("Ctrl+R"),
                     &AccionesRegistros::abrirGrafica)),
      resaltar_(new QAction(QStringLiteral("&Resaltar cambios"), this)),
      formatos_(new QMenu(QStringLiteral("&Formato de los registros"), &ventana)),
      grupoFormatos_(new QActionGroup(this)) {
    resaltar_->setCheckable(true);
    resaltar_->setShortcut(Qt::CTRL | Qt::Key_L);
    resaltar_->setChecked(anotaciones.resaltarCambios);
    resaltar_->setToolTip(QStringLiteral("Azul: un maestro; verde: el script; naranja: a mano"));
    connect(resaltar_, &QAction::toggled, this, &AccionesRegistros::alternarResaltado);
    crearFormatos();
}

QAction* AccionesRegistros::crear(const QString& titulo, const QString& tecla, void (AccionesRegistros::*hacer)()) {
    auto* accion = new QAction(titulo, this);
    accion->setShortcut(QKeySequence(tecla));
    connect(accion, &QAction::triggered, this, hacer);
    ventana_.addAction(accion);
    return accion;
}

void AccionesRegistros::crearFormatos() {
    for (const NombreFormato& formato : formatosRegistro) {
        auto* accion = formatos_->addAction(deUtf8(formato.titulo));
        accion->setCheckable(true);
        accion->setShortcut(
            QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + grupoFormatos_->actions().size())));
        accion->setChecked(formato.formato == FormatoRegistro::decimal);
        accion->setData(static_cast<int>(formato.formato));
        grupoFormatos_->addAction(accion);
    }
    connect(grupoFormatos_, &QActionGroup::triggered, this, [this](QAction* elegida) {
        if (pagina_ != nullptr)
            pagina_->ponerFormato(static_cast<FormatoRegistro>(elegida->data().toInt()));
    });
}

// The keys are the grid's own; here they are only told.
void AccionesRegistros::agregarEdicion(QMenu& menu) {
    const auto entrada = [&](const QString& texto, auto hacer) {
        menu.addAction(texto, this, [this, hacer] {
            if (pagina_ != nullptr)
                hacer(*pagina_);
        });
    };
    entrada(QStringLiteral("&Copiar\tCtrl+C"), [](VistaPagina& vista) { vista.copiar(); });
    entrada(QStringLiteral("&Pegar\tCtrl+V"), [](VistaPagina& vista) { vista.pegar(); });
}

void AccionesRegistros::agregarA(QMenu& menu) {
    agregarEdicion(menu);
    menu.addSeparator();
    agregarComunes(menu);
}

void AccionesRegistros::agregarComunes(QMenu& menu) {
    menu.addAction(QStringLiteral("E&scribir a mano…\tF2"), this, [this] {
        if (pagina_ != nullptr)
            pagina_->escribirAMano();
    });
    menu.addAction(irA_);
    menu.addMenu(formatos_);
    menu.addAction(resaltar_);
    menu.addAction(grafica_);
    menu.addSeparator();
    menu.addAction(exportar_);
}

void AccionesRegistros::seguir(VistaPagina& vista) {
    connect(&vista, &VistaPagina::pegado, this, &AccionesRegistros::pegar);
    connect(&vista, &VistaPagina::menuPedido, this, [this](QMenu* menu) {
        menu->addSeparator();
        agregarComunes(*menu);
    });
}

void AccionesRegistros::ponerPagina(VistaPagina* vista) {
    pagina_ = vista;
    if (pagina_ == nullptr)
        return;
    for (QAction* accion : grupoFormatos_->actions())
        accion->setChecked(accion->data().toInt() == static_cast<int>(pagina_->formato()));
}

void AccionesRegistros::alternarResaltado(bool resaltar) {
    anotaciones_.resaltarCambios = resaltar;
}

void AccionesRegistros::pegar(int esclavo, int direccion, const QString& texto) {
    if (const QString error = pegarRegistros(esclavos_, esclavo, direccion, texto); !error.isEmpty())
        avisarMsgBox(&ventana_, error, vbExclamation);
}

void AccionesRegistros::irA() {
    if (pagina_ == nullptr)
        return;
    auto* dialogo =
        crearPregunta(ventana_, "dlgIrA", QStringLiteral("Ir al registro"),
                      QStringLiteral("Dirección, esclavo:dirección o nombre:"), "cuadricula.md#ir-a-un-registro");
    QStringList nombres;
    for (const auto& [registro, etiqueta] : anotaciones_.etiquetas.todas())
        nombres << QString::fromStdString(etiqueta.nombre);
    if (auto* caja = dialogo->findChild<QLineEdit*>()) {
        auto* completador = new QCompleter(nombres, dialogo);
        completador->setCaseSensitivity(Qt::CaseInsensitive);
        completador->setFilterMode(Qt::MatchContains);
        if (auto* lista = qobject_cast<QListView*>(completador->popup()))
            lista->setUniformItemSizes(true); // with thousands of names each key would measure them all
        caja->setCompleter(completador);
    }
    connect(dialogo, &QInputDialog::textValueSelected, this, [this](const QString& texto) {
        const auto destino = leerDestino(texto, pagina_ != nullptr ? pagina_->numero() : 0, anotaciones_.etiquetas);
        if (!destino)
            avisarMsgBox(&ventana_, QStringLiteral("«%1» no es una dirección ni un nombre").arg(texto.left(60)),
                         vbExclamation);
        else if (esclavos_.valorSiExiste(destino->esclavo, destino->direccion) == nullptr)
            avisarMsgBox(&ventana_,
                         QStringLiteral("La MW %1 del PLC %2 no existe").arg(destino->direccion).arg(destino->esclavo),
                         vbExclamation);
        else
            Q_EMIT destinoElegido(destino->esclavo, destino->direccion);
    });
    dialogo->open();
}

void AccionesRegistros::exportar() {
    if (pagina_ == nullptr)
        return;
    const int esclavo = pagina_->numero();
    auto* dialogo =
        crearDialogoGuardar(ventana_, QStringLiteral("Exportar la tabla del esclavo %1").arg(esclavo),
                            QStringLiteral("Texto CSV (*.csv)"), QStringLiteral("esclavo%1.csv").arg(esclavo));
    ponerPaginaManual(*dialogo, "cuadricula.md#pegar-y-exportar");
    connect(dialogo, &QFileDialog::fileSelected, this, [this, esclavo](const QString& archivo) {
        QSaveFile salida(archivo);
        const QByteArray bytes =
            QByteArrayLiteral("\xEF\xBB\xBF") +
            QByteArray::fromStdString(tablaComoCsv(esclavos_, esclavo, anotaciones_.etiquetas, decimalSign()));
        if (!salida.open(QIODevice::WriteOnly) || salida.write(bytes) != bytes.size() || !salida.commit())
            avisarMsgBox(&ventana_, QStringLiteral("No se pudo guardar %1: %2").arg(archivo, salida.errorString()),
                         vbExclamation);
    });
    dialogo->open();
}

void AccionesRegistros::abrirGrafica() {
    if (pagina_ == nullptr)
        return;
    std::vector<FrmGrafica::Registro> registros;
    for (const int direccion : pagina_->seleccion())
        registros.push_back({pagina_->numero(), direccion});
    if (registros.empty()) {
        avisarMsgBox(&ventana_, QStringLiteral("Seleccione en la cuadrícula hasta ocho registros"), vbInformation);
        return;
    }
    if (registros.size() > VistaGrafica::maxLineas) {
        avisarMsgBox(
            &ventana_,
            QStringLiteral("Hay %1 registros seleccionados: una gráfica dibuja hasta ocho").arg(registros.size()),
            vbInformation);
        return;
    }
    auto* grafica = new FrmGrafica(esclavos_, anotaciones_, registros, &ventana_);
    grafica->resize(grafica->sizeHint());
    grafica->show();
}
