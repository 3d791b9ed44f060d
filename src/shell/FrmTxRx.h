// The TX/RX window: the frame lines of all slaves in one text, what of them to show, and the traffic as a file.
#pragma once

#include <QWidget>

class Monitores;
class QCheckBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class VistaTxRx;

class FrmTxRx final : public QWidget {
    Q_OBJECT

public:
    // `monitores` is borrowed and outlives the window.
    FrmTxRx(QWidget& principal, Monitores& monitores);

    // Asks for a file and writes the traffic kept at this moment into it, as a capture (pcap).
    void guardarTrafico();

protected:
    // The keys of the monitor work wherever in this window the focus is.
    void keyPressEvent(QKeyEvent* evento) override;

private:
    QHBoxLayout* crearMandos();
    QCheckBox* casilla(const char* nombre, const QString& texto, const QString& ayuda, bool marcada);
    void filtrar();
    void escribirTrafico(const QString& archivo);

    Monitores& monitores_;
    VistaTxRx* Text1_;
    QLineEdit* txtEsclavos_ = nullptr;
    QCheckBox* chLecturas_ = nullptr;
    QCheckBox* chEscrituras_ = nullptr;
    QCheckBox* chOtras_ = nullptr;
    QCheckBox* chHexadecimal_ = nullptr;
    QLabel* lblFiltro_ = nullptr;
};
