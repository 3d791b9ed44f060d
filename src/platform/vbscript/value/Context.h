// What a builtin or a host object may ask of the running engine: the host, the locale in force, the state of the random
// sequence, and calling back into the script.
#pragma once

#include "platform/vbscript/value/Host.h"
#include "platform/vbscript/value/Object.h"
#include "platform/vbscript/value/Value.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace vbs {

class Context {
public:
    explicit Context(Host& theHost) noexcept : host(theHost), locale_(theHost.locale(0)) {
        if (locale_ == nullptr) {
            locale_ = builtinLocale(0);
        }
    }
    virtual ~Context() = default;
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    Host& host;

    const Locale& locale() const noexcept { return *locale_; }
    // Raises 447 for a number that the host does not know.
    void setLocale(int id) {
        const Locale* found = host.locale(id);
        if (found == nullptr) {
            raise(ErrorNumber::LocaleNotSupported);
        }
        locale_ = found;
    }

    // The text of one character. Those below 256 are made once and shared, so cutting texts up allocates nothing.
    Value character(char16_t unit) {
        if (unit >= characters_.size()) {
            return Value::ofString(std::u16string_view(&unit, 1));
        }
        Value& made = characters_[unit];
        if (made.isEmpty()) {
            made = Value::ofString(std::u16string_view(&unit, 1));
        }
        return made;
    }

    // State of Rnd: the 24 bits of its linear congruential sequence.
    std::uint32_t random = 0x50000;

    // Value of an object's default member without arguments. Raises 91 for Nothing, 438 where there is none.
    virtual Value defaultValue(const Value& object) = 0;

    // Calls what GetRef gave (or any object with a default method) and answers its result.
    virtual Value call(const Value& procedure, Arguments arguments) = 0;

    // Objects that can be part of a reference cycle register themselves for the engine's end (see
    // Object::dropContents).
    virtual void adopt(Object& object) noexcept = 0;
    virtual void abandon(Object& object) noexcept = 0;

    // To be called now and then by builtins that may run long; raises when the script was stopped or its time is up.
    virtual void poll() = 0;
    // The same for one long step: `work` tells how many turns of an empty loop it was worth.
    virtual void spend(std::size_t work) = 0;

    // The clock of the time-out stands still between these two; see PausedClock.
    virtual void pauseClock() {}
    virtual void resumeClock() noexcept {}

    // Ends the running text at once; no On Error sees it.
    [[noreturn]] virtual void interrupt() { raise(ErrorNumber::Stopped); }

private:
    const Locale* locale_;
    std::array<Value, 256> characters_;
};

// While it lives the script waits for the user, which does not count against its time-out; for whatever opens a box.
class PausedClock {
public:
    explicit PausedClock(Context& context) : context_(context) { context.pauseClock(); }
    ~PausedClock() { context_.resumeClock(); }
    PausedClock(const PausedClock&) = delete;
    PausedClock& operator=(const PausedClock&) = delete;

private:
    Context& context_;
};

} // namespace vbs
