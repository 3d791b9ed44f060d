// Intrinsic functions that tell what a value is.
#include "platform/vbscript/library/BuiltinArguments.h"
#include "platform/vbscript/value/Dates.h"

#include <optional>

namespace vbs {

namespace {

// The value that an object stands for, or nothing if it has no default member that can be read without arguments.
std::optional<Value> defaultOf(Context& context, const Value& object) {
    if (object.object() == nullptr) {
        return std::nullopt;
    }
    try {
        return context.defaultValue(object);
    } catch (const ScriptError& error) {
        const auto number = static_cast<ErrorNumber>(error.number);
        if (number != ErrorNumber::MemberNotFound && number != ErrorNumber::WrongArgumentCount &&
            number != ErrorNumber::ArgumentNotOptional) {
            throw;
        }
        return std::nullopt;
    }
}

Value isArray(Context& /*context*/, Arguments arguments) {
    return Value::ofBoolean(arguments[0].isArray());
}

Value isDate(Context& context, Arguments arguments) {
    const Value& v = arguments[0];
    if (v.isObject()) {
        auto inner = defaultOf(context, v);
        return inner && !inner->isObject() ? isDate(context, {&*inner, 1}) : Value::ofBoolean(false);
    }
    return Value::ofBoolean(v.type == Type::Date || (v.isString() && textAsDate(context, v.text()).has_value()));
}

Value isEmpty(Context& /*context*/, Arguments arguments) {
    return Value::ofBoolean(arguments[0].isEmpty() || arguments[0].type == Type::Undefined);
}

Value isNull(Context& /*context*/, Arguments arguments) {
    return Value::ofBoolean(arguments[0].isNull());
}

bool readsAsNumber(Context& context, std::u16string_view text) {
    try {
        return parseNumber(text, context.locale()).has_value();
    } catch (const ScriptError&) {
        return false; // a number beyond every range
    }
}

Value isNumeric(Context& context, Arguments arguments) {
    const Value& v = arguments[0];
    switch (v.type) {
    case Type::Object: {
        auto inner = defaultOf(context, v);
        return inner && !inner->isObject() ? isNumeric(context, {&*inner, 1}) : Value::ofBoolean(false);
    }
    case Type::String:
        return Value::ofBoolean(readsAsNumber(context, v.text()));
    case Type::Null:
    case Type::Date:
    case Type::Array:
    case Type::Error:
        return Value::ofBoolean(false);
    default:
        return Value::ofBoolean(true);
    }
}

Value isObject(Context& /*context*/, Arguments arguments) {
    return Value::ofBoolean(arguments[0].isObject());
}

struct TypeFacts {
    std::u16string_view name;
    std::int16_t number; // of VarType
};

TypeFacts factsOf(Type type) {
    switch (type) {
    case Type::Integer:
        return {u"Integer", 2};
    case Type::Long:
        return {u"Long", 3};
    case Type::Single:
        return {u"Single", 4};
    case Type::Double:
        return {u"Double", 5};
    case Type::Currency:
        return {u"Currency", 6};
    case Type::Date:
        return {u"Date", 7};
    case Type::String:
        return {u"String", 8};
    case Type::Object:
        return {u"Object", 9};
    case Type::Error:
        return {u"Error", 10};
    case Type::Boolean:
        return {u"Boolean", 11};
    case Type::Byte:
        return {u"Byte", 17};
    case Type::Array:
        return {u"Variant()", 8192 + 12};
    case Type::Null:
        return {u"Null", 1};
    default:
        return {u"Empty", 0};
    }
}

// VarType(value): for an object with a default value the number of that value.
Value varType(Context& context, Arguments arguments) {
    const Value& v = arguments[0];
    if (v.isObject()) {
        const auto inner = defaultOf(context, v);
        return Value::ofInteger(factsOf(inner ? inner->type : Type::Object).number);
    }
    return Value::ofInteger(factsOf(v.type).number);
}

Value typeName(Context& /*context*/, Arguments arguments) {
    const Value& v = arguments[0];
    if (v.isObject()) {
        return Value::ofString(v.object() != nullptr ? v.object()->typeName() : std::u16string_view(u"Nothing"));
    }
    return Value::ofString(factsOf(v.type).name);
}

constexpr Builtin table[] = {
    {u"IsArray", 1, 1, isArray},   {u"IsDate", 1, 1, isDate},       {u"IsEmpty", 1, 1, isEmpty},
    {u"IsNull", 1, 1, isNull},     {u"IsNumeric", 1, 1, isNumeric}, {u"IsObject", 1, 1, isObject},
    {u"TypeName", 1, 1, typeName}, {u"VarType", 1, 1, varType},
};

} // namespace

std::span<const Builtin> infoBuiltins() {
    return table;
}

} // namespace vbs
