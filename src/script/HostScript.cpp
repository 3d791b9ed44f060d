#include "script/HostScript.h"

#include "platform/window/InputBox.h"
#include "platform/window/MsgBox.h"

#include <QString>

#include <cstdio>

namespace {

QString texto(std::u16string_view utf16) {
    return QString::fromUtf16(utf16.data(), static_cast<qsizetype>(utf16.size()));
}

} // namespace

int HostScript::messageBox(std::u16string_view text, int buttons, std::u16string_view title) {
    if (!sinPantalla_)
        return MsgBox(padre_, texto(text), buttons, texto(title));
    std::fprintf(stderr, "esclavo-modbus: %s: %s\n", qUtf8Printable(texto(title)), qUtf8Printable(texto(text)));
    return vbs::Host::messageBox(text, buttons, title);
}

std::u16string HostScript::inputBox(std::u16string_view prompt, std::u16string_view title,
                                    std::u16string_view defaultText) {
    if (sinPantalla_)
        return vbs::Host::inputBox(prompt, title, defaultText);
    return InputBox(padre_, texto(prompt), texto(title), texto(defaultText)).toStdU16String();
}
