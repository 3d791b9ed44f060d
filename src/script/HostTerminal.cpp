#include "script/HostTerminal.h"

#include "platform/text/Case.h"
#include "platform/text/Utf.h"
#include "script/TextStream.h"

#include <array>
#include <istream>
#include <ostream>
#include <span>

namespace {

constexpr std::array<std::u16string_view, 8> names = {u"",           u"Aceptar", u"Cancelar", u"Anular",
                                                      u"Reintentar", u"Omitir",  u"Sí",       u"No"};

// The button that the answer names: its name, its first letter, or "si" without the accent. 0: none of them.
int buttonNamed(std::u16string_view answer, std::span<const int> buttons) {
    for (const int button : buttons) {
        const std::u16string_view name = names.at(static_cast<std::size_t>(button));
        if (text::equalNoCase(answer, name) || text::equalNoCase(answer, name.substr(0, 1)) ||
            (button == 6 && text::equalNoCase(answer, u"si"))) {
            return button;
        }
    }
    return 0;
}

} // namespace

void HostTerminal::ask(std::u16string_view title, std::u16string_view text) {
    out_.flush();
    questions_ << text::toUtf8(title) << ": " << text::toUtf8(text) << '\n';
}

int HostTerminal::messageBox(std::u16string_view text, int buttons, std::u16string_view title) {
    ask(title, text);
    const std::span<const int> choices = vbs::buttonsOf(buttons);
    const int usual = vbs::defaultButton(buttons);
    if (choices.size() == 1) {
        questions_.flush();
        return usual;
    }
    for (;;) {
        for (const int button : choices) {
            const std::string name = text::toUtf8(names.at(static_cast<std::size_t>(button)));
            questions_ << (button == choices.front() ? "" : " / ") << (button == usual ? "[" + name + "]" : name);
        }
        questions_ << ": " << std::flush;
        const auto line = nextLine(in_);
        if (!line || line->empty()) {
            return usual;
        }
        if (const int chosen = buttonNamed(text::toUtf16(*line), choices); chosen != 0) {
            return chosen;
        }
    }
}

std::u16string HostTerminal::inputBox(std::u16string_view prompt, std::u16string_view title,
                                      std::u16string_view defaultText) {
    ask(title, prompt);
    questions_ << '[' << text::toUtf8(defaultText) << "]: " << std::flush;
    const auto line = nextLine(in_);
    return line && !line->empty() ? text::toUtf16(*line) : std::u16string(defaultText);
}
