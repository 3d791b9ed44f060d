#include "script/FrmEdicionCodigo.h"

#include "platform/profile/Archivos.h"
#include "platform/profile/Numeros.h"
#include "platform/window/Eventos.h"
#include "platform/window/MsgBox.h"
#include "registers/Palabra.h"
#include "script/AyudaMW.h"
#include "script/BarraBusqueda.h"
#include "script/EditorCodigo.h"
#include "script/PeriodoScript.h"

#include <QCheckBox>
#include <QEvent>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTextBlock>
#include <QVBoxLayout>

namespace {

constexpr int estiloError = vbCritical + vbSystemModal; // 4112
constexpr int letraMinima = 6;                          // points
constexpr int letraMaxima = 48;

QString deUtf16(std::u16string_view texto) {
    return QString::fromUtf16(texto.data(), static_cast<qsizetype>(texto.size()));
}

template <typename Control>
Control* nombrado(Control* control, const char* nombre, const QString& nombreAccesible) {
    control->setObjectName(QLatin1String(nombre));
    control->setAccessibleName(nombreAccesible);
    return control;
}

bool mismoFallo(const vbs::ScriptFailure& a, const vbs::ScriptFailure& b) {
    return a.number == b.number && a.line == b.line && a.column == b.column && a.description == b.description;
}

} // namespace

FrmEdicionCodigo::FrmEdicionCodigo(const Modulo_Codigo& codigo, ConfiguracionScript& configuracion, QCheckBox& chScript,
                                   Eventos& eventos, QWidget* padre)
    : QWidget(padre, Qt::Window), codigo_(codigo), configuracion_(configuracion), chScript_(chScript),
      eventos_(eventos) {
    setObjectName(QStringLiteral("FrmEdicionCodigo"));
    setAttribute(Qt::WA_DeleteOnClose);
    crearControles();
    conectar();
    crearTeclas();
    cargar();
}

// ---------------------------------------------------------------------------------------------------------------
// controls

void FrmEdicionCodigo::crearControles() {
    txtCodigo_ = nombrado(new EditorCodigo(this), "txtCodigo", QStringLiteral("Código del script"));
    busqueda_ = new BarraBusqueda(*txtCodigo_, this);
    lblEstado_ = nombrado(new QLabel(this), "lblEstado", QString());
    lblEstado_->setTextFormat(Qt::PlainText);
    lblEstado_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblEstado_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblPosicion_ = nombrado(new QLabel(this), "lblPosicion", QString());
    comprobador_ = new ComprobadorCodigo([this] { return txtCodigo_->texto(); },
                                         [this] { return txtCodigo_->document()->characterCount(); }, this);

    auto* estado = new QHBoxLayout;
    estado->addWidget(lblEstado_, 1);
    estado->addWidget(lblPosicion_);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(txtCodigo_, 1);
    columna->addWidget(busqueda_);
    columna->addLayout(estado);
    crearFilaInferior(*columna);
    resize(txtCodigo_->anchoMargen() + txtCodigo_->fontMetrics().horizontalAdvance(u'0') * 112,
           txtCodigo_->fontMetrics().height() * 42);
    txtCodigo_->setFocus();
}

void FrmEdicionCodigo::crearFilaInferior(QVBoxLayout& columna) {
    txtIntervaloDeTiempo_ =
        nombrado(new QLineEdit(this), "txtIntervaloDeTiempo", QStringLiteral("Intervalo de tiempo en milisegundos"));
    txtIntervaloDeTiempo_->setMaximumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000000000")));
    txtIntervaloDeTiempo_->setToolTip(QStringLiteral("De 10 a 60000 milisegundos"));
    txtIntervaloDeTiempo_->installEventFilter(this);
    auto* rotulo = new QLabel(QStringLiteral("&Intervalo (milisegundos):"), this);
    rotulo->setBuddy(txtIntervaloDeTiempo_);
    auto* btnBuscar = nombrado(new QPushButton(QStringLiteral("&Buscar"), this), "btnBuscar", {});
    btnBuscar->setToolTip(QStringLiteral("Ctrl+F; reemplazar: Ctrl+H"));
    connect(btnBuscar, &QPushButton::clicked, this, [this] { busqueda_->abrir(true); });
    auto* btnAyuda = nombrado(new QPushButton(QStringLiteral("A&yuda"), this), "btnAyuda", {});
    btnAyuda->setToolTip(QStringLiteral("F1"));
    connect(btnAyuda, &QPushButton::clicked, this, &FrmEdicionCodigo::mostrarAyuda);
    BtnGuardar_ = nombrado(new QPushButton(QStringLiteral("&Guardar"), this), "BtnGuardar", {});
    BtnGuardar_->setToolTip(QStringLiteral("Ctrl+S"));
    BtnSalir_ = nombrado(new QPushButton(QStringLiteral("&Salir"), this), "BtnSalir", {});
    BtnSalir_->setToolTip(QStringLiteral("Cierra sin guardar"));

    auto* fila = new QHBoxLayout;
    fila->addWidget(rotulo);
    fila->addWidget(txtIntervaloDeTiempo_);
    fila->addStretch(1);
    for (QPushButton* const boton : {btnBuscar, btnAyuda, BtnGuardar_, BtnSalir_})
        fila->addWidget(boton);
    columna.addLayout(fila);
}

