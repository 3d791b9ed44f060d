#include "platform/grid/ModeloCuadricula.h"

ModeloCuadricula::ModeloCuadricula(const FuenteCuadricula& fuente, QObject* padre)
    : QAbstractTableModel(padre), fuente_(fuente) {}

int ModeloCuadricula::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : filas_;
}

int ModeloCuadricula::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : fuente_.columnas() - 1;
}

QVariant ModeloCuadricula::data(const QModelIndex& indice, int papel) const {
    if (!checkIndex(indice, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    switch (papel) {
    case Qt::DisplayRole:
        return fuente_.texto(indice.row() + 1, indice.column() + 1);
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return fuente_.sugerencia(indice.row() + 1, indice.column() + 1);
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant ModeloCuadricula::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
    const int cuantas = orientacion == Qt::Horizontal ? columnCount() : rowCount();
    if (papel != Qt::DisplayRole || seccion < 0 || seccion >= cuantas)
        return {};
    return orientacion == Qt::Horizontal ? fuente_.texto(0, seccion + 1) : fuente_.texto(seccion + 1, 0);
}

void ModeloCuadricula::agregarFilas() {
    const int nuevas = fuente_.filas() - 1;
    if (nuevas <= filas_)
        return;
    beginInsertRows({}, filas_, nuevas - 1);
    filas_ = nuevas;
    endInsertRows();
}
