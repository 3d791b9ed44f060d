// The script engine as the rest of a program sees it.
//
//   ScriptControl control(host);
//   control.addObject(u"mw", window);
//   if (!control.addCode("mw.escribir 1, 5, contador")) show(control.error());
//
// Globals, procedures and classes stay from one text to the next; a later text may define anew what an earlier one
// defined. Adding the same text again runs it without compiling it again. One engine belongs to one thread.
#pragma once

#include "platform/vbscript/Host.h"
#include "platform/vbscript/Object.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vbs {

class Context;
class Vm;

// What went wrong in the last text; number 0 if nothing did.
struct ScriptFailure {
    std::int32_t number = 0;    // 1001 to 1999: the text did not compile
    std::u16string description; // Spanish
    std::u16string source;
    std::uint32_t line = 0;   // from 1; 0 if unknown
    std::uint32_t column = 0; // from 1, in UTF-16 code units
    std::u16string lineText;  // the line of the script that `line` names
    bool operator==(const ScriptFailure&) const = default;
};

class ScriptControl {
public:
    // The host must outlive the engine.
    explicit ScriptControl(Host& host);
    ~ScriptControl();
    ScriptControl(const ScriptControl&) = delete;
    ScriptControl& operator=(const ScriptControl&) = delete;

    // Makes an object known to scripts; the engine shares it. Survives reset().
    void addObject(std::u16string_view name, Ref<Object> object);

    // Takes an object away again: its name stands for nothing then. Does nothing for other names and those that a
    // script has given another meaning.
    void removeObject(std::u16string_view name);

    // Compiles the text (UTF-8; invalid bytes become U+FFFD) and runs its top-level statements. False after an error.
    bool addCode(std::string_view utf8);
    bool addCode(std::u16string_view text);

    // Compiles only; nothing of the text is defined or run.
    bool check(std::string_view utf8);
    bool check(std::u16string_view text);

    // The error state of the addCode() or check() that ended last.
    const ScriptFailure& error() const noexcept { return failure_; }
    void clearError() { failure_ = {}; }

    // Shows every variable of the global scope that scripts have made, in the order in which they came up; no
    // constants, procedures or added objects. Runs nothing of a script, and `visit` must not either; the value is to be
    // looked at at once.
    void globals(const std::function<void(std::u16string_view name, const Value& value, Context& context)>& visit);

    // Longest time of one addCode(); zero: no limit. A text that is stopped so fails, whatever On Error says.
    void setTimeout(std::chrono::milliseconds timeout);
    // Most bytes that texts, arrays and objects of scripts may take; beyond it error 7.
    void setMemoryCeiling(std::size_t bytes);
    // Ends the running text as soon as possible, and does nothing if none runs; may be called from a host object or a
    // signal handler.
    void stop() noexcept;

    // Forgets every global, procedure and class; added objects stay.
    void reset();

private:
    struct Added;
    bool fail(std::int32_t number, std::u16string_view text, std::uint32_t line, std::uint32_t column,
              ScriptFailure described = {});
    bool failForMemory() noexcept;
    bool run(std::u16string_view text);
    bool compile(std::u16string_view text);
    template <class Work>
    bool guarded(Work work);

    Host& host_;
    std::unique_ptr<Vm> vm_;
    std::vector<Added> objects_;
    std::chrono::milliseconds timeout_{0};
    std::size_t ceiling_;
    ScriptFailure failure_;
};

} // namespace vbs
