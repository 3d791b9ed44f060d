#include "platform/vbscript/value/Host.h"

#include <array>
#include <chrono>
#include <ctime>

namespace vbs {

std::span<const int> buttonsOf(int style) noexcept {
    static constexpr std::array<int, 1> ok = {1};
    static constexpr std::array<int, 2> okCancel = {1, 2};
    static constexpr std::array<int, 3> abortRetryIgnore = {3, 4, 5};
    static constexpr std::array<int, 3> yesNoCancel = {6, 7, 2};
    static constexpr std::array<int, 2> yesNo = {6, 7};
    static constexpr std::array<int, 2> retryCancel = {4, 2};
    switch (style & 0xF) {
    case 1:
        return okCancel;
    case 2:
        return abortRetryIgnore;
    case 3:
        return yesNoCancel;
    case 4:
        return yesNo;
    case 5:
        return retryCancel;
    default:
        return ok;
    }
}

int defaultButton(int style) noexcept {
    const std::span<const int> buttons = buttonsOf(style);
    const auto chosen = static_cast<std::size_t>(style & 0xF00) >> 8U;
    return buttons[chosen < buttons.size() ? chosen : 0];
}

int Host::messageBox(std::u16string_view /*text*/, int buttons, std::u16string_view /*title*/) {
    return defaultButton(buttons);
}

std::u16string Host::inputBox(std::u16string_view /*prompt*/, std::u16string_view /*title*/,
                              std::u16string_view defaultText) {
    return std::u16string(defaultText);
}

void Host::longRun(std::chrono::milliseconds /*elapsed*/) {}

void Host::longStep(std::chrono::milliseconds /*elapsed*/) {}

LocalTime Host::now() {
    return localTime(std::chrono::system_clock::now());
}

LocalTime localTime(std::chrono::system_clock::time_point instant) {
    using namespace std::chrono;
    const std::time_t seconds = system_clock::to_time_t(instant);
    std::tm local{};
    localtime_r(&seconds, &local);
    const auto fraction = duration_cast<milliseconds>(instant.time_since_epoch()) % 1000;
    return {local.tm_year + 1900,
            local.tm_mon + 1,
            local.tm_mday,
            local.tm_hour,
            local.tm_min,
            local.tm_sec,
            static_cast<int>(fraction.count())};
}

double Host::monotonicMilliseconds() {
    using namespace std::chrono;
    return duration<double, std::milli>(steady_clock::now().time_since_epoch()).count();
}

const Locale* Host::locale(int id) {
    return builtinLocale(id);
}

} // namespace vbs
