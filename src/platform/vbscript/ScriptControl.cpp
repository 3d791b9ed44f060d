#include "platform/vbscript/ScriptControl.h"

#include "platform/vbscript/library/Builtins.h"
#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/value/Memory.h"

#include <limits>

namespace vbs {

struct ScriptControl::Added {
    std::u16string name;
    Ref<Object> object;
};

namespace {

// Line `number` (from 1) of a text, without its end.
std::u16string_view lineOf(std::u16string_view text, std::uint32_t number) {
    for (std::uint32_t line = 1;; ++line) {
        const std::size_t end = text.find_first_of(u"\r\n");
        if (line == number || end == std::u16string_view::npos) {
            return line == number ? text.substr(0, end) : std::u16string_view();
        }
        const bool pair = text[end] == u'\r' && end + 1 < text.size() && text[end + 1] == u'\n';
        text.remove_prefix(end + (pair ? 2 : 1));
    }
}

} // namespace

ScriptControl::ScriptControl(Host& host)
    : m_host(host), m_vm(std::make_unique<Vm>(host, library())), m_ceiling(m_vm->memoryCeiling) {}

ScriptControl::~ScriptControl() = default;

void ScriptControl::addObject(std::u16string_view name, Ref<Object> object) {
    m_vm->addObject(name, *object);
    m_objects.push_back({std::u16string(name), std::move(object)});
}

void ScriptControl::removeObject(std::u16string_view name) {
    m_vm->removeObject(name);
    std::erase_if(m_objects, [name](const Added& added) { return equalNoCase(added.name, name); });
}

void ScriptControl::globals(const std::function<void(std::u16string_view, const Value&, Context&)>& visit) {
    m_vm->visitVariables([&](std::u16string_view name, const Value& value) { visit(name, value, *m_vm); });
}

bool ScriptControl::addCode(std::string_view utf8) {
    return guarded([&] { return run(text::toUtf16(utf8)); });
}

bool ScriptControl::addCode(std::u16string_view text) {
    return guarded([&] { return run(text); });
}

bool ScriptControl::check(std::string_view utf8) {
    return guarded([&] { return compile(text::toUtf16(utf8)); });
}

bool ScriptControl::check(std::u16string_view text) {
    return guarded([&] { return compile(text); });
}

// Memory may run out while a failure is being described as well; nothing of that reaches the host.
template <class Work>
bool ScriptControl::guarded(Work work) {
    try {
        return work();
    } catch (const ScriptError&) { // a text has found no room
        return failForMemory();
    } catch (const std::bad_alloc&) {
        return failForMemory();
    }
}

// What must do where not even the text of an error finds room.
bool ScriptControl::failForMemory() noexcept {
    m_failure.number = static_cast<std::int32_t>(ErrorNumber::OutOfMemory);
    m_failure.description.clear();
    m_failure.source.clear();
    m_failure.lineText.clear();
    m_failure.line = m_failure.column = 0;
    try {
        m_failure.description = errorText(m_failure.number).view();
    } catch (...) { // the number must do
        m_failure.description.clear();
    }
    return false;
}

// Starts from nothing: a text that ran inside this one (a host object let it in) may have left its own failure.
bool ScriptControl::fail(std::int32_t number, std::u16string_view text, std::uint32_t line, std::uint32_t column,
                         ScriptFailure described) {
    const MemoryCeiling room(std::numeric_limits<std::size_t>::max()); // error 7 has a text, too
    m_failure = std::move(described);
    m_failure.number = number;
    m_failure.line = line;
    m_failure.column = column;
    if (m_failure.description.empty()) {
        m_failure.description = errorText(number).view();
    }
    if (m_failure.source.empty()) {
        m_failure.source = errorSource(number).view();
    }
    if (line > 0) {
        m_failure.lineText = lineOf(text, line);
    }
    return false;
}

bool ScriptControl::run(std::u16string_view text) {
    m_failure = {};
    if (m_vm->idle()) {
        m_vm->stopRequested = 0; // meant for an earlier text that had ended by then
    }
    const MemoryCeiling ceiling(m_ceiling);
    try {
        m_vm->runPass(m_vm->unitOf(text));
        m_failure = {}; // a text that ran inside this one may have failed
        return true;
    } catch (const CompileError& failure) {
        return fail(static_cast<std::int32_t>(failure.number), text, failure.position.line, failure.position.column);
    } catch (const ScriptError& failure) {
        ScriptFailure described;
        described.description = shownDescription(failure);
        described.source = failure.source.view();
        return fail(failure.number, text, failure.line, failure.column, std::move(described));
    } catch (const std::bad_alloc&) {
        return failForMemory();
    }
}

bool ScriptControl::compile(std::u16string_view text) {
    m_failure = {};
    const MemoryCeiling ceiling(m_ceiling);
    try {
        m_vm->compiler().check(text);
        return true;
    } catch (const CompileError& failure) {
        return fail(static_cast<std::int32_t>(failure.number), text, failure.position.line, failure.position.column);
    } catch (const ScriptError& failure) {
        return fail(failure.number, text, 0, 0);
    } catch (const std::bad_alloc&) {
        return failForMemory();
    }
}

void ScriptControl::setTimeout(std::chrono::milliseconds timeout) {
    m_timeout = timeout;
    m_vm->timeoutMilliseconds = static_cast<double>(timeout.count());
}

void ScriptControl::setMemoryCeiling(std::size_t bytes) {
    m_ceiling = bytes;
    m_vm->memoryCeiling = bytes;
}

void ScriptControl::stop() noexcept {
    m_vm->stopRequested = 1;
}

void ScriptControl::reset() {
    m_vm.reset();
    m_vm = std::make_unique<Vm>(m_host, library());
    m_vm->timeoutMilliseconds = static_cast<double>(m_timeout.count());
    m_vm->memoryCeiling = m_ceiling;
    for (const Added& added : m_objects) {
        m_vm->addObject(added.name, *added.object);
    }
    m_failure = {};
}

} // namespace vbs
