// Beside the text of the editor: the global variables of the running script with their values, and its console.
//
// Both follow while the panel is in sight, when actualizar() is called and there is something new; hidden it costs
// nothing.
#pragma once

#include "script/EjecutorScript.h"

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QTreeWidget;
class QVBoxLayout;

class PanelEjecucion final : public QWidget {
    Q_OBJECT

public:
    static constexpr int maximoVariables = 1000; // that are shown

    // Borrowed.
    PanelEjecucion(EjecutorScript& ejecutor, QWidget* padre);

    // Shows what is new.
    void actualizar();

protected:
    void showEvent(QShowEvent* evento) override;

private:
    QWidget* crearVariables();
    QWidget* crearConsola();
    void mostrarVariables();
    void mostrarConsola();
    void borrarConsola();

    EjecutorScript& ejecutor_;
    QTreeWidget* variables_ = nullptr;
    QLabel* resumen_ = nullptr;
    QPlainTextEdit* consola_ = nullptr;
    std::uint64_t pasadaMostrada_ = 0;
    std::uint64_t primeraMostrada_ = 0; // number of the console's first line in the box, since the console was made
    std::uint64_t finMostrado_ = 0;     // and of the one behind the last
};
