#include "script/HostScript.h"

#include "platform/window/InputBox.h"
#include "platform/window/MsgBox.h"
#include "script/BarraScript.h"

#include <QApplication>
#include <QString>

#include <cstdio>
#include <utility>

namespace {

QString texto(std::u16string_view utf16) {
    return QString::fromUtf16(utf16.data(), static_cast<qsizetype>(utf16.size()));
}

} // namespace

int HostScript::messageBox(std::u16string_view text, int buttons, std::u16string_view title) {
    if (!sinPantalla_) {
        huboPersona_ = true;
        return MsgBox(padre_, texto(text), buttons, texto(title));
    }
    std::fprintf(stderr, "esclavo-modbus: %s: %s\n", qUtf8Printable(texto(title)), qUtf8Printable(texto(text)));
    return vbs::Host::messageBox(text, buttons, title);
}

std::u16string HostScript::inputBox(std::u16string_view prompt, std::u16string_view title,
                                    std::u16string_view defaultText) {
    if (sinPantalla_)
        return vbs::Host::inputBox(prompt, title, defaultText);
    huboPersona_ = true;
    return InputBox(padre_, texto(prompt), texto(title), texto(defaultText)).toStdU16String();
}

// In the box that waits above the other windows, if there is one: they take no input then.
void HostScript::longRun(std::chrono::milliseconds elapsed) {
    QWidget* const caja = QApplication::activeModalWidget();
    QWidget* const ventana = caja != nullptr ? caja : padre_;
    if (sinPantalla_ || ventana == nullptr || !ventana->isVisible())
        return;
    if (!barra_)
        barra_ = new BarraScript(*ventana, [this] {
            huboPersona_ = true;
            parar_();
        });
    barra_->atender(std::chrono::duration_cast<std::chrono::seconds>(elapsed));
}

bool HostScript::terminarPasada() {
    delete barra_;
    return std::exchange(huboPersona_, false);
}
