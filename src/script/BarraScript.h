// The bar that tells of a script that does not end, and stops it: "El script lleva 3 s" and the button "Parar".
//
// The thread belongs to the script meanwhile. atender() lets the bar paint itself and take its own input, and nothing
// else: no socket, no timer, no click on another control, so that a pass stays one step for everybody who looks on. A
// window that is closed meanwhile stops the script and is closed afterwards.
#pragma once

#include <QFrame>

#include <chrono>
#include <functional>

class QLabel;

class BarraScript final : public QFrame {
    Q_OBJECT

public:
    // A child of `ventana`, at its upper edge, hidden. `parar` stops the script; it is called from within atender().
    BarraScript(QWidget& ventana, std::function<void()> parar);

    // Shows for how long the script has been running and lets the operator act. The caller expects to be stopped.
    void atender(std::chrono::seconds desdeElComienzo);

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void colocar();
    bool esSuya(QObject* objeto) const;

    std::function<void()> parar_;
    QLabel* texto_;
};
