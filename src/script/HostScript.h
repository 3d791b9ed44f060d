// The host of the window's script engine: message and input boxes, and the facts of the user's country.
#pragma once

#include "platform/vbscript/value/Host.h"
#include "script/LocaleQt.h"

class QWidget;

class HostScript final : public vbs::Host {
public:
    // `padre` is borrowed and may be null. Where nobody sees the windows (`sinPantalla`), a message goes to stderr and
    // counts as confirmed, and a question is answered with its default: waiting for a person would never end.
    HostScript(QWidget* padre, bool sinPantalla) : padre_(padre), sinPantalla_(sinPantalla) {}

    int messageBox(std::u16string_view text, int buttons, std::u16string_view title) override;
    std::u16string inputBox(std::u16string_view prompt, std::u16string_view title,
                            std::u16string_view defaultText) override;
    const vbs::Locale* locale(int id) override { return locales_.locale(id); }

private:
    QWidget* padre_;
    bool sinPantalla_;
    LocalesQt locales_;
};
