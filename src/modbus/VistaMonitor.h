// A read-only text box that follows a TextoMonitor from afar.
//
// The first change starts a timer; when it fires the box appends what is new (or takes the whole text, when it started
// over meanwhile) and moves the caret to the end, so that the newest line is in view. Updates come 33 to 200 ms apart,
// the further the more they cost: about a twentieth of the time goes into them. A box that cannot be seen follows in
// steps of 100 ms, and under heavy traffic waits for a pause or for being shown; without changes nothing runs.
#pragma once

#include "modbus/TextoMonitor.h"

#include <QPlainTextEdit>
#include <QTimer>

#include <chrono>

class VistaMonitor : public QPlainTextEdit, private ObservadorTexto {
    Q_OBJECT

public:
    // The monitor is borrowed and outlives the box.
    explicit VistaMonitor(TextoMonitor& monitor, QWidget* padre = nullptr);
    ~VistaMonitor() override;

protected:
    void showEvent(QShowEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void textoCambiado() override;
    void alVencer();
    bool conviene();
    void ponerAlDia();
    void mostrarFinal();

    TextoMonitor& monitor_;
    QTimer espera_;
    std::chrono::milliseconds intervalo_;
    std::uint64_t generacion_ = 0;      // of the text shown
    std::size_t mostrados_ = 0;         // characters of the monitor that the box shows
    std::uint64_t generacionVista_ = 0; // the monitor's state at the last look, shown or not
    std::size_t largoVisto_ = 0;
};
