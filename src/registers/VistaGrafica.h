// The drawing of a chart: the values of up to eight registers over the last seconds, as steps, each line in a colour
// and a dash of its own.
//
// Its lines are HistoriaRegistro; it paints what the window's width can show of them, a few times a second while it can
// be seen. A click or the arrow keys place a cursor, beside which the legend tells each line's value.
#pragma once

#include "registers/HistoriaRegistro.h"

#include <QColor>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

struct LineaGrafica {
    int esclavo;
    int direccion;
    QString titulo; // "1:5" or "Nivel (1:5)"
    QString unidad;
    HistoriaRegistro historia;
};

class VistaGrafica final : public QWidget {
    Q_OBJECT

public:
    static constexpr std::size_t maxLineas = 8;

    // The lines are borrowed and outlive the widget; `ahora` gives milliseconds since 1970.
    VistaGrafica(const std::vector<LineaGrafica>& lineas, std::function<std::int64_t()> ahora,
                 QWidget* padre = nullptr);

    // How much time the width shows, 10,000 to 3,600,000 ms.
    void ponerVentana(std::int64_t milisegundos);
    std::int64_t ventana() const { return ventana_; }

    // While paused the drawing stands still; the histories go on.
    void pausar(bool pausa);
    bool pausada() const { return parada_.has_value(); }

    // The time at the right edge.
    std::int64_t fin() const { return parada_.value_or(ahora_()); }
    std::optional<std::int64_t> cursor() const { return cursor_; }

    static QColor color(std::size_t linea, bool fondoOscuro);

    QSize sizeHint() const override { return {760, 420}; }
    QSize minimumSizeHint() const override { return {320, 200}; }

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    struct Escala {
        double minimo;
        double maximo;
        double paso; // between two marks
    };
    using Columnas = std::vector<std::optional<HistoriaRegistro::Extremos>>;

    void ajustarRitmo();
    QRect marco() const;
    Columnas columnas(const HistoriaRegistro& historia, int cuantas) const;
    Escala escala(std::int64_t desde, std::int64_t hasta) const;
    static Escala redonda(const Escala& valores);
    double y(double valor, const Escala& escala, const QRect& marco) const;
    std::int64_t tiempoEn(int x) const;
    void pintarEjes(QPainter& pintor, const QRect& marco, const Escala& escala) const;
    void pintarLinea(QPainter& pintor, const QRect& marco, const Escala& escala, std::size_t cual) const;
    void pintarCursor(QPainter& pintor, const QRect& marco) const;
    void pintarLeyenda(QPainter& pintor, const QRect& marco) const;
    QString valorDeLeyenda(const LineaGrafica& linea) const;
    bool fondoOscuro() const;

    const std::vector<LineaGrafica>& lineas_;
    std::function<std::int64_t()> ahora_;
    std::int64_t ventana_ = 60'000;
    std::optional<std::int64_t> parada_; // the time at which it stands still
    std::optional<std::int64_t> cursor_;
    QTimer repintado_{this};
};
