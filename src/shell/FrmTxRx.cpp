#include "shell/FrmTxRx.h"

#include "modbus/ArchivoPcap.h"
#include "modbus/VistaTxRx.h"
#include "platform/window/Controles.h"
#include "platform/window/DialogoGuardar.h"
#include "platform/window/MsgBox.h"
#include "platform/window/PaginaManual.h"
#include "shell/AyudaContextual.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QVBoxLayout>

FrmTxRx::FrmTxRx(QWidget& principal, Monitores& monitores)
    : QWidget(&principal, Qt::Window), monitores_(monitores),
      Text1_(nombrado(new VistaTxRx(monitores, this), "Text1", QStringLiteral("Tramas de todos los esclavos"))) {
    setObjectName(QStringLiteral("FrmTxRx"));
    setWindowTitle(QStringLiteral("TxRx"));
    ponerPaginaManual(*this, "monitores.md#la-ventana-txrx");
    setWindowIcon(principal.windowIcon());
    setAttribute(Qt::WA_ShowWithoutActivating);

    auto* diseno = new QVBoxLayout(this);
    diseno->addLayout(crearMandos());
    diseno->addWidget(lblFiltro_);
    diseno->addWidget(Text1_, 1);
    resize(fontMetrics().averageCharWidth() * 110, fontMetrics().height() * 24);
    ponerAyudaContextual(*this);
}

void FrmTxRx::keyPressEvent(QKeyEvent* evento) {
    if (VistaTexto::esTeclaDeMando(*evento))
        QCoreApplication::sendEvent(Text1_, evento);
    else
        QWidget::keyPressEvent(evento);
}

QCheckBox* FrmTxRx::casilla(const char* nombre, const QString& texto, const QString& ayuda, bool marcada) {
    auto* nueva = crearCasilla(this, nombre, texto, ayuda);
    nueva->setChecked(marcada);
    connect(nueva, &QCheckBox::toggled, this, &FrmTxRx::filtrar);
    return nueva;
}

QHBoxLayout* FrmTxRx::crearMandos() {
    txtEsclavos_ = nombrado(new QLineEdit(this), "txtEsclavos");
    txtEsclavos_->setPlaceholderText(QStringLiteral("todos"));
    txtEsclavos_->setToolTip(QStringLiteral("Los esclavos que se muestran, por ejemplo 1, 3-5; vacío, todos"));
    txtEsclavos_->setClearButtonEnabled(true);
    connect(txtEsclavos_, &QLineEdit::textChanged, this, &FrmTxRx::filtrar);
    auto* rotulo = new QLabel(QStringLiteral("E&sclavos:"), this);
    rotulo->setBuddy(txtEsclavos_);
    chLecturas_ = casilla("chLecturas", QStringLiteral("&Lecturas"), QStringLiteral("Funciones 3 y 4"), true);
    chEscrituras_ = casilla("chEscrituras", QStringLiteral("&Escrituras"), QStringLiteral("Función 6"), true);
    chOtras_ = casilla("chOtras", QStringLiteral("&Otras"),
                       QStringLiteral("Excepciones: funciones que no se sirven y lecturas demasiado largas"), true);
    chHexadecimal_ =
        casilla("chHexadecimal", QStringLiteral("&Hexadecimal"), QStringLiteral("Los bytes en hexadecimal"), false);
    auto* guardar =
        crearBoton(this, "btnGuardarTrafico", QStringLiteral("&Guardar tráfico…"),
                   QStringLiteral("Guarda los últimos 4 MB de peticiones y respuestas como captura para Wireshark"));
    connect(guardar, &QPushButton::clicked, this, &FrmTxRx::guardarTrafico);
    lblFiltro_ = crearAviso(this, "lblFiltro");

    auto* fila = new QHBoxLayout;
    fila->addWidget(rotulo);
    fila->addWidget(txtEsclavos_, 1);
    for (QCheckBox* const una : {chLecturas_, chEscrituras_, chOtras_, chHexadecimal_})
        fila->addWidget(una);
    fila->addWidget(guardar);
    return fila;
}

void FrmTxRx::filtrar() {
    const auto esclavos = leerEsclavos(txtEsclavos_->text().toStdString());
    avisar(*lblFiltro_,
           esclavos ? QString() : QStringLiteral("No se entiende la lista de esclavos: escriba, por ejemplo, 1, 3-5"));
    if (!esclavos)
        return; // what was shown stays until the list is whole
    FiltroTramas filtro;
    filtro.esclavos = *esclavos;
    filtro.clases = {chLecturas_->isChecked(), chEscrituras_->isChecked(), chOtras_->isChecked()};
    filtro.hexadecimal = chHexadecimal_->isChecked();
    Text1_->filtrar(filtro);
}

void FrmTxRx::guardarTrafico() {
    if (monitores_.trafico.paquetes() == 0)
        return avisarMsgBox(
            this, QStringLiteral("No hay tráfico que guardar: se conserva mientras \"Ver TX/RX\" está marcada"),
            vbInformation);
    auto* dialogo =
        crearDialogoGuardar(*this, QStringLiteral("Guardar el tráfico"),
                            QStringLiteral("Captura (*.pcap);;Todos los archivos (*)"), QStringLiteral("modbus.pcap"));
    dialogo->setObjectName(QStringLiteral("dlgTrafico"));
    connect(dialogo, &QFileDialog::fileSelected, this, &FrmTxRx::escribirTrafico);
    dialogo->open();
}

void FrmTxRx::escribirTrafico(const QString& archivo) {
    QSaveFile salida(archivo);
    const QByteArray bytes = QByteArray::fromStdString(comoPcap(monitores_.trafico));
    if (!salida.open(QIODevice::WriteOnly) || salida.write(bytes) != bytes.size() || !salida.commit())
        avisarMsgBox(this, QStringLiteral("No se pudo guardar %1: %2").arg(archivo, salida.errorString()), vbCritical);
}
