#include "script/FrmEdicionCodigo.h"

#include "platform/events/Eventos.h"
#include "platform/profile/Archivos.h"
#include "platform/text/Numbers.h"
#include "platform/window/MsgBox.h"
#include "registers/ErrorEjecucion.h"
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

QString deRuta(const std::filesystem::path& ruta) {
    return QString::fromStdString(ruta.string());
}

// Arms the timer with the new period. Lets events pass: of the editor nothing may be touched from here on.
void rearmar(QCheckBox& casilla, Eventos& eventos) {
    const QPointer<QCheckBox> chScript = &casilla;
    for (const bool marcada : {false, true}) {
        if (chScript)
            chScript->setChecked(marcada);
        eventos.dejarPasarEventos();
    }
}

bool mismoFallo(const vbs::ScriptFailure& a, const vbs::ScriptFailure& b) {
    return a.number == b.number && a.line == b.line && a.column == b.column && a.description == b.description;
}

} // namespace

FrmEdicionCodigo::FrmEdicionCodigo(const Modulo_Codigo& codigo, ConfiguracionScript& configuracion, QCheckBox& chScript,
                                   Eventos& eventos, QWidget* padre)
    : QWidget(padre, Qt::Window), archivo_(codigo), configuracion_(configuracion), chScript_(chScript),
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
        aviso_.clear();
        comprobador_->pedir();
        mostrarEstado();
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
    QString texto;
    QString fallo;
    try {
        texto = QString::fromStdString(archivo_.cargar());
    } catch (const ErrorArchivo& error) {
        fallo = QStringLiteral("%1: %2").arg(QString::fromUtf8(error.what()), deRuta(archivo_.ruta()));
        avisarMsgBox(this, fallo, vbCritical);
    }
    txtCodigo_->ponerTexto(texto);
    if (!fallo.isEmpty())
        aviso_ = QStringLiteral("No se pudo leer el archivo. ") + fallo;
    periodoCargado_ = QString::fromStdString(configuracion_.leerConfiguracion(ConfiguracionScript::clavePeriodo, "0"));
    txtIntervaloDeTiempo_->setText(periodoCargado_);
    txtCodigo_->document()->setModified(false);
    mostrarTitulo();
    mostrarPosicion();
    comprobador_->pedir();
    mostrarEstado();
}

void FrmEdicionCodigo::guardar() {
    if (!periodoPendienteValido() || !puedeReemplazar())
        return;
    QString fallo;
    bool periodoNuevo = false;
    try {
        archivo_.guardar(txtCodigo_->texto().replace(u'\n', QLatin1String("\r\n")).toStdString());
        txtCodigo_->document()->setModified(false);
        periodoNuevo = guardarPeriodo();
        aviso_ = QStringLiteral("Guardado.");
    } catch (const ErrorArchivo& error) {
        fallo = QStringLiteral("%1: %2").arg(QString::fromUtf8(error.what()), deRuta(archivo_.ruta()));
    } catch (const ErrorEjecucion& error) {
        fallo = QString::fromUtf8(error.what()); // of the period
    }
    if (!fallo.isEmpty())
        aviso_ = QStringLiteral("No se pudo guardar. ") + fallo;
    mostrarTitulo();
    comprobador_->comprobar();
    // Last of all, since either lets events pass, and the window may be closed by them.
    if (periodoNuevo && chScript_.isChecked())
        rearmar(chScript_, eventos_);
    else if (!fallo.isEmpty())
        MsgBox(this, fallo, vbCritical);
}

// Asks before a save replaces what somebody else wrote. False: not wanted, or the window is gone.
bool FrmEdicionCodigo::puedeReemplazar() {
    if (!archivo_.cambiadoEnDisco())
        return true;
    const QPointer<FrmEdicionCodigo> viva = this;
    const int respuesta = MsgBox(this,
                                 QStringLiteral("El archivo del script cambió en el disco desde que se abrió o se "
                                                "guardó aquí.\r\n¿Reemplazarlo con el texto de esta ventana?"),
                                 vbYesNo + vbExclamation + vbDefaultButton2);
    if (!viva || respuesta == vbYes)
        return bool(viva);
    aviso_ = QStringLiteral("No se guardó: el archivo cambió en el disco.");
    mostrarEstado();
    return false;
}

