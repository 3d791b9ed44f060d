// A read-only text box that follows a TextoMonitor from afar.
//
// The first change starts a timer; when it fires the box takes in what is new (or the whole text, when it started over
// meanwhile). A text that starts over by itself does not take away what the operator is looking at: while something is
// selected, the view scrolled up or the box paused, what is shown stays, and the box says so. Emptying the monitor by
// hand empties the box in any case.
#pragma once

#include "modbus/TextoMonitor.h"
#include "platform/window/VistaTexto.h"

class VistaMonitor : public VistaTexto, private ObservadorTexto {
    Q_OBJECT

public:
    // Whether new text moves a view that is scrolled up: the caret goes to the end with every line, or the view stays.
    enum class Seguimiento : std::uint8_t { siempre, siEstaAlFinal };

    // The monitor is borrowed and outlives the box.
    explicit VistaMonitor(TextoMonitor& monitor, QWidget* padre = nullptr,
                          Seguimiento seguimiento = Seguimiento::siEstaAlFinal);
    ~VistaMonitor() override;

    void pausar(bool pausa) override;

protected:
    void showEvent(QShowEvent* evento) override;
    void soltada() override;
    QString rotuloDeEstado() const override;

    // What the box shows of whole lines of the monitor, the first of them at that place of its text.
    virtual std::string mostrable(std::string_view lineas, std::size_t lugar);
    // Takes the whole text anew: what mostrable() makes of it has changed.
    void empezarOtraVez();

private:
    void textoCambiado() override;
    void tomar();
    bool sujeta() const;

    TextoMonitor& monitor_;
    Seguimiento seguimiento_;
    QTimer espera_{this};
    std::uint64_t generacion_ = 0; // of the text shown
    std::uint64_t borrados_ = 0;
    std::size_t tomados_ = 0; // characters of the monitor that the box has taken
    bool atrasada_ = false;   // the text has gone on without the box
};