void FrmEdicionCodigo::conectar() {
    connect(BtnGuardar_, &QPushButton::clicked, this, &FrmEdicionCodigo::guardar);
    connect(BtnSalir_, &QPushButton::clicked, this, &FrmEdicionCodigo::salir);
    connect(txtIntervaloDeTiempo_, &QLineEdit::textChanged, this, &FrmEdicionCodigo::mostrarTitulo);
    connect(txtCodigo_, &QPlainTextEdit::modificationChanged, this, &FrmEdicionCodigo::mostrarTitulo);
    connect(txtCodigo_, &QPlainTextEdit::cursorPositionChanged, this, &FrmEdicionCodigo::mostrarPosicion);
    connect(txtCodigo_, &QPlainTextEdit::textChanged, this, [this] {
        demasiadoLargo_ = false;
        comprobador_->pedir();
    });
    connect(comprobador_, &ComprobadorCodigo::comprobado, this, [this](const vbs::ScriptFailure& resultado) {
        errorCompilacion_ = resultado;
        txtCodigo_->marcarError(static_cast<int>(resultado.line), static_cast<int>(resultado.column));
        mostrarEstado();
    });
    connect(comprobador_, &ComprobadorCodigo::demasiadoLargo, this, [this] {
        demasiadoLargo_ = true;
        errorCompilacion_ = {};
        txtCodigo_->marcarError(0, 0);
        mostrarEstado();
    });
}

void FrmEdicionCodigo::crearTeclas() {
    const auto tecla = [this](const QKeySequence& secuencia, auto accion) {
        connect(new QShortcut(secuencia, this), &QShortcut::activated, this, accion);
    };
    tecla(Qt::CTRL | Qt::Key_S, [this] { guardar(); });
    tecla(Qt::CTRL | Qt::Key_F, [this] { busqueda_->abrir(false); });
    tecla(Qt::CTRL | Qt::Key_H, [this] { busqueda_->abrir(true); });
    tecla(Qt::CTRL | Qt::Key_G, [this] { irALinea(); });
    tecla(Qt::Key_F3, [this] { busqueda_->buscar(false); });
    tecla(Qt::SHIFT | Qt::Key_F3, [this] { busqueda_->buscar(true); });
    tecla(Qt::Key_F8, [this] { irAlError(); });
    tecla(Qt::Key_F1, [this] { mostrarAyuda(); });
    tecla(QKeySequence::ZoomIn, [this] { cambiarLetra(1); });
    tecla(QKeySequence::ZoomOut, [this] { cambiarLetra(-1); });
}

// ---------------------------------------------------------------------------------------------------------------
// file and period

void FrmEdicionCodigo::cargar() {
    const auto ruta = codigo_.rutaParaLeer();
    archivo_ = QString::fromStdString(ruta.string());
    std::string texto;
    try {
        if (existeArchivo(ruta))
            texto = leerArchivoTexto(ruta);
    } catch (const ErrorArchivo& error) {
        aviso_ = QStringLiteral("No se pudo leer el archivo: ") + QString::fromUtf8(error.what());
        avisarMsgBox(this, QString::fromUtf8(error.what()), vbCritical);
    }
    txtCodigo_->ponerTexto(QString::fromStdString(texto));
    periodoCargado_ = QString::fromStdString(configuracion_.leerConfiguracion(ConfiguracionScript::clavePeriodo, "0"));
    txtIntervaloDeTiempo_->setText(periodoCargado_);
    txtCodigo_->document()->setModified(false);
    mostrarTitulo();
    mostrarPosicion();
    comprobador_->pedir();
    mostrarEstado();
}

