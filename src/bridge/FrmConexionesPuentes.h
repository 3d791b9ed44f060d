// The window of the bridge: the tree of its ports, one monitor a side, and what the operator may switch.
//
// It is loaded hidden at the end of start-up and lives as long as the process; hiding it changes nothing in the bridge.
#pragma once

#include "bridge/Puente.h"

#include <QTimer>
#include <QWidget>

#include <array>

class Eventos;
class QCheckBox;
class QTreeWidget;
class QTreeWidgetItem;
class VistaTexto;

class FrmConexionesPuentes final : public QWidget, private VentanaPuente {
    Q_OBJECT

public:
    // `principal` lends its icon. Reactor and events are borrowed and outlive the window.
    FrmConexionesPuentes(QWidget& principal, Reactor& reactor, Eventos& eventos, double puerto1 = Puente::puertoLado1,
                         double puerto2 = Puente::puertoLado2);
    ~FrmConexionesPuentes() override;

    const Puente& puente() const { return puente_; }

private:
    // VentanaPuente
    bool echo() const override;
    bool modbus() const override;
    bool stop() const override;
    void mostrar(Lado lado, std::span<const std::uint8_t> bloque, bool hexadecimal) override;
    void colorear(Lado lado, ColorPuerto color) override;
    void puertoRechazado(Lado lado, const std::error_code& fallo) override;

    void crearArbol();
    QWidget* crearMonitores();
    QWidget* crearBotones();
    void borrar();

    QTreeWidget* TreeView1_;
    std::array<QTreeWidgetItem*, 2> nodosPuerto_{};
    std::array<VistaTexto*, 2> txtTramas_{};
    QCheckBox* chEcho_;
    QCheckBox* chModbus_;
    QCheckBox* chStop_;
    std::array<std::error_code, 2> ultimoFallo_;
    Puente puente_;
    QTimer timerVerificarEstado_{this};
};
