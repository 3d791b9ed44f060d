// The registers of one slave as the cells of its grid: ten in a row, headings in row 0 and column 0.
//
// Register a stands in row a / 10 + 1, column a % 10 + 1. Every text is made from the store when it is asked for.
#pragma once

#include "platform/grid/FuenteCuadricula.h"
#include "registers/Anotaciones.h"
#include "registers/Esclavos.h"
#include "registers/FormatoRegistro.h"

#include <optional>

class FuenteRegistros : public FuenteCuadricula {
public:
    static constexpr int columnasCuadricula = Pagina::registrosPorFila + 1;

    // All are borrowed and outlive the source; without notes there are no names, writers and colours.
    FuenteRegistros(const Esclavos& esclavos, const Pagina& pagina, const Anotaciones* anotaciones = nullptr)
        : esclavos_(esclavos), pagina_(pagina), anotaciones_(anotaciones) {}
    virtual ~FuenteRegistros() = default;

    static int direccion(int fila, int columna) { return (fila - 1) * Pagina::registrosPorFila + columna - 1; }

    int filas() const override { return pagina_.filas(); }
    int columnas() const override { return columnasCuadricula; }
    QString texto(int fila, int columna) const override;
    QString textoMasAncho() const override;

    // A register's name, its value in every format, who wrote it last and when.
    QString sugerencia(int fila, int columna) const override;

    // A cell whose value changed within the last seconds has a colour for who did it, which fades out.
    QColor fondo(int fila, int columna, const QPalette& paleta) const override;

    // How the cells are written; decimal at first.
    FormatoRegistro formato() const { return formato_; }
    void ponerFormato(FormatoRegistro formato) { formato_ = formato; }

    // The value as stored, whatever the format.
    QString textoDecimal(int fila, int columna) const;

private:
    QString encabezado(int fila, int columna) const;
    std::optional<double> valor(int fila, int columna) const; // empty beyond the table
    QString comoSeEscribe(int direccion, FormatoRegistro formato) const;
    QString quienEscribio(int direccion) const;

    const Esclavos& esclavos_;
    const Pagina& pagina_;
    const Anotaciones* anotaciones_;
    FormatoRegistro formato_ = FormatoRegistro::decimal;
};
