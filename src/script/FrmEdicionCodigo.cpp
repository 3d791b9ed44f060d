#include "script/FrmEdicionCodigo.h"

#include "ajustes/Claves.h"
#include "platform/events/Eventos.h"
#include "platform/profile/Archivos.h"
#include "platform/text/Numbers.h"
#include "platform/window/Controles.h"
#include "platform/window/InputBox.h"
#include "platform/window/MsgBox.h"
#include "platform/window/PaginaManual.h"
#include "registers/ErrorEjecucion.h"
#include "script/BusquedaCodigo.h"
#include "script/EditorCodigo.h"
#include "script/FalloScript.h"
#include "script/OperacionesMW.h"
#include "script/PanelEjecucion.h"
#include "script/PeriodoScript.h"

#include <QCheckBox>
#include <QEvent>
#include <QFocusEvent>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QSplitter>
#include <QTextBlock>

namespace {

constexpr int estiloError = vbCritical + vbSystemModal; // 4112
constexpr int letraMinima = 6;                          // points
constexpr int letraMaxima = 48;

QString deRuta(const std::filesystem::path& ruta) {
    return deUtf8(ruta.string());
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

} // namespace

FrmEdicionCodigo::FrmEdicionCodigo(const Modulo_Codigo& codigo, Ajustes& ajustes, QCheckBox& chScript,
                                   EjecutorScript& ejecutor, Eventos& eventos, QWidget* padre)
    : QWidget(padre, Qt::Window), archivo_(codigo), ajustes_(ajustes), chScript_(chScript), ejecutor_(ejecutor),
      eventos_(eventos) {
    setObjectName(QStringLiteral("FrmEdicionCodigo"));
    setAttribute(Qt::WA_DeleteOnClose);
    crearControles();
    conectar();
    crearTeclas();
    cargar();
}

FrmEdicionCodigo::~FrmEdicionCodigo() = default;

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
    periodoCargado_ = QString::fromStdString(ajustes_.leerConfiguracion(claves::periodoDelEditor));
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
    const char16_t signo = ajustes_.signoDecimal();
    const double periodo = periodoDeTexto(texto, signo);
    periodoCargado_ = txtIntervaloDeTiempo_->text();
    if (text::readNumber(ajustes_.leerConfiguracion(claves::periodoDelEditor), signo) == periodo)
        return false;
    ajustes_.escribirConfiguracion(claves::periodoDelEditor, texto);
    return true;
}

void FrmEdicionCodigo::salir() {
    if (periodoPendienteValido())
        close();
}

bool FrmEdicionCodigo::comprobarPeriodo() {
    periodoPendiente_ = false;
    const QString texto = txtIntervaloDeTiempo_->text();
    const auto periodo = text::readNumber(texto.toStdString(), ajustes_.signoDecimal());
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
            trasPerderElFoco_.start();
        }
    }
    return QWidget::eventFilter(objeto, evento);
}

// ---------------------------------------------------------------------------------------------------------------
// errors

void FrmEdicionCodigo::mostrarFallo(const vbs::ScriptFailure& fallo) {
    if (fallo == fallo_)
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
    const bool conError = errorCompilacion_.number != 0 || fallo_.number != 0;
    QString error;
    if (errorCompilacion_.number != 0)
        error = textoDeFallo(QStringLiteral("Error"), errorCompilacion_, static_cast<int>(errorCompilacion_.line));
    else if (fallo_.number != 0)
        error = textoDeFallo(QStringLiteral("Falló al ejecutar"), fallo_, lineaParaDecir());
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

void FrmEdicionCodigo::irAlFallo(const vbs::ScriptFailure& fallo) {
    txtCodigo_->irA(lineaDe(fallo), static_cast<int>(fallo.column));
    txtCodigo_->setFocus();
}

int FrmEdicionCodigo::lineaDe(const vbs::ScriptFailure& fallo) const {
    return fallo == fallo_ ? lineaParaDecir() : static_cast<int>(fallo.line) + lineasVaciasAlPrincipio();
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
    ponerPaginaManual(*txtCodigo_, cursorEnMW() ? "scripts.md#lo-que-ofrece-mw" : "editor.md");
}

// Whether the text cursor stands in "mw" or in the name of one of its operations.
bool FrmEdicionCodigo::cursorEnMW() const {
    QTextCursor palabra = txtCodigo_->textCursor();
    palabra.select(QTextCursor::WordUnderCursor);
    const QString nombre = palabra.selectedText();
    const auto todas = operacionesMW();
    return nombre.compare(QLatin1String("mw"), Qt::CaseInsensitive) == 0 ||
           std::any_of(todas.begin(), todas.end(), [&](const OperacionMW& una) {
               const std::string_view suyo = una.nombre();
               return nombre.compare(QLatin1String(suyo.data(), static_cast<qsizetype>(suyo.size())),
                                     Qt::CaseInsensitive) == 0;
           });
}

void FrmEdicionCodigo::irALinea() {
    auto* pregunta = crearPregunta(*this, "dlgIrALinea", QStringLiteral("Ir a la línea"), QStringLiteral("Línea:"),
                                   "editor.md#las-teclas");
    pregunta->setIntRange(1, txtCodigo_->blockCount()); // before the value, or "Aceptar" comes up greyed
    pregunta->setIntValue(txtCodigo_->textCursor().blockNumber() + 1);
    connect(pregunta, &QInputDialog::intValueSelected, this, [this](int linea) { txtCodigo_->irA(linea, 1); });
    pregunta->open();
}

void FrmEdicionCodigo::cambiarLetra(int puntos) {
    QFont letra = txtCodigo_->font();
    letra.setPointSize(std::clamp(letra.pointSize() + puntos, letraMinima, letraMaxima));
    txtCodigo_->setFont(letra);
}

// Puts a sample in place of the text, which may have to be asked for; nothing is saved by it.
void FrmEdicionCodigo::ponerEjemplo(const QString& texto) {
    const QPointer<FrmEdicionCodigo> viva = this;
    if (!txtCodigo_->texto().trimmed().isEmpty() &&
        MsgBox(this, QStringLiteral("¿Reemplazar el texto de esta ventana con el ejemplo?\r\nCtrl+Z lo deshace."),
               vbYesNo + vbQuestion + vbDefaultButton2) != vbYes)
        return;
    if (!viva)
        return;
    txtCodigo_->cambiarTexto(texto);
    txtCodigo_->irA(1, 1);
    txtCodigo_->setFocus();
}

void FrmEdicionCodigo::mostrarPanel(bool visible) {
    panel_->setVisible(visible);
    if (visible && partes_->sizes().constLast() < partes_->width() / 5)
        partes_->setSizes({partes_->width() * 3 / 5, partes_->width() * 2 / 5});
}

void FrmEdicionCodigo::changeEvent(QEvent* evento) {
    QWidget::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange && lblEstado_ != nullptr)
        mostrarEstado();
}
