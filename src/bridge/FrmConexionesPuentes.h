// The window of the bridge: the tree of its ports, one monitor a side, and what the operator may switch.
//
// It is loaded hidden at the end of start-up and lives as long as the process; hiding it changes nothing in the bridge.
// Why a port is red stands under the tree and in the port's tooltip, and once for each cause on stderr.
#pragma once

#include "bridge/Puente.h"

#include <QTimer>
#include <QWidget>

#include <array>

class QCheckBox;
class QLabel;
class QTreeWidget;
class QTreeWidgetItem;
class VistaTexto;

class FrmConexionesPuentes final : public QWidget, private VentanaPuente {
    Q_OBJECT

public:
    // `principal` lends its icon. The bridge is borrowed and outlives the window, which checks its state from now on.
    FrmConexionesPuentes(QWidget& principal, Puente& puente);
    ~FrmConexionesPuentes() override;

private:
    // VentanaPuente
    bool echo() const override;
    bool modbus() const override;
    bool stop() const override;
    std::span<std::uint8_t> sitio(Lado lado) override;
    void mostrar(Lado lado, std::span<const std::uint8_t> bloque, bool hexadecimal) override;
    void colorear(Lado lado, ColorPuerto color) override;
    void puertoRechazado(Lado lado, const std::error_code& fallo) override;

    QWidget* crearPuertos();
    void crearArbol();
    QWidget* crearMonitores();
    QWidget* crearBotones();
    void borrar();
    void mostrarMotivo(Lado lado, const QString& motivo);

    Puente& puente_;
    QTreeWidget* TreeView1_;
    QLabel* lblMotivos_;
    std::array<QTreeWidgetItem*, 2> nodosPuerto_{};
    std::array<VistaTexto*, 2> txtTramas_{};
    QCheckBox* chEcho_;
    QCheckBox* chModbus_;
    QCheckBox* chStop_;
    std::array<std::error_code, 2> ultimoFallo_;
    std::array<QString, 2> motivos_; // why a port is refused; empty: it is not
    QTimer timerVerificarEstado_{this};
};
