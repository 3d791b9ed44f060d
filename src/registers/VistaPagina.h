// The page of a slave in the main window: its grid, the frame with its four check boxes, its frame monitor.
//
// The page follows its Pagina: the first mark starts a timer, so that a burst of writes costs one repaint, at most 60
// a second, and an idle page costs nothing. New rows are there at once, whether the page can be seen or not. The
// check boxes write the Pagina. The controls bear the slave number in their names: MSFlexGrid(3), ChRecibir(3) ...
#pragma once

#include "registers/FuenteRegistros.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

class MSFlexGrid;
class QCheckBox;

class VistaPagina : public QWidget, private ObservadorPagina {
    Q_OBJECT

public:
    // Store and page are borrowed and outlive the view. The frame monitor is made by the caller and becomes a child
    // of the view, which names it.
    VistaPagina(const Esclavos& esclavos, Pagina& pagina, QWidget* txtTramas, QWidget* padre = nullptr);
    ~VistaPagina() override;

    int numero() const { return pagina_.numero(); }

Q_SIGNALS:
    // A double click (or Enter, F2) on the cell of register `direccion`, which shows `texto`.
    void celdaActivada(int esclavo, int direccion, const QString& texto);

protected:
    void showEvent(QShowEvent* evento) override;

private:
    void paginaCambiada(Pagina& pagina) override;
    void filasAgregadas(Pagina& pagina) override;
    void ponerAlDia();
    QWidget* crearMarco();
    QCheckBox* crearCasilla(const char* nombre, const QString& titulo, bool Pagina::*campo);
    void nombrar(QWidget* control, const char* nombre, const QString& nombreAccesible) const;

    Pagina& pagina_;
    FuenteRegistros fuente_;
    MSFlexGrid* cuadricula_;
    QTimer espera_;
    QElapsedTimer desdeUltima_; // time since the last repaint
};
