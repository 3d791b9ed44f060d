// The registers of one slave as the cells of its grid: ten in a row, headings in row 0 and column 0.
//
// Register a stands in row a / 10 + 1, column a % 10 + 1. Every text is made from the store when it is asked for.
#pragma once

#include "platform/grid/FuenteCuadricula.h"
#include "registers/Esclavos.h"

#include <optional>

class FuenteRegistros : public FuenteCuadricula {
public:
    static constexpr int columnasCuadricula = Pagina::registrosPorFila + 1;

    // Both are borrowed and outlive the source.
    FuenteRegistros(const Esclavos& esclavos, const Pagina& pagina) : esclavos_(esclavos), pagina_(pagina) {}
    virtual ~FuenteRegistros() = default;

    static int direccion(int fila, int columna) { return (fila - 1) * Pagina::registrosPorFila + columna - 1; }

    int filas() const override { return pagina_.filas(); }
    int columnas() const override { return columnasCuadricula; }
    QString texto(int fila, int columna) const override;

    // A register's value unsigned, signed, in hexadecimal and as 16 bits.
    QString sugerencia(int fila, int columna) const override;

private:
    QString encabezado(int fila, int columna) const;
    std::optional<double> valor(int fila, int columna) const; // empty beyond the table

    const Esclavos& esclavos_;
    const Pagina& pagina_;
};
