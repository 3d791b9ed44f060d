// The page of a slave in the main window: its grid, the frame with its four check boxes, its frame monitor.
//
// The page follows its Pagina: the first mark starts a timer, so that a burst of writes costs one repaint; after each
// the page rests, so that there are at most 60 a second. An idle page costs nothing. New rows are there at once,
// whether the page can be seen or not. The check boxes write the Pagina. The controls bear the slave number in their
// names: MSFlexGrid(3), ChRecibir(3) ...
#pragma once

#include "registers/FuenteRegistros.h"

#include <QMenu>
#include <QTimer>
#include <QWidget>

#include <vector>

class MSFlexGrid;
class QCheckBox;

class VistaPagina : public QWidget, private ObservadorPagina {
    Q_OBJECT

public:
    // Store and page are borrowed and outlive the view. The frame monitor is made by the caller and becomes a child
    // of the view, which names it. Without notes (borrowed, too) cells have no names, writers and colours.
    VistaPagina(const Esclavos& esclavos, Pagina& pagina, QWidget* txtTramas, QWidget* padre = nullptr,
                const Anotaciones* anotaciones = nullptr);
    ~VistaPagina() override;

    int numero() const { return pagina_.numero(); }

    // How the grid writes its registers; decimal at first.
    FormatoRegistro formato() const { return fuente_.formato(); }
    void ponerFormato(FormatoRegistro formato);

    // Selects the register's cell and brings it into view.
    void irA(int direccion);

    // The addresses of the selected cells in order, of those that exist.
    std::vector<int> seleccion() const;

    // Gives the grid the keyboard focus.
    void enfocar();

    // What the grid's keys do: writing its current register by hand, copying its selection, pasting.
    void escribirAMano();
    void copiar() const;
    void pegar();

Q_SIGNALS:
    // A double click (or Enter, F2) on the cell of register `direccion`, which shows `texto`.
    void celdaActivada(int esclavo, int direccion, const QString& texto);

    // The operator pastes a text at register `direccion`.
    void pegado(int esclavo, int direccion, const QString& texto);

    // The grid's context menu is about to open.
    void menuPedido(QMenu* menu);

protected:
    void showEvent(QShowEvent* evento) override;

private:
    void paginaCambiada(Pagina& pagina) override;
    void filasAgregadas(Pagina& pagina) override;
    void seguirPagina();
    void ponerAlDia();
    void desvanecer();
    QWidget* crearMarco();
    QCheckBox* crearCasilla(const char* nombre, const QString& titulo, bool Pagina::*campo);
    void nombrar(QWidget* control, const char* nombre, const QString& nombreAccesible) const;

    Pagina& pagina_;
    FuenteRegistros fuente_;
    MSFlexGrid* cuadricula_;
    QTimer espera_{this}; // until the next repaint; runs out once more after the last
    const Anotaciones* anotaciones_;
    QTimer desvanecido_{this}; // repaints while colours fade out
    int matices_ = 0;          // such repaints since a register has changed
};
