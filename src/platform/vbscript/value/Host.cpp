#include "platform/vbscript/value/Host.h"

#include <chrono>
#include <ctime>

namespace vbs {

int Host::messageBox(std::u16string_view /*text*/, int /*buttons*/, std::u16string_view /*title*/) {
    return 1;
}

std::u16string Host::inputBox(std::u16string_view /*prompt*/, std::u16string_view /*title*/,
                              std::u16string_view defaultText) {
    return std::u16string(defaultText);
}

LocalTime Host::now() {
    using namespace std::chrono;
    const auto instant = system_clock::now();
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
