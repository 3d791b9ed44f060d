#include "script/WScript.h"

#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Convert.h"

#include <ostream>

namespace {

// WScript.Arguments: Item (the default), Count, Length, and For Each.
class ScriptArguments final : public vbs::NativeObject<ScriptArguments> {
public:
    explicit ScriptArguments(std::vector<std::string> items) : m_items(std::move(items)) {}
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
            explicit Items(std::vector<std::string> items) : m_items(std::move(items)) {}
            bool next(vbs::Context& /*context*/, vbs::Value& element) override {
                if (m_next == m_items.size()) {
                    return false;
                }
                element = vbs::Value::ofString(std::u16string_view(vbs::fromUtf8(m_items[m_next++])));
                return true;
            }

        private:
            std::vector<std::string> m_items;
            std::size_t m_next = 0;
        };
        return std::make_unique<Items>(m_items);
    }

private:
    vbs::Value item(vbs::Context& context, vbs::Access /*access*/, vbs::Arguments arguments) {
        const auto index = vbs::toLong(context, arguments[0]);
        if (index < 0 || static_cast<std::size_t>(index) >= m_items.size()) {
            vbs::raise(vbs::ErrorNumber::OutOfRange);
        }
        return vbs::Value::ofString(std::u16string_view(vbs::fromUtf8(m_items[static_cast<std::size_t>(index)])));
    }
    vbs::Value count(vbs::Context& /*context*/, vbs::Access /*access*/, vbs::Arguments /*arguments*/) {
        return vbs::Value::ofLong(static_cast<std::int32_t>(m_items.size()));
    }

    std::vector<std::string> m_items;
};

} // namespace

WScript::WScript(std::ostream& out, const std::vector<std::string>& arguments) : m_out(out), m_arguments(arguments) {}

std::span<const WScript::Member> WScript::members() {
    static constexpr Member table[] = {
        {u"", nullptr, vbs::readOnly, 0, 0},
        {u"Echo", &WScript::echo, vbs::readOnly, 0, 255},
        {u"Quit", &WScript::quit, vbs::readOnly, 0, 1},
        {u"Arguments", &WScript::scriptArguments, vbs::readOnly, 0, 1},
        {u"ScriptName", &WScript::scriptName, vbs::readOnly, 0, 0},
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
    m_out << line << '\n';
    return {};
}

vbs::Value WScript::quit(vbs::Context& context, vbs::Access /*access*/, vbs::Arguments arguments) {
    m_exitCode = arguments.empty() ? 0 : vbs::toLong(context, arguments[0]);
    m_quit = true;
    context.interrupt();
    return {};
}

vbs::Value WScript::scriptArguments(vbs::Context& context, vbs::Access access, vbs::Arguments arguments) {
    const auto list = vbs::makeObject<ScriptArguments>(m_arguments);
    return arguments.empty() ? list.value() : list->invoke(context, vbs::Object::defaultMember, access, arguments);
}

vbs::Value WScript::scriptName(vbs::Context& /*context*/, vbs::Access /*access*/, vbs::Arguments /*arguments*/) {
    return vbs::Value::ofString(
        std::u16string_view(m_arguments.empty() ? std::u16string() : vbs::fromUtf8(m_arguments[0])));
}