void FrmEdicionCodigo::guardar() {
    if (!periodoPendienteValido())
        return;
    const auto ruta = codigo_.rutaParaGuardar();
    try {
        escribirArchivoTexto(ruta, txtCodigo_->texto().replace(u'\n', QLatin1String("\r\n")).toStdString());
        archivo_ = QString::fromStdString(ruta.string());
        txtCodigo_->document()->setModified(false);
        guardarPeriodo();
        aviso_ = QStringLiteral("Guardado.");
    } catch (const std::runtime_error& error) { // of the file or of the period
        aviso_ = QStringLiteral("No se pudo guardar: ") + QString::fromUtf8(error.what());
        MsgBox(this, QString::fromUtf8(error.what()), vbCritical);
    }
    mostrarTitulo();
    comprobador_->comprobar();
}

void FrmEdicionCodigo::guardarPeriodo() {
    const std::string texto = txtIntervaloDeTiempo_->text().toStdString();
    const double periodo = periodoDeTexto(texto);
    periodoCargado_ = txtIntervaloDeTiempo_->text();
    if (numeroDeTexto(configuracion_.leerConfiguracion(ConfiguracionScript::clavePeriodo, "0")) == periodo)
        return;
    configuracion_.escribirConfiguracion(ConfiguracionScript::clavePeriodo, texto);
    if (chScript_.isChecked())
        rearmar();
}

void FrmEdicionCodigo::rearmar() {
    for (const bool marcada : {false, true}) {
        chScript_.setChecked(marcada);
        eventos_.dejarPasarEventos();
    }
}

void FrmEdicionCodigo::salir() {
    if (periodoPendienteValido())
        close();
}

bool FrmEdicionCodigo::comprobarPeriodo() {
    periodoPendiente_ = false;
    const QString texto = txtIntervaloDeTiempo_->text();
    const auto periodo = numeroDeTexto(texto.toStdString());
    const bool vacio = texto.trimmed().isEmpty();
    if (periodo && *periodo >= periodoMinimo && *periodo <= periodoMaximo)
        return true;
    // The blanks before the last lines differ on purpose.
    const QString mensaje =
        vacio      ? QStringLiteral("Error en el Intervalo de Tiempo.\r\n Se asgina por defecto 1000 Milisegundos")
        : !periodo ? QStringLiteral("Error en el Intervalo de Tiempo.\r\n  Se asgina por defecto 1000 Milisegundos")
                   : QStringLiteral("Error en el Intervalo de Tiempo.\r\nMaximo 60000 milisegundos. Minimo 10 "
                                    "milisegundos.\r\nSe asgina por defecto 1000 Milisegundos");
    MsgBox(this, mensaje, estiloError);
    txtIntervaloDeTiempo_->setText(QString::number(periodoPorDefecto));
    activateWindow(); // not every window system does it when a box closes
    txtIntervaloDeTiempo_->setFocus();
    txtIntervaloDeTiempo_->selectAll();
    return false;
}

// Before a button acts: the check that the box is still owed, or would be if the button had taken its focus.
bool FrmEdicionCodigo::periodoPendienteValido() {
    return (!periodoPendiente_ && !txtIntervaloDeTiempo_->hasFocus()) || comprobarPeriodo();
}

bool FrmEdicionCodigo::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == txtIntervaloDeTiempo_ && evento->type() == QEvent::FocusOut) {
        const auto causa = static_cast<QFocusEvent*>(evento)->reason();
        // Another window in front or an open menu is no leaving of the box.
        if (causa != Qt::ActiveWindowFocusReason && causa != Qt::PopupFocusReason && isVisible()) {
            periodoPendiente_ = true;
            // Not within the event: the focus is on its way to another control.
            QMetaObject::invokeMethod(
                this,
                [this] {
                    if (periodoPendiente_)
                        comprobarPeriodo();
                },
                Qt::QueuedConnection);
        }
    }
    return QWidget::eventFilter(objeto, evento);
}

// ---------------------------------------------------------------------------------------------------------------
// errors

void FrmEdicionCodigo::mostrarFallo(const vbs::ScriptFailure& fallo) {
    if (mismoFallo(fallo, fallo_))
        return;
    fallo_ = fallo;
    txtCodigo_->marcarFallo(lineaDelFallo());
    mostrarEstado();
}

