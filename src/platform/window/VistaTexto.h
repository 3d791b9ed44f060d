// A read-only text box for text that only ever grows at its end: monitors, logs, raw input.
//
// The text is kept as bytes (TextoBytes) and becomes characters only where it is painted, searched, copied or saved, so
// that a source faster than any screen costs little more than its bytes, and 100 MB scroll and are searched like 100
// lines. The box repaints a few dozen times a second. It follows the end while it is scrolled to the end, and otherwise
// stays where the operator looks; a selection stays, whatever comes.
//
// Ctrl+F searches, Ctrl+S saves to a file, Ctrl+P freezes what is shown while the text behind goes on; the context menu
// and the buttons beside the text
// have them too.
//
// The base class's document follows soon after, for those who read the box from outside (toPlainText(), assistive
// tools): it holds the whole text up to `maximoEspejo` bytes, of a longer one the rows on the screen. texto() and the
// property `plainText` have all of it at any time.
#pragma once

#include "platform/window/BarraBusqueda.h"
#include "platform/window/BusquedaTexto.h"
#include "platform/window/FilasTexto.h"
#include "platform/window/LetraFija.h"
#include "platform/window/TextoBytes.h"

#include <QPlainTextEdit>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <optional>
#include <span>
#include <string_view>

class BarraMonitor;

class VistaTexto : public QPlainTextEdit, private DondeBuscar {
    Q_OBJECT
    Q_PROPERTY(QString plainText READ texto)

public:
    static constexpr std::size_t maximoEspejo = 65536; // bytes

    explicit VistaTexto(QWidget* parent = nullptr, TextoBytes::CrLf crLf = TextoBytes::CrLf::unFin);
    ~VistaTexto() override;

    // Appends characters of the ANSI code page, or a block shown as hexadecimal, "[0][FF]", on a line that it ends.
    void agregar(std::string_view ansi);
    void agregarBloque(std::span<const std::uint8_t> bloque);

    // Memory in which what is appended next will stand, empty while there is little: who reads into its first bytes
    // and appends them right then saves their copy.
    std::span<std::uint8_t> sitio() { return texto_.sitio(); }

    // Empties the box at once, paused or not.
    void borrar();

    // Shows everything appended so far, in the document too, before it returns.
    void ponerAlDia();

    // Whether screen and document show everything appended so far.
    bool alDia() const { return !turno_.isActive() && !espejo_.isActive(); }

    // All that is shown, with '\n' for each line end.
    QString texto() const;
    const TextoBytes& bytes() const { return congelado_ ? *congelado_ : texto_; }

    // While paused, what is shown stays; the text behind grows on and is shown at the end of the pause.
    bool pausada() const { return congelado_.has_value(); }
    virtual void pausar(bool pausa);

    bool haySeleccion() const { return ancla_ != posicion_; }
    QString seleccion() const; // '\n' for each line end
    bool sigueElFinal() const { return sigue_; }

    // The search bar, with the caret in it.
    void abrirBusqueda();
    // The next or previous occurrence of what the bar looks for (F3, Shift+F3).
    void buscarOtraVez(bool adelante);
    // Looks for the text after (before) the selection, and over the end on from the other end; selects what it finds.
    // Ends with busquedaTerminada(), later when the text is large.
    void buscar(const QString& patron, Qt::CaseSensitivity caja, bool adelante) override;
    void buscar(const QString& patron, bool adelante) { buscar(patron, Qt::CaseInsensitive, adelante); }
    // Marks every occurrence; empty: none.
    void resaltar(const QString& patron, Qt::CaseSensitivity caja = Qt::CaseInsensitive) override;

    // Whether it is one of the keys that search, save and pause, which a box always takes.
    static bool esTeclaDeMando(const QKeyEvent& evento);

    // Asks for a file and writes what is shown at this moment, as UTF-8 with CR LF.
    void guardar();

Q_SIGNALS:
    void pausaCambiada(bool pausada);
    void busquedaTerminada(bool hallado);

protected:
    QMimeData* createMimeDataFromSelection() const override;
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

    // The text starts over by itself, unlike by borrar().
    void empezarDeNuevo();
    // What holds the view was let go: no selection any more, or scrolled to the end again.
    virtual void soltada() {}
    // Told in a corner of the box, "" for nothing.
    virtual QString rotuloDeEstado() const;
    void moverAlFinal();

private:
    // Painting and scrolling (VistaTextoPintado.cpp, VistaTexto.cpp)
    FilasTexto filas() const { return {bytes(), columnas()}; }
    int columnas() const;
    int filasVisibles() const;
    void cambiado();
    void refrescar();
    void ponerBarra();
    std::size_t medirFondo() const;
    void ponerArriba(std::size_t posicion);
    void desplazar(int filas);
    void alAccionarBarra(int accion);
    void pintarFila(QPainter& pintor, const FilaTexto& fila, qreal y,
                    const std::vector<BusquedaTexto::Hallazgo>& hallazgos) const;
    std::vector<BusquedaTexto::Hallazgo> hallazgosVisibles(std::size_t hasta) const;
    std::size_t finDePantalla() const;

    // The document (VistaTextoEspejo.cpp)
    void reflejar();
    void reflejarTodo();
    void reflejarSeleccion();
    void alMoverCursorDelDocumento();

    // Caret, selection, keys, mouse, menu (VistaTextoMando.cpp)
    void mover(std::size_t posicion, bool seleccionando);
    void moverFilas(int cuantas, bool seleccionando);
    bool moverConTecla(const QKeyEvent& evento);
    void ensenar(std::size_t posicion);
    std::size_t posicionEn(QPointF punto) const;
    void copiar() const;

    // Search and its bar (VistaTextoBusqueda.cpp)
    void seguirBuscando();
    void terminarBusqueda(bool hallado);
    QString seleccionParaBuscar() const override;
    void mostrarBarra(bool mostrada) override;
    void heredar(QWidget& parte) const;
    void colocarBarras();

    LetraFija letra_;
    TextoBytes texto_;
    std::optional<TextoBytes> congelado_; // what is shown while paused
    std::size_t arriba_ = 0;              // first byte of the first row on the screen
    std::size_t fondo_ = 0;               // what arriba_ is at most, as of the last turn of the screen
    bool sigue_ = true;                   // scrolled to the end
    bool moviendoBarra_ = false;
    std::size_t ancla_ = 0;    // the selection lies between these two;
    std::size_t posicion_ = 0; // the caret stands here
    bool arrastrando_ = false;

    QTimer turno_{this};         // until the screen takes in what was appended
    QTimer espejo_{this};        // until the document does
    std::size_t reflejados_ = 0; // bytes that the document holds from the start on
    bool espejoEntero_ = true;   // the document holds the text from its start on
    bool sincronizando_ = false;
    int espera_ = 0; // ms to the next turn of the document

    BusquedaTexto resaltado_;
    BusquedaTexto busqueda_;
    bool adelante_ = true;
    std::size_t buscadoHasta_ = 0; // where the next piece begins, or ends when searching backwards
    std::size_t porBuscar_ = 0;    // bytes
    QTimer busquedaTurno_{this};
    bool barraALaVista_ = false;
    BarraBusqueda* barra_ = nullptr;  // made on first use
    BarraMonitor* botones_ = nullptr; // made when first shown
};
