// Intrinsic functions on arrays, and those that make them out of texts.
#include "platform/vbscript/library/BuiltinArguments.h"
#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Memory.h"
#include "platform/vbscript/value/Work.h"

#include <algorithm>

namespace vbs {

namespace {

// The array that an argument is, or that the default member of an object gives; raises 13 for anything else.
Value arrayArgument(Context& context, const Value& argument) {
    Value v = withoutObject(context, argument);
    if (!v.isArray()) {
        raise(ErrorNumber::TypeMismatch);
    }
    return v;
}

// The size of the dimension that the optional second argument names (from 1); raises 9 if there is none.
std::int32_t sizeOfDimension(Context& context, Arguments arguments) {
    const Value held = arrayArgument(context, arguments[0]);
    const ArrayBlock& array = *held.array();
    const std::int32_t dimension = longArgument(context, arguments, 1, 1);
    if (dimension < 1 || dimension > array.dimensions()) {
        raise(ErrorNumber::OutOfRange);
    }
    return array.size(dimension - 1);
}

Value ubound(Context& context, Arguments arguments) {
    return Value::ofLong(sizeOfDimension(context, arguments) - 1);
}

Value lbound(Context& context, Arguments arguments) {
    sizeOfDimension(context, arguments);
    return Value::ofLong(0);
}

Value arrayOf(Context& /*context*/, Arguments arguments) {
    ArrayBlock* array = ArrayBlock::create(arguments.size());
    Value result = Value::ofArray(array);
    std::copy(arguments.begin(), arguments.end(), array->elements());
    for (Value* element = array->elements(); element != array->elements() + array->count(); ++element) {
        if (element->isArray() && element->array()->fixed()) {
            *element = Value::ofArray(element->array()->clone()); // a copy may grow
        }
    }
    return result;
}

// An array of one dimension, or one that has none yet; raises 94 for Null, 13 for anything else.
Value listArgument(Context& context, Value& argument) {
    refuseNull(context, {&argument, 1});
    Value list = arrayArgument(context, argument);
    if (list.array()->dimensions() > 1) {
        raise(ErrorNumber::TypeMismatch);
    }
    return list;
}

std::span<const Value> elementsOf(const Value& list) {
    return {list.array()->elements(), list.array()->count()};
}

// The text of an element; unlike an argument that is Null, such an element raises 13.
TextArgument elementText(Context& context, const Value& element) {
    if (element.isNull()) {
        raise(ErrorNumber::TypeMismatch);
    }
    return {context, element};
}

// Join(list[, separator])
Value join(Context& context, Arguments arguments) {
    const Value held = listArgument(context, arguments[0]);
    const auto list = elementsOf(held);
    const Value blank = context.character(u' ');
    const Value* given = optional(arguments, 1);
    const TextArgument separator(context, given != nullptr ? *given : blank);
    String out;
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (i > 0) {
            out.append(separator.view());
        }
        out.append(elementText(context, list[i]).view());
    }
    return Value::ofString(std::move(out));
}

struct Piece {
    std::size_t from;
    std::size_t length;
};

ChargedVector<Piece> cut(Context& context, std::u16string_view text, std::u16string_view separator, std::int32_t most,
                         TextComparison comparison) {
    ChargedVector<Piece> pieces;
    std::size_t from = 0;
    while (!separator.empty() && (most < 0 || pieces.size() + 1 < static_cast<std::size_t>(most))) {
        const std::size_t at = findText(context, text, separator, from, comparison);
        if (at == std::u16string_view::npos) {
            break;
        }
        pieces.push_back({from, at - from});
        from = at + separator.size();
    }
    pieces.push_back({from, text.size() - from});
    return pieces;
}

// Split(text[, separator[, count[, comparison]]]): the last of `count` pieces holds the rest.
Value split(Context& context, Arguments arguments) {
    const TextArgument text(context, arguments[0]);
    const Value blank = context.character(u' ');
    const Value* given = optional(arguments, 1);
    const TextArgument separator(context, given != nullptr ? *given : blank);
    const std::int32_t most = longArgument(context, arguments, 2, -1);
    const TextComparison comparison = comparisonArgument(context, arguments, 3);
    if (most < -1) {
        raise(ErrorNumber::InvalidCall);
    }
    if (text.size() == 0 || most == 0) {
        return Value::ofArray(ArrayBlock::create(std::size_t{0}));
    }
    const ChargedVector<Piece> pieces = cut(context, text.view(), separator.view(), most, comparison);
    Value result = Value::ofArray(ArrayBlock::create(pieces.size()));
    std::transform(pieces.begin(), pieces.end(), result.array()->elements(), [&](const Piece& piece) {
        return piece.length == 1 ? context.character(text.view()[piece.from])
                                 : Value::ofString(text.view().substr(piece.from, piece.length));
    });
    return result;
}

// Filter(list, part[, include[, comparison]]): the texts that contain the part, or those that do not.
Value filter(Context& context, Arguments arguments) {
    const Value held = listArgument(context, arguments[0]);
    const auto list = elementsOf(held);
    chargeWalk(list.size_bytes());
    const TextArgument needle(context, arguments[1]);
    const bool include = booleanArgument(context, arguments, 2, true);
    const TextComparison comparison = comparisonArgument(context, arguments, 3);
    ChargedVector<Value> kept;
    for (const Value& element : list) {
        const TextArgument text = elementText(context, element);
        if ((findText(context, text.view(), needle.view(), 0, comparison) != std::u16string_view::npos) == include) {
            kept.push_back(element.isString() ? element : Value::ofString(text.view()));
        }
    }
    Value result = Value::ofArray(ArrayBlock::create(kept.size()));
    std::move(kept.begin(), kept.end(), result.array()->elements());
    return result;
}

constexpr Builtin table[] = {
    {u"Array", 0, anyNumber, arrayOf}, {u"Filter", 2, 4, filter}, {u"Join", 1, 2, join},
    {u"LBound", 1, 2, lbound},         {u"Split", 1, 4, split},   {u"UBound", 1, 2, ubound},
};

} // namespace

std::span<const Builtin> arrayBuiltins() {
    return table;
}

} // namespace vbs