// The file is run without the empty lines at its head, which the editor may have.
int FrmEdicionCodigo::lineasVaciasAlPrincipio() const {
    int vacias = 0;
    for (QTextBlock linea = txtCodigo_->document()->begin(); linea.isValid() && linea.length() == 1;
         linea = linea.next())
        ++vacias;
    return vacias;
}

// The line of the text where the running script failed; 0 when the text no longer has that line there.
int FrmEdicionCodigo::lineaDelFallo() const {
    if (fallo_.number == 0 || fallo_.line == 0)
        return 0;
    const int linea = static_cast<int>(fallo_.line) + lineasVaciasAlPrincipio();
    const QTextBlock bloque = txtCodigo_->document()->findBlockByNumber(linea - 1);
    return bloque.isValid() && bloque.text() == deUtf16(fallo_.lineText) ? linea : 0;
}

void FrmEdicionCodigo::mostrarEstado() {
    const auto descripcion = [](const QString& que, const vbs::ScriptFailure& error, int linea) {
        return QStringLiteral("%1, línea %2, columna %3: %4 (error %5)")
            .arg(que)
            .arg(linea)
            .arg(error.column)
            .arg(deUtf16(error.description))
            .arg(error.number);
    };
    const bool conError = errorCompilacion_.number != 0 || fallo_.number != 0;
    QString estado = demasiadoLargo_ ? QStringLiteral("Texto muy largo: se comprueba al guardar.") : aviso_;
    if (errorCompilacion_.number != 0)
        estado = descripcion(QStringLiteral("Error"), errorCompilacion_, static_cast<int>(errorCompilacion_.line));
    else if (fallo_.number != 0)
        estado = descripcion(QStringLiteral("Falló al ejecutar"), fallo_,
                             static_cast<int>(fallo_.line) + lineasVaciasAlPrincipio());
    lblEstado_->setText(estado);
    lblEstado_->setToolTip(conError ? estado + QStringLiteral("\nF8 va a la línea") : QString());
    QPalette colores;
    if (conError)
        colores.setColor(QPalette::WindowText, txtCodigo_->colores().error);
    lblEstado_->setPalette(colores);
}

void FrmEdicionCodigo::irAlError() {
    if (errorCompilacion_.number != 0)
        txtCodigo_->irA(static_cast<int>(errorCompilacion_.line), static_cast<int>(errorCompilacion_.column));
    else if (fallo_.number != 0)
        txtCodigo_->irA(static_cast<int>(fallo_.line) + lineasVaciasAlPrincipio(), static_cast<int>(fallo_.column));
    txtCodigo_->setFocus();
}

// ---------------------------------------------------------------------------------------------------------------
// around the text

bool FrmEdicionCodigo::hayCambios() const {
    return txtCodigo_->document()->isModified() || txtIntervaloDeTiempo_->text() != periodoCargado_;
}

void FrmEdicionCodigo::mostrarTitulo() {
    const QString nombre = archivo_.mid(archivo_.lastIndexOf(u'/') + 1);
    setWindowTitle((hayCambios() ? QStringLiteral("*") : QString()) + nombre + QStringLiteral(" - Código Script"));
}

void FrmEdicionCodigo::mostrarPosicion() {
    const QTextCursor cursor = txtCodigo_->textCursor();
    lblPosicion_->setText(
        QStringLiteral("Línea %1, columna %2").arg(cursor.blockNumber() + 1).arg(cursor.positionInBlock() + 1));
}

void FrmEdicionCodigo::irALinea() {
    bool aceptado = false;
    const int linea =
        QInputDialog::getInt(this, QStringLiteral("Ir a la línea"), QStringLiteral("Línea:"),
                             txtCodigo_->textCursor().blockNumber() + 1, 1, txtCodigo_->blockCount(), 1, &aceptado);
    if (aceptado)
        txtCodigo_->irA(linea, 1);
}

void FrmEdicionCodigo::cambiarLetra(int puntos) {
    QFont letra = txtCodigo_->font();
    letra.setPointSize(std::clamp(letra.pointSize() + puntos, letraMinima, letraMaxima));
    txtCodigo_->setFont(letra);
}

void FrmEdicionCodigo::mostrarAyuda() {
    if (!ayuda_) {
        ayuda_ = new AyudaMW(this);
        ayuda_->setAttribute(Qt::WA_DeleteOnClose);
    }
    ayuda_->show();
    ayuda_->raise();
    ayuda_->activateWindow();
}

void FrmEdicionCodigo::changeEvent(QEvent* evento) {
    QWidget::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange && lblEstado_ != nullptr)
        mostrarEstado();
}
