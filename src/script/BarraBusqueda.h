// Find and replace in the code editor: a bar under the text, hidden until it is asked for.
//
// Searches go round: behind the last occurrence comes the first again. Enter finds the next, Shift+Enter the previous,
// Esc hides the bar and goes back to the text.
#pragma once

#include <QTextDocument>
#include <QWidget>

class EditorCodigo;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

class BarraBusqueda final : public QWidget {
    Q_OBJECT

public:
    // Borrowed.
    explicit BarraBusqueda(EditorCodigo& editor, QWidget* padre);

    // Shows the bar, with or without its second row, looking for what is selected in the text.
    void abrir(bool conReemplazo);

    // Selects the next or the previous occurrence. With nothing to look for it shows the bar.
    void buscar(bool haciaAtras);

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    QLineEdit* crearCampo(const char* nombre, const QString& rotulo, class QGridLayout& rejilla, int fila);
    Qt::CaseSensitivity caja() const;
    bool seleccionadoCoincide() const;
    void reemplazar();
    void reemplazarTodo();
    void cerrar();
    void decir(const QString& mensaje);

    EditorCodigo& editor_;
    QLineEdit* txtBuscar_ = nullptr;
    QLineEdit* txtReemplazar_ = nullptr;
    QLabel* rotuloReemplazar_ = nullptr;
    QPushButton* btnReemplazar_ = nullptr;
    QPushButton* btnReemplazarTodo_ = nullptr;
    QCheckBox* chMayusculas_ = nullptr;
    QLabel* mensaje_ = nullptr;
};
