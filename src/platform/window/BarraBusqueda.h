// The search bar of every text: monitors, script editor, manual.
//
// It shows under the text when asked for, marks all hits as one types, and goes from one to the next: Enter or F3
// forward, Shift+Enter or Shift+F3 back, Esc closes it. Texts that can be changed have a second row, for replacing.
//
// It knows nothing of the text but what DondeBuscar says; a text answers each search with mostrarResultado(), at once
// or later.
#pragma once

#include <QWidget>

#include <cstdint>

class QLabel;
class QLineEdit;
class QToolButton;

// A text that can be searched.
class DondeBuscar {
public:
    // What the operator has selected, if that is one line; else nothing.
    virtual QString seleccionParaBuscar() const = 0;
    // Marks every occurrence; empty: none.
    virtual void resaltar(const QString& patron, Qt::CaseSensitivity caja) = 0;
    // Selects the next or previous occurrence, over the end on from the other end.
    virtual void buscar(const QString& patron, Qt::CaseSensitivity caja, bool adelante) = 0;
    // Shows the bar, which takes room from the text, or hides it and takes the focus: how, depends on its place.
    virtual void mostrarBarra(bool mostrada) = 0;

    // Only for texts with replacing: the selection, if it is an occurrence, becomes `nuevo`; how many were replaced.
    virtual void reemplazar(const QString&, const QString&, Qt::CaseSensitivity) {}
    virtual int reemplazarTodo(const QString&, const QString&, Qt::CaseSensitivity) { return 0; }

protected:
    ~DondeBuscar() = default;
};

class BarraBusqueda final : public QWidget {
    Q_OBJECT

public:
    enum class Resultado : std::uint8_t { hallado, haLlegadoAlFinal, haLlegadoAlPrincipio, noHallado };

    // Borrowed. Hidden until abrir().
    BarraBusqueda(DondeBuscar& donde, QWidget* padre, bool puedeReemplazar = false);

    // Shows the bar, looking for what is selected in the text; with its second row or without.
    void abrir(bool conReemplazo = false);
    void cerrar();

    // The next or the previous occurrence. With nothing to look for it shows the bar.
    void buscar(bool adelante);
    void mostrarResultado(Resultado resultado);

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    QLineEdit* campo(const char* nombre, const QString& rotulo);
    QToolButton* boton(const char* nombre, const QString& texto, const QString& ayuda);
    QWidget* crearFilaDeReemplazo();
    Qt::CaseSensitivity caja() const;
    void resaltar();
    void reemplazar();
    void reemplazarTodo();
    void decir(const QString& mensaje);

    DondeBuscar& donde_;
    QLineEdit* txtBuscar_;
    QLineEdit* txtReemplazar_ = nullptr; // null: the text cannot be changed
    QToolButton* chMayusculas_;
    QLabel* mensaje_;
    QWidget* filaReemplazo_ = nullptr;
};
