// The controls of the main window and their places; no behaviour.
//
// Left the tab strip over the page in front, right a column of groups; the splitter between them gives the pages all
// growth. Every control bears the name that tests and assistive tools find it by.
#pragma once

class QCheckBox;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTabBar;
class QTreeWidget;
class QVBoxLayout;
class QWidget;
class VistaMonitor;
class TextoMonitor;

struct ControlesPrincipal {
    // Builds everything as children of `ventana`, which owns it. `escrituras` is what txtEscrituras shows.
    ControlesPrincipal(QWidget& ventana, TextoMonitor& escrituras);

    // Adds the page of a slave and its tab; the Tab key enters the page in front from the tab strip.
    void agregarPagina(QWidget& pagina, int numero);

    QTabBar* TabStrip1;
    QStackedWidget* paginas; // one VistaPagina for every tab, in creation order

    QLabel* LblPuertoLocal;
    QTreeWidget* ListView1;
    QLabel* lblDDEAviso; // why the port is refused; hidden while there is nothing to say

    VistaMonitor* txtEscrituras;
    QPushButton* BtnBorrar;

    QCheckBox* chScript;
    QPushButton* BtnEdicionCodigo;
    QLabel* lblBaseDeTiempo;

    QCheckBox* ChRxTx;
    QPushButton* BtnBorrarTextosRXTX;
    QPushButton* Command2; // "Puentes"
    QPushButton* btnVerFormularioRS232;
    QPushButton* Command1; // "About"
    QPushButton* BtnOcultar;
    QPushButton* BtnCerrar;
    QLabel* Label4; // a second notice label, for the serial port and the bridge

private:
    QWidget* columnaIzquierda(QWidget* padre);
    QWidget* columnaDerecha(QWidget* padre, TextoMonitor& escrituras);
    void grupoConexiones(QVBoxLayout& columna, QWidget* padre);
    void grupoEscrituras(QVBoxLayout& columna, QWidget* padre, TextoMonitor& escrituras);
    void grupoScript(QVBoxLayout& columna, QWidget* padre);
    void grupoBotones(QVBoxLayout& columna, QWidget* padre);
    void ordenarTabulacion() const;
};
