// The search bar at the foot of a VistaTexto: Ctrl+F opens it, Enter and F3 look on, with Shift backwards, Esc closes
// it. Every occurrence is marked while it is open.
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class VistaTexto;

class BarraHallar final : public QWidget {
    Q_OBJECT

public:
    // The box owns the bar.
    explicit BarraHallar(VistaTexto& vista);

    // Shows the bar with the caret in it; a text of one line takes the place of the last pattern.
    void abrir(const QString& texto);
    void cerrar();

    // Takes its place at the foot of the box.
    void colocar();

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void buscar(bool adelante);

    VistaTexto& vista_;
    QLineEdit* patron_;
    QLabel* resultado_;
};
