// The host of esclavo-script: boxes that talk on the terminal, and the facts of the user's country.
#pragma once

#include "platform/vbscript/Host.h"
#include "script/LocaleQt.h"

#include <iosfwd>

class HostTerminal final : public vbs::Host {
public:
    // Borrowed: where answers are read, where questions are written, and what is flushed before a question.
    HostTerminal(std::istream& in, std::ostream& questions, std::ostream& out)
        : in_(in), questions_(questions), out_(out) {}

    // Asks until the answer is a button of the box, by its name or its first letter. An empty line, and the end of the
    // input, choose the default button. A box with one button does not wait.
    int messageBox(std::u16string_view text, int buttons, std::u16string_view title) override;

    // An empty line, and the end of the input, answer the default text.
    std::u16string inputBox(std::u16string_view prompt, std::u16string_view title,
                            std::u16string_view defaultText) override;

    const vbs::Locale* locale(int id) override { return locales_.locale(id); }

private:
    void ask(std::u16string_view title, std::u16string_view text);

    std::istream& in_;
    std::ostream& questions_;
    std::ostream& out_;
    LocalesQt locales_;
};
