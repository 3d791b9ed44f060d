#include "script/WScript.h"

#include "platform/text/Utf.h"
#include "platform/vbscript/Object.h"

#include <chrono>
#include <filesystem>
#include <ostream>
#include <thread>

namespace {

// WScript.Arguments: Item (the default), Count, Length, and For Each.
class ScriptArguments final : public vbs::NativeObject<ScriptArguments> {
public:
    explicit ScriptArguments(std::vector<std::string> items) : items_(std::move(items)) {}
    static std::span<const Member> members() {
        static constexpr Member table[] = {
            {u"Item", &ScriptArguments::item, vbs::readOnly, 1, 1},
            {u"Count", &ScriptArguments::count, vbs::readOnly, 0, 0},
            {u"Length", &ScriptArguments::count, vbs::readOnly, 0, 0},
        };
        return table;
    }
    std::u16string_view typeName() const override { return u"Object"; }

    std::unique_ptr<vbs::Enumerator> enumerate(vbs::Context& /*context*/) override {
        class Items final : public vbs::Enumerator {
        public:
            explicit Items(std::vector<std::string> items) : items_(std::move(items)) {}
            bool next(vbs::Context& /*context*/, vbs::Value& element) override {
                if (next_ == items_.size()) {
                    return false;
                }
                element = vbs::Value::ofString(std::u16string_view(text::toUtf16(items_[next_++])));
                return true;
            }

        private:
            std::vector<std::string> items_;
            std::size_t next_ = 0;
        };
        return std::make_unique<Items>(items_);
    }

private:
    vbs::Value item(vbs::Context& context, vbs::Access /*access*/, vbs::Arguments arguments) {
        const auto index = vbs::toLong(context, arguments[0]);
        if (index < 0 || static_cast<std::size_t>(index) >= items_.size()) {
            vbs::raise(vbs::ErrorNumber::OutOfRange);
        }
        return vbs::Value::ofString(std::u16string_view(text::toUtf16(items_[static_cast<std::size_t>(index)])));
    }
    vbs::Value count(vbs::Context& /*context*/, vbs::Access /*access*/, vbs::Arguments /*arguments*/) {
        return vbs::Value::ofLong(static_cast<std::int32_t>(items_.size()));
    }

    std::vector<std::string> items_;
};

} // namespace

WScript::WScript(std::istream& in, std::ostream& out, std::ostream& errors, std::vector<std::string> arguments)
    : out_(out), standardInput_(vbs::makeObject<InputStream>(in, out)),
      standardOutput_(vbs::makeObject<OutputStream>(out)), standardError_(vbs::makeObject<OutputStream>(errors)),
      arguments_(std::move(arguments)) {}

std::span<const WScript::Member> WScript::members() {
    static constexpr Member table[] = {
        {u"", nullptr, vbs::readOnly, 0, 0},
        {u"Echo", &WScript::echo, vbs::readOnly, 0, 255},
        {u"Quit", &WScript::quit, vbs::readOnly, 0, 1},
        {u"Sleep", &WScript::sleep, vbs::readOnly, 1, 1},
        {u"Arguments", &WScript::scriptArguments, vbs::readOnly, 0, 1},
        {u"ScriptName", &WScript::scriptName, vbs::readOnly, 0, 0},
        {u"ScriptFullName", &WScript::scriptFullName, vbs::readOnly, 0, 0},
        {u"StdIn", &WScript::standardInput, vbs::readOnly, 0, 0},
        {u"StdOut", &WScript::standardOutput, vbs::readOnly, 0, 0},
        {u"StdErr", &WScript::standardError, vbs::readOnly, 0, 0},
    };
    return table;
}

// Echo a, b, ...: the values as text with a blank between them.
vbs::Value WScript::echo(vbs::Context& context, vbs::Access /*access*/, vbs::Arguments arguments) {
    std::string line;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const vbs::Value value = vbs::withoutObject(context, arguments[i]);
        line += i > 0 ? " " : "";
        line += value.isNull() ? "null" : vbs::toUtf8(vbs::toString(context, value).view());
    }
    out_ << line << '\n';
    return {};
}

vbs::Value WScript::quit(vbs::Context& context, vbs::Access /*access*/, vbs::Arguments arguments) {
    exitCode_ = arguments.empty() ? 0 : vbs::toLong(context, arguments[0]);
    quit_ = true;
    context.interrupt();
    return {};
}

vbs::Value WScript::scriptArguments(vbs::Context& context, vbs::Access access, vbs::Arguments arguments) {
    const auto list = vbs::makeObject<ScriptArguments>(arguments_);
    return arguments.empty() ? list.value() : list->invoke(context, vbs::Object::defaultMember, access, arguments);
}

vbs::Value WScript::sleep(vbs::Context& context, vbs::Access /*access*/, vbs::Arguments arguments) {
    const std::int32_t milliseconds = vbs::toLong(context, arguments[0]);
    if (milliseconds < 0) {
        vbs::raise(vbs::ErrorNumber::InvalidCall);
    }
    out_.flush();
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    return {};
}

vbs::Value WScript::scriptName(vbs::Context& /*context*/, vbs::Access /*access*/, vbs::Arguments /*arguments*/) {
    return vbs::Value::ofString(std::u16string_view(text::toUtf16(std::filesystem::path(script_).filename().string())));
}

vbs::Value WScript::scriptFullName(vbs::Context& /*context*/, vbs::Access /*access*/, vbs::Arguments /*arguments*/) {
    std::error_code failed;
    const std::filesystem::path full = std::filesystem::absolute(script_, failed);
    const bool file = script_ != "-" && !failed;
    return vbs::Value::ofString(std::u16string_view(text::toUtf16(file ? full.lexically_normal().string() : script_)));
}

vbs::Value WScript::standardInput(vbs::Context& /*context*/, vbs::Access /*access*/, vbs::Arguments /*arguments*/) {
    return standardInput_.value();
}

vbs::Value WScript::standardOutput(vbs::Context& /*context*/, vbs::Access /*access*/, vbs::Arguments /*arguments*/) {
    return standardOutput_.value();
}

vbs::Value WScript::standardError(vbs::Context& /*context*/, vbs::Access /*access*/, vbs::Arguments /*arguments*/) {
    out_.flush(); // what was said before comes before
    return standardError_.value();
}
