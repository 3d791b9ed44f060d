// The statistics window: what each connected master has asked for and how the requests to each slave ended.
//
// It looks twice a second while it is visible; closed it costs nothing. The slaves listed are those that have had a
// request. "Poner a cero" begins all counts of requests anew, those of the status bar too.
#pragma once

#include <QTimer>
#include <QWidget>

class Estacion;
class QTreeWidget;

class FrmEstadisticas final : public QWidget {
    Q_OBJECT

public:
    static constexpr int periodo = 500; // milliseconds

    // The station is borrowed.
    FrmEstadisticas(Estacion& estacion, QWidget& principal);

    // Both tables with their headings, tab-separated.
    QString texto() const;

protected:
    void showEvent(QShowEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void refrescar();
    void mostrarMaestros();
    void mostrarEsclavos();
    void copiar() const;
    void ponerACero();

    Estacion& estacion_;
    QTreeWidget* listaMaestros_;
    QTreeWidget* listaEsclavos_;
    QTimer reloj_{this};
};
