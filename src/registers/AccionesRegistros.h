// What the operator can do with the registers of the page in front, from the menus of window and grid: go to a
// register, paste, export, choose the number format, colour changes, and open a chart.
//
//     AccionesRegistros acciones(esclavos, anotaciones, ventana);
//     acciones.agregarA(*menuVer);          // for the window's menu bar
//     acciones.seguir(*vista);              // each page, when it is made
#pragma once

#include "registers/Anotaciones.h"
#include "registers/DestinoRegistro.h"
#include "registers/Esclavos.h"
#include "registers/FormatoRegistro.h"

#include <QObject>

#include <vector>

class QAction;
class QActionGroup;
class QMenu;
class QWidget;
class VistaPagina;

class AccionesRegistros final : public QObject {
    Q_OBJECT

public:
    // All are borrowed and outlive this object. The window is the parent of every dialog, and has the keys.
    AccionesRegistros(Esclavos& esclavos, Anotaciones& anotaciones, QWidget& ventana);

    // Entries for a menu of the window; first of them what the grid does itself.
    void agregarA(QMenu& menu);

    // Connects a page; its grid's context menu gets the same entries.
    void seguir(VistaPagina& vista);

    // The page that the actions are about, or null for none.
    void ponerPagina(VistaPagina* vista);

Q_SIGNALS:
    // The operator wants this register in front. It exists.
    void destinoElegido(int esclavo, int direccion);

private:
    QAction* crear(const QString& titulo, const QString& tecla, void (AccionesRegistros::*hacer)());
    void crearFormatos();
    void agregarEdicion(QMenu& menu);
    void agregarComunes(QMenu& menu);
    void pegar(int esclavo, int direccion, const QString& texto);
    void irA();
    void exportar();
    void abrirGrafica();
    void alternarResaltado(bool resaltar);

    Esclavos& esclavos_;
    Anotaciones& anotaciones_;
    QWidget& ventana_;
    VistaPagina* pagina_ = nullptr;
    QAction* irA_;
    QAction* exportar_;
    QAction* grafica_;
    QAction* resaltar_;
    QMenu* formatos_;
    QActionGroup* grupoFormatos_;
};
