// What the engine asks of the program around it: dialogs, the clock and the facts of a locale. Every operation has a
// default that works without a screen, so tests and tools may use Host as it is.
#pragma once

#include "platform/vbscript/value/Locale.h"

#include <chrono>
#include <span>
#include <string>
#include <string_view>

namespace vbs {

struct LocalTime {
    int year = 1900, month = 1, day = 1; // month and day from 1
    int hour = 0, minute = 0, second = 0;
    int millisecond = 0;
};

// That moment in the zone of the user.
LocalTime localTime(std::chrono::system_clock::time_point instant);

// The buttons of a message box of that style, in their order (1 OK, 2 Cancel, 3 Abort, 4 Retry, 5 Ignore, 6 Yes, 7 No),
// and the one that the style makes the default.
std::span<const int> buttonsOf(int style) noexcept;
int defaultButton(int style) noexcept;

class Host {
public:
    virtual ~Host() = default;

    // Shows a message; answers the button pressed. Default: shows nothing and answers the default button.
    virtual int messageBox(std::u16string_view text, int buttons, std::u16string_view title);
    // Asks for a line of text; the empty text stands for Cancel. Default: answers `defaultText`.
    virtual std::u16string inputBox(std::u16string_view prompt, std::u16string_view title,
                                    std::u16string_view defaultText);

    // Local date and time; the default reads the system's clock.
    virtual LocalTime now();
    // A clock that only runs forward, in milliseconds; time-outs are measured with it.
    virtual double monotonicMilliseconds();

    // Called while a text runs: first after half a second of its time, then about every 50 ms, between two of its
    // statements. May run other texts in the same engine and may call ScriptControl::stop(), which ends the text with
    // error 32766, whatever its On Error says. The time spent here does not count. Default: does nothing.
    virtual void longRun(std::chrono::milliseconds elapsed);
    // The same in the middle of a single step that takes long, as a search in a text of megabytes may. It may call
    // ScriptControl::stop(), too, but a text that it runs in the same engine fails with error 51.
    virtual void longStep(std::chrono::milliseconds elapsed);

    // Facts of a locale number (0: the user's own), or null if it is not known. Must outlive the engine.
    virtual const Locale* locale(int id);
};

} // namespace vbs
