// The window "Gráfica": up to eight registers over the last 10 seconds to 1 hour.
//
// It hears of every write while it exists and forgets everything when it is closed: a closed chart costs nothing.
#pragma once

#include "registers/Anotaciones.h"
#include "registers/Esclavos.h"
#include "registers/VistaGrafica.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <span>
#include <vector>

class QCheckBox;
class QComboBox;

class FrmGrafica final : public QWidget, private ObservadorCambios {
    Q_OBJECT

public:
    struct Registro {
        int esclavo;
        int direccion;
    };

    // Store and notes are borrowed and outlive the window, which goes away when it is closed. Of more than eight
    // registers the first eight are shown.
    FrmGrafica(const Esclavos& esclavos, Anotaciones& anotaciones, std::span<const Registro> registros,
               QWidget* padre = nullptr);
    ~FrmGrafica() override;

    const std::vector<LineaGrafica>& lineas() const { return lineas_; }

    // What the window shows as text: a line a change, "fecha;hora;<título>..." with the value that each register had
    // then.
    QString comoCsv() const;

private:
    void registroEscrito(int esclavo, int direccion, double antes, double ahora, Autor autor) override;
    void construir();
    void guardarImagen();
    void guardarCsv();
    using Escritor = bool (FrmGrafica::*)(QIODevice&) const;
    void pedirArchivo(const QString& titulo, const QString& filtro, const QString& sufijo, Escritor escribir);
    bool escribirImagen(QIODevice& salida) const;
    bool escribirCsv(QIODevice& salida) const;

    Anotaciones& anotaciones_;
    std::vector<LineaGrafica> lineas_;
    VistaGrafica* vista_;
    QComboBox* cmbTiempo_;
    QCheckBox* chPausa_;
};
