#include "script/HostScript.h"

#include "platform/window/Controles.h"
#include "platform/window/InputBox.h"
#include "platform/window/MsgBox.h"
#include "script/BarraScript.h"

#include <QApplication>
#include <QString>

#include <cstdio>
#include <utility>

int HostScript::messageBox(std::u16string_view text, int buttons, std::u16string_view title) {
    if (!sinPantalla_) {
        atencion_ = Atencion::cuadro;
        return MsgBox(padre_, deUtf16(text), buttons, deUtf16(title));
    }
    std::fprintf(stderr, "esclavo-modbus: %s: %s\n", qUtf8Printable(deUtf16(title)), qUtf8Printable(deUtf16(text)));
    return vbs::Host::messageBox(text, buttons, title);
}

std::u16string HostScript::inputBox(std::u16string_view prompt, std::u16string_view title,
                                    std::u16string_view defaultText) {
    if (sinPantalla_)
        return vbs::Host::inputBox(prompt, title, defaultText);
    atencion_ = Atencion::cuadro;
    return InputBox(padre_, deUtf16(prompt), deUtf16(title), deUtf16(defaultText)).toStdU16String();
}

double HostScript::monotonicMilliseconds() {
    return std::chrono::duration<double, std::milli>(reloj_.instante().time_since_epoch()).count();
}

// Where the operator is: in the box that waits above the other windows, which take no input then, or in the window in
// use. While that is another program's the bar stays where it was.
QWidget* HostScript::ventanaEnUso() const {
    if (QWidget* const caja = QApplication::activeModalWidget())
        return caja;
    if (QWidget* const activa = QApplication::activeWindow())
        return activa;
    return barra_ ? barra_->window() : padre_;
}

void HostScript::longRun(std::chrono::milliseconds elapsed) {
    QWidget* const ventana = sinPantalla_ ? nullptr : ventanaEnUso();
    if (ventana == nullptr || !ventana->isVisible())
        return;
    if (BarraScript* const otra = barra_; otra != nullptr && otra->window() != ventana) {
        barra_.clear();
        delete otra;
    }
    if (!barra_)
        barra_ = new BarraScript(*ventana, [this] {
            atencion_ = Atencion::parada;
            parar_();
        });
    barra_->atender(std::chrono::duration_cast<std::chrono::seconds>(elapsed));
}

HostScript::Atencion HostScript::terminarPasada() {
    delete barra_;
    return std::exchange(atencion_, Atencion::ninguna);
}
