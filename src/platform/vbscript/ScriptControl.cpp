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
    : host_(host), vm_(std::make_unique<Vm>(host, library())), ceiling_(vm_->memoryCeiling) {}

ScriptControl::~ScriptControl() = default;

void ScriptControl::addObject(std::u16string_view name, Ref<Object> object) {
    vm_->addObject(name, *object);
    objects_.push_back({std::u16string(name), std::move(object)});
}

void ScriptControl::removeObject(std::u16string_view name) {
    vm_->removeObject(name);
    std::erase_if(objects_, [name](const Added& added) { return equalNoCase(added.name, name); });
}

void ScriptControl::globals(const std::function<void(std::u16string_view, const Value&, Context&)>& visit) {
    vm_->visitVariables([&](std::u16string_view name, const Value& value) { visit(name, value, *vm_); });
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
    failure_.number = static_cast<std::int32_t>(ErrorNumber::OutOfMemory);
    failure_.description.clear();
    failure_.source.clear();
    failure_.lineText.clear();
    failure_.line = failure_.column = 0;
    try {
        failure_.description = errorText(failure_.number).view();
    } catch (...) { // the number must do
        failure_.description.clear();
    }
    return false;
}

// Starts from nothing: a text that ran inside this one (a host object let it in) may have left its own failure.
bool ScriptControl::fail(std::int32_t number, std::u16string_view text, std::uint32_t line, std::uint32_t column,
                         ScriptFailure described) {
    const MemoryCeiling room(std::numeric_limits<std::size_t>::max()); // error 7 has a text, too
    failure_ = std::move(described);
    failure_.number = number;
    failure_.line = line;
    failure_.column = column;
    if (failure_.description.empty()) {
        failure_.description = errorText(number).view();
    }
    if (failure_.source.empty()) {
        failure_.source = errorSource(number).view();
    }
    if (line > 0) {
        failure_.lineText = lineOf(text, line);
    }
    return false;
}

bool ScriptControl::run(std::u16string_view text) {
    failure_ = {};
    if (vm_->idle()) {
        vm_->stopRequested = 0; // meant for an earlier text that had ended by then
    }
    const MemoryCeiling ceiling(ceiling_);
    try {
        vm_->runPass(vm_->unitOf(text));
        failure_ = {}; // a text that ran inside this one may have failed
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
    failure_ = {};
    const MemoryCeiling ceiling(ceiling_);
    try {
        vm_->compiler().check(text);
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
    timeout_ = timeout;
    vm_->timeoutMilliseconds = static_cast<double>(timeout.count());
}

void ScriptControl::setMemoryCeiling(std::size_t bytes) {
    ceiling_ = bytes;
    vm_->memoryCeiling = bytes;
}

void ScriptControl::stop() noexcept {
    vm_->stopRequested = 1;
}

void ScriptControl::reset() {
    vm_.reset();
    vm_ = std::make_unique<Vm>(host_, library());
    vm_->timeoutMilliseconds = static_cast<double>(timeout_.count());
    vm_->memoryCeiling = ceiling_;
    for (const Added& added : objects_) {
        vm_->addObject(added.name, *added.object);
    }
    failure_ = {};
}

} // namespace vbs
