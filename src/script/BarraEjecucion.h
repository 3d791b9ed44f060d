// The upper row of the editor: starts and stops the script, tells how long it takes, and offers the samples.
#pragma once

#include "script/EjecutorScript.h"

#include <QTimer>
#include <QWidget>

#include <chrono>
#include <optional>

class QCheckBox;
class QHBoxLayout;
class QLabel;
class QPushButton;

class BarraEjecucion final : public QWidget {
    Q_OBJECT

public:
    // How often what is shown follows the script, at most.
    static constexpr std::chrono::milliseconds pulso{250};

    // Both borrowed; the box "Ejecutar" follows `chScript` and ticks it.
    BarraEjecucion(const EjecutorScript& ejecutor, QCheckBox& chScript, QWidget* padre);

    // How long the text took to compile; nothing: it was not compiled.
    void mostrarCompilacion(std::optional<std::chrono::nanoseconds> duracion);

    void alternarEjecucion();
    void alternarPanel();

Q_SIGNALS:
    void pulsado();                 // now and then, while the bar is in sight
    void panelPedido(bool visible); // show or hide what lies beside the text
    void ejemploPedido(const QString& texto);

protected:
    void showEvent(QShowEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;

private:
    void crearEjemplos(QHBoxLayout& fila);
    void mostrarTiempos();

    const EjecutorScript& ejecutor_;
    QCheckBox* chEjecutar_ = nullptr;
    QLabel* lblTiempos_ = nullptr;
    QPushButton* btnPanel_ = nullptr;
    QTimer reloj_{this};
    std::optional<std::chrono::nanoseconds> compilacion_;
};

// "0,85 ms": three figures that matter, in milliseconds or seconds.
QString textoDeDuracion(std::chrono::nanoseconds duracion);
