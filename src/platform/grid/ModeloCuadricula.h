// The view's adapter over a FuenteCuadricula: the headings become header data, the rest becomes cells.
//
// It remembers nothing but the number of rows that the view has been told of.
#pragma once

#include "platform/grid/FuenteCuadricula.h"

#include <QAbstractTableModel>

class ModeloCuadricula : public QAbstractTableModel {
    Q_OBJECT

public:
    // The source is borrowed and outlives the model, which begins without rows.
    ModeloCuadricula(const FuenteCuadricula& fuente, QObject* padre);

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

    // Tells the view of the rows that the source has gained; selection and scroll position stay.
    void agregarFilas();

private:
    const FuenteCuadricula& fuente_;
    int filas_ = 0; // headings not counted
};
