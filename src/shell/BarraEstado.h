// The status bar at the foot of the main window: masters, requests, script passes and for how long the station has run.
//
// It looks twice a second while it is visible; hidden it costs nothing. Where it is too narrow the fields of least
// weight are left out, and the text of the script error is cut short; each field has a tooltip.
#pragma once

#include "platform/clock/Reloj.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <cstdint>
#include <optional>

class Estacion;
class QLabel;
class QPushButton;

class BarraEstado final : public QWidget {
    Q_OBJECT

public:
    static constexpr int periodo = 500; // milliseconds

    // The station is borrowed; its window must be open whenever the bar is visible.
    BarraEstado(Estacion& estacion, QWidget* padre);

    QPushButton& botonError() const { return *BtnErrorScript_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    // The operator wants to see the place of the last script error.
    void errorPulsado();

protected:
    void showEvent(QShowEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    enum Campo { maestros, ritmo, lecturas, escrituras, excepciones, sinRespuesta, pasadas, enMarcha, cuantosCampos };

    void refrescar();
    void mostrarPeticiones();
    void mostrarScript();
    void acomodar();

    Estacion& estacion_;
    std::array<QLabel*, cuantosCampos> campos_{}; // in the order of the bar and of their weight
    QPushButton* BtnErrorScript_;
    QString textoError_; // empty: none yet
    QTimer reloj_{this};
    std::optional<Reloj::Instante> muestra_; // the last look since it was shown
    std::uint64_t peticionesVistas_ = 0;
};
