// The host of the window's script engine: message and input boxes, the bar of a script that does not end, and the facts
// of the user's country.
#pragma once

#include "platform/clock/Reloj.h"
#include "platform/vbscript/Host.h"
#include "script/LocaleQt.h"

#include <QPointer>

#include <chrono>
#include <functional>

class BarraScript;
class QWidget;

class HostScript final : public vbs::Host {
public:
    // `padre` is borrowed and may be null; the clock is borrowed. Where nobody sees the windows (`sinPantalla`), a
    // message goes to stderr and is answered with its default button, and a question is answered with its default:
    // waiting for a person would never end.
    HostScript(QWidget* padre, bool sinPantalla, const Reloj& reloj = relojDelSistema())
        : padre_(padre), sinPantalla_(sinPantalla), reloj_(reloj) {}

    int messageBox(std::u16string_view text, int buttons, std::u16string_view title) override;
    std::u16string inputBox(std::u16string_view prompt, std::u16string_view title,
                            std::u16string_view defaultText) override;
    vbs::LocalTime now() override { return vbs::localTime(reloj_.hora()); }
    double monotonicMilliseconds() override;
    // Shows the bar with which the operator can stop a script that has run for `elapsed`, boxes not counted.
    void longRun(std::chrono::milliseconds elapsed) override;
    void longStep(std::chrono::milliseconds elapsed) override { longRun(elapsed); } // the bar runs no text
    const vbs::Locale* locale(int id) override { return locales_.locale(id); }

    // What stops the running script.
    void alParar(std::function<void()> parar) { parar_ = std::move(parar); }

    // What the operator has had to do with a pass: answer its boxes, stop it.
    enum class Atencion { ninguna, cuadro, parada };

    // To be called at the end of each pass: takes the bar from the screen, and tells what there was since the last
    // call.
    Atencion terminarPasada();

private:
    QWidget* ventanaEnUso() const;

    QWidget* padre_;
    bool sinPantalla_;
    const Reloj& reloj_;
    std::function<void()> parar_;
    QPointer<BarraScript> barra_; // owned by the window that it stands in
    Atencion atencion_ = Atencion::ninguna;
    LocalesQt locales_;
};