// Returns whether the period stored is another one now.
bool FrmEdicionCodigo::guardarPeriodo() {
    const std::string texto = txtIntervaloDeTiempo_->text().toStdString();
    const char16_t signo = configuracion_.signoDecimal();
    const double periodo = periodoDeTexto(texto, signo);
    periodoCargado_ = txtIntervaloDeTiempo_->text();
    if (text::readNumber(configuracion_.leerConfiguracion(ConfiguracionScript::clavePeriodo, "0"), signo) == periodo)
        return false;
    configuracion_.escribirConfiguracion(ConfiguracionScript::clavePeriodo, texto);
    return true;
}

void FrmEdicionCodigo::salir() {
    if (periodoPendienteValido())
        close();
}

bool FrmEdicionCodigo::comprobarPeriodo() {
    periodoPendiente_ = false;
    const QString texto = txtIntervaloDeTiempo_->text();
    const auto periodo = text::readNumber(texto.toStdString(), configuracion_.signoDecimal());
    const bool vacio = texto.trimmed().isEmpty();
    if (periodo && *periodo >= periodoMinimo && *periodo <= periodoMaximo)
        return true;
    // The blanks before the last lines differ on purpose.
    const QString mensaje =
        vacio      ? QStringLiteral("Error en el Intervalo de Tiempo.\r\n Se asgina por defecto 1000 Milisegundos")
        : !periodo ? QStringLiteral("Error en el Intervalo de Tiempo.\r\n  Se asgina por defecto 1000 Milisegundos")
                   : QStringLiteral("Error en el Intervalo de Tiempo.\r\nMaximo 60000 milisegundos. Minimo 10 "
                                    "milisegundos.\r\nSe asgina por defecto 1000 Milisegundos");
    const QPointer<FrmEdicionCodigo> viva = this;
    MsgBox(this, mensaje, estiloError);
    if (!viva)
        return false;
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

// The line that the message about the failure names: the marked one, which moves with the text.
int FrmEdicionCodigo::lineaParaDecir() const {
    const int marcada = txtCodigo_->lineaFallo();
    return marcada > 0 ? marcada : static_cast<int>(fallo_.line) + lineasVaciasAlPrincipio();
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
    QString error;
    if (errorCompilacion_.number != 0)
        error = descripcion(QStringLiteral("Error"), errorCompilacion_, static_cast<int>(errorCompilacion_.line));
    else if (fallo_.number != 0)
        error = descripcion(QStringLiteral("Falló al ejecutar"), fallo_, lineaParaDecir());
    else if (demasiadoLargo_)
        error = QStringLiteral("Texto muy largo: se comprueba al guardar.");
    const QString estado = aviso_.isEmpty() || error.isEmpty() ? aviso_ + error : aviso_ + u' ' + error;
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
        txtCodigo_->irA(lineaParaDecir(), static_cast<int>(fallo_.column));
    txtCodigo_->setFocus();
}

// ---------------------------------------------------------------------------------------------------------------
// around the text

bool FrmEdicionCodigo::hayCambios() const {
    return txtCodigo_->document()->isModified() || txtIntervaloDeTiempo_->text() != periodoCargado_;
}

void FrmEdicionCodigo::mostrarTitulo() {
    const QString nombre = deRuta(archivo_.ruta().filename());
    setWindowTitle((hayCambios() ? QStringLiteral("*") : QString()) + nombre + QStringLiteral(" - Código Script"));
}

void FrmEdicionCodigo::mostrarPosicion() {
    const QTextCursor cursor = txtCodigo_->textCursor();
    lblPosicion_->setText(
        QStringLiteral("Línea %1, columna %2").arg(cursor.blockNumber() + 1).arg(cursor.positionInBlock() + 1));
}

void FrmEdicionCodigo::irALinea() {
    bool aceptado = false;
    const QPointer<FrmEdicionCodigo> viva = this;
    const int linea =
        QInputDialog::getInt(this, QStringLiteral("Ir a la línea"), QStringLiteral("Línea:"),
                             txtCodigo_->textCursor().blockNumber() + 1, 1, txtCodigo_->blockCount(), 1, &aceptado);
    if (viva && aceptado)
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
