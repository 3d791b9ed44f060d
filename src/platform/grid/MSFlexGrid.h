// The grid control: a table view that asks its source for the text of a cell when it paints it.
//
// Row 0 and column 0 are headings and are shown as the view's headers, the corner text in the corner; all rows and
// columns below are counted with the headings. Cells cannot be edited. The arrows move, Ctrl+C copies the selected
// cells as tab-separated text, Enter and F2 do what a double click does, Tab leaves the grid.
//
//     MSFlexGrid cuadricula(fuente);
//     cuadricula.TextMatrix(2, 4);   // the text of the cell in row 2, column 4
//     cuadricula.refrescar();        // the source has changed
#pragma once

#include "platform/grid/FuenteCuadricula.h"

#include <QMenu>
#include <QTableView>

#include <utility>
#include <vector>

class ModeloCuadricula;

class MSFlexGrid : public QTableView {
    Q_OBJECT
    Q_PROPERTY(int Rows READ Rows)
    Q_PROPERTY(int Cols READ Cols)
    Q_PROPERTY(int Row READ Row)
    Q_PROPERTY(int Col READ Col)

public:
    // The source is borrowed and outlives the grid.
    explicit MSFlexGrid(const FuenteCuadricula& fuente, QWidget* padre = nullptr);

    int Rows() const { return fuente_.filas(); }
    int Cols() const { return fuente_.columnas(); }

    // Empty outside the grid.
    Q_INVOKABLE QString TextMatrix(int row, int col) const;

    // The current cell; the first one below the headings while none has been chosen.
    int Row() const;
    int Col() const;

    // Makes the cell the current and only selected one and brings it into view.
    void irA(int row, int col);

    // The selected cells, row by row.
    std::vector<std::pair<int, int>> celdasSeleccionadas() const;

    // The source has gained rows: the model has them from now on.
    void agregarFilas();

    // The source has changed: repaints what can be seen.
    void refrescar();

    // The source writes its cells in another way: the columns share the view anew, none narrower than the widest text.
    void medirTextos();

    // The selected cells: a tab between columns, a line feed between rows, nothing for a cell that is not selected.
    QString textoSeleccionado() const;

    // What Enter, Ctrl+C and Ctrl+V do.
    void activar();
    void copiar() const;
    void pegar();

    // Typed characters do not search: a digit under the finger is not a wish to jump.
    void keyboardSearch(const QString& /*texto*/) override {}

Q_SIGNALS:
    // A double click, Enter or F2 on a cell below the headings.
    void celdaActivada(int row, int col);

    // Ctrl+V, or "Pegar": a text for the current cell and those right of it and below.
    void pegado(int row, int col, const QString& texto);

    // The context menu is about to open; who owns the grid adds its entries.
    void menuPedido(QMenu* menu);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void medir();
    void repartirColumnas();
    void pintarEsquina();

    const FuenteCuadricula& fuente_;
    ModeloCuadricula* modelo_;
    QWidget* esquina_;
    bool anchosPropios_ = false; // the operator has set a column's width
    bool repartiendo_ = false;
};
