// The manual's window: contents or results of a search on the left, a page on the right.
//
// F1 anywhere in the program opens it at the page of the control with the focus (TeclaManual). Nothing of it exists
// before.
#pragma once

#include "shell/LibroManual.h"

#include <QWidget>

class PaginaVisible;
class QLineEdit;
class QListWidget;
class QPushButton;
class QStackedWidget;
class QTreeWidget;

class FrmManual final : public QWidget {
    Q_OBJECT

public:
    explicit FrmManual(QWidget* padre);

    // "editor.md", "monitores.md#escrituras"; a page that does not exist opens the first.
    void abrir(const QString& pagina);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    QWidget* crearIzquierda();
    QWidget* crearMandos();
    QWidget* crearDerecha();
    QPushButton* boton(const char* nombre, const QString& texto, const QString& ayuda);
    void llenarIndice();
    void crearTeclas();
    void irA(const QUrl& url);
    void buscar(const QString& palabras);
    void abrirHallazgo();
    void alCambiarDePagina(const QUrl& url);

    LibroManual libro_;
    PaginaVisible* pagina_ = nullptr;
    QLineEdit* txtBuscarEnTodo_ = nullptr;
    QStackedWidget* izquierda_ = nullptr; // contents or results
    QTreeWidget* indice_ = nullptr;
    QListWidget* hallazgos_ = nullptr;
    QPushButton* btnAtras_ = nullptr;
    QPushButton* btnAdelante_ = nullptr;
};
