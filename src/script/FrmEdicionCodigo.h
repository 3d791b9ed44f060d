// The window in which the user edits the script and its period.
//
// It loads the script file when it is made, saves it with "Guardar" or Ctrl+S (asking first when the file was changed
// meanwhile) and goes away when it is closed, without saving. While one types, the text is compiled and its first error
// underlined; where the running script failed is marked as well. A star in the title tells of changes that are not
// saved. Beside the text one can see the variables of the running script and its console.
#pragma once

#include "platform/vbscript/ScriptControl.h"
#include "script/ArchivoCodigo.h"
#include "script/ComprobadorCodigo.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

class Ajustes;
class BarraEjecucion;
class BusquedaCodigo;
class EditorCodigo;
class EjecutorScript;
class Eventos;
class QCheckBox;
class QLabel;
class QLineEdit;
class PanelEjecucion;
class QPushButton;
class QSplitter;
class QVBoxLayout;

class FrmEdicionCodigo final : public QWidget {
    Q_OBJECT

public:
    // All borrowed. `chScript` starts and stops the script, and is unticked and ticked again to arm the timer with a
    // new period; of `ejecutor` the variables, the console and the times are shown.
    FrmEdicionCodigo(const Modulo_Codigo& codigo, Ajustes& ajustes, QCheckBox& chScript, EjecutorScript& ejecutor,
                     Eventos& eventos, QWidget* padre);
    ~FrmEdicionCodigo() override;

    // Tells the outcome of a pass of the script; number 0: good. Cheap when nothing has changed.
    void mostrarFallo(const vbs::ScriptFailure& fallo);

    // Puts the text cursor where that failure of a pass was, and the focus there.
    void irAlFallo(const vbs::ScriptFailure& fallo);

    // The line of the text, from 1, where that failure of a pass was: as this window numbers them.
    int lineaDe(const vbs::ScriptFailure& fallo) const;

    // True when the period is one that is admitted. Else says why, puts the fallback there and takes the focus back;
    // the window may be gone when the message is closed.
    bool comprobarPeriodo();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    void crearControles();
    void crearFilaInferior(QVBoxLayout& columna);
    void conectar();
    void crearTeclas();
    void cargar();
    void guardar();
    bool puedeReemplazar();
    bool guardarPeriodo();
    void salir();
    bool periodoPendienteValido();
    void irALinea();
    void irAlError();
    void cambiarLetra(int puntos);
    void ponerEjemplo(const QString& texto);
    void mostrarPanel(bool visible);
    void mostrarTitulo();
    void mostrarPosicion();
    bool cursorEnMW() const;
    void mostrarEstado();
    int lineasVaciasAlPrincipio() const;
    int lineaDelFallo() const;
    int lineaParaDecir() const;
    bool hayCambios() const;

    ArchivoCodigo archivo_;
    Ajustes& ajustes_;
    QCheckBox& chScript_;
    EjecutorScript& ejecutor_;
    Eventos& eventos_;

    BarraEjecucion* barra_ = nullptr;
    QSplitter* partes_ = nullptr; // the text and the panel beside it
    PanelEjecucion* panel_ = nullptr;
    EditorCodigo* txtCodigo_ = nullptr;
    QLineEdit* txtIntervaloDeTiempo_ = nullptr;
    QPushButton* BtnGuardar_ = nullptr;
    QPushButton* BtnSalir_ = nullptr;
    std::unique_ptr<BusquedaCodigo> busqueda_;
    QLabel* lblEstado_ = nullptr;
    QLabel* lblPosicion_ = nullptr;
    ComprobadorCodigo* comprobador_ = nullptr;

    QString periodoCargado_;
    bool periodoPendiente_ = false; // the box has lost the focus and is still to be checked
    QTimer trasPerderElFoco_;       // at once, but not within the event
    bool demasiadoLargo_ = false;
    vbs::ScriptFailure errorCompilacion_;
    vbs::ScriptFailure fallo_;
    QString aviso_; // of the last save or load; until the text changes
};
