// Intrinsic functions that reach out of the script: dialogs, the locale, objects, and what the engine is.
#include "platform/vbscript/library/BuiltinArguments.h"
#include "platform/vbscript/value/LocaleNames.h"

#include <string>

namespace vbs {

namespace {

// A help file and a help context come together or not at all.
void checkHelp(Arguments arguments, std::size_t file) {
    if ((optional(arguments, file) != nullptr) != (optional(arguments, file + 1) != nullptr)) {
        raise(ErrorNumber::InvalidCall);
    }
}

std::u16string textOr(Context& context, Arguments arguments, std::size_t i, std::u16string_view otherwise) {
    const Value* v = optional(arguments, i);
    return std::u16string(v != nullptr ? TextArgument(context, *v).view() : otherwise);
}

// MsgBox(prompt[, buttons[, title[, helpfile, context]]])
Value msgBox(Context& context, Arguments arguments) {
    const TextArgument prompt(context, arguments[0]);
    const std::int32_t buttons = longArgument(context, arguments, 1, 0);
    const std::u16string title = textOr(context, arguments, 2, u"VBScript");
    checkHelp(arguments, 3);
    const PausedClock waiting(context);
    return Value::ofInteger(static_cast<std::int16_t>(context.host.messageBox(prompt.view(), buttons, title)));
}

// InputBox(prompt[, title[, default[, x[, y[, helpfile, context]]]]]): the place on the screen is the host's choice.
Value inputBox(Context& context, Arguments arguments) {
    const TextArgument prompt(context, arguments[0]);
    const std::u16string title = textOr(context, arguments, 1, u"VBScript");
    const std::u16string start = textOr(context, arguments, 2, u"");
    longArgument(context, arguments, 3, 0);
    longArgument(context, arguments, 4, 0);
    checkHelp(arguments, 5);
    const PausedClock waiting(context);
    return Value::ofString(std::u16string_view(context.host.inputBox(prompt.view(), title, start)));
}

Value getLocale(Context& context, Arguments /*arguments*/) {
    return Value::ofLong(context.locale().id);
}

// SetLocale([number or short name]): answers the number in force until then; without argument, and with 0, back to the
// user's own.
Value setLocale(Context& context, Arguments arguments) {
    const std::int32_t before = context.locale().id;
    const Value* const wanted = optional(arguments, 0);
    const auto named = wanted != nullptr && wanted->isString() ? localeNumber(wanted->text()) : std::nullopt;
    context.setLocale(named ? *named : longArgument(context, arguments, 0, 0));
    return Value::ofLong(before);
}

// CreateObject(program identifier[, server]): an identifier has a dot; names without one are classes for New.
Value createObjectNamed(Context& context, Arguments arguments) {
    const TextArgument name(context, arguments[0]);
    if (name.view().find(u'.') == std::u16string_view::npos) {
        raise(ErrorNumber::CannotCreateObject);
    }
    return createObject(context, name.view());
}

// No object of another program can be reached from here.
Value getObject(Context& /*context*/, Arguments /*arguments*/) {
    raise(ErrorNumber::CannotCreateObject);
}

// Scripts read no files, so there is never a picture.
Value loadPicture(Context& context, Arguments arguments) {
    const TextArgument file(context, arguments[0]);
    raise(ErrorNumber::FileNotFound);
}

Value scriptEngine(Context& /*context*/, Arguments /*arguments*/) {
    return Value::ofString(u"VBScript");
}

Value majorVersion(Context& /*context*/, Arguments /*arguments*/) {
    return Value::ofLong(5);
}

Value minorVersion(Context& /*context*/, Arguments /*arguments*/) {
    return Value::ofLong(8);
}

Value buildVersion(Context& /*context*/, Arguments /*arguments*/) {
    return Value::ofLong(16384);
}

constexpr Builtin table[] = {
    {u"CreateObject", 1, 2, createObjectNamed},
    {u"GetLocale", 0, 0, getLocale},
    {u"GetObject", 0, 2, getObject},
    {u"InputBox", 1, 7, inputBox},
    {u"LoadPicture", 1, 1, loadPicture},
    {u"MsgBox", 1, 5, msgBox},
    {u"ScriptEngine", 0, 0, scriptEngine},
    {u"ScriptEngineBuildVersion", 0, 0, buildVersion},
    {u"ScriptEngineMajorVersion", 0, 0, majorVersion},
    {u"ScriptEngineMinorVersion", 0, 0, minorVersion},
    {u"SetLocale", 0, 1, setLocale},
};

} // namespace

std::span<const Builtin> systemBuiltins() {
    return table;
}

} // namespace vbs
